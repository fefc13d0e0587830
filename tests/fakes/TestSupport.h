#pragma once

#include <QColor>
#include <QList>
#include <QSize>
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
// The sizes of the pictures placed in a PDF (poppler's pdfimages); soft
// masks, the alpha of a picture, are not counted.
QList<QSize> pdfImageSizes(const QString &pdfPath);
// A picture of one colour written to `path`, as PNG unless the name ends in
// ".jpg" (the content decides the format, the name may say anything).
QString writePicture(const QString &path, QSize size, QColor colour);

} // namespace fakes
