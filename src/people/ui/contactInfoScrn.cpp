#include "people/ui/contactInfoScrn.h"

#include "app/globals.h"
#include "app/myPrefs.h"
#include "app/ui/Form.h"
#include "app/ui/MainMenuBar.h"
#include "people/ui/PeopleMenus.h"
#include "platform/Services.h"
#include "reports/ui/qlmListBox.h"
#include "support/ui/myInfoBtn.h"

#include <QComboBox>
#include <QHBoxLayout>
#include <QLabel>
#include <QPushButton>
#include <QVBoxLayout>

namespace {
constexpr int kHelpTopic = 4;
}

contactInfoScrn::contactInfoScrn(QWidget *parent)
    : ScreenBase(ScreenId::contactInfoScrn, QStringLiteral("Contact Info"), {.returnToStart = false}, parent),
      m_book(*gData)
{
    auto *central = new QWidget(this);
    auto *outer = new QVBoxLayout(central);

    auto *top = new QHBoxLayout;
    selectTeamPop = form::comboBox(central, QStringLiteral("selectTeamPop"), QStringLiteral("Team"));
    top->addWidget(form::buddyLabel(selectTeamPop, QStringLiteral("&Team:"), central));
    top->addWidget(selectTeamPop);
    teamIDFld = form::valueLabel(central, QStringLiteral("teamIDFld"), QStringLiteral("Team number"));
    top->addWidget(teamIDFld);
    top->addStretch(1);
    outer->addLayout(top);

    playersList = form::named(new qlmListBox(central), QStringLiteral("playersList"), QStringLiteral("Players"));
    playersList->setHeadings(people::ContactBook::playerHeadings());
    playersList->setMultipleSelection(true);
    coachesList = form::named(new qlmListBox(central), QStringLiteral("coachesList"), QStringLiteral("Coaches"));
    coachesList->setHeadings(people::ContactBook::coachHeadings());
    coachesList->setMultipleSelection(true);
    outer->addWidget(form::buddyLabel(playersList, QStringLiteral("&Players:"), central));
    outer->addWidget(playersList, 3);
    outer->addWidget(form::buddyLabel(coachesList, QStringLiteral("C&oaches:"), central));
    outer->addWidget(coachesList, 1);

    auto *buttons = new QHBoxLayout;
    helpBtn = form::named(new myInfoBtn(kHelpTopic, central), QStringLiteral("helpBtn"), QStringLiteral("Help"));
    emailBtn = form::button(central, QStringLiteral("emailBtn"), QStringLiteral("&Email Selected"));
    printBtn = form::button(central, QStringLiteral("printBtn"), QStringLiteral("P&rint"),
                            QStringLiteral("Print the players' contacts"));
    closeBtn = form::button(central, QStringLiteral("closeBtn"), QStringLiteral("&Close"));
    buttons->addWidget(helpBtn);
    buttons->addStretch(1);
    buttons->addWidget(emailBtn);
    buttons->addWidget(printBtn);
    buttons->addWidget(closeBtn);
    outer->addLayout(buttons);
    setCentralWidget(central);
    resize(980, 560);
    emailBtn->setEnabled(false);

    installPeopleMenus(
        menus(), QStringLiteral("Print Contacts"), [this] { hndlPrinting(); }, kHelpTopic);

    connect(playersList, &qlmListBox::rowSelectionChanged, this, [this] { listChanged(playersList, coachesList); });
    connect(coachesList, &qlmListBox::rowSelectionChanged, this, [this] { listChanged(coachesList, playersList); });
    connect(emailBtn, &QPushButton::clicked, this, &contactInfoScrn::hndlEmail);
    connect(printBtn, &QPushButton::clicked, this, &contactInfoScrn::hndlPrinting);
    connect(closeBtn, &QPushButton::clicked, this, &QWidget::close);

    fillTeamPopup(selectTeamPop, m_book.teams());
    connect(selectTeamPop, &QComboBox::currentIndexChanged, this, [this] {
        teamIDFld->setText(selectTeamPop->currentData().toString());
        fillLists();
    });
    teamIDFld->setText(selectTeamPop->currentData().toString());
    fillLists();
}

contactInfoScrn::~contactInfoScrn() = default;

void contactInfoScrn::fillLists()
{
    if (teamIDFld->text().isEmpty())
        return;
    playersList->deleteAllRows();
    coachesList->deleteAllRows();
    playersList->addRows(m_book.playerRows(teamIDFld->text()));
    coachesList->addRows(m_book.coachRows(teamIDFld->text()));
    emailBtn->setEnabled(false);
}

void contactInfoScrn::listChanged(qlmListBox *changed, qlmListBox *other)
{
    if (prohibitChg)
        return;
    const bool selected = !changed->selectedRows().isEmpty();
    emailBtn->setEnabled(selected);
    if (selected) {
        prohibitChg = true;
        other->setSelectedRow(-1);
        prohibitChg = false;
    }
}

void contactInfoScrn::hndlEmail()
{
    QStringList addresses;
    QStringList leftOut;
    for (qlmListBox *list : {playersList, coachesList}) {
        for (int row : list->selectedRows()) {
            const QString address = list->cell(row, people::ContactBook::kEmailColumn).trimmed();
            // Someone without an address is left out of the To: line, by name.
            if (address.isEmpty())
                leftOut.append(QString(list->cell(row, 0) + u' ' + list->cell(row, 1)).trimmed());
            else
                addresses.append(address);
        }
    }
    if (!leftOut.isEmpty())
        gShowMsgDlog(addresses.isEmpty() ? QStringLiteral("No one selected has an e-mail address.")
                                         : QStringLiteral("Some of the people selected have no e-mail address."),
                     QStringLiteral("Left out of the message: ") + leftOut.join(QStringLiteral(", ")) + u'.',
                     QStringLiteral("OK"));
    if (addresses.isEmpty())
        return;
    platform::urls().openUrl(people::ContactBook::messageTo(addresses, selectTeamPop->currentText()));
}

void contactInfoScrn::hndlPrinting()
{
    playersList->widePrintMe(selectTeamPop->currentText());
}
