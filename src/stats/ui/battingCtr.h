#pragma once

#include "stats/ui/StatPanel.h"

// A batter's five user-defined batting statistics for one game, captioned
// with the names the coach gave them.
class battingCtr : public StatPanel
{
    Q_OBJECT

public:
    explicit battingCtr(QWidget *parent = nullptr);
};
