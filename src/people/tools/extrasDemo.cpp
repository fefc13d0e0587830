// A sample season on the inventory, contact and practice plan screens, to
// try them by hand or to take their pictures for the documentation.
//   tl_extras_demo <data root> InventoryScrn|contactInfoScrn|practicePlanScrn [--grab out.png]
// The data root is an application-data folder of its own: the season lands
// in <root>/QLM/TLYN2, never in the user's real one unless asked.

#include "app/App.h"
#include "app/globals.h"
#include "app/myDB.h"
#include "app/myPrefs.h"
#include "app/ui/TallylineApplication.h"
#include "people/InventoryBook.h"
#include "people/ui/InventoryScrn.h"
#include "people/ui/contactInfoScrn.h"
#include "platform/qt/QtServices.h"
#include "reports/ui/qlmListBox.h"
#include "schedule/ui/practicePlanScrn.h"

#include <QComboBox>
#include <QTimer>
#include <cstdio>

namespace {

qint64 seed()
{
    if (gData->scalar(QStringLiteral("SELECT COUNT(*) FROM Teams")).toInt() > 0)
        return gData->scalar(QStringLiteral("SELECT eventID FROM Schedule WHERE Event = 'Practice'")).toLongLong();
    const qint64 team = gData->insert(QStringLiteral("Teams"),
                                      {{QStringLiteral("SchoolName"), QStringLiteral("Central")},
                                       {QStringLiteral("TeamName"), QStringLiteral("Cougars")},
                                       {QStringLiteral("Active"), 1}});
    gPrefs->prHomeTeam = QString::number(team);
    const struct
    {
        const char *first, *last, *phone, *cell, *email, *guardian, *gPhone;
    } players[] = {
        {"Mateo", "Alvarez", "(614) 555-0142", "(614) 555-0190", "mateo.alvarez@example.org", "Rosa Alvarez",
         "(614) 555-0143"},
        {"Liam", "O'Brien", "(614) 555-0177", "", "liam.obrien@example.org", "Kate O'Brien", "(614) 555-0178"},
        {"Noah", "Becker", "(614) 555-0101", "(614) 555-0199", "", "Jon Becker", "(614) 555-0102"},
        {"Eli", "Nakamura", "(614) 555-0155", "", "eli.n@example.org", "Aiko Nakamura", "(614) 555-0156"},
        {"Jaden", "Williams", "(614) 555-0120", "(614) 555-0121", "jaden.w@example.org", "Tasha Williams",
         "(614) 555-0122"},
    };
    QStringList playerIDs;
    for (const auto &p : players)
        playerIDs.append(QString::number(
            gData->insert(QStringLiteral("Players"), {{QStringLiteral("TeamNum"), team},
                                                      {QStringLiteral("First"), QString::fromUtf8(p.first)},
                                                      {QStringLiteral("Last"), QString::fromUtf8(p.last)},
                                                      {QStringLiteral("PhoneNumber"), QString::fromUtf8(p.phone)},
                                                      {QStringLiteral("CellPhone"), QString::fromUtf8(p.cell)},
                                                      {QStringLiteral("Email"), QString::fromUtf8(p.email)},
                                                      {QStringLiteral("Guardian"), QString::fromUtf8(p.guardian)},
                                                      {QStringLiteral("GuardianPhone"), QString::fromUtf8(p.gPhone)},
                                                      {QStringLiteral("Active"), 1}})));
    for (const auto &c : {std::pair{"Dana", "Okafor"}, std::pair{"Sam", "Reyes"}})
        gData->insert(QStringLiteral("Coaches"),
                      {{QStringLiteral("TeamNum"), team},
                       {QStringLiteral("First"), QString::fromUtf8(c.first)},
                       {QStringLiteral("Last"), QString::fromUtf8(c.second)},
                       {QStringLiteral("PhoneNumber"), QStringLiteral("(614) 555-0188")},
                       {QStringLiteral("Email"),
                        QString(QString::fromUtf8(c.first).toLower() + QStringLiteral("@example.org"))}});

    people::InventoryBook book(*gData);
    book.selectTeam(QString::number(team));
    const struct
    {
        const char *qty, *item, *id;
    } items[] = {{"24", "Baseballs", ""},   {"6", "Batting helmets", "H-1 to H-6"},
                 {"4", "Bats, 31 in.", ""}, {"1", "Catcher's gear", "C-1"},
                 {"15", "Jerseys", "1-15"}, {"2", "Ball buckets", ""}};
    for (const auto &i : items)
        book.enterItem(-1, QString::fromUtf8(i.qty), QString::fromUtf8(i.item), QString::fromUtf8(i.id));
    book.selectPlayer(playerIDs.at(1));
    book.assign(book.poolRowOf(book.pool().at(1).serial));
    book.assign(book.poolRowOf(book.pool().at(4).serial));

    const qint64 practice = gData->insert(QStringLiteral("Schedule"),
                                          {{QStringLiteral("SchedDate"), QStringLiteral("2026-04-14")},
                                           {QStringLiteral("StartTime"), QStringLiteral("3:30 PM")},
                                           {QStringLiteral("Event"), QStringLiteral("Practice")},
                                           {QStringLiteral("Location"), QStringLiteral("Memorial Field")},
                                           {QStringLiteral("isHome"), 0}});
    const char *drills[][4] = {{"Arm Stretch", "3:30 PM", "3:45 PM", "Dana Okafor"},
                               {"Long Toss", "3:45 PM", "4:00 PM", "Sam Reyes"},
                               {"Ground Balls", "4:00 PM", "4:30 PM", "Dana Okafor"},
                               {"Soft Toss", "4:30 PM", "5:00 PM", "Sam Reyes"},
                               {"Run and Steal", "5:00 PM", "5:15 PM", ""}};
    for (const auto &d : drills)
        gData->insert(QStringLiteral("Drills"), {{QStringLiteral("scheduleID"), QString::number(practice)},
                                                 {QStringLiteral("drill"), QString::fromUtf8(d[0])},
                                                 {QStringLiteral("start"), QString::fromUtf8(d[1])},
                                                 {QStringLiteral("pEnd"), QString::fromUtf8(d[2])},
                                                 {QStringLiteral("coach"), QString::fromUtf8(d[3])}});
    gPrefs->prefsDirty = true;
    return practice;
}

} // namespace

