#include "schedule/ui/CalendarExport.h"

#include "app/globals.h"
#include "app/myDB.h"
#include "app/myPrefs.h"
#include "platform/Desktop.h"
#include "platform/FileDialogs.h"
#include "platform/Services.h"
#include "schedule/CalendarFile.h"
#include "schedule/ScheduleList.h"
#include "schedule/ScheduleStore.h"

#include <QDir>
#include <QFileInfo>
#include <QSaveFile>
#include <QStandardPaths>

namespace schedule {

void exportCalendar()
{
    if (!gData || !gData->isConnected())
        return;
    const QString team = ScheduleList(*gData).homeTeamName();
    const QString season = gPrefs ? gPrefs->prSeason : QString();
    platform::FileRequest request;
    request.title = QStringLiteral("Export Calendar");
    request.prompt = QStringLiteral("Choose a location for the calendar file.");
    request.suggestedName = (team.isEmpty() ? QStringLiteral("Schedule") : team) + u' ' + season +
                            QStringLiteral(".ics");
    request.nameFilters = {QStringLiteral("Calendar files (*.ics)")};
    const QString documents = QStandardPaths::writableLocation(QStandardPaths::DocumentsLocation);
    request.initialDir = QFileInfo(documents).isDir() ? documents : QDir::homePath();
    QString path = platform::files().saveFile(request);
    if (path.isEmpty())
        return;
    if (QFileInfo(path).suffix().isEmpty())
        path += QStringLiteral(".ics");
    const QByteArray text = calendarFile(ScheduleStore(*gData).list(ScheduleStore::kShowAll), team, season,
                                         platform::clock().now());
    QSaveFile file(path);
    if (file.open(QIODevice::WriteOnly) && file.write(text) == text.size() && file.commit())
        return;
    gShowMsgDlog(QStringLiteral("The file \"") + QDir::toNativeSeparators(path) +
                     QStringLiteral("\" couldn't be written."),
                 file.errorString(), QStringLiteral("OK"));
}

} // namespace schedule
