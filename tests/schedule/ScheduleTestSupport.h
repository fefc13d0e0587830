#pragma once

// Shared set-up of the schedule's window tests: a season in a temporary
// folder with a home team and an opponent, and a way to work a modal
// window from inside its exec().

#include "app/App.h"
#include "app/globals.h"
#include "fakes/FakePlatform.h"

#include <QApplication>
#include <QDialog>
#include <QPointer>
#include <QTemporaryDir>
#include <QTimer>

#include <functional>
#include <memory>

namespace scheduletest {

// A season with the home team "O'Brien's Nine" (field "O'Malley's Field")
// and the opponent "Bears" (field "Riverside").
class Season
{
public:
    Season()
    {
        m_app = std::make_unique<App>(m_home.path());
        if (m_app->Event_Open() != App::OpenResult::Ok)
            qFatal("season did not open");
        homeID = gData->insert(QStringLiteral("Teams"), {{QStringLiteral("TeamName"), QStringLiteral("O'Brien's Nine")},
                                                          {QStringLiteral("HomeField"), QStringLiteral("O'Malley's Field")}});
        bearsID = gData->insert(QStringLiteral("Teams"), {{QStringLiteral("TeamName"), QStringLiteral("Bears")},
                                                           {QStringLiteral("HomeField"), QStringLiteral("Riverside")}});
        gPrefs->prHomeTeam = QString::number(homeID);
    }
    ~Season()
    {
        QApplication::closeAllWindows();
        QCoreApplication::sendPostedEvents(nullptr, QEvent::DeferredDelete);
    }

    fakes::FakePlatform fake{};
    qint64 homeID = -1;
    qint64 bearsID = -1;
    QString folder() const { return m_home.path(); }

private:
    QTemporaryDir m_home;
    std::unique_ptr<App> m_app;
};

// Runs `work` on the first visible window of type T once it shows (as a
// modal window's exec() is running). A window still open 10 seconds later
// is rejected so that a failed test can't hang.
template<class T>
void whenShown(std::function<void(T *)> work)
{
    auto *poll = new QTimer;
    poll->setInterval(5);
    QObject::connect(poll, &QTimer::timeout, poll, [poll, work] {
        for (QWidget *w : QApplication::topLevelWidgets()) {
            auto *window = qobject_cast<T *>(w);
            if (!window || !window->isVisible())
                continue;
            poll->stop();
            poll->deleteLater();
            QPointer<QDialog> guard = qobject_cast<QDialog *>(w);
            QTimer::singleShot(10000, [guard] {
                if (guard && guard->isVisible())
                    guard->reject();
            });
            work(window);
            return;
        }
    });
    poll->start();
}

} // namespace scheduletest
