#pragma once

#include "people/MemberRecord.h"

#include <QWidget>

class QComboBox;
class QLabel;
class QLineEdit;
class QPlainTextEdit;
class QTabWidget;
class iPhoneField;

// The fields only a player has, on tabs: playing data, people to call, and
// medical notes. Shown by the personnel screen in player mode. Every change
// the coach makes raises setDirty; changes made while filling or clearing
// the fields don't.
class playerInfoCtr : public QWidget
{
    Q_OBJECT

public:
    explicit playerInfoCtr(QWidget *parent = nullptr);

    void clearFlds();
    void fillPositionPop();
    // The age label from the date of birth and today's date.
    void fillAgeLabel();

    // Fills the fields from a player, or copies them into one.
    void showPlayer(const people::MemberRecord &player);
    void readInto(people::MemberRecord &player) const;

    bool isClearing = false;

    QComboBox *PositionPop[3] = {};
    // The guardian's, emergency contact's and doctor's phones.
    iPhoneField *contactPhone[3] = {};

Q_SIGNALS:
    void setDirty();

protected:
    bool eventFilter(QObject *watched, QEvent *event) override;

private:
    void changed();
    QTabWidget *infoTabs = nullptr;
    QLineEdit *UNumFld = nullptr;
    QComboBox *batPop = nullptr;
    QComboBox *throwPop = nullptr;
    QPlainTextEdit *plNotesFld = nullptr;
    QLineEdit *guardianFld = nullptr;
    QLineEdit *emergFld = nullptr;
    QLineEdit *doctorFld = nullptr;
    QLineEdit *medicalFld = nullptr;
    QLineEdit *DOBFld = nullptr;
    QLineEdit *StudentIDFld = nullptr;
    QLabel *ageLabel = nullptr;
};
