#include "reports/ui/playingTimeScrn.h"

#include "app/globals.h"
#include "app/myDB.h"
#include "app/myPrefs.h"
#include "app/ui/Form.h"
#include "app/ui/MainMenuBar.h"
#include "platform/Services.h"
#include "reports/ui/qlmListBox.h"

#include <QComboBox>
#include <QDateEdit>
#include <QHBoxLayout>
#include <QLabel>
#include <QLineEdit>
#include <QLocale>
#include <QPushButton>
#include <QVBoxLayout>

namespace {

// The help page on reports.
constexpr int kHelpTopic = 9;

QDateEdit *dateField(QWidget *parent, const QString &name, const QString &accessible)
{
    auto *field = form::named(new QDateEdit(parent), name, accessible);
    field->setCalendarPopup(true);
    field->setDisplayFormat(QLocale().dateFormat(QLocale::ShortFormat));
    // The field's text box is what assistive tools reach.
    if (auto *text = field->findChild<QLineEdit *>())
        text->setAccessibleName(accessible);
    return field;
}

// The first and last game day of the season; today for a season without games.
std::pair<QDate, QDate> seasonDays()
{
    QDate first, last;
    if (gData && gData->isConnected()) {
        for (const Record &r : gData->select(QStringLiteral(
                 "SELECT min(substr(s.SchedDate, 1, 10)) AS first, max(substr(s.SchedDate, 1, 10)) AS last"
                 " FROM Games g JOIN Schedule s ON CAST(s.eventID AS TEXT) = g.schedID"))) {
            first = QDate::fromString(r.text(QStringLiteral("first")), Qt::ISODate);
            last = QDate::fromString(r.text(QStringLiteral("last")), Qt::ISODate);
        }
    }
    if (!first.isValid() || !last.isValid())
        first = last = platform::clock().now().date();
    return {first, last};
}

} // namespace

playingTimeScrn::playingTimeScrn(QWidget *parent)
    : ScreenBase(ScreenId::playingTimeScrn, QStringLiteral("Playing Time"), {.helpTopic = kHelpTopic}, parent)
{
    auto *central = new QWidget(this);
    auto *outer = new QVBoxLayout(central);

    auto *top = new QHBoxLayout;
    titleLbl = new QLabel(QStringLiteral("Playing Time"), central);
    titleLbl->setObjectName(QStringLiteral("titleLbl"));
    QFont titleFont = titleLbl->font();
    titleFont.setPointSize(titleFont.pointSize() + 6);
    titleFont.setBold(true);
    titleLbl->setFont(titleFont);
    top->addWidget(titleLbl);
    top->addStretch(1);
    teamPop = form::comboBox(central, QStringLiteral("teamPop"), QStringLiteral("Team"));
    teamPop->addItem(QStringLiteral("All Teams"), QString());
    if (gData && gData->isConnected())
        for (const Record &r : gData->select(QStringLiteral("SELECT teamID, TeamName FROM Teams ORDER BY TeamName")))
            teamPop->addItem(r.text(QStringLiteral("TeamName")), r.text(QStringLiteral("teamID")));
    const int home = gPrefs ? teamPop->findData(gPrefs->prHomeTeam) : -1;
    teamPop->setCurrentIndex(qMax(0, home));
    top->addWidget(form::buddyLabel(teamPop, QStringLiteral("T&eam:"), central));
    top->addWidget(teamPop);
    const auto [first, last] = seasonDays();
    fromFld = dateField(central, QStringLiteral("fromFld"), QStringLiteral("From"));
    fromFld->setDate(first);
    toFld = dateField(central, QStringLiteral("toFld"), QStringLiteral("To"));
    toFld->setDate(last);
    top->addWidget(form::buddyLabel(fromFld, QStringLiteral("&From:"), central));
    top->addWidget(fromFld);
    top->addWidget(form::buddyLabel(toFld, QStringLiteral("&To:"), central));
    top->addWidget(toFld);
    outer->addLayout(top);

    timeBox = form::named(new qlmListBox(central), QStringLiteral("timeBox"), QStringLiteral("Playing time"));
    timeBox->setHeaderSortAllowed(true);
    timeBox->setColumnCount(int(stats::PlayingTimeReport::headings().size()));
    timeBox->setHeadings(stats::PlayingTimeReport::headings());
    timeBox->setColumnWidths(stats::PlayingTimeReport::columnWidths());
    outer->addWidget(timeBox, 1);

    auto *buttons = new QHBoxLayout;
    closeBtn = form::button(central, QStringLiteral("closeBtn"), QStringLiteral("&Close"));
    buttons->addStretch(1);
    buttons->addWidget(closeBtn);
    outer->addLayout(buttons);
    setCentralWidget(central);
    resize(900, 480);

    connect(closeBtn, &QPushButton::clicked, this, &QWidget::close);
    menus()->installListHandlers([this] { printReport(); }, [this] { exportReport(); });

    connect(teamPop, &QComboBox::currentIndexChanged, this, &playingTimeScrn::refresh);
    connect(fromFld, &QDateEdit::dateChanged, this, &playingTimeScrn::refresh);
    connect(toFld, &QDateEdit::dateChanged, this, &playingTimeScrn::refresh);
    refresh();
}

stats::PlayingTimeFilter playingTimeScrn::filter() const
{
    return {teamPop->currentData().toString(), fromFld->date(), toFld->date()};
}

void playingTimeScrn::refresh()
{
    timeBox->deleteAllRows();
    if (!gData || !gData->isConnected())
        return;
    timeBox->addRows(stats::PlayingTimeReport::read(*gData, filter()).texts());
}

QString playingTimeScrn::reportTitle() const
{
    return QStringLiteral("Playing Time, ") + teamPop->currentText() + QStringLiteral(", ") +
           QLocale().toString(fromFld->date(), QLocale::ShortFormat) + QStringLiteral(" to ") +
           QLocale().toString(toFld->date(), QLocale::ShortFormat);
}

void playingTimeScrn::printReport()
{
    timeBox->widePrintMe(reportTitle());
}

void playingTimeScrn::exportReport()
{
    timeBox->exportMe(reportTitle());
}
