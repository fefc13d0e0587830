#include "people/ui/emailRecipientsDlog.h"

#include "app/globals.h"
#include "app/myPrefs.h"
#include "app/ui/Form.h"
#include "people/ui/PeopleMenus.h"
#include "reports/ui/qlmListBox.h"
#include "support/ui/qlmCheckBox.h"

#include <QComboBox>
#include <QHBoxLayout>
#include <QLabel>
#include <QPushButton>
#include <QVBoxLayout>

namespace {

qlmListBox *recipientList(QWidget *parent, const QString &name, const QString &spoken)
{
    auto *list = form::named(new qlmListBox(parent), name, spoken);
    list->setHeadings({QString(), QStringLiteral("Name"), QStringLiteral("Email")});
    list->setColumnType(0, ListBoxModel::CellType::CheckBox);
    list->setColumnWidths(QStringLiteral("28,*,*"));
    return list;
}

} // namespace

emailRecipientsDlog::emailRecipientsDlog(QWidget *parent) : QDialog(parent), m_book(*gData)
{
    setObjectName(QStringLiteral("emailRecipientsDlog"));
    setWindowTitle(QStringLiteral("Select Recipients"));
    setModal(true);

    auto *outer = new QVBoxLayout(this);
    auto *top = new QHBoxLayout;
    selectTeamPop = form::comboBox(this, QStringLiteral("selectTeamPop"), QStringLiteral("Team"));
    top->addWidget(form::buddyLabel(selectTeamPop, QStringLiteral("&Team:"), this));
    top->addWidget(selectTeamPop, 1);
    teamIDFld = form::valueLabel(this, QStringLiteral("teamIDFld"), QStringLiteral("Team number"));
    top->addWidget(teamIDFld);
    outer->addLayout(top);

    coachesList = recipientList(this, QStringLiteral("coachesList"), QStringLiteral("Coaches"));
    coachSelAllCheck = form::named(new qlmCheckBox(QStringLiteral("All Coaches"), this),
                                   QStringLiteral("coachSelAllCheck"), QStringLiteral("Check all coaches"));
    playersList = recipientList(this, QStringLiteral("playersList"), QStringLiteral("Players"));
    playerSelAllCheck = form::named(new qlmCheckBox(QStringLiteral("All Players"), this),
                                    QStringLiteral("playerSelAllCheck"), QStringLiteral("Check all players"));
    outer->addWidget(form::buddyLabel(coachesList, QStringLiteral("&Coaches:"), this));
    outer->addWidget(coachesList, 1);
    outer->addWidget(coachSelAllCheck);
    outer->addWidget(form::buddyLabel(playersList, QStringLiteral("&Players:"), this));
    outer->addWidget(playersList, 2);
    outer->addWidget(playerSelAllCheck);

    auto *buttons = new QHBoxLayout;
    cancelBtn = form::button(this, QStringLiteral("cancelBtn"), QStringLiteral("Cancel"));
    setBtn = form::button(this, QStringLiteral("setBtn"), QStringLiteral("&Set Recipients"));
    setBtn->setDefault(true);
    buttons->addStretch(1);
    buttons->addWidget(cancelBtn);
    buttons->addWidget(setBtn);
    outer->addLayout(buttons);
    resize(460, 520);

    const auto checkAll = [](qlmListBox *list, bool on) {
        for (int r = 0; r < list->rowCount(); ++r)
            list->setCellCheck(r, 0, on);
    };
    connect(coachSelAllCheck, &qlmCheckBox::toggled, this, [=, this](bool on) { checkAll(coachesList, on); });
    connect(playerSelAllCheck, &qlmCheckBox::toggled, this, [=, this](bool on) { checkAll(playersList, on); });
    connect(setBtn, &QPushButton::clicked, this, &emailRecipientsDlog::setBtn_Action);
    connect(cancelBtn, &QPushButton::clicked, this, &QDialog::reject);

    fillTeamPopup(selectTeamPop, m_book.teams());
    connect(selectTeamPop, &QComboBox::currentIndexChanged, this, [this] {
        teamIDFld->setText(selectTeamPop->currentData().toString());
        fillLists();
    });
    teamIDFld->setText(selectTeamPop->currentData().toString());
    fillLists();
}

emailRecipientsDlog::~emailRecipientsDlog() = default;

QString emailRecipientsDlog::getRecipients(QWidget *parent)
{
    emailRecipientsDlog dialog(parent);
    dialog.exec();
    return dialog.recipientStr();
}

void emailRecipientsDlog::fillLists()
{
    const QString team = teamIDFld->text();
    m_coaches = m_book.coachRecipients(team);
    m_players = m_book.playerRecipients(team);
    for (auto [list, rows] : {std::pair{coachesList, &m_coaches}, std::pair{playersList, &m_players}}) {
        list->deleteAllRows();
        for (const people::ContactBook::Recipient &r : *rows)
            list->addRow({QString(), r.name, r.Email}, r.id);
    }
}

QList<people::ContactBook::Recipient> emailRecipientsDlog::checked(const qlmListBox *list,
                                                                   const QList<people::ContactBook::Recipient> &rows)
{
    QList<people::ContactBook::Recipient> out = rows;
    for (int r = 0; r < out.size() && r < list->rowCount(); ++r)
        out[r].checked = list->cellCheck(r, 0);
    return out;
}

void emailRecipientsDlog::setBtn_Action()
{
    m_recipientStr = people::ContactBook::recipientStr(checked(coachesList, m_coaches),
                                                       checked(playersList, m_players));
    accept();
}
