#pragma once

#include <QDate>
#include <QDialog>
#include <QList>

#include <optional>

class QComboBox;
class QLabel;
class QPushButton;

// The date picker: a month of day buttons under a month and a year popup
// (2000 to 2039), with buttons for the next, previous and current month.
// A click on a day closes it with that day.
class Calendar : public QDialog
{
    Q_OBJECT

public:
    explicit Calendar(QWidget *parent = nullptr);

    // Shows the picker on the month of `date` (today's month when `date` is
    // invalid) and waits. Gives the day the coach clicked, or nothing when
    // the window was closed with its close box or Escape: the caller then
    // keeps the date it had.
    static std::optional<QDate> GetDate(QWidget *parent, const QDate &date);

    // Puts the picker on the month of `date`, day 1.
    void setStartDate(const QDate &date);
    // Lays out the month of whichDate: popups, then the 37 day buttons.
    void updateMonth();
    // The day chosen by the last click on a day button.
    QDate chosenDate() const { return m_chosen; }

    // Always the 1st of the month shown.
    QDate whichDate;

protected:
    bool eventFilter(QObject *watched, QEvent *event) override;

private:
    void PopupMonth_Change(int index);
    void PopupYear_Change(int index);
    void BevelButton1_Action(int slot);
    void PushButton1_Action();
    void PushButton2_Action();
    void PushButton3_Action();
    void focusDay(int day);

    QDate m_chosen;
    QDate m_startDate;  // shown in bold while its month is on screen
    int m_focusDay = 0; // the day to focus when a month is laid out
    QComboBox *PopupMonth = nullptr;
    QComboBox *PopupYear = nullptr;
    QList<QPushButton *> BevelButton1;  // 37 day slots, Sunday first
    QList<QLabel *> StaticText1;        // the day names
    QPushButton *PushButton1 = nullptr; // next month
    QPushButton *PushButton2 = nullptr; // previous month
    QPushButton *PushButton3 = nullptr; // this month
};
