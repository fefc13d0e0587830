#pragma once

#include <QFont>
#include <QPageLayout>
#include <QString>

#include <memory>
#include <optional>

class QPainter;

namespace platform {

// A page set-up: paper size, orientation and margins. All measures are
// printer points (1/72 inch). Drawing on a PrintJob starts at the corner of
// the printable area, so left() and top() are 0 and width() and height() are
// the printable area; pageLeft() and pageTop() are the paper's edges seen
// from there (zero or negative), as a printout's layout rules measure them.
class PrinterSetup
{
public:
    PrinterSetup();
    explicit PrinterSetup(const QPageLayout &layout);

    const QPageLayout &layout() const { return m_layout; }
    void setLayout(const QPageLayout &layout) { m_layout = layout; }

    bool isLandscape() const;
    void setLandscape(bool landscape);

    int left() const { return 0; }
    int top() const { return 0; }
    int width() const;
    int height() const;
    int pageLeft() const;
    int pageTop() const;
    int pageWidth() const;
    int pageHeight() const;

    // The text form kept in memory between prints:
    // "<page size id>;<portrait|landscape>;<left>,<top>,<right>,<bottom>" with
    // the margins in points. fromString gives nothing for text it can't read.
    QString toString() const;
    static std::optional<PrinterSetup> fromString(const QString &text);

private:
    QPageLayout m_layout;
};

// One print job, open between the print dialog and finish(). Its painter is
// scaled so that one unit is one point, whatever the device resolution.
class PrintJob
{
public:
    virtual ~PrintJob() = default;
    virtual QPainter &painter() = 0;
    virtual const PrinterSetup &setup() const = 0;
    // Ends the current page and starts a new one; false when the device refused.
    virtual bool newPage() = 0;
    // How many times the program must draw the document: the copies the user
    // asked for that the device does not make by itself.
    virtual int copies() const = 0;
    // Ends the job and sends it off; false when the device reported an error.
    virtual bool finish() = 0;
};

// Page set-up and print dialogs.
class PrintService
{
public:
    virtual ~PrintService() = default;
    // Shows the page set-up dialog starting from `current`; nothing on cancel.
    virtual std::optional<PrinterSetup> pageSetupDialog(const PrinterSetup &current) = 0;
    // Shows the print dialog and, unless the user cancels, opens a job.
    virtual std::unique_ptr<PrintJob> printDialog(const PrinterSetup &setup, const QString &jobTitle) = 0;
};

// The name offered for a job printed to a PDF file: the job's title, with
// the characters a file name can't hold made dashes, and ".pdf".
QString pdfFileName(const QString &jobTitle);

// A font of `points` size for drawing on a PrintJob's painter, whose unit is
// already the point: the size is set in painter units so it isn't scaled twice.
QFont printFont(QFont font, int points);

} // namespace platform
