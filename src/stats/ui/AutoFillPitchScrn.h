#pragma once

#include <QDialog>

// Explains pitching auto-fill and asks whether to go on to the marks.
class AutoFillPitchScrn : public QDialog
{
    Q_OBJECT

public:
    explicit AutoFillPitchScrn(QWidget *parent = nullptr);

    // Shows the window modally; true when the coach chose "Continue".
    static bool getMyAction(QWidget *parent = nullptr);
    bool doContinue() const { return m_doContinue; }

private:
    bool m_doContinue = false;
};
