#pragma once

#include "app/ui/ScreenBase.h"
#include "stats/PitchRules.h"

#include <QDate>

class QDateEdit;
class QLabel;
class QPushButton;
class myInfoBtn;
class qlmListBox;

// "Pitcher Availability": the home team's pitchers on a chosen day under
// the home team's pitch-count rules: their age under the rules, their
// pitches on each of the seven days up to it, the rest they still owe, the
// first day they may pitch and the pitches they have left. Shown, printed
// and exported as every list is.
class pitcherAvailabilityScrn : public ScreenBase
{
    Q_OBJECT

public:
    explicit pitcherAvailabilityScrn(QWidget *parent = nullptr);

    // Shows the report as of `day`.
    void showDay(const QDate &day);
    const stats::PitchRuleSet &rules() const { return m_rules; }

    void printReport();
    void exportReport();

private:
    QString reportTitle() const;

    stats::PitchRuleSet m_rules;
    QLabel *titleLbl = nullptr;
    QDateEdit *todayFld = nullptr;
    QLabel *rulesLbl = nullptr;
    qlmListBox *availBox = nullptr;
    myInfoBtn *helpBtn = nullptr;
    QPushButton *closeBtn = nullptr;
};
