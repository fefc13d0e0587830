#include "reports/ui/reportScrn.h"

#include "app/globals.h"
#include "app/myDB.h"
#include "app/ui/Form.h"
#include "app/ui/MainMenuBar.h"
#include "reports/ReportHeadings.h"
#include "reports/ui/qlmListBox.h"
#include "reports/ui/reportIntroScrn.h"
#include "support/ui/myInfoBtn.h"

#include <QComboBox>
#include <QHBoxLayout>
#include <QHeaderView>
#include <QLabel>
#include <QPushButton>
#include <QVBoxLayout>

namespace {
// The help topic of the report screens.
constexpr int kHelpTopic = 9;
} // namespace

reportScrn::reportScrn(int which, const QStringList &headers, QWidget *parent)
    : ScreenBase(ScreenId::reportScrn, QStringLiteral("Season Report"), parent),
      m_report(reports::ReportKind(which), headers)
{
    auto *central = new QWidget(this);
    auto *outer = new QVBoxLayout(central);

    auto *top = new QHBoxLayout;
    titleLbl = new QLabel(central);
    titleLbl->setObjectName(QStringLiteral("titleLbl"));
    QFont titleFont = titleLbl->font();
    titleFont.setPointSize(titleFont.pointSize() + 6);
    titleFont.setBold(true);
    titleLbl->setFont(titleFont);
    top->addWidget(titleLbl);
    top->addStretch(1);
    leagueFilter = form::comboBox(central, QStringLiteral("leagueFilter"), QStringLiteral("League"));
    DivisionFilter = form::comboBox(central, QStringLiteral("DivisionFilter"), QStringLiteral("Division"));
    teamFilter = form::comboBox(central, QStringLiteral("teamFilter"), QStringLiteral("Team"));
    top->addWidget(form::buddyLabel(leagueFilter, QStringLiteral("&League:"), central));
    top->addWidget(leagueFilter);
    top->addWidget(form::buddyLabel(DivisionFilter, QStringLiteral("&Division:"), central));
    top->addWidget(DivisionFilter);
    top->addWidget(form::buddyLabel(teamFilter, QStringLiteral("&Team:"), central));
    top->addWidget(teamFilter);
    columnSetPop = form::comboBox(central, QStringLiteral("columnSetPop"), QStringLiteral("Columns"));
    columnSetPop->addItems({QStringLiteral("Standard"), QStringLiteral("More")});
    top->addWidget(form::buddyLabel(columnSetPop, QStringLiteral("C&olumns:"), central));
    top->addWidget(columnSetPop);
    outer->addLayout(top);

    reportBox = form::named(new qlmListBox(central), QStringLiteral("reportBox"), QStringLiteral("Report"));
    reportBox->setHeaderSortAllowed(true);
    // The figure columns are 36 points wide, as they print: a smaller face
    // keeps "1.000" and the longer headings whole on screen.
    QFont listFont = reportBox->font();
    listFont.setPointSizeF(listFont.pointSizeF() * 0.85);
    reportBox->setFont(listFont);
    outer->addWidget(reportBox, 1);

    auto *buttons = new QHBoxLayout;
    helpBtn = form::named(new myInfoBtn(kHelpTopic, central), QStringLiteral("helpBtn"),
                          QStringLiteral("Help on reports"));
    newRptBtn = form::button(central, QStringLiteral("newRptBtn"), QStringLiteral("&New Report"));
    closeBtn = form::button(central, QStringLiteral("closeBtn"), QStringLiteral("&Close"));
    buttons->addWidget(helpBtn);
    buttons->addStretch(1);
    buttons->addWidget(newRptBtn);
    buttons->addWidget(closeBtn);
    outer->addLayout(buttons);
    setCentralWidget(central);

    connect(newRptBtn, &QPushButton::clicked, this, [this] {
        showNewRept = true;
        close();
    });
    connect(closeBtn, &QPushButton::clicked, this, [this] {
        showNewRept = false;
        close();
    });
    menus()->installListHandlers([this] { printReport(); }, [this] { exportReport(); });

    scrnSetup();
}

bool reportScrn::showsMore() const
{
    return columnSetPop->currentIndex() == 1;
}

