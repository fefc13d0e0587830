#include "reports/ui/standingsScrn.h"

#include "app/globals.h"
#include "app/myDB.h"
#include "app/myPrefs.h"
#include "app/ui/Form.h"
#include "app/ui/MainMenuBar.h"
#include "reports/ui/qlmListBox.h"
#include "support/NumberKeyRule.h"

#include <QComboBox>
#include <QHBoxLayout>
#include <QKeyEvent>
#include <QLabel>
#include <QPushButton>
#include <QVBoxLayout>

namespace {
constexpr int kFirstRecordColumn = 1; // W
constexpr int kLastRecordColumn = 3;  // Tie
} // namespace

standingsScrn::standingsScrn(QWidget *parent)
    : ScreenBase(ScreenId::standingsScrn, QStringLiteral("Current Standings"), {.returnToStart = false}, parent),
      m_standings(*gData, gPrefs ? gPrefs->prHomeTeam : QString())
{
    auto *central = new QWidget(this);
    auto *outer = new QVBoxLayout(central);
    auto *top = new QHBoxLayout;
    standSelPop = form::comboBox(central, QStringLiteral("standSelPop"), QStringLiteral("Standings of"));
    top->addWidget(form::buddyLabel(standSelPop, QStringLiteral("&Show:"), central));
    top->addWidget(standSelPop, 1);
    outer->addLayout(top);

    myLB = form::named(new qlmListBox(central), QStringLiteral("myLB"), QStringLiteral("Standings"));
    myLB->setHeadings({QStringLiteral("Team"), QStringLiteral("W"), QStringLiteral("L"), QStringLiteral("Tie"),
                       QStringLiteral("Pct"), QStringLiteral("GB")});
    myLB->setColumnWidths(QStringLiteral("*,44,44,44,56,56"));
    for (int c = 1; c < 6; ++c)
        myLB->setColumnAlignment(c, Qt::AlignRight | Qt::AlignVCenter);
    myLB->setToolTip(QStringLiteral("With Edit Records down: Return or a click opens a team's W, L or Tie; "
                                    "+ and - step the number, Tab moves on, Return goes to the next team"));
    myLB->installEventFilter(this);
    outer->addWidget(myLB, 1);

    noGamesWarning = new QLabel(QStringLiteral("No game results have been recorded or entered yet."), central);
    noGamesWarning->setObjectName(QStringLiteral("noGamesWarning"));
    noGamesWarning->setVisible(false);
    outer->addWidget(noGamesWarning);

    auto *buttons = new QHBoxLayout;
    editWLBtn = form::button(central, QStringLiteral("editWLBtn"), QStringLiteral("&Edit Records"));
    editWLBtn->setCheckable(true);
    CloseBtn = form::button(central, QStringLiteral("CloseBtn"), QStringLiteral("&Close"));
    buttons->addWidget(editWLBtn);
    buttons->addStretch(1);
    buttons->addWidget(CloseBtn);
    outer->addLayout(buttons);
    setCentralWidget(central);
    resize(460, 420);

    for (const auto &entry : m_standings.viewEntries())
        standSelPop->addItem(entry.text, int(entry.view));
    standSelPop->setCurrentIndex(0);
    m_standings.setUpTeamData();
    acquireData();
    fillStandLB();

    connect(standSelPop, &QComboBox::currentIndexChanged, this, &standingsScrn::viewChanged);
    connect(editWLBtn, &QPushButton::clicked, this, &standingsScrn::editWLBtn_Action);
    connect(CloseBtn, &QPushButton::clicked, this, &QWidget::close);
    connect(myLB, &qlmListBox::cellClicked, this, &standingsScrn::myLB_CellClick);
    connect(myLB, &qlmListBox::cellEdited, this, [this] { dataDirty = true; });
    // Without the edit button down, rows can't be selected.
    connect(myLB, &qlmListBox::rowSelectionChanged, this, [this] {
        if (!allowEdits && myLB->selectedRow() >= 0)
            myLB->setSelectedRow(-1);
    });
    myLB->setCellKeyHandler(
        [this](int row, int column, QKeyEvent *event) { return myLB_CellKeyDown(row, column, event); });

    menus()->installListHandlers(
        [this] { myLB->printMe(QStringLiteral("Current Standings - ") + standSelPop->currentText(), false); },
        [this] { myLB->exportMe(QStringLiteral("Current Standings - ") + standSelPop->currentText()); });
}

void standingsScrn::acquireData()
{
    m_standings.acquireData();
    noGamesWarning->setVisible(m_standings.noGames());
}

void standingsScrn::viewChanged()
{
    // What the coach typed is saved and read back before the other view
    // refills the list; otherwise the refill would overwrite it and the
    // button's release would then save the refilled cells.
    myLB->setCurrentIndex({});
    if (dataDirty) {
        saveData();
        acquireData();
    }
    fillStandLB();
}

void standingsScrn::fillStandLB()
{
    myLB->deleteAllRows();
    const auto view = reports::Standings::View(standSelPop->currentData().toInt());
    const std::optional<QList<reports::StandingsRow>> rows = m_standings.fillStandLB(view);
    if (!rows) {
        myLB->addRow({QStringLiteral("There was an error")});
        return;
    }
    for (const reports::StandingsRow &r : *rows)
        myLB->addRow({r.team, r.W, r.L, r.Tie, r.Pct, r.GB}, r.teamID);
    setRecordCellsEditable(allowEdits);
}

