#include "gameday/ui/defenseDlog.h"

#include "app/globals.h"
#include "app/ui/Form.h"
#include "gameday/GameDay.h"
#include "platform/Messages.h"
#include "stats/PlayingTime.h"

#include <QComboBox>
#include <QHBoxLayout>
#include <QHeaderView>
#include <QLabel>
#include <QLineEdit>
#include <QPushButton>
#include <QSpinBox>
#include <QTreeWidget>
#include <QVBoxLayout>

using namespace Qt::StringLiterals;

namespace {

// "G. D'Amico" for "Gabriel D'Amico", so that a game's innings fit side by side.
QString shortName(const QString &name)
{
    const qsizetype last = name.lastIndexOf(u' ');
    return last <= 0 ? name : name.left(1) + u". "_s + name.mid(last + 1);
}

} // namespace

defenseDlog::defenseDlog(myDB &db, gameday::GameDay &game, QWidget *parent)
    : QDialog(parent), m_db(db), m_game(game), m_book(db, game)
{
    setObjectName(u"defenseDlog"_s);
    setWindowTitle(u"Defense by Inning"_s);
    setAttribute(Qt::WA_DeleteOnClose);
    auto *outer = new QVBoxLayout(this);
    teamLbl = form::valueLabel(this, u"teamLbl"_s, u"Team"_s);
    outer->addWidget(teamLbl);

    // A flat tree: one item per position (named in its first column), a
    // cell per inning; the arrow keys move from cell to cell.
    defenseTable = form::named(new QTreeWidget(this), u"defenseTable"_s, u"Defense by inning"_s);
    defenseTable->setRootIsDecorated(false);
    defenseTable->setItemsExpandable(false);
    defenseTable->setEditTriggers(QAbstractItemView::NoEditTriggers);
    defenseTable->setSelectionMode(QAbstractItemView::SingleSelection);
    defenseTable->setSelectionBehavior(QAbstractItemView::SelectItems);
    defenseTable->setAllColumnsShowFocus(false);
    defenseTable->header()->setSectionResizeMode(QHeaderView::ResizeToContents);
    defenseTable->header()->setStretchLastSection(false);
    outer->addWidget(defenseTable, 1);

    playerPop = form::comboBox(this, u"playerPop"_s, u"Player"_s);
    posPop = form::comboBox(this, u"posPop"_s, u"Position"_s);
    for (const QString &pos : gameday::defensePositions())
        posPop->addItem(pos, pos);
    posPop->addItem(u"Bench"_s, QString());
    inningFld = form::named(new QSpinBox(this), u"inningFld"_s, u"From inning"_s);
    inningFld->setMinimum(1);
    // The field's text box is what assistive tools reach.
    if (auto *text = inningFld->findChild<QLineEdit *>())
        text->setAccessibleName(u"From inning"_s);
    moveBtn = form::button(this, u"moveBtn"_s, u"&Move"_s, u"Move the player to the position from the inning on"_s);
    auto *line = new QHBoxLayout;
    line->addWidget(form::buddyLabel(playerPop, u"&Player:"_s, this));
    line->addWidget(playerPop, 1);
    line->addWidget(form::buddyLabel(posPop, u"&To:"_s, this));
    line->addWidget(posPop);
    line->addWidget(form::buddyLabel(inningFld, u"&From inning:"_s, this));
    line->addWidget(inningFld);
    line->addWidget(moveBtn);
    outer->addLayout(line);

    closeBtn = form::button(this, u"closeBtn"_s, u"&Close"_s);
    fillIPBtn = form::button(this, u"fillIPBtn"_s, u"Fill Fielding &Innings"_s,
                             u"Set every player's fielding innings of this game from the table"_s);
    auto *bottom = new QHBoxLayout;
    bottom->addWidget(fillIPBtn);
    bottom->addStretch(1);
    bottom->addWidget(closeBtn);
    outer->addLayout(bottom);
    resize(720, 380);

    connect(closeBtn, &QPushButton::clicked, this, &QWidget::close);
    connect(moveBtn, &QPushButton::clicked, this, &defenseDlog::moveChosen);
    connect(fillIPBtn, &QPushButton::clicked, this, &defenseDlog::fillFieldingInnings);
    connect(defenseTable->selectionModel(), &QItemSelectionModel::currentChanged, this,
            [this](const QModelIndex &current) { chooseCell(current.row(), current.column()); });
    connect(&m_game, &gameday::GameDay::teamShown, this, &defenseDlog::refresh);
    connect(&m_game, &gameday::GameDay::lineupChanged, this, &defenseDlog::refresh);
    connect(&m_game, &gameday::GameDay::boardChanged, this, &defenseDlog::refresh);
    refresh();
}

