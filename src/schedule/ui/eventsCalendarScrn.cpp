#include "schedule/ui/eventsCalendarScrn.h"

#include "app/globals.h"
#include "app/myDB.h"
#include "app/myPrefs.h"
#include "app/ui/Form.h"
#include "app/ui/MainMenuBar.h"
#include "platform/Services.h"
#include "schedule/EventDates.h"
#include "schedule/EventsCalendar.h"
#include "schedule/ScheduleStore.h"
#include "schedule/ui/CalendarExport.h"
#include "schedule/ui/monthlyEventsLayer.h"

#include <QHBoxLayout>
#include <QKeyEvent>
#include <QLabel>
#include <QPushButton>
#include <QVBoxLayout>

eventsCalendarScrn::eventsCalendarScrn(QWidget *parent)
    : ScreenBase(ScreenId::eventsCalendarScrn, QStringLiteral("Event Calendar"), {.returnToStart = false}, parent)
{
    auto *central = new QWidget(this);
    auto *outer = new QVBoxLayout(central);

    auto *top = new QHBoxLayout;
    prevBtn = form::button(central, QStringLiteral("prevBtn"), QStringLiteral("< Pre&vious"),
                           QStringLiteral("Previous month"));
    nextBtn = form::button(central, QStringLiteral("nextBtn"), QStringLiteral("Ne&xt >"), QStringLiteral("Next month"));
    top->addWidget(prevBtn);
    top->addStretch(1);
    top->addWidget(nextBtn);
    outer->addLayout(top);

    eventCalendar1 = form::named(new monthlyEventsLayer(central), QStringLiteral("eventCalendar1"),
                                 QStringLiteral("Event calendar"));
    outer->addWidget(eventCalendar1, 1);

    infoLabel = form::valueLabel(central, QStringLiteral("infoLabel"), QStringLiteral("Selected date or event"));
    outer->addWidget(infoLabel);

    auto *bottom = new QHBoxLayout;
    printBtn = form::button(central, QStringLiteral("printBtn"), QStringLiteral("&Print"));
    closeBtn = form::button(central, QStringLiteral("closeBtn"), QStringLiteral("&Close"));
    bottom->addWidget(printBtn);
    bottom->addStretch(1);
    bottom->addWidget(closeBtn);
    outer->addLayout(bottom);
    setCentralWidget(central);
    setTabOrder(prevBtn, nextBtn);
    setTabOrder(nextBtn, eventCalendar1);
    setTabOrder(eventCalendar1, printBtn);
    setTabOrder(printBtn, closeBtn);

    MonthEventsCalendar &calendar = eventCalendar1->calendar();
    connect(&calendar, &MonthCalendar::dateClicked, this,
            [this](const QDate &date) { infoLabel->setText(EventDates::longDate(date)); });
    connect(&calendar, &MonthEventsCalendar::eventClicked, this,
            [this](const mcEventDataClass &event) { infoLabel->setText(EventsCalendar::infoText(event)); });
    connect(prevBtn, &QPushButton::clicked, this, [this] { turnMonth(-1); });
    connect(nextBtn, &QPushButton::clicked, this, [this] { turnMonth(1); });
    connect(printBtn, &QPushButton::clicked, this, &eventsCalendarScrn::hndlPrint);
    connect(closeBtn, &QPushButton::clicked, this, &QWidget::close);

    menus()->installHandler(QStringLiteral("FilePrint"), [this] {
        hndlPrint();
        return true;
    });
    menus()->installHandler(QStringLiteral("FileExportCalendar"), [] {
        schedule::exportCalendar();
        return true;
    });
    menus()->installPrinterSetup();

    fillEvents();
    eventCalendar1->setFocus();
}

void eventsCalendarScrn::fillEvents()
{
    MonthEventsCalendar &calendar = eventCalendar1->calendar();
    calendar.clearEvents();
    if (!gData)
        return;
    for (const mcEventDataClass &event :
         EventsCalendar::fromSchedule(ScheduleStore(*gData).list(ScheduleStore::kShowAll)))
        calendar.addEvent(event, QString(), false);
    eventCalendar1->update();
}

void eventsCalendarScrn::turnMonth(int step)
{
    MonthEventsCalendar &calendar = eventCalendar1->calendar();
    const QDate month = calendar.dateSelected().addMonths(step);
    calendar.ShowMonth(month.year(), month.month());
}

void eventsCalendarScrn::hndlPrint()
{
    std::optional<platform::PrinterSetup> setup;
    gGetPrinterSetup(setup, false);
    if (!setup)
        return;
    std::unique_ptr<platform::PrintJob> job = platform::printing().printDialog(*setup, windowTitle());
    if (!job)
        return;
    const QString team = gData && gPrefs ? gData->getTeamNameFromID(gPrefs->prHomeTeam, false) : QString();
    const QDate today = platform::clock().now().date();
    for (int copy = 0; copy < job->copies(); ++copy) {
        if (copy > 0 && !job->newPage())
            break;
        EventsCalendar::printOneCopy(job->painter(), job->setup(), eventCalendar1->calendar(), team, today,
                                     eventCalendar1->font());
    }
    job->finish();
}

void eventsCalendarScrn::changeEvent(QEvent *event)
{
    ScreenBase::changeEvent(event);
    // Coming to the front repaints the month (today may have moved on).
    if (event->type() == QEvent::ActivationChange && isActiveWindow())
        eventCalendar1->update();
}

void eventsCalendarScrn::keyPressEvent(QKeyEvent *event)
{
    if (event->key() == Qt::Key_Return || event->key() == Qt::Key_Enter) {
        close();
        return;
    }
    ScreenBase::keyPressEvent(event);
}
