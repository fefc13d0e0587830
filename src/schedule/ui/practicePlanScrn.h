#pragma once

#include "app/ui/ScreenBase.h"
#include "schedule/PracticePlan.h"

class QComboBox;
class QLabel;
class QPushButton;
class qlmListBox;

// The drills of one practice: what is done, from when to when, under which
// coach. Each drill added, deleted or recalled is stored at once. A plan
// prints, exports, goes out by mail, and is saved as a ".pplan" file to be
// recalled into another practice. The rules live in schedule::PracticePlan.
class practicePlanScrn : public ScreenBase
{
    Q_OBJECT

public:
    // `schedID`: the eventID of the practice.
    explicit practicePlanScrn(const QString &schedID, QWidget *parent = nullptr);
    ~practicePlanScrn() override;

    QString mySchedID() const { return m_plan.mySchedID(); }
    schedule::PracticePlan &plan() { return m_plan; }

    void loadData();
    void setDrillBox();
    void addActivity();
    void deleteActivity();
    void clearFields();
    void printPlan();
    void exportPlan();
    void emailPlan();
    void savePlan();
    void recallPlan();
    // Moves the selected drill one place up (-1) or down (+1).
    void moveDrill(int step);

protected:
    bool eventFilter(QObject *watched, QEvent *event) override;

private:
    void buildControls();
    QList<QStringList> planRows() const;
    void drillEdited(int row);
    void storeOrder();
    void updateButtons();
    // The folder of the plan files; empty (the coach told) when missing.
    static QString planFolder();

    schedule::PracticePlan m_plan;
    QLabel *txtprefs = nullptr;
    QLabel *practDateLabel = nullptr;
    QLabel *practLocLabel = nullptr;
    QComboBox *activityBox = nullptr;
    QComboBox *drillBox = nullptr;
    QComboBox *startBox = nullptr;
    QComboBox *endBox = nullptr;
    QComboBox *coachBox = nullptr;
    qlmListBox *drillList = nullptr;
    QPushButton *addBtn = nullptr;
    QPushButton *deleteBtn = nullptr;
    QPushButton *printBtn = nullptr;
    QPushButton *exportBtn = nullptr;
    QPushButton *emailBtn = nullptr;
    QPushButton *saveBtn = nullptr;
    QPushButton *recallBtn = nullptr;
    QPushButton *moveUpBtn = nullptr;
    QPushButton *moveDownBtn = nullptr;
    QPushButton *closeBtn = nullptr;
};
