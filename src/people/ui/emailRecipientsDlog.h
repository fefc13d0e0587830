#pragma once

#include "people/ContactBook.h"

#include <QDialog>

class QComboBox;
class QLabel;
class QPushButton;
class qlmCheckBox;
class qlmListBox;

// A modal chooser of the people a message goes to: one team's coaches and
// players, each with a check box. Gives the checked people's addresses.
class emailRecipientsDlog : public QDialog
{
    Q_OBJECT

public:
    explicit emailRecipientsDlog(QWidget *parent = nullptr);
    ~emailRecipientsDlog() override;

    // Shows the dialog modally over `parent`; the checked people's addresses
    // joined by ",", or empty text after Cancel or with nobody checked.
    static QString getRecipients(QWidget *parent);

    void fillLists();
    QString recipientStr() const { return m_recipientStr; }

private:
    void setBtn_Action();
    static QList<people::ContactBook::Recipient> checked(const qlmListBox *list,
                                                         const QList<people::ContactBook::Recipient> &rows);

    people::ContactBook m_book;
    QList<people::ContactBook::Recipient> m_coaches;
    QList<people::ContactBook::Recipient> m_players;
    QString m_recipientStr;
    QComboBox *selectTeamPop = nullptr;
    QLabel *teamIDFld = nullptr;
    qlmListBox *coachesList = nullptr;
    qlmListBox *playersList = nullptr;
    qlmCheckBox *coachSelAllCheck = nullptr;
    qlmCheckBox *playerSelAllCheck = nullptr;
    QPushButton *setBtn = nullptr;
    QPushButton *cancelBtn = nullptr;
};
