#pragma once

#include "platform/qt/QtHttp.h"

#include "platform/Services.h"
#include "platform/SystemClock.h"
#include "platform/qt/QtSecretStore.h"

namespace platform::qt {

class QtMessageService final : public MessageService
{
public:
    std::uint8_t showMsgDlog(const QString &message, const QString &explanation, const QString &actionCaption,
                             const QString &altCaption) override;
    void msgBox(const QString &text) override;
    void notice(const QString &message, const QString &explanation) override;
};

class QtFileDialogService final : public FileDialogService
{
public:
    QString selectFolder(const FileRequest &request) override;
    QString openFile(const FileRequest &request) override;
    QString saveFile(const FileRequest &request) override;
    void revealInFileBrowser(const QString &path) override;
};

class QtPrintService final : public PrintService
{
public:
    std::optional<PrinterSetup> pageSetupDialog(const PrinterSetup &current) override;
    std::unique_ptr<PrintJob> printDialog(const PrinterSetup &setup, const QString &jobTitle) override;
};

class QtUrlOpener final : public UrlOpener
{
public:
    bool openUrl(const QUrl &url) override;
};

class QtBeeper final : public Beeper
{
public:
    void beep() override;
};

// All of the above, owned together, for main() to install.
struct QtServices
{
    QtMessageService messages;
    QtFileDialogService files;
    QtPrintService printing;
    QtUrlOpener urls;
    QtBeeper beeper;
    SystemClock clock;
    QtHttpService http;
    QtSecretStore secrets;

    Services services() { return {&messages, &files, &printing, &urls, &beeper, &clock, &http, &secrets}; }
};

} // namespace platform::qt
