#pragma once

class BBScoringLB;
class QWidget;

// What a screen reader finds in the game's own drawn controls: the at-bat
// grid is a table whose cells (row, inning, code) are its children, each
// read and pressed as a cell of its own, and the at-bat popover is a dialog
// window that says when it opens and closes.
namespace gameday::accessible {

// Installs the interfaces once; the grid and the popover call it when made.
void install();

// Tells the screen reader that the grid's current cell moved.
void cellFocused(BBScoringLB *grid, int row, int col);

// Tells the screen reader that the popover's window opened or closed.
void popoverShown(QWidget *popover, bool shown);

} // namespace gameday::accessible
