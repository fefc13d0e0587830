#include "support/ui/getInfoScrn_small.h"

#include "app/globals.h"

#include <QDialogButtonBox>
#include <QFormLayout>
#include <QLabel>
#include <QLineEdit>
#include <QPushButton>
#include <QVBoxLayout>

getInfoScrn_small::getInfoScrn_small(QWidget *parent, const QString &prompt) : QDialog(parent)
{
    setObjectName(QStringLiteral("getInfoScrn_small"));
    setWindowTitle(QStringLiteral("Tallyline Baseball"));
    setModal(true);

    auto *layout = new QVBoxLayout(this);
    auto *form = new QFormLayout;
    dataFld = new QLineEdit(this);
    dataFld->setObjectName(QStringLiteral("dataFld"));
    dataFld->setMinimumWidth(240);
    auto *promptLbl = new QLabel(prompt, this);
    promptLbl->setObjectName(QStringLiteral("promptLbl"));
    promptLbl->setBuddy(dataFld);
    dataFld->setAccessibleName(QString(prompt).remove(u'&').remove(u':').trimmed());
    form->addRow(promptLbl, dataFld);
    layout->addLayout(form);

    warningLbl = new QLabel(QStringLiteral("Please enter a name, or click Cancel."), this);
    warningLbl->setObjectName(QStringLiteral("warningLbl"));
    warningLbl->setStyleSheet(QStringLiteral("color: #B00020;"));
    warningLbl->setVisible(false);
    layout->addWidget(warningLbl);

    auto *buttons = new QDialogButtonBox(this);
    saveBtn = buttons->addButton(QStringLiteral("Save"), QDialogButtonBox::AcceptRole);
    saveBtn->setObjectName(QStringLiteral("saveBtn"));
    saveBtn->setDefault(true);
    cancelBtn = buttons->addButton(QDialogButtonBox::Cancel);
    cancelBtn->setObjectName(QStringLiteral("cancelBtn"));
    layout->addWidget(buttons);

    // Save decides for itself whether the window may close.
    connect(saveBtn, &QPushButton::clicked, this, &getInfoScrn_small::save);
    connect(cancelBtn, &QPushButton::clicked, this, &QDialog::reject);
    // Typing again after the warning takes it away.
    connect(dataFld, &QLineEdit::textEdited, warningLbl, &QWidget::hide);
}

QString getInfoScrn_small::getMyInfo()
{
    m_data.clear();
    exec();
    return m_data;
}

void getInfoScrn_small::save()
{
    if (dataFld->text().trimmed().isEmpty()) {
        warningLbl->setVisible(true);
        gBeep();
        dataFld->setFocus();
        return;
    }
    m_data = dataFld->text();
    accept();
}
