#include "help/ui/HelpAbbrevScrn.h"

#include "app/ui/Form.h"
#include "app/ui/MainMenuBar.h"
#include "help/Abbreviations.h"
#include "reports/ui/qlmListBox.h"

#include <QLineEdit>
#include <QPointer>
#include <QPushButton>
#include <QVBoxLayout>

HelpAbbrevScrn *HelpAbbrevScrn::instance()
{
    static QPointer<HelpAbbrevScrn> open;
    if (!open)
        open = new HelpAbbrevScrn;
    return open;
}

HelpAbbrevScrn::HelpAbbrevScrn(QWidget *parent)
    : ScreenBase(ScreenId::HelpAbbrevScrn, QStringLiteral("Abbreviations"), {.returnToStart = false}, parent)
{
    auto *central = new QWidget(this);
    auto *layout = new QVBoxLayout(central);
    searchFld = form::named(new QLineEdit(central), QStringLiteral("searchFld"), QStringLiteral("Search"));
    searchFld->setPlaceholderText(QStringLiteral("search"));
    layout->addWidget(searchFld);
    termsLB = form::named(new qlmListBox(central), QStringLiteral("termsLB"), QStringLiteral("Abbreviations"));
    termsLB->setColumnCount(2);
    termsLB->setHeadingsVisible(false);
    termsLB->setColumnWidths(QStringLiteral("27%,73%"));
    for (const auto &[term, meaning] : help::abbreviationRows())
        termsLB->addRow({term, meaning});
    layout->addWidget(termsLB, 1);
    CloseBtn = form::button(central, QStringLiteral("CloseBtn"), QStringLiteral("Close"));
    layout->addWidget(CloseBtn, 0, Qt::AlignRight);
    setCentralWidget(central);
    resize(360, 520);

    typingTimer.setSingleShot(true);
    typingTimer.setInterval(1500);
    // Every key starts the wait again; the search runs when typing pauses.
    connect(searchFld, &QLineEdit::textEdited, this, [this] { typingTimer.start(); });
    connect(&typingTimer, &QTimer::timeout, this, &HelpAbbrevScrn::search);
    connect(CloseBtn, &QPushButton::clicked, this, &QWidget::close);
    menus()->installHandler(QStringLiteral("FilePrint"), [this] {
        termsLB->printMe(QStringLiteral("TL Baseball Abbreviations"), false);
        return true;
    });
}

void HelpAbbrevScrn::search()
{
    termsLB->setSelectedRow(help::findAbbreviation(searchFld->text()));
    searchFld->clear();
}
