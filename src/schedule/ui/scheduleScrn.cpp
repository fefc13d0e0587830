#include "schedule/ui/scheduleScrn.h"

#include "app/globals.h"
#include "app/myDB.h"
#include "app/ui/Form.h"
#include "app/ui/MainMenuBar.h"
#include "app/ui/ScreenDirectory.h"
#include "app/ui/startScrn1.h"
#include "reports/ui/qlmListBox.h"
#include "schedule/ui/CalendarExport.h"
#include "schedule/ui/newEventScrn.h"

#include <QCloseEvent>
#include <QComboBox>
#include <QGridLayout>
#include <QHBoxLayout>
#include <QKeyEvent>
#include <QLabel>
#include <QLineEdit>
#include <QPushButton>
#include <QTimer>
#include <QVBoxLayout>

using namespace Qt::StringLiterals;

scheduleScrn::scheduleScrn(QWidget *parent)
    : ScreenBase(ScreenId::scheduleScrn, QStringLiteral("Games, Practices and Other Events"), {.backupTimer = true},
                 parent),
      m_schedule(*gData)
{
    resize(900, 560);

    auto *central = new QWidget(this);
    auto *outer = new QVBoxLayout(central);
    homeTeamFld = form::lineEdit(central, u"homeTeamFld"_s, u"Home team"_s);
    homeTeamFld->setReadOnly(true);
    filterPop = form::comboBox(central, u"filterPop"_s, u"Show events of type"_s);
    filterPop->addItems(ScheduleStore::filters());
    auto *top = form::row({form::buddyLabel(homeTeamFld, u"Home &Team:"_s, central), homeTeamFld,
                           form::buddyLabel(filterPop, u"&Show:"_s, central), filterPop});
    top->setStretch(1, 1);
    outer->addLayout(top);

    ScheduleListbox = qlmListBox::make(central, u"ScheduleListbox"_s, u"Schedule"_s, ScheduleList::headings(),
                                       u"95,85,85,110,150,*,30"_s);
    ScheduleListbox->setRowsMovable(true);
    ScheduleListbox->setToolTip(u"Enter edits the event, Delete removes it; drag a row, or press "
                                "Ctrl+Up / Ctrl+Down, to change the order"_s);
    ScheduleListbox->installEventFilter(this);
    outer->addWidget(ScheduleListbox, 1);
    schedIDLabel = form::valueLabel(central, u"schedIDLabel"_s, u"Selected event"_s);
    schedIDLabel->setText(u"No Selection"_s);
    outer->addWidget(schedIDLabel);

    newEventBtn = form::button(central, u"newEventBtn"_s, u"&New Event"_s);
    editBtn = form::button(central, u"editBtn"_s, u"&Edit Event"_s);
    deleteEvBtn = form::button(central, u"deleteEvBtn"_s, u"&Delete Event"_s);
    enterDataBtn = form::button(central, u"enterDataBtn"_s, u"---"_s);
    printBtn = form::button(central, u"printBtn"_s, u"&Print"_s);
    exportBtn = form::button(central, u"exportBtn"_s, u"E&xport"_s);
    viewCalendarBtn = form::button(central, u"viewCalendarBtn"_s, u"&Calendar"_s);
    outer->addLayout(form::row({newEventBtn, editBtn, deleteEvBtn, enterDataBtn}));
    boxScoreBtn = form::button(central, u"boxScoreBtn"_s, u"&Box Score"_s);
    outer->addLayout(form::row({printBtn, exportBtn, viewCalendarBtn, boxScoreBtn}));
    setCentralWidget(central);

    editBtn->setEnabled(false);
    deleteEvBtn->setEnabled(false);
    enterDataBtn->setEnabled(false);
    boxScoreBtn->setEnabled(false);
    // The events calendar opens from here once it is part of the program.
    viewCalendarBtn->setEnabled(screens::has(ScreenId::eventsCalendarScrn));

    connect(filterPop, &QComboBox::currentTextChanged, this, &scheduleScrn::loadScheduleLB);
    connect(ScheduleListbox, &qlmListBox::rowSelectionChanged, this, &scheduleScrn::selectionChanged);
    connect(ScheduleListbox, &qlmListBox::rowDoubleClicked, this, [this](int) { hndlEditItem(); });
    connect(ScheduleListbox, &qlmListBox::rowMoved, this, &scheduleScrn::rowMoved);
    connect(newEventBtn, &QPushButton::clicked, this, &scheduleScrn::newEventBtn_Action);
    connect(editBtn, &QPushButton::clicked, this, &scheduleScrn::hndlEditItem);
    connect(deleteEvBtn, &QPushButton::clicked, this, &scheduleScrn::deleteEvent);
    connect(printBtn, &QPushButton::clicked, this, &scheduleScrn::doPrintSchedule);
    connect(exportBtn, &QPushButton::clicked, this, &scheduleScrn::exportSchedule);
    connect(enterDataBtn, &QPushButton::clicked, this, [this] {
        const int row = ScheduleListbox->selectedRow();
        if (row < 0 || !enterDataBtn->isEnabled())
            return;
        // A game opens its scorecard, a practice its plan.
        const ScreenId target = enterDataBtn->text() == u"Practice Plan" ? ScreenId::practicePlanScrn
                                                                         : ScreenId::gameDayScrn;
        if (QWidget *window = screens::create(target, ScheduleListbox->rowTag(row)))
            window->show();
    });
    connect(boxScoreBtn, &QPushButton::clicked, this, [this] {
        const int row = ScheduleListbox->selectedRow();
        if (row < 0 || !boxScoreBtn->isEnabled())
            return;
        if (QWidget *window = screens::create(ScreenId::boxScoreScrn, ScheduleListbox->rowTag(row)))
            window->show();
    });
    connect(viewCalendarBtn, &QPushButton::clicked, this, [] {
        if (QWidget *calendar = screens::create(ScreenId::eventsCalendarScrn))
            calendar->show();
    });

    menus()->installHandler(QStringLiteral("FilePrint"), [this] {
        doPrintSchedule();
        return true;
    });
    menus()->installHandler(QStringLiteral("FileExport"), [this] {
        exportSchedule();
        return true;
    });
    menus()->installHandler(QStringLiteral("FileExportCalendar"), [] {
        schedule::exportCalendar();
        return true;
    });
    menus()->installPrinterSetup();

    homeTeamFld->setText(m_schedule.homeTeamName());
    loadScheduleLB(ScheduleStore::kShowAll);
}

