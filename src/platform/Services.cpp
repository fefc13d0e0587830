#include "platform/Services.h"

#include <algorithm>
#include <stdexcept>
#include <string>

namespace platform {

namespace {
Services g_services;

template<typename T>
T &need(T *service, const char *name)
{
    if (!service)
        throw std::logic_error(std::string("platform service not installed: ") + name);
    return *service;
}
} // namespace

Services install(const Services &services)
{
    Services previous = g_services;
    g_services = services;
    return previous;
}

const Services &installed()
{
    return g_services;
}

MessageService &messages()
{
    return need(g_services.messages, "messages");
}
FileDialogService &files()
{
    return need(g_services.files, "files");
}
PrintService &printing()
{
    return need(g_services.printing, "printing");
}
UrlOpener &urls()
{
    return need(g_services.urls, "urls");
}
Beeper &beeper()
{
    return need(g_services.beeper, "beeper");
}
Clock &clock()
{
    return need(g_services.clock, "clock");
}
HttpService &http()
{
    return need(g_services.http, "http");
}
SecretStore &secrets()
{
    return need(g_services.secrets, "secrets");
}

std::optional<bool> printCopies(const PrinterSetup &setup, const QString &title,
                                const std::function<bool(PrintJob &)> &printCopy)
{
    std::unique_ptr<PrintJob> job = printing().printDialog(setup, title);
    if (!job)
        return std::nullopt;
    bool ok = true;
    for (int copy = 0; copy < std::max(1, job->copies()); ++copy) {
        if (copy > 0)
            ok = job->newPage() && ok;
        ok = printCopy(*job) && ok;
    }
    return job->finish() && ok;
}

} // namespace platform
