#include "gameday/ui/AddPlayersToGameScrn.h"

#include "app/ui/Form.h"
#include "reports/ui/qlmListBox.h"

#include <QLabel>
#include <QPushButton>
#include <QVBoxLayout>

AddPlayersToGameScrn::AddPlayersToGameScrn(const QList<gameday::BenchLine> &players, QWidget *parent)
    : QDialog(parent), m_players(players)
{
    setObjectName(QStringLiteral("AddPlayersToGameScrn"));
    setWindowTitle(tr("Add Players to Game"));
    setModal(true);
    auto *layout = new QVBoxLayout(this);
    QLabel *instr = form::valueLabel(this, QStringLiteral("InstrFld"), tr("Instructions"));
    instr->setText(QStringLiteral("Use this screen to add players to a game who might NOT have been on the roster when "
                                  "the game event was originally created."));
    instr->setWordWrap(true);
    layout->addWidget(instr);
    PlayerList = form::named(new qlmListBox(this), QStringLiteral("PlayerList"), tr("Players"));
    PlayerList->setColumnCount(4);
    PlayerList->setHeadings({QString(), QStringLiteral("#"), QStringLiteral("Player"), QStringLiteral("Pos")});
    PlayerList->setColumnWidths(QStringLiteral("24,32,*,40"));
    PlayerList->setColumnType(0, ListBoxModel::CellType::CheckBox);
    for (const gameday::BenchLine &p : players)
        PlayerList->addRow({QString(), p.uniNum, p.name, p.pos}, p.playerID);
    layout->addWidget(PlayerList);
    QPushButton *done = form::button(this, QStringLiteral("doneBtn"), tr("&Done"));
    done->setDefault(true);
    layout->addWidget(done, 0, Qt::AlignRight);
    connect(done, &QPushButton::clicked, this, &QDialog::accept);
    resize(360, 420);
}

QList<gameday::BenchLine> AddPlayersToGameScrn::mySelections() const
{
    QList<gameday::BenchLine> out;
    for (int r = 0; r < PlayerList->rowCount() && r < m_players.size(); ++r) {
        if (PlayerList->cellCheck(r, 0))
            out.append(m_players.at(r));
    }
    return out;
}

QList<gameday::BenchLine> AddPlayersToGameScrn::getNewPlayers(const QList<gameday::BenchLine> &players, QWidget *parent)
{
    AddPlayersToGameScrn window(players, parent);
    window.exec();
    return window.mySelections();
}
