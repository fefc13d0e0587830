#pragma once

#include "stats/ui/StatPanel.h"

// A player's thirteen fielding statistics for one game. Each save tells
// the game screen that the team's errors may have changed (updateErrs).
class FieldingCtr : public StatPanel
{
    Q_OBJECT

public:
    explicit FieldingCtr(QWidget *parent = nullptr);

Q_SIGNALS:
    void updateErrs();
};
