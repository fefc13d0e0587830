#include "gameday/ui/BBPlayersLB.h"

#include <QKeyEvent>

BBPlayersLB::BBPlayersLB(QWidget *parent) : qlmListBox(parent)
{
    setObjectName(QStringLiteral("Names_PosLB"));
    setAccessibleName(tr("Lineup"));
    setColumnCount(3);
    setHeadings({QStringLiteral("--"), QStringLiteral("Pos"), QStringLiteral("Player")});
    setColumnWidths(QStringLiteral("24,36,*"));
    setColumnType(1, ListBoxModel::CellType::Editable);
    connect(this, &qlmListBox::cellEdited, this, [this](int row, int column) {
        if (column == 1)
            Q_EMIT positionEdited(row, cell(row, 1).toUpper());
    });
}

void BBPlayersLB::setLineup(const QList<gameday::LineupLine> &lineup)
{
    const int selected = selectedRow();
    deleteAllRows();
    for (const gameday::LineupLine &l : lineup)
        addRow({l.order, l.pos, l.name}, l.playerID);
    if (selected >= 0 && selected < rowCount())
        setSelectedRow(selected);
}

QString BBPlayersLB::getPlayerPos_Names(bool withID) const
{
    QStringList lines;
    for (int r = 0; r < rowCount(); ++r) {
        QStringList cells = rowCells(r);
        if (withID)
            cells.append(rowTag(r));
        lines.append(cells.join(u'\t'));
    }
    return lines.join(u'\r');
}

void BBPlayersLB::keyPressEvent(QKeyEvent *event)
{
    if (event->key() == Qt::Key_F2 && selectedRow() >= 0) {
        editCell(selectedRow(), 1);
        return;
    }
    if (event->modifiers() == Qt::AltModifier && (event->key() == Qt::Key_Up || event->key() == Qt::Key_Down)) {
        Q_EMIT orderKey(event->key() == Qt::Key_Up ? -1 : +1);
        return;
    }
    qlmListBox::keyPressEvent(event);
}