scheduleScrn::~scheduleScrn() = default;

void scheduleScrn::showEvent(QShowEvent *event)
{
    ScreenBase::showEvent(event);
    if (m_opened)
        return;
    m_opened = true;
    // Told once the window is up, so the coach sees what the message is about.
    QTimer::singleShot(0, this, [] { ScheduleList::warnWithoutHomeTeam(); });
}

bool scheduleScrn::eventFilter(QObject *watched, QEvent *event)
{
    // The list's keys for the buttons beside it.
    if (watched == ScheduleListbox && event->type() == QEvent::KeyPress) {
        const auto *key = static_cast<QKeyEvent *>(event);
        if (key->modifiers() == Qt::NoModifier || key->modifiers() == Qt::KeypadModifier) {
            if (key->key() == Qt::Key_Return || key->key() == Qt::Key_Enter) {
                hndlEditItem();
                return true;
            }
            if (key->key() == Qt::Key_Delete) {
                deleteEvent();
                return true;
            }
        }
    }
    return ScreenBase::eventFilter(watched, event);
}

bool scheduleScrn::mayClose()
{
    saveLBandPos();
    return true;
}

qint64 scheduleScrn::selectedID() const
{
    const int row = ScheduleListbox->selectedRow();
    return row < 0 ? -1 : ScheduleListbox->rowTag(row).toLongLong();
}

