#pragma once

#include "people/MailSettings.h"

#include <QDialog>

class QLabel;
class QLineEdit;
class QPushButton;
class qlmCheckBox;

// The coach's mail account settings, from the preferences screen: server,
// user name, password, port and whether the server asks for the password.
// The password goes to the desktop's secret store, never into the
// preference file; where no store answers the window says that it is kept
// for this session only.
//
// A modal dialog: getMyInfo() runs it. Made through the screen directory
// (ScreenId::emailInfoScrn), it is a QDialog the caller runs with exec(),
// reads the property "rtrnEmail" of, and deletes.
class emailInfoScrn : public QDialog
{
    Q_OBJECT
    Q_PROPERTY(QString rtrnEmail READ rtrnEmail)

public:
    explicit emailInfoScrn(QWidget *parent = nullptr);
    ~emailInfoScrn() override;

    // Shows the dialog modally over `parent`; the user name kept, or empty
    // text after Cancel.
    static QString getMyInfo(QWidget *parent);

    // The entries as typed.
    people::MailSettings entries() const;
    bool validateEntries();
    QString rtrnEmail() const { return m_rtrnEmail; }

private:
    void acceptBtn_Action();

    QString m_rtrnEmail;
    QLineEdit *serverFld = nullptr;
    QLineEdit *usernameFld = nullptr;
    QLineEdit *passwordFld = nullptr;
    QLineEdit *portFld = nullptr;
    qlmCheckBox *authReqBox = nullptr;
    QLabel *InfoFld = nullptr;
    QLabel *storeNoteLbl = nullptr;
    QPushButton *acceptBtn = nullptr;
    QPushButton *cancelBtn = nullptr;
};