void reportScrn::showColumnSet()
{
    reportBox->deleteAllRows();
    if (showsMore()) {
        const QStringList headers = m_report.moreHeaders();
        reportBox->setColumnCount(int(headers.size()));
        reportBox->setHeadings(headers);
        QStringList widths(headers.size(), QStringLiteral("42"));
        widths[0] = widths[1] = widths[2] = QStringLiteral("84");
        reportBox->setColumnWidths(widths.join(u','));
    } else {
        reportBox->setColumnCount(int(m_report.curHeaders().size()));
        reportBox->setHeadings(m_report.curHeaders());
        reportBox->setColumnWidths(m_report.columnWidths());
    }
    // Each heading says what it counts, and sorts best first.
    const QStringList headings = showsMore() ? m_report.moreHeaders() : m_report.curHeaders();
    for (int c = 0; c < headings.size(); ++c) {
        reportBox->listModel().setHeadingDescription(c, reports::headingDescription(m_report.kind(), headings.at(c)));
        reportBox->listModel().setFirstSortOrder(c, reports::firstSortOrder(m_report.kind(), headings.at(c)));
    }
}

void reportScrn::scrnSetup()
{
    reportBox->setToolTip(QStringLiteral("A click on a heading, or Ctrl+Left and Ctrl+Right, sorts by it, best "
                                         "first; Ctrl+Up and Ctrl+Down turn the order"));
    showColumnSet();
    connect(columnSetPop, &QComboBox::currentIndexChanged, this, [this] {
        // The order follows its heading, not its place: a heading the other
        // set lacks leaves the lines in the report's own order.
        QHeaderView *heading = reportBox->header();
        const QStringList before = showsMore() ? m_report.curHeaders() : m_report.moreHeaders();
        const QString sortedBy = heading->isSortIndicatorShown() ? before.value(heading->sortIndicatorSection())
                                                                 : QString();
        const Qt::SortOrder order = heading->sortIndicatorOrder();
        showColumnSet();
        const QStringList after = showsMore() ? m_report.moreHeaders() : m_report.curHeaders();
        heading->setSortIndicator(sortedBy.isEmpty() ? -1 : int(after.indexOf(sortedBy)), order);
        displayData();
    });
    titleLbl->setText(m_report.title());
    setWindowTitle(m_report.title() + QStringLiteral(" Report"));
    // The list is as wide as its columns, up to a screen's width.
    reportBox->setMinimumWidth(m_report.listWidth());
    resize(m_report.listWidth() + 40, 560);
    if (gData)
        m_report.load(*gData);
    fillFilters();
    displayData();
}

void reportScrn::fillFilters()
{
    const reports::FilterChoices choices = gData ? reports::FilterChoices::read(*gData) : reports::FilterChoices{};
    leagueFilter->addItem(QStringLiteral("All Leagues"));
    leagueFilter->addItems(choices.leagues);
    DivisionFilter->addItem(QStringLiteral("All Divisions"));
    DivisionFilter->addItems(choices.divisions);
    teamFilter->addItem(QStringLiteral("All Teams"), qint64(-1));
    for (const auto &team : choices.teams)
        teamFilter->addItem(team.name, team.teamID);
    for (QComboBox *box : {leagueFilter, DivisionFilter, teamFilter})
        connect(box, &QComboBox::currentIndexChanged, this, &reportScrn::filterChanged);
}

void reportScrn::filterChanged()
{
    m_filter.selLeague = leagueFilter->currentIndex() > 0 ? leagueFilter->currentText() : QString();
    m_filter.selDivision = DivisionFilter->currentIndex() > 0 ? DivisionFilter->currentText() : QString();
    m_filter.selTeam = teamFilter->currentIndex() > 0 ? teamFilter->currentData().toLongLong() : -1;
    displayData();
}

void reportScrn::displayData()
{
    reportBox->deleteAllRows();
    reportBox->addRows(showsMore() ? m_report.moreRows(m_filter) : m_report.rows(m_filter));
    // New lines keep the order of the heading the coach clicked last.
    const QHeaderView *heading = reportBox->header();
    if (heading->sortIndicatorSection() >= 0 && heading->isSortIndicatorShown())
        reportBox->sortByColumnText(heading->sortIndicatorSection(), heading->sortIndicatorOrder());
}

void reportScrn::printReport()
{
    reportBox->widePrintMe(titleLbl->text() + QStringLiteral(" Report"));
}

void reportScrn::exportReport()
{
    reportBox->exportMe(titleLbl->text() + QStringLiteral(" Report"));
}

bool reportScrn::mayClose()
{
    if (showNewRept) {
        setReturnToStart(false);
        (new reportIntroScrn)->show();
    }
    return true;
}
