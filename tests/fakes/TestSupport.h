#pragma once

#include <QList>
#include <QString>

namespace fakes {

// One word of a PDF page as pdftotext -bbox reports it, in points from the
// page's top-left corner.
struct PdfWord
{
    int page = 0; // 1-based
    QString text;
    double xMin = 0, yMin = 0, xMax = 0, yMax = 0;
};

// The words of a PDF file with their positions (needs poppler-utils).
QList<PdfWord> pdfWords(const QString &pdfPath);
// The plain text of a PDF file, pages separated by form feeds.
QString pdfText(const QString &pdfPath);
// The number of pages of a PDF file.
int pdfPageCount(const QString &pdfPath);

} // namespace fakes
