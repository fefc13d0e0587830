#pragma once

#include "schedule/ScheduleList.h"

#include "app/ui/ScreenBase.h"

class QComboBox;
class QLabel;
class QLineEdit;
class QPushButton;
class MainMenuBar;
class qlmListBox;

// The season's events: games, practices, scrimmages, meetings and others.
// New, edit and delete go through the event editor and ScheduleList; rows
// are dragged into order; the list prints and exports itself. Closing it
// writes the order and brings the start screen back.
class scheduleScrn : public ScreenBase
{
    Q_OBJECT

public:
    explicit scheduleScrn(QWidget *parent = nullptr);
    ~scheduleScrn() override;

    void loadScheduleLB(const QString &filter);
    void addNewItem(const eventClass &event);
    void editEventItem(qint64 eventID, const eventClass &event);
    void hndlEditItem();
    void deleteEvent();
    void doPrintSchedule();
    void saveLBandPos();

    ScheduleList &schedule() { return m_schedule; }

    MainMenuBar *menuBar() const { return menus(); }

protected:
    void showEvent(QShowEvent *event) override;
    bool mayClose() override;
    bool eventFilter(QObject *watched, QEvent *event) override;

private:
    void showRows(qint64 selectID);
    void selectionChanged();
    void newEventBtn_Action();
    void exportSchedule();
    void rowMoved(int from, int to);
    qint64 selectedID() const;

    ScheduleList m_schedule;
    bool m_opened = false;
    qlmListBox *ScheduleListbox = nullptr;
    QPushButton *sortBtn = nullptr;
    QComboBox *filterPop = nullptr;
    QLineEdit *homeTeamFld = nullptr;
    QPushButton *newEventBtn = nullptr;
    QPushButton *editBtn = nullptr;
    QPushButton *deleteEvBtn = nullptr;
    QPushButton *enterDataBtn = nullptr;
    QPushButton *printBtn = nullptr;
    QPushButton *exportBtn = nullptr;
    QPushButton *viewCalendarBtn = nullptr;
    QPushButton *closeBtn = nullptr;
    QPushButton *boxScoreBtn = nullptr; // the selected game's box score
    QLabel *schedIDLabel = nullptr;
};
