#include "platform/qt/QtServices.h"

#include <QApplication>
#include <QDesktopServices>
#include <QDir>
#include <QFileDialog>
#include <QFileInfo>
#include <QLineEdit>
#include <QMessageBox>
#include <QPageSetupDialog>
#include <QPainter>
#include <QPrintDialog>
#include <QPrinter>
#include <QPushButton>
#include <QStandardPaths>
#include <QTimer>

namespace platform::qt {

namespace {

QWidget *dialogParent()
{
    return QApplication::activeWindow();
}

QString startDir(const FileRequest &request)
{
    if (!request.initialDir.isEmpty())
        return request.initialDir;
    return QStandardPaths::writableLocation(QStandardPaths::DocumentsLocation);
}

void prepare(QFileDialog &dialog, const FileRequest &request)
{
    dialog.setWindowTitle(request.title);
    dialog.setDirectory(startDir(request));
    if (!request.actionCaption.isEmpty())
        dialog.setLabelText(QFileDialog::Accept, request.actionCaption);
    if (!request.prompt.isEmpty())
        dialog.setToolTip(request.prompt);
    if (!request.nameFilters.isEmpty())
        dialog.setNameFilters(request.nameFilters);
    dialog.setWindowModality(Qt::WindowModal);
}

QString runDialog(QFileDialog &dialog)
{
    if (dialog.exec() != QDialog::Accepted || dialog.selectedFiles().isEmpty())
        return {};
    return QFileInfo(dialog.selectedFiles().constFirst()).absoluteFilePath();
}

class QtPrintJob final : public PrintJob
{
public:
    QtPrintJob(std::unique_ptr<QPrinter> printer, const PrinterSetup &setup)
        : m_printer(std::move(printer)), m_setup(setup)
    {
        m_painter.begin(m_printer.get());
        const qreal scale = m_printer->resolution() / 72.0;
        m_painter.scale(scale, scale);
    }
    ~QtPrintJob() override
    {
        if (m_painter.isActive())
            m_painter.end();
    }

    QPainter &painter() override { return m_painter; }
    const PrinterSetup &setup() const override { return m_setup; }
    bool newPage() override { return m_printer->newPage(); }
    int copies() const override { return m_printer->supportsMultipleCopies() ? 1 : m_printer->copyCount(); }
    bool finish() override { return m_painter.end(); }

private:
    std::unique_ptr<QPrinter> m_printer;
    PrinterSetup m_setup;
    QPainter m_painter;
};

} // namespace

std::uint8_t QtMessageService::showMsgDlog(const QString &message, const QString &explanation,
                                           const QString &actionCaption, const QString &altCaption)
{
    QMessageBox box(dialogParent());
    box.setIcon(QMessageBox::Warning);
    box.setWindowTitle(QApplication::applicationDisplayName());
    box.setText(message);
    box.setInformativeText(explanation);
    QPushButton *action = box.addButton(actionCaption, QMessageBox::AcceptRole);
    QPushButton *cancel = box.addButton(QMessageBox::Cancel);
    QPushButton *alternate = nullptr;
    if (!altCaption.isEmpty())
        alternate = box.addButton(altCaption, QMessageBox::DestructiveRole);
    box.setDefaultButton(action);
    box.setEscapeButton(cancel);
    box.exec();
    QAbstractButton *clicked = box.clickedButton();
    if (clicked == action)
        return MsgAction;
    if (alternate && clicked == alternate)
        return MsgAlternate;
    return MsgCancel;
}

void QtMessageService::notice(const QString &message, const QString &explanation)
{
    QMessageBox box(dialogParent());
    box.setIcon(QMessageBox::Warning);
    box.setWindowTitle(QApplication::applicationDisplayName());
    box.setText(message);
    box.setInformativeText(explanation);
    box.setStandardButtons(QMessageBox::Ok);
    box.exec();
}

void QtMessageService::msgBox(const QString &text)
{
    QMessageBox box(dialogParent());
    box.setWindowTitle(QApplication::applicationDisplayName());
    box.setText(text);
    box.setStandardButtons(QMessageBox::Ok);
    box.exec();
}

QString QtFileDialogService::selectFolder(const FileRequest &request)
{
    QFileDialog dialog(dialogParent());
    prepare(dialog, request);
    dialog.setFileMode(QFileDialog::Directory);
    dialog.setOption(QFileDialog::ShowDirsOnly, true);
    return runDialog(dialog);
}

QString QtFileDialogService::openFile(const FileRequest &request)
{
    QFileDialog dialog(dialogParent());
    prepare(dialog, request);
    dialog.setFileMode(QFileDialog::ExistingFile);
    dialog.setAcceptMode(QFileDialog::AcceptOpen);
    return runDialog(dialog);
}

QString QtFileDialogService::saveFile(const FileRequest &request)
{
    QFileDialog dialog(dialogParent());
    prepare(dialog, request);
    dialog.setFileMode(QFileDialog::AnyFile);
    dialog.setAcceptMode(QFileDialog::AcceptSave);
    if (!request.suggestedName.isEmpty())
        dialog.selectFile(request.suggestedName);
    return runDialog(dialog);
}

void QtFileDialogService::revealInFileBrowser(const QString &path)
{
    // Desktops differ in how to select a file; opening its folder works everywhere.
    const QFileInfo info(path);
    QDesktopServices::openUrl(QUrl::fromLocalFile(info.isDir() ? info.absoluteFilePath() : info.absolutePath()));
}

std::optional<PrinterSetup> QtPrintService::pageSetupDialog(const PrinterSetup &current)
{
    QPrinter printer(QPrinter::HighResolution);
    printer.setPageLayout(current.layout());
    QPageSetupDialog dialog(&printer, dialogParent());
    if (dialog.exec() != QDialog::Accepted)
        return std::nullopt;
    return PrinterSetup(printer.pageLayout());
}

std::unique_ptr<PrintJob> QtPrintService::printDialog(const PrinterSetup &setup, const QString &jobTitle)
{
    auto printer = std::make_unique<QPrinter>(QPrinter::HighResolution);
    printer->setPageLayout(setup.layout());
    printer->setDocName(jobTitle);
    QPrintDialog dialog(printer.get(), dialogParent());
    dialog.setWindowTitle(jobTitle);
    // Printing to a PDF file offers a file named after the job, in the
    // documents folder.
    QTimer::singleShot(0, &dialog, [&dialog, &jobTitle] {
        if (auto *field = dialog.findChild<QLineEdit *>(QStringLiteral("filename")))
            field->setText(QDir(QStandardPaths::writableLocation(QStandardPaths::DocumentsLocation))
                               .filePath(pdfFileName(jobTitle)));
    });
    if (dialog.exec() != QDialog::Accepted)
        return nullptr;
    const PrinterSetup used(printer->pageLayout());
    return std::make_unique<QtPrintJob>(std::move(printer), used);
}

bool QtUrlOpener::openUrl(const QUrl &url)
{
    return QDesktopServices::openUrl(url);
}

void QtBeeper::beep()
{
    QApplication::beep();
}

} // namespace platform::qt
