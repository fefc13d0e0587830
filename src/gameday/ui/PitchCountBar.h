#pragma once

#include "stats/PitchCounter.h"

#include <QFrame>

#include <initializer_list>

class QLabel;
class QPushButton;

// The pitch counter under the game screen's instruction line: the pitcher
// on the mound of the team on show, Ball, Strike and Foul (also
// Ctrl+Shift+B, S and F from anywhere in the window; the grid's keys are
// plain arrows, Return and Space), the count, and what the day's pitches
// cost him. It shows a stats::GamePitchCount and forwards the presses.
class PitchCountBar : public QFrame
{
    Q_OBJECT

public:
    PitchCountBar(myDB &db, gameday::GameDay &game, QWidget *parent = nullptr);

    stats::GamePitchCount &count() { return *m_count; }
    // The statistics panels that open over the grid: counting waits while
    // one is open, and the count is read again when it closes.
    void watchCover(std::initializer_list<QWidget *> panels);

protected:
    bool eventFilter(QObject *watched, QEvent *event) override;

private:
    void refresh();

    QLabel *pitcherFld = nullptr;
    QPushButton *ballBtn = nullptr;
    QPushButton *strikeBtn = nullptr;
    QPushButton *foulBtn = nullptr;
    QLabel *pitchCountFld = nullptr;
    QLabel *pitchNoticeFld = nullptr;
    stats::GamePitchCount *m_count = nullptr;
    QList<QWidget *> m_panels;
};
