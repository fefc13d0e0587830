#include "people/ui/emailInfoScrn.h"

#include "app/globals.h"
#include "app/myPrefs.h"
#include "app/ui/Form.h"
#include "app/ui/ScreenId.h"
#include "support/ui/NumberKeyFilter.h"
#include "support/ui/qlmCheckBox.h"

#include <QFormLayout>
#include <QHBoxLayout>
#include <QLabel>
#include <QLineEdit>
#include <QPushButton>
#include <QVBoxLayout>

emailInfoScrn::emailInfoScrn(QWidget *parent) : QDialog(parent)
{
    setObjectName(screenName(ScreenId::emailInfoScrn));
    setWindowTitle(QStringLiteral("Email Settings"));
    setModal(true);

    auto *outer = new QVBoxLayout(this);
    auto *layout = new QFormLayout;
    form::Rows rows(this, layout);
    serverFld = rows.lineEdit(QStringLiteral("serverFld"), QStringLiteral("SMTP &Server:"));
    usernameFld = rows.lineEdit(QStringLiteral("usernameFld"), QStringLiteral("&User Name (email):"));
    passwordFld = rows.lineEdit(QStringLiteral("passwordFld"), QStringLiteral("&Password:"));
    passwordFld->setEchoMode(QLineEdit::Password);
    portFld = rows.lineEdit(QStringLiteral("portFld"), QStringLiteral("P&ort:"));
    portFld->setMaximumWidth(80);
    support::NumberKeyFilter::install(portFld);
    authReqBox = form::named(new qlmCheckBox(QStringLiteral("Password Authentication Required"), this),
                             QStringLiteral("authReqBox"), QStringLiteral("Password Authentication Required"));
    layout->addRow(QString(), authReqBox);
    outer->addLayout(layout);

    storeNoteLbl = new QLabel(this);
    storeNoteLbl->setObjectName(QStringLiteral("storeNoteLbl"));
    storeNoteLbl->setWordWrap(true);
    outer->addWidget(storeNoteLbl);
    InfoFld = new QLabel(this);
    InfoFld->setObjectName(QStringLiteral("InfoFld"));
    InfoFld->setWordWrap(true);
    InfoFld->setStyleSheet(QStringLiteral("color: #c00000;"));
    outer->addWidget(InfoFld);

    auto *buttons = new QHBoxLayout;
    cancelBtn = form::button(this, QStringLiteral("cancelBtn"), QStringLiteral("Cancel"));
    acceptBtn = form::button(this, QStringLiteral("acceptBtn"), QStringLiteral("OK"));
    acceptBtn->setDefault(true);
    buttons->addStretch(1);
    buttons->addWidget(cancelBtn);
    buttons->addWidget(acceptBtn);
    outer->addLayout(buttons);

    connect(acceptBtn, &QPushButton::clicked, this, &emailInfoScrn::acceptBtn_Action);
    connect(cancelBtn, &QPushButton::clicked, this, &QDialog::reject);

    const people::MailSettings stored = people::MailSettings::load(*gPrefs);
    serverFld->setText(stored.server);
    usernameFld->setText(stored.user);
    passwordFld->setText(stored.password);
    portFld->setText(stored.port);
    authReqBox->setChecked(stored.auth);
    if (stored.sessionOnly)
        storeNoteLbl->setText(people::MailSettings::sessionOnlyNote());
    storeNoteLbl->setVisible(!storeNoteLbl->text().isEmpty());
    resize(420, sizeHint().height());
}

emailInfoScrn::~emailInfoScrn() = default;

QString emailInfoScrn::getMyInfo(QWidget *parent)
{
    emailInfoScrn dialog(parent);
    dialog.exec();
    return dialog.rtrnEmail();
}

people::MailSettings emailInfoScrn::entries() const
{
    return {serverFld->text(), usernameFld->text(),     passwordFld->text(),
            portFld->text(),   authReqBox->isChecked(), false};
}

bool emailInfoScrn::validateEntries()
{
    const QString message = entries().validateEntries();
    InfoFld->setText(message);
    return message.isEmpty();
}

void emailInfoScrn::acceptBtn_Action()
{
    if (!validateEntries())
        return;
    const people::MailSettings settings = entries();
    settings.save(*gPrefs);
    m_rtrnEmail = settings.user.trimmed();
    accept();
}