void standingsScrn::setRecordCellsEditable(bool editable)
{
    for (int row = 0; row < myLB->rowCount(); ++row) {
        // The home team's cells never open: its record is the games'.
        const bool open = editable && !isHomeRow(row) && !myLB->rowTag(row).isEmpty();
        for (int c = kFirstRecordColumn; c <= kLastRecordColumn; ++c)
            myLB->setCellType(row, c, open ? qlmListBox::CellType::Editable : qlmListBox::CellType::Normal);
    }
}

bool standingsScrn::isHomeRow(int row) const
{
    return m_standings.isHomeTeam(myLB->rowTag(row));
}

void standingsScrn::saveData()
{
    QList<reports::StandingsRow> rows;
    for (int row = 0; row < myLB->rowCount(); ++row) {
        if (myLB->rowTag(row).isEmpty())
            continue;
        reports::StandingsRow r;
        r.teamID = myLB->rowTag(row);
        r.W = myLB->cell(row, 1);
        r.L = myLB->cell(row, 2);
        r.Tie = myLB->cell(row, 3);
        rows.append(r);
    }
    if (m_standings.saveData(rows))
        dataDirty = false;
}

void standingsScrn::editWLBtn_Action()
{
    // An open cell's text counts as typed.
    myLB->setCurrentIndex({});
    allowEdits = editWLBtn->isChecked();
    if (dataDirty)
        saveData();
    if (!allowEdits) {
        myLB->setSelectedRow(-1);
        acquireData();
        fillStandLB();
    } else {
        setRecordCellsEditable(true);
    }
}

void standingsScrn::editRecordCell(int row, int column)
{
    if (row < 0 || row >= myLB->rowCount() || myLB->rowTag(row).isEmpty())
        return;
    if (isHomeRow(row)) {
        gShowMsgDlog(QStringLiteral("You cannot enter a record for the home team."),
                     QStringLiteral("Its record will be determined by game results."), QStringLiteral("OK"));
        return;
    }
    myLB->setSelectedRow(row);
    myLB->editCell(row, column);
}

void standingsScrn::myLB_CellClick(int row, int column)
{
    if (allowEdits && column >= kFirstRecordColumn && column <= kLastRecordColumn)
        editRecordCell(row, column);
}

bool standingsScrn::myLB_CellKeyDown(int row, int column, QKeyEvent *event)
{
    const int key = event->key();
    if (key == Qt::Key_Return || key == Qt::Key_Enter) {
        QList<bool> home;
        for (int r = 0; r < myLB->rowCount(); ++r)
            home.append(isHomeRow(r));
        const int next = reports::Standings::nextEditRow(home, row);
        // Moving the current cell commits the open editor first.
        myLB->setCurrentIndex({});
        if (next >= 0 && !isHomeRow(next)) {
            myLB->setSelectedRow(next);
            myLB->editCell(next, kFirstRecordColumn);
        }
        return true;
    }
    if (key == Qt::Key_Tab || key == Qt::Key_Backtab) {
        const int next = column >= kLastRecordColumn ? kFirstRecordColumn : column + 1;
        myLB->setCurrentIndex({});
        myLB->setSelectedRow(row);
        myLB->editCell(row, next);
        return true;
    }
    switch (support::numberKeyAction(key, event->text(), event->modifiers())) {
    case support::NumberKeyAction::StepUp:
        myLB->setEditorText(support::steppedNumber(myLB->editorText(), 1));
        dataDirty = true;
        return true;
    case support::NumberKeyAction::StepDown:
        myLB->setEditorText(support::steppedNumber(myLB->editorText(), -1));
        dataDirty = true;
        return true;
    case support::NumberKeyAction::Refuse:
        gBeep();
        return true;
    case support::NumberKeyAction::Pass:
        break;
    }
    if (key == Qt::Key_Backspace || key == Qt::Key_Delete || (key >= Qt::Key_0 && key <= Qt::Key_9))
        dataDirty = true;
    return false;
}

bool standingsScrn::eventFilter(QObject *watched, QEvent *event)
{
    // With the edit button down, Return on the list opens the selected
    // team's W cell, as a click on it does.
    if (watched == myLB && event->type() == QEvent::KeyPress && allowEdits) {
        const int key = static_cast<QKeyEvent *>(event)->key();
        if ((key == Qt::Key_Return || key == Qt::Key_Enter || key == Qt::Key_F2) && !myLB->isEditingCell()) {
            editRecordCell(std::max(0, myLB->selectedRow()), kFirstRecordColumn);
            return true;
        }
    }
    return ScreenBase::eventFilter(watched, event);
}

void standingsScrn::keyPressEvent(QKeyEvent *event)
{
    // Return closes the window.
    if (event->key() == Qt::Key_Return || event->key() == Qt::Key_Enter) {
        close();
        return;
    }
    ScreenBase::keyPressEvent(event);
}

bool standingsScrn::mayClose()
{
    myLB->setCurrentIndex({});
    if (dataDirty)
        saveData();
    return true;
}
