#include "stats/ui/boxScoreScrn.h"

#include "app/globals.h"
#include "app/myDB.h"
#include "app/ui/Form.h"
#include "app/ui/MainMenuBar.h"
#include "platform/FileDialogs.h"
#include "platform/Printing.h"
#include "platform/Services.h"
#include "stats/BoxScore.h"

#include <QDir>
#include <QFileInfo>
#include <QFontDatabase>
#include <QPainter>
#include <QPlainTextEdit>
#include <QPushButton>
#include <QSaveFile>
#include <QStandardPaths>
#include <QVBoxLayout>

boxScoreScrn::boxScoreScrn(const QString &schedID, QWidget *parent)
    : ScreenBase(ScreenId::boxScoreScrn, QStringLiteral("Box Score"), {.returnToStart = false}, parent)
{
    auto *central = new QWidget(this);
    auto *outer = new QVBoxLayout(central);
    boxText = form::named(new QPlainTextEdit(central), QStringLiteral("boxText"), QStringLiteral("Box score"));
    boxText->setReadOnly(true);
    boxText->setLineWrapMode(QPlainTextEdit::NoWrap);
    boxText->setFont(QFontDatabase::systemFont(QFontDatabase::FixedFont));
    outer->addWidget(boxText, 1);
    printBtn = form::button(central, QStringLiteral("printBtn"), QStringLiteral("&Print..."));
    pdfBtn = form::button(central, QStringLiteral("pdfBtn"), QStringLiteral("Save as P&DF..."));
    textBtn = form::button(central, QStringLiteral("textBtn"), QStringLiteral("Save as &Text..."));
    rowsBtn = form::button(central, QStringLiteral("rowsBtn"), QStringLiteral("&Export Rows..."));
    closeBtn = form::button(central, QStringLiteral("closeBtn"), QStringLiteral("&Close"));
    outer->addLayout(form::row({printBtn, pdfBtn, textBtn, rowsBtn, closeBtn}));
    setCentralWidget(central);
    resize(620, 640);

    const std::optional<stats::BoxScore> box = gData && !schedID.isEmpty() ? stats::BoxScore::read(*gData, schedID)
                                                                           : std::nullopt;
    if (box) {
        m_text = box->text();
        m_rows = box->pipeRows();
        m_title = box->teams[0].name + QStringLiteral(" at ") + box->teams[1].name +
                  (box->date.isEmpty() ? QString() : u' ' + box->date);
        setWindowTitle(QStringLiteral("Box Score - ") + m_title);
    } else {
        m_text = QStringLiteral("This event has no game data yet.");
    }
    boxText->setPlainText(m_text);
    for (QPushButton *b : {printBtn, pdfBtn, textBtn, rowsBtn})
        b->setEnabled(box.has_value());

    connect(printBtn, &QPushButton::clicked, this, &boxScoreScrn::printBox);
    connect(pdfBtn, &QPushButton::clicked, this, &boxScoreScrn::savePdf);
    connect(textBtn, &QPushButton::clicked, this, &boxScoreScrn::saveText);
    connect(rowsBtn, &QPushButton::clicked, this, &boxScoreScrn::exportRows);
    connect(closeBtn, &QPushButton::clicked, this, &QWidget::close);
    menus()->installHandler(QStringLiteral("FilePrint"), [this] {
        if (printBtn->isEnabled())
            printBox();
        return true;
    });
    menus()->installPrinterSetup();
}

void boxScoreScrn::printBox()
{
    std::optional<platform::PrinterSetup> setup;
    gGetPrinterSetup(setup, false);
    if (!setup)
        return;
    const std::optional<bool> ok = platform::printCopies(
        *setup, QStringLiteral("Box Score - ") + m_title, [this](platform::PrintJob &job) {
            stats::paintOnePage(job.painter(), QRectF(0, 0, job.setup().width(), job.setup().height()), m_text);
            return true;
        });
    if (ok && !*ok)
        gMsgBox(QStringLiteral("The printer reported an error; the box score may not have printed completely."));
}

QString boxScoreScrn::askPath(const QString &title, const QString &suffix, const QString &filter) const
{
    platform::FileRequest request;
    request.title = title;
    request.suggestedName = QStringLiteral("Box Score ") + m_title + u'.' + suffix;
    request.nameFilters = {filter};
    const QString documents = QStandardPaths::writableLocation(QStandardPaths::DocumentsLocation);
    request.initialDir = QFileInfo(documents).isDir() ? documents : QDir::homePath();
    QString path = platform::files().saveFile(request);
    if (!path.isEmpty() && QFileInfo(path).suffix().isEmpty())
        path += u'.' + suffix;
    return path;
}

bool boxScoreScrn::writeFile(const QString &path, const QByteArray &bytes)
{
    QSaveFile file(path);
    if (file.open(QIODevice::WriteOnly) && file.write(bytes) == bytes.size() && file.commit())
        return true;
    gShowMsgDlog(QStringLiteral("The file \"") + QDir::toNativeSeparators(path) +
                     QStringLiteral("\" couldn't be written."),
                 file.errorString(), QStringLiteral("OK"));
    return false;
}

void boxScoreScrn::savePdf()
{
    const QString path = askPath(QStringLiteral("Save the Box Score as PDF"), QStringLiteral("pdf"),
                                 QStringLiteral("PDF files (*.pdf)"));
    if (path.isEmpty())
        return;
    // Written beside the target and renamed over it when complete.
    const QString part = path + QStringLiteral(".part");
    if (!stats::writeOnePagePdf(part, QStringLiteral("Box Score - ") + m_title, m_text)) {
        QFile::remove(part);
        gShowMsgDlog(QStringLiteral("The file \"") + QDir::toNativeSeparators(path) +
                         QStringLiteral("\" couldn't be written."),
                     QString(), QStringLiteral("OK"));
        return;
    }
    QFile::remove(path);
    QFile::rename(part, path);
}

void boxScoreScrn::saveText()
{
    const QString path = askPath(QStringLiteral("Save the Box Score as Text"), QStringLiteral("txt"),
                                 QStringLiteral("Text files (*.txt)"));
    if (!path.isEmpty())
        writeFile(path, m_text.toUtf8());
}

void boxScoreScrn::exportRows()
{
    const QString path = askPath(QStringLiteral("Export the Game's Rows"), QStringLiteral("txt"),
                                 QStringLiteral("Text files (*.txt)"));
    if (!path.isEmpty())
        writeFile(path, m_rows.toUtf8());
}
