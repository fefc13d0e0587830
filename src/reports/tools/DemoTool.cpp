#include "DemoTool.h"

#include <QTimer>
#include <QWidget>

#include <cstdio>

DemoTool::DemoTool(int &argc, char **argv, int minArgs, const char *usage)
    : m_application(argc, argv), m_args(QCoreApplication::arguments()), m_installed(m_desktop.services())
{
    if (m_args.size() <= minArgs) {
        std::fprintf(stderr, "usage: %s\n", usage);
        m_failure = 2;
        return;
    }
    m_season = std::make_unique<App>(m_args.at(1));
    if (m_season->Event_Open() != App::OpenResult::Ok)
        m_failure = 1;
}

DemoTool::~DemoTool() = default;

int DemoTool::show(QWidget *window)
{
    window->show();
    const qsizetype grab = m_args.indexOf(QStringLiteral("--grab"));
    if (grab > 0 && grab + 1 < m_args.size()) {
        const QString out = m_args.at(grab + 1);
        QTimer::singleShot(300, window, [window, out] {
            window->grab().save(out);
            // The picture is taken; the window goes without the questions
            // of a real close.
            delete window;
            QCoreApplication::quit();
        });
    }
    const int result = QApplication::exec();
    m_season->Event_Close();
    return result;
}
