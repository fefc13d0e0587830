#include "reports/ui/pitcherAvailabilityScrn.h"

#include "app/globals.h"
#include "app/myDB.h"
#include "app/myPrefs.h"
#include "app/ui/Form.h"
#include "app/ui/MainMenuBar.h"
#include "platform/Services.h"
#include "reports/ui/qlmListBox.h"
#include "stats/PitchAvailability.h"
#include "support/ui/myInfoBtn.h"

#include <QDateEdit>
#include <QHBoxLayout>
#include <QLabel>
#include <QLineEdit>
#include <QLocale>
#include <QPushButton>
#include <QVBoxLayout>

namespace {
// The help page on pitch-count rules.
constexpr int kHelpTopic = 17;
} // namespace

pitcherAvailabilityScrn::pitcherAvailabilityScrn(QWidget *parent)
    : ScreenBase(ScreenId::pitcherAvailabilityScrn, QStringLiteral("Pitcher Availability"), {.helpTopic = kHelpTopic},
                 parent)
{
    auto *central = new QWidget(this);
    auto *outer = new QVBoxLayout(central);

    auto *top = new QHBoxLayout;
    titleLbl = new QLabel(QStringLiteral("Pitcher Availability"), central);
    titleLbl->setObjectName(QStringLiteral("titleLbl"));
    QFont titleFont = titleLbl->font();
    titleFont.setPointSize(titleFont.pointSize() + 6);
    titleFont.setBold(true);
    titleLbl->setFont(titleFont);
    top->addWidget(titleLbl);
    top->addStretch(1);
    todayFld = form::named(new QDateEdit(central), QStringLiteral("todayFld"), QStringLiteral("Today"));
    todayFld->setCalendarPopup(true);
    todayFld->setDisplayFormat(QLocale().dateFormat(QLocale::ShortFormat));
    // The field's text box is what assistive tools reach.
    if (auto *text = todayFld->findChild<QLineEdit *>())
        text->setAccessibleName(QStringLiteral("Today"));
    top->addWidget(form::buddyLabel(todayFld, QStringLiteral("&Today:"), central));
    top->addWidget(todayFld);
    outer->addLayout(top);

    rulesLbl = form::valueLabel(central, QStringLiteral("rulesLbl"), QStringLiteral("Pitch count rules"));
    outer->addWidget(rulesLbl);

    availBox = form::named(new qlmListBox(central), QStringLiteral("availBox"), QStringLiteral("Pitcher availability"));
    availBox->setHeaderSortAllowed(true);
    outer->addWidget(availBox, 1);

    auto *buttons = new QHBoxLayout;
    helpBtn = form::named(new myInfoBtn(kHelpTopic, central), QStringLiteral("helpBtn"),
                          QStringLiteral("Help on pitch count rules"));
    closeBtn = form::button(central, QStringLiteral("closeBtn"), QStringLiteral("&Close"));
    buttons->addWidget(helpBtn);
    buttons->addStretch(1);
    buttons->addWidget(closeBtn);
    outer->addLayout(buttons);
    setCentralWidget(central);
    resize(900, 480);

    connect(closeBtn, &QPushButton::clicked, this, &QWidget::close);
    menus()->installListHandlers([this] { printReport(); }, [this] { exportReport(); });

    // The home team's set from the season's data folder; a copy the coach
    // damaged is named with its line and the built-in set stands in.
    QString refused;
    m_rules = stats::pitchrules::builtIn();
    if (gPrefs) {
        stats::pitchrules::copyShipped(gPrefs->strdDataLoc);
        m_rules = stats::pitchrules::load(gPrefs->strdDataLoc, &refused);
    }
    if (!refused.isEmpty())
        gShowMsgDlog(QStringLiteral("The pitch count rules could not be read."),
                     refused + QStringLiteral("\n\nThe national youth guidelines are used instead."),
                     QStringLiteral("OK"));
    rulesLbl->setText(QStringLiteral("Rules: ") + m_rules.name);

    connect(todayFld, &QDateEdit::dateChanged, this, &pitcherAvailabilityScrn::showDay);
    todayFld->setDate(platform::clock().now().date());
    showDay(todayFld->date());
}

void pitcherAvailabilityScrn::showDay(const QDate &day)
{
    if (todayFld->date() != day) {
        todayFld->setDate(day); // shows the day through dateChanged
        return;
    }
    const auto report = gData && gPrefs ? stats::AvailabilityReport::read(*gData, m_rules, gPrefs->prHomeTeam, day)
                                        : stats::AvailabilityReport::make(m_rules, {}, day);
    availBox->deleteAllRows();
    availBox->setColumnCount(int(report.headings.size()));
    availBox->setHeadings(report.headings);
    availBox->setColumnWidths(report.columnWidths);
    availBox->addRows(report.rows);
}

QString pitcherAvailabilityScrn::reportTitle() const
{
    return QStringLiteral("Pitcher Availability, ") + QLocale().toString(todayFld->date(), QLocale::ShortFormat) +
           QStringLiteral(" (") + m_rules.name + u')';
}

void pitcherAvailabilityScrn::printReport()
{
    availBox->widePrintMe(reportTitle());
}

void pitcherAvailabilityScrn::exportReport()
{
    availBox->exportMe(reportTitle());
}
