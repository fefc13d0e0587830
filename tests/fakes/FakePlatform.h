#pragma once

// Recording fakes of every platform service. A test makes one FakePlatform,
// scripts the answers it wants, and reads back what the program asked for.

#include "platform/Services.h"

#include <QHash>
#include <QList>
#include <QQueue>
#include <QStringList>

#include <functional>

namespace fakes {

struct ShownMessage
{
    QString message;
    QString explanation;
    QString actionCaption;
    QString altCaption;
    bool plain = false; // true for a one-line message box
};

class FakeMessages final : public platform::MessageService
{
public:
    // Checks, when strict, that every scripted answer was used.
    ~FakeMessages() override;

    // Answers given to showMsgDlog in order; when the queue is empty the
    // dialog answers `defaultAnswer`.
    QQueue<std::uint8_t> answers;
    std::uint8_t defaultAnswer = platform::MsgAction;
    // Strict: a question (a dialog with a choice beyond "OK" or "Continue")
    // with no scripted answer fails the running test, and so does an answer
    // still queued when the fake goes. Notices answer `defaultAnswer`.
    bool strict = false;
    QList<ShownMessage> shown;
    // Runs while a message dialog is up, as the coach or a screen reader
    // could act on the windows beneath a real one; cleared before it runs.
    std::function<void()> whileShown;

    std::uint8_t showMsgDlog(const QString &message, const QString &explanation, const QString &actionCaption,
                             const QString &altCaption) override;
    void msgBox(const QString &text) override;
    void notice(const QString &message, const QString &explanation) override;

    QStringList texts() const; // the first line of every message shown, in order
    void clear() { shown.clear(); }
};

struct FileCall
{
    QString kind; // "folder", "open" or "save"
    platform::FileRequest request;
};

class FakeFileDialogs final : public platform::FileDialogService
{
public:
    // Paths handed back in order; an empty queue answers as a cancel.
    QQueue<QString> answers;
    QList<FileCall> calls;
    QStringList revealed;

    QString selectFolder(const platform::FileRequest &request) override;
    QString openFile(const platform::FileRequest &request) override;
    QString saveFile(const platform::FileRequest &request) override;
    void revealInFileBrowser(const QString &path) override;

private:
    QString answer(const QString &kind, const platform::FileRequest &request);
};

// A printer that writes every job to a PDF file. Page set-up dialogs answer
// from `setupAnswers` (nullopt cancels); with none queued they confirm the
// set-up they were given. Print dialogs cancel while `cancelPrint` is set.
class PdfPrintService final : public platform::PrintService
{
public:
    explicit PdfPrintService(QString directory = {});

    QQueue<std::optional<platform::PrinterSetup>> setupAnswers;
    bool cancelPrint = false;
    int copies = 1;
    int setupDialogs = 0;
    int printDialogs = 0;
    QStringList printed; // the PDF files written, in order
    QString directory;

    std::optional<platform::PrinterSetup> pageSetupDialog(const platform::PrinterSetup &current) override;
    std::unique_ptr<platform::PrintJob> printDialog(const platform::PrinterSetup &setup,
                                                    const QString &jobTitle) override;
};

class FakeUrlOpener final : public platform::UrlOpener
{
public:
    QList<QUrl> opened;
    bool openUrl(const QUrl &url) override
    {
        opened.append(url);
        return true;
    }
};

class FakeBeeper final : public platform::Beeper
{
public:
    int beeps = 0;
    void beep() override { ++beeps; }
};

class FixedClock final : public platform::Clock
{
public:
    QDateTime time = QDateTime(QDate(2026, 4, 15), QTime(10, 30));
    QDateTime now() const override { return time; }
};

// Answers GETs from `pages` by URL, on the next turn of the event loop; a
// URL that isn't there answers 404. With `silent` set nothing ever answers
// until the transfer is aborted. Downloads write the page to the file.
class FakeHttp final : public platform::HttpService
{
public:
    QHash<QString, QByteArray> pages;
    bool silent = false;
    QStringList requested;

    platform::HttpTransfer *get(const QUrl &url, int timeoutMs) override;
    platform::HttpTransfer *download(const QUrl &url, const QString &path) override;
};

// The desktop's secret store: a map of secrets, or no answer at all while
// `answers` is false (a build machine, a bare desktop).
class FakeSecretStore final : public platform::SecretStore
{
public:
    bool answers = true;
    QHash<QString, QString> secrets;

    ReadResult readSecret(const QString &key) override
    {
        if (!answers)
            return {};
        if (!secrets.contains(key))
            return {Status::Missing, {}};
        return {Status::Found, secrets.value(key)};
    }
    bool writeSecret(const QString &key, const QString &secret) override
    {
        if (answers)
            secrets.insert(key, secret);
        return answers;
    }
    bool deleteSecret(const QString &key) override
    {
        if (answers)
            secrets.remove(key);
        return answers;
    }
};

// All fakes together, installed for the life of the object.
class FakePlatform
{
public:
    explicit FakePlatform(const QString &printDirectory = {});
    ~FakePlatform();
    FakePlatform(const FakePlatform &) = delete;
    FakePlatform &operator=(const FakePlatform &) = delete;

    FakeMessages messages;
    FakeFileDialogs files;
    PdfPrintService printing;
    FakeUrlOpener urls;
    FakeBeeper beeper;
    FixedClock clock;
    FakeHttp http;
    FakeSecretStore secrets;

private:
    platform::Services m_previous;
};

} // namespace fakes
