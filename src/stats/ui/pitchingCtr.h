#pragma once

#include "stats/ui/StatPanel.h"

#include <array>

class QCheckBox;
class QRadioButton;

// A pitcher's line for one game: the decision, the achievements, the pitch
// count and seventeen numbers, eight of which auto-fill can count from the
// other team's card. The panel does not let go of a bad innings text.
class pitchingCtr : public StatPanel
{
    Q_OBJECT

public:
    explicit pitchingCtr(QWidget *parent = nullptr);

    bool saveData() override;
    // 1 Win, 2 Loss, 3 Save, 4 ND.
    int getGameResult() const;
    void setPitchCt();
    // The eight figures of auto-fill; marks the panel changed and shows it.
    void setAutoData(const gameday::AutoFillData &values);

Q_SIGNALS:
    void autoFillCalled();

protected:
    bool rowIsGood() const override;
    bool loadRow() override;
    void clearRow() override;
    bool writeRow() override;

private:
    std::array<QRadioButton *, 4> m_gameBtn{};
    std::array<QCheckBox *, 3> m_achieveBtn{};
    std::array<QLineEdit *, 3> m_pitchCt{};
    QPushButton *m_autoFillBtn = nullptr;
};