void defenseDlog::refresh()
{
    const gameday::DefenseTable table = m_book.table();
    const QModelIndex current = defenseTable->currentIndex();
    const QSignalBlocker block(defenseTable->selectionModel());
    teamLbl->setText(u"Defense by inning: "_s + m_game.teamInfo(m_game.curSelTeam()).name);
    m_rows = table.rows();
    defenseTable->clear();
    defenseTable->setColumnCount(table.innings() + 1);
    QStringList headings{u"Pos"_s};
    for (int i = 1; i <= table.innings(); ++i)
        headings.append(QString::number(i));
    defenseTable->setHeaderLabels(headings);
    for (const QString &pos : m_rows) {
        auto *item = new QTreeWidgetItem(defenseTable, QStringList{pos});
        for (int i = 1; i <= table.innings(); ++i) {
            QStringList names;
            QStringList shortNames;
            for (const QString &id : table.playersAt(pos, i)) {
                names.append(table.player(id)->name);
                shortNames.append(shortName(names.last()));
            }
            item->setText(i, shortNames.join(u" / "_s));
            item->setToolTip(i, names.join(u" / "_s));
            const QString spoken = pos + u", inning "_s + QString::number(i) + u": "_s +
                                   (names.isEmpty() ? u"nobody"_s : names.join(u" and "_s));
            item->setData(i, Qt::AccessibleTextRole, spoken);
        }
    }

    const QString chosen = playerPop->currentData().toString();
    playerPop->clear();
    for (const auto &p : table.players())
        playerPop->addItem(p.name, p.playerID);
    playerPop->setCurrentIndex(qMax(0, playerPop->findData(chosen)));
    inningFld->setMaximum(qMax(1, table.innings()));
    const QString refusal = m_book.refusal();
    moveBtn->setEnabled(refusal.isEmpty());
    moveBtn->setToolTip(refusal);
    fillIPBtn->setEnabled(refusal.isEmpty());
    if (current.isValid() && current.row() < defenseTable->topLevelItemCount() &&
        current.column() < defenseTable->columnCount())
        defenseTable->setCurrentItem(defenseTable->topLevelItem(current.row()), current.column());
}

void defenseDlog::chooseCell(int row, int inning)
{
    if (row < 0 || row >= m_rows.size())
        return;
    posPop->setCurrentIndex(posPop->findData(m_rows.at(row)));
    if (inning < 1)
        return; // the position's own cell
    inningFld->setValue(inning);
    const QStringList there = m_book.table().playersAt(m_rows.at(row), inning);
    if (!there.isEmpty())
        playerPop->setCurrentIndex(playerPop->findData(there.first()));
}

void defenseDlog::moveChosen()
{
    const QString refusal = m_book.refusal();
    if (!refusal.isEmpty()) {
        gMsgBox(refusal);
        return;
    }
    if (playerPop->currentIndex() < 0)
        return;
    const gameday::DefenseChange change = m_book.move(playerPop->currentData().toString(), inningFld->value(),
                                                      posPop->currentData().toString());
    refresh();
    if (!change.isEmpty())
        Q_EMIT defenseChanged();
}

void defenseDlog::fillFieldingInnings()
{
    const QString refusal = m_book.refusal();
    if (!refusal.isEmpty()) {
        gMsgBox(refusal);
        return;
    }
    const QString team = m_game.teamInfo(m_game.curSelTeam()).name;
    if (gShowMsgDlog(u"Fill the fielding innings of every player of "_s + team + u" from the defense table?"_s,
                     u"Each player's IP for this game becomes his innings in the field so far; what was typed "
                     u"there is replaced."_s,
                     u"Fill"_s) != platform::MsgAction)
        return;
    if (stats::fillFieldingInnings(m_db, m_game.schedID(), m_book.teamID(), m_book.table(), m_book.fieldedSoFar())) {
        m_game.logAppended();
        Q_EMIT defenseChanged();
    }
}
