#include "help/ui/helpScrn2.h"

#include "app/globals.h"
#include "app/ui/Form.h"
#include "app/ui/MainMenuBar.h"
#include "help/HelpPrint.h"
#include "help/HelpTopics.h"
#include "help/ui/HTMLField.h"
#include "platform/Services.h"

#include <QDir>
#include <QFile>
#include <QHBoxLayout>
#include <QKeyEvent>
#include <QLabel>
#include <QListWidget>
#include <QPainter>
#include <QPushButton>
#include <QTextBrowser>
#include <QVBoxLayout>

indexCtnr::indexCtnr(QWidget *parent) : QWidget(parent)
{
    setObjectName(QStringLiteral("myIndexCtnr"));
    setFixedWidth(196);
    auto *layout = new QVBoxLayout(this);
    layout->setContentsMargins(0, 40, 0, 0);
    indexLB = form::named(new QListWidget(this), QStringLiteral("indexLB"), QStringLiteral("Help topics"));
    for (int i = 0; i < help::topicArray().size(); ++i) {
        auto *row = new QListWidgetItem(help::indexRowText(i), indexLB);
        row->setData(Qt::UserRole, help::getTopic(i));
        if (help::isHeading(i)) {
            QFont bold = row->font();
            bold.setBold(true);
            row->setFont(bold);
        }
        // Odd rows stand on light blue.
        row->setBackground(i % 2 == 1 ? QColor(221, 237, 255) : QColor(Qt::white));
        row->setForeground(Qt::black);
    }
    layout->addWidget(indexLB);
    connect(indexLB, &QListWidget::currentRowChanged, this, [this](int row) {
        if (row >= 0)
            Q_EMIT linkClicked(indexLB->item(row)->data(Qt::UserRole).toString());
    });
}

void indexCtnr::paintEvent(QPaintEvent *)
{
    QPainter p(this);
    QFont f = font();
    f.setPixelSize(24);
    p.setFont(f);
    const QRect line(0, 0, width(), 34);
    p.setPen(Qt::black);
    p.drawText(line, Qt::AlignCenter, QStringLiteral("INDEX"));
    p.setPen(QColor(65, 117, 189));
    p.drawText(line.translated(-2, -2), Qt::AlignCenter, QStringLiteral("INDEX"));
}

helpScrn2::helpScrn2(int topic, QWidget *parent)
    : ScreenBase(ScreenId::helpScrn2, QStringLiteral("Tallyline Help"), {.returnToStart = false}, parent)
{
    auto *central = new QWidget(this);
    auto *outer = new QVBoxLayout(central);
    auto *panes = new QHBoxLayout;
    myIndexCtnr = new indexCtnr(central);
    myHTML = form::named(new QTextBrowser(central), QStringLiteral("myHTML"), QStringLiteral("Help page"));
    myHTML->setOpenLinks(true);
    myHTML->setOpenExternalLinks(true);
    panes->addWidget(myIndexCtnr);
    panes->addWidget(myHTML, 1);
    outer->addLayout(panes, 1);
    stylFld = form::named(new HTMLField(central), QStringLiteral("stylFld"), QStringLiteral("Page for printing"));
    stylFld->hide();

    auto *bottom = new QHBoxLayout;
    noticeFld = form::valueLabel(central, QStringLiteral("noticeFld"), QStringLiteral("Help notice"));
    hideBtn = form::button(central, QStringLiteral("hideBtn"), QStringLiteral("Hide Index"));
    closeBtn = form::button(central, QStringLiteral("closeBtn"), QStringLiteral("Close"));
    bottom->addWidget(noticeFld, 1);
    bottom->addWidget(hideBtn);
    bottom->addWidget(closeBtn);
    outer->addLayout(bottom);
    setCentralWidget(central);
    resize(820, 600);

    connect(myIndexCtnr, &indexCtnr::linkClicked, this, [this](const QString &target) {
        // A heading's row leaves the page as it is.
        if (target != u"folder")
            getHelpText(target);
    });
    // The file's name alone: a link to a place in a page ("A_07.html#codes")
    // still leaves that page's file to print.
    connect(myHTML, &QTextBrowser::sourceChanged, this, [this](const QUrl &url) {
        curDocName = url.adjusted(QUrl::RemoveFragment | QUrl::RemoveQuery).fileName();
    });
    connect(hideBtn, &QPushButton::clicked, this, &helpScrn2::setVisibles);
    connect(closeBtn, &QPushButton::clicked, this, &QWidget::close);
    menus()->installHandler(QStringLiteral("FilePrint"), [this] {
        printPage();
        return true;
    });
    menus()->installPrinterSetup(false);

    if (topic > 0) {
        indexVisible = true;
        setVisibles();
        getHelpText(help::getTopic(topic));
    }
}

void helpScrn2::setVisibles()
{
    myIndexCtnr->setVisible(!indexVisible);
    hideBtn->setText(indexVisible ? QStringLiteral("Show Index") : QStringLiteral("Hide Index"));
    hideBtn->setAccessibleName(hideBtn->text());
    indexVisible = !indexVisible;
}

void helpScrn2::getHelpText(const QString &fileName)
{
    const QString folder = help::getHelpFolder();
    if (folder.isEmpty()) {
        noticeFld->setText(QStringLiteral("The tlyn_Help Folder is damaged or missing."));
        gBeep();
        return;
    }
    noticeFld->clear();
    const QString path = QDir(folder).filePath(fileName);
    if (fileName.isEmpty() || !QFile::exists(path)) {
        noticeFld->setText(QStringLiteral("That help file is damaged or missing."));
        gBeep();
        return;
    }
    myHTML->setSearchPaths({folder});
    myHTML->setSource(QUrl::fromLocalFile(path));
}

void helpScrn2::printPage()
{
    const QString folder = help::getHelpFolder();
    if (folder.isEmpty())
        return;
    QFile file(QDir(folder).filePath(curDocName));
    if (curDocName.isEmpty() || !file.open(QIODevice::ReadOnly)) {
        gShowMsgDlog(QStringLiteral("An error was encountered while printing the file"),
                     QStringLiteral("The 'Help' file could not be opened."), QStringLiteral("Continue"), {});
        return;
    }
    stylFld->Render(QString::fromUtf8(file.readAll()));
    printMe();
    if (QWidget *focused = focusWidget())
        focused->clearFocus();
}

void helpScrn2::printMe()
{
    std::optional<platform::PrinterSetup> setup;
    gGetPrinterSetup(setup, false);
    if (!setup)
        return;
    std::unique_ptr<platform::PrintJob> job = platform::printing().printDialog(*setup, windowTitle());
    if (!job)
        return;
    help::printPlainText(stylFld->page().text, *job);
    job->finish();
}

void helpScrn2::keyPressEvent(QKeyEvent *event)
{
    if (gIsEnterKey(event->text())) {
        close();
        return;
    }
    ScreenBase::keyPressEvent(event);
}
