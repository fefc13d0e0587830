#pragma once

#include "gameday/ScoreGrid.h"
#include "gameday/ScoreGridRenderer.h"

#include <QWidget>
#include <optional>

// The at-bat grid on screen. All rules live in the ScoreGrid it shows
// (grid()); the widget paints it, turns clicks and keys into cellClicked
// calls (the Alt key stands for the Option key), opens battingPOP beside the
// clicked cell and passes the grid's five events on as its own signals.
//
// Keyboard: the arrow keys move the current cell, Return, Enter or Space
// click it, and Alt with one of them is the Option-click.
class BBScoringLB : public QWidget
{
    Q_OBJECT

public:
    explicit BBScoringLB(QWidget *parent = nullptr);

    gameday::ScoreGrid &grid() { return m_grid; }
    const gameday::ScoreGrid &grid() const { return m_grid; }
    const gameday::ScoreGridRenderer &renderer() const { return m_renderer; }

    QSize sizeHint() const override;
    QSize minimumSizeHint() const override { return sizeHint(); }

    // The cell the keyboard works on, if any.
    std::optional<gameday::GridCell> currentCell() const { return m_current; }
    void setCurrentCell(int row, int col);

Q_SIGNALS:
    void columnAdded(const QString &headings);
    void doCalcs(int col);
    void askIsWalkoff();
    void autoFillDataReturn(const gameday::AutoFillData &data);
    void autoFillFailed();

protected:
    void paintEvent(QPaintEvent *event) override;
    void mousePressEvent(QMouseEvent *event) override;
    void keyPressEvent(QKeyEvent *event) override;
    void focusInEvent(QFocusEvent *event) override;
    void focusOutEvent(QFocusEvent *event) override;

private:
    QString askPopover(int row, int col, bool showAll);
    void gridChanged();
    void announceCurrent();

    gameday::ScoreGrid m_grid;
    gameday::ScoreGridRenderer m_renderer{m_grid};
    std::optional<gameday::GridCell> m_current;
    std::optional<gameday::GridCell> m_markStart;
    std::optional<gameday::GridCell> m_markEnd;
};
