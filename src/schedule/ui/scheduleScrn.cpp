#include "schedule/ui/scheduleScrn.h"

#include "app/globals.h"
#include "app/myDB.h"
#include "app/ui/MainMenuBar.h"
#include "app/ui/ScreenDirectory.h"
#include "app/ui/startScrn1.h"
#include "reports/ui/qlmListBox.h"
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

namespace {

QPushButton *makeButton(QWidget *parent, const QString &name, const QString &caption)
{
    auto *button = new QPushButton(caption, parent);
    button->setObjectName(name);
    return button;
}

} // namespace

scheduleScrn::scheduleScrn(QWidget *parent)
    : ScreenBase(ScreenId::scheduleScrn, QStringLiteral("Games, Practices and Other Events"), {.backupTimer = true},
                 parent),
      m_schedule(*gData)
{
    resize(900, 560);

    auto *central = new QWidget(this);
    auto *outer = new QVBoxLayout(central);

    auto *top = new QHBoxLayout;
    auto *homeLabel = new QLabel(QStringLiteral("Home &Team:"), central);
    homeTeamFld = new QLineEdit(central);
    homeTeamFld->setObjectName(QStringLiteral("homeTeamFld"));
    homeTeamFld->setAccessibleName(QStringLiteral("Home team"));
    homeTeamFld->setReadOnly(true);
    homeLabel->setBuddy(homeTeamFld);
    auto *filterLabel = new QLabel(QStringLiteral("&Show:"), central);
    filterPop = new QComboBox(central);
    filterPop->setObjectName(QStringLiteral("filterPop"));
    filterPop->setAccessibleName(QStringLiteral("Show events of type"));
    filterPop->addItems(ScheduleStore::filters());
    filterLabel->setBuddy(filterPop);
    top->addWidget(homeLabel);
    top->addWidget(homeTeamFld, 1);
    top->addSpacing(24);
    top->addWidget(filterLabel);
    top->addWidget(filterPop);
    outer->addLayout(top);

    ScheduleListbox = new qlmListBox(central);
    ScheduleListbox->setObjectName(QStringLiteral("ScheduleListbox"));
    ScheduleListbox->setAccessibleName(QStringLiteral("Schedule"));
    ScheduleListbox->setHeadings(ScheduleList::headings());
    ScheduleListbox->setColumnWidths(QStringLiteral("95,85,85,110,150,*,30"));
    ScheduleListbox->setRowsMovable(true);
    ScheduleListbox->setToolTip(QStringLiteral("Enter edits the event, Delete removes it; drag a row, or press "
                                               "Alt+Up / Alt+Down, to change the order"));
    ScheduleListbox->installEventFilter(this);
    outer->addWidget(ScheduleListbox, 1);

    schedIDLabel = new QLabel(QStringLiteral("No Selection"), central);
    schedIDLabel->setObjectName(QStringLiteral("schedIDLabel"));
    outer->addWidget(schedIDLabel);

    auto *buttons = new QGridLayout;
    newEventBtn = makeButton(central, QStringLiteral("newEventBtn"), QStringLiteral("&New Event"));
    editBtn = makeButton(central, QStringLiteral("editBtn"), QStringLiteral("&Edit Event"));
    deleteEvBtn = makeButton(central, QStringLiteral("deleteEvBtn"), QStringLiteral("&Delete Event"));
    enterDataBtn = makeButton(central, QStringLiteral("enterDataBtn"), QStringLiteral("---"));
    printBtn = makeButton(central, QStringLiteral("printBtn"), QStringLiteral("&Print"));
    exportBtn = makeButton(central, QStringLiteral("exportBtn"), QStringLiteral("E&xport"));
    viewCalendarBtn = makeButton(central, QStringLiteral("viewCalendarBtn"), QStringLiteral("&Calendar"));
    buttons->addWidget(newEventBtn, 0, 0);
    buttons->addWidget(editBtn, 0, 1);
    buttons->addWidget(deleteEvBtn, 0, 2);
    buttons->addWidget(enterDataBtn, 0, 3);
    buttons->addWidget(printBtn, 1, 0);
    buttons->addWidget(exportBtn, 1, 1);
    buttons->addWidget(viewCalendarBtn, 1, 2);
    outer->addLayout(buttons);
    setCentralWidget(central);

    editBtn->setEnabled(false);
    deleteEvBtn->setEnabled(false);
    enterDataBtn->setEnabled(false);
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
        if (row < 0 || enterDataBtn->text() != u"Practice Plan")
            return;
        if (QWidget *plan = screens::create(ScreenId::practicePlanScrn, ScheduleListbox->rowTag(row)))
            plan->show();
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
    menus()->installHandler(QStringLiteral("FilePrinterSetup"), [] {
        std::optional<platform::PrinterSetup> setup;
        gGetPrinterSetup(setup, true);
        return true;
    });

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
    // The caption tells what the event has; the button opens what is part
    // of the program already.
    enterDataBtn->setEnabled(enterDataBtn->text() == u"Practice Plan" && screens::has(ScreenId::practicePlanScrn));
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

void scheduleScrn::rowMoved(int, int to)
{
    QList<qint64> order;
    for (int r = 0; r < ScheduleListbox->rowCount(); ++r)
        order.append(ScheduleListbox->rowTag(r).toLongLong());
    m_schedule.rowsReordered(order, ScheduleListbox->rowTag(to).toLongLong());
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
