#pragma once

#include "platform/Desktop.h"
#include "platform/FileDialogs.h"
#include "platform/Http.h"
#include "platform/Messages.h"
#include "platform/Printing.h"
#include "platform/SecretStore.h"

#include <functional>
#include <optional>

namespace platform {

// What the program asks of the desktop. main() installs the Qt
// implementations; tests install recording fakes. Nothing here owns the
// services: whoever installs them keeps them alive while they are installed.
struct Services
{
    MessageService *messages = nullptr;
    FileDialogService *files = nullptr;
    PrintService *printing = nullptr;
    UrlOpener *urls = nullptr;
    Beeper *beeper = nullptr;
    Clock *clock = nullptr;
    HttpService *http = nullptr;
    SecretStore *secrets = nullptr;
};

// Asks with the print dialog, then prints each copy the device doesn't make
// by itself, each starting on a page of its own. Nothing when the user
// cancelled; otherwise whether every page reached the printer.
std::optional<bool> printCopies(const PrinterSetup &setup, const QString &title,
                                const std::function<bool(PrintJob &)> &printCopy);

// Installs a set of services and returns the set that was there before.
Services install(const Services &services);
const Services &installed();

// Accessors for the installed services. A missing service is a programming
// error and throws std::logic_error naming it.
MessageService &messages();
FileDialogService &files();
PrintService &printing();
UrlOpener &urls();
Beeper &beeper();
Clock &clock();
HttpService &http();
SecretStore &secrets();

// Installs a set for the life of a scope, then puts the previous one back.
class ScopedServices
{
public:
    explicit ScopedServices(const Services &services) : m_previous(install(services)) {}
    ~ScopedServices() { install(m_previous); }
    ScopedServices(const ScopedServices &) = delete;
    ScopedServices &operator=(const ScopedServices &) = delete;

private:
    Services m_previous;
};

} // namespace platform