int main(int argc, char *argv[])
{
    TallylineApplication application(argc, argv);
    const QStringList args = application.arguments();
    if (args.size() < 3) {
        std::fprintf(stderr, "usage: tl_extras_demo <data root> InventoryScrn|contactInfoScrn|practicePlanScrn "
                             "[--grab out.png]\n");
        return 2;
    }
    platform::qt::QtServices desktop;
    platform::ScopedServices installed(desktop.services());
    App app(args.at(1));
    if (app.Event_Open() != App::OpenResult::Ok)
        return 1;
    const qint64 practice = seed();

    QWidget *window = nullptr;
    if (args.at(2) == u"InventoryScrn") {
        auto *screen = new InventoryScrn;
        screen->selPlayerPop->setCurrentIndex(2);
        screen->teamInvList->setSelectedRow(3);
        window = screen;
    } else if (args.at(2) == u"contactInfoScrn") {
        auto *screen = new contactInfoScrn;
        screen->playersList->setRowSelected(0, true);
        screen->playersList->setRowSelected(3, true);
        window = screen;
    } else {
        auto *screen = new practicePlanScrn(QString::number(practice));
        screen->activityBox->setCurrentIndex(3);
        screen->drillList->setSelectedRow(2);
        window = screen;
    }
    window->show();
    const qsizetype grab = args.indexOf(QStringLiteral("--grab"));
    if (grab > 0 && grab + 1 < args.size()) {
        const QString out = args.at(grab + 1);
        QTimer::singleShot(300, window, [window, out] {
            window->grab().save(out);
            delete window;
            QCoreApplication::quit();
        });
    }
    const int result = application.exec();
    app.Event_Close();
    return result;
}