void scheduleScrn::loadScheduleLB(const QString &filter)
{
    m_schedule.loadScheduleLB(filter);
    showRows(-1);
}

void scheduleScrn::showRows(qint64 selectID)
{
    ScheduleListbox->deleteAllRows();
    int select = -1;
    for (const ScheduleEntry &entry : m_schedule.rows()) {
        const int row = ScheduleListbox->addRow(ScheduleList::cells(entry), QString::number(entry.eventID));
        ScheduleListbox->setCellTag(row, 4, entry.event.oppID);
        if (entry.eventID == selectID)
            select = row;
    }
    ScheduleListbox->setSelectedRow(select);
    selectionChanged();
}

void scheduleScrn::selectionChanged()
{
    const int row = ScheduleListbox->selectedRow();
    editBtn->setEnabled(row >= 0);
    deleteEvBtn->setEnabled(row >= 0);
    enterDataBtn->setText(row >= 0 ? ScheduleList::dataButtonCaption(ScheduleListbox->cell(row, 3))
                                   : QStringLiteral("---"));
    // The caption tells what the event has; the button opens its window.
    enterDataBtn->setEnabled((enterDataBtn->text() == u"Enter Game Data" && screens::has(ScreenId::gameDayScrn)) ||
                             (enterDataBtn->text() == u"Practice Plan" && screens::has(ScreenId::practicePlanScrn)));
    boxScoreBtn->setEnabled(enterDataBtn->text() == u"Enter Game Data" && screens::has(ScreenId::boxScoreScrn));
    schedIDLabel->setText(row >= 0 ? QStringLiteral("Schedule ID = ") + ScheduleListbox->rowTag(row)
                                   : QStringLiteral("No Selection"));
}

void scheduleScrn::newEventBtn_Action()
{
    if (const auto event = newEventScrn::getNewEvent(this))
        addNewItem(*event);
}

void scheduleScrn::addNewItem(const eventClass &event)
{
    const qint64 id = m_schedule.addNewItem(event);
    if (id < 0)
        return;
    const ScheduleEntry &entry = m_schedule.rows().last();
    const int row = ScheduleListbox->addRow(ScheduleList::cells(entry), QString::number(id));
    ScheduleListbox->setCellTag(row, 4, entry.event.oppID);
    ScheduleListbox->setSelectedRow(row);
    ScheduleListbox->scrollTo(ScheduleListbox->model()->index(row, 0));
}

void scheduleScrn::editEventItem(qint64 eventID, const eventClass &event)
{
    m_schedule.editEventItem(eventID, event);
    showRows(eventID);
}

void scheduleScrn::hndlEditItem()
{
    const qint64 id = selectedID();
    if (id < 0)
        return;
    if (const auto event = newEventScrn::getEditEvent(this, id))
        editEventItem(id, *event);
}

void scheduleScrn::deleteEvent()
{
    const int row = ScheduleListbox->selectedRow();
    if (row < 0 || !m_schedule.deleteEvent(row))
        return;
    ScheduleListbox->removeRow(row);
    // Nothing stays selected, so a second click can't delete the next event.
    ScheduleListbox->setSelectedRow(-1);
    selectionChanged();
}

void scheduleScrn::rowMoved(int, int)
{
    QList<qint64> order;
    for (int r = 0; r < ScheduleListbox->rowCount(); ++r)
        order.append(ScheduleListbox->rowTag(r).toLongLong());
    m_schedule.rowsReordered(order);
}

void scheduleScrn::saveLBandPos()
{
    m_schedule.saveLBandPos();
}

void scheduleScrn::doPrintSchedule()
{
    ScheduleListbox->widePrintMe(QStringLiteral("Schedule"), ScheduleList::printWidths());
}

void scheduleScrn::exportSchedule()
{
    ScheduleListbox->exportMe(QStringLiteral("Schedule"));
}
