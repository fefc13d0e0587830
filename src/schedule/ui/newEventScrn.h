#pragma once

#include "schedule/EventForm.h"
#include "schedule/eventClass.h"

#include <QDialog>

#include <optional>

class QCheckBox;
class QComboBox;
class QLineEdit;
class QPushButton;
class QToolButton;

// The modal sheet in which one event is composed or changed. It only fills
// an eventClass; the caller stores it. The rules of its fields live in
// EventForm; this window copies its controls in and out of one.
class newEventScrn : public QDialog
{
    Q_OBJECT

public:
    explicit newEventScrn(QWidget *parent = nullptr);

    // A new event, or nothing when the coach cancels.
    static std::optional<eventClass> getNewEvent(QWidget *parent);
    // The changed event of that id, or nothing on cancel (or when the event
    // is gone).
    static std::optional<eventClass> getEditEvent(QWidget *parent, qint64 eventID);

    // Fills the window from a stored event and turns it into an edit.
    bool loadEvent(qint64 eventID);
    // Checks the fields and fills the result; a refusal is shown.
    bool setEventProperties();
    void setOppoBox(const QString &name);
    // The event once accepted; nothing before that and after a cancel.
    const std::optional<eventClass> &result() const { return m_result; }
    // The date the picker gave, as the field shows it.
    void setPickedDate(const QDate &date);

protected:
    bool eventFilter(QObject *watched, QEvent *event) override;

private:
    QComboBox *timeBox(const QString &name, const QString &accessible, const QStringList &items, bool numbers);
    void fill();
    void readForm();
    void showForm();
    void calCnv_Click();
    void locationChanged(const QString &text);

    EventForm m_form;
    std::optional<eventClass> m_result;
    QLineEdit *eventDateFld = nullptr;
    QToolButton *calCnv = nullptr;
    QComboBox *busHour = nullptr;
    QComboBox *busMinute = nullptr;
    QComboBox *busAMPM = nullptr;
    QComboBox *gameHour = nullptr;
    QComboBox *gameMinute = nullptr;
    QComboBox *gameAMPM = nullptr;
    QComboBox *eventTypeBox = nullptr;
    QComboBox *opponentBox = nullptr;
    QComboBox *locationBox = nullptr;
    QCheckBox *homeCheck = nullptr;
    QPushButton *actionBtn = nullptr;
    QPushButton *cancelBtn = nullptr;
};
