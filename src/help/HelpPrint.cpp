#include "help/HelpPrint.h"

#include "platform/Printing.h"

#include <QAbstractTextDocumentLayout>
#include <QPainter>
#include <QTextDocument>

namespace help {

int printPlainText(const QString &text, platform::PrintJob &job)
{
    const platform::PrinterSetup &setup = job.setup();
    const int left = setup.left() + 36;
    const int top = setup.top() + 36;
    const int width = setup.width() - 36;
    const int height = setup.height() - 36;

    QTextDocument document;
    document.setDefaultFont(platform::printFont(QFont(), 12));
    document.setDocumentMargin(0);
    QString lines = text;
    lines.replace(QChar(13), QChar(10));
    document.setPlainText(lines);
    document.setPageSize(QSizeF(width, height));

    QPainter &p = job.painter();
    p.setPen(Qt::black);
    const int pages = std::max(1, document.pageCount());
    for (int page = 0; page < pages; ++page) {
        if (page > 0)
            job.newPage();
        p.save();
        p.translate(left, top - page * height);
        QAbstractTextDocumentLayout::PaintContext context;
        context.clip = QRectF(0, page * height, width, height);
        context.palette.setColor(QPalette::Text, Qt::black);
        p.setClipRect(context.clip);
        document.documentLayout()->draw(&p, context);
        p.restore();
    }
    return pages;
}

} // namespace help
