#include "fakes/FakePlatform.h"

#include <utility>

#include <QSaveFile>
#include <QTimer>

#include <QDir>
#include <QPainter>
#include <QPdfWriter>
#include <QTest>

namespace fakes {

namespace {
void failTest(const QString &why)
{
    // Outside a test function (a fixture going at the end) it can only warn.
    if (QTest::currentTestFunction() && !QTest::currentTestFailed())
        QTest::qFail(qPrintable(why), __FILE__, __LINE__);
    else
        qWarning("%s", qPrintable(why));
}
} // namespace

FakeMessages::~FakeMessages()
{
    if (strict && !answers.isEmpty())
        failTest(QStringLiteral("%1 scripted answer(s) left unused").arg(answers.size()));
}

std::uint8_t FakeMessages::showMsgDlog(const QString &message, const QString &explanation, const QString &actionCaption,
                                       const QString &altCaption)
{
    shown.append({message, explanation, actionCaption, altCaption, false});
    if (whileShown)
        std::exchange(whileShown, {})();
    // A notice has one way on ("OK", "Continue") besides Cancel; anything
    // else asks the coach to choose.
    const bool question = !altCaption.isEmpty() ||
                          (actionCaption != QStringLiteral("OK") && actionCaption != QStringLiteral("Continue"));
    if (answers.isEmpty()) {
        if (strict && question)
            failTest(QStringLiteral("unscripted question: ") + message);
        return defaultAnswer;
    }
    return answers.dequeue();
}

void FakeMessages::notice(const QString &message, const QString &explanation)
{
    shown.append({message, explanation, QStringLiteral("OK"), {}, false});
}

void FakeMessages::msgBox(const QString &text)
{
    shown.append({text, {}, {}, {}, true});
}

QStringList FakeMessages::texts() const
{
    QStringList out;
    for (const ShownMessage &m : shown)
        out.append(m.message);
    return out;
}

QString FakeFileDialogs::answer(const QString &kind, const platform::FileRequest &request)
{
    calls.append({kind, request});
    return answers.isEmpty() ? QString() : answers.dequeue();
}

QString FakeFileDialogs::selectFolder(const platform::FileRequest &request)
{
    return answer(QStringLiteral("folder"), request);
}
QString FakeFileDialogs::openFile(const platform::FileRequest &request)
{
    return answer(QStringLiteral("open"), request);
}
QString FakeFileDialogs::saveFile(const platform::FileRequest &request)
{
    return answer(QStringLiteral("save"), request);
}
void FakeFileDialogs::revealInFileBrowser(const QString &path)
{
    revealed.append(path);
}

namespace {

class PdfJob final : public platform::PrintJob
{
public:
    PdfJob(const QString &path, const platform::PrinterSetup &setup, int copies)
        : m_writer(path), m_setup(setup), m_copies(copies)
    {
        m_writer.setPageLayout(setup.layout());
        m_writer.setResolution(1200);
        m_painter.begin(&m_writer);
        const qreal scale = m_writer.resolution() / 72.0;
        m_painter.scale(scale, scale);
    }
    ~PdfJob() override
    {
        if (m_painter.isActive())
            m_painter.end();
    }
    QPainter &painter() override { return m_painter; }
    const platform::PrinterSetup &setup() const override { return m_setup; }
    bool newPage() override { return m_writer.newPage(); }
    int copies() const override { return m_copies; }
    bool finish() override { return m_painter.end(); }

private:
    QPdfWriter m_writer;
    platform::PrinterSetup m_setup;
    int m_copies;
    QPainter m_painter;
};

} // namespace

PdfPrintService::PdfPrintService(QString dir) : directory(std::move(dir))
{
    if (directory.isEmpty())
        directory = QDir::tempPath();
}

std::optional<platform::PrinterSetup> PdfPrintService::pageSetupDialog(const platform::PrinterSetup &current)
{
    ++setupDialogs;
    if (!setupAnswers.isEmpty())
        return setupAnswers.dequeue();
    return current;
}

std::unique_ptr<platform::PrintJob> PdfPrintService::printDialog(const platform::PrinterSetup &setup, const QString &)
{
    ++printDialogs;
    if (cancelPrint)
        return nullptr;
    const QString path = QDir(directory).filePath(QStringLiteral("print-%1.pdf").arg(printed.size() + 1));
    printed.append(path);
    return std::make_unique<PdfJob>(path, setup, copies);
}

FakePlatform::FakePlatform(const QString &printDirectory) : printing(printDirectory)
{
    m_previous = platform::install({&messages, &files, &printing, &urls, &beeper, &clock, &http, &secrets});
}

FakePlatform::~FakePlatform()
{
    platform::install(m_previous);
}

} // namespace fakes

namespace fakes {

namespace {

class FakeTransfer final : public platform::HttpTransfer
{
public:
    FakeTransfer(const QByteArray *page, bool silent, QString path) : m_path(std::move(path))
    {
        if (silent)
            return;
        const QByteArray answer = page ? *page : QByteArray();
        const int error = page ? 0 : 404;
        QTimer::singleShot(0, this, [this, answer, error] { finish(answer, error); });
    }

    void abort() override
    {
        m_cancelled = true;
        finish({}, -5);
    }

private:
    void finish(const QByteArray &answer, int error)
    {
        if (m_done)
            return;
        m_done = true;
        m_error = m_cancelled ? -5 : error;
        if (m_error == 0) {
            Q_EMIT progress(answer.size(), answer.size());
            if (m_path.isEmpty()) {
                m_body = answer;
            } else {
                QSaveFile file(m_path);
                if (!file.open(QIODevice::WriteOnly) || file.write(answer) != answer.size() || !file.commit())
                    m_error = -1;
            }
        }
        Q_EMIT finished();
    }

    QString m_path;
    bool m_done = false;
};

} // namespace

platform::HttpTransfer *FakeHttp::get(const QUrl &url, int)
{
    requested.append(url.toString());
    const auto it = pages.constFind(url.toString());
    return new FakeTransfer(it == pages.constEnd() ? nullptr : &*it, silent, {});
}

platform::HttpTransfer *FakeHttp::download(const QUrl &url, const QString &path)
{
    requested.append(url.toString());
    const auto it = pages.constFind(url.toString());
    return new FakeTransfer(it == pages.constEnd() ? nullptr : &*it, silent, path);
}

} // namespace fakes
