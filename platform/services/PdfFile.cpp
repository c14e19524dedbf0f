#include "platform/services/PdfFile.h"

#include "platform/toolkit/TextDocument.h"

#include <QAbstractTextDocumentLayout>
#include <QBuffer>
#include <QPageSize>
#include <QPainter>
#include <QPdfWriter>

namespace {

constexpr int dotsPerInch = 600;
constexpr double pointsPerInch = 72;
// What keeps the text off the paper's edge: half an inch, in the screen's dots, which the layout scales by
// itself.
constexpr double inset = 48;

QByteArray pageBox(double width, double height)
{
    constexpr int decimals = 6;
    return "/MediaBox [0 0 " + QByteArray::number(width, 'f', decimals) + ' ' +
           QByteArray::number(height, 'f', decimals) + ']';
}

// The writer rounds the paper to whole points. The exact box has as many digits, so nothing in the file
// moves.
void setExactPageBox(QByteArray& pdf, const QSizeF& pageSize)
{
    pdf.replace(pageBox(qRound(pageSize.width()), qRound(pageSize.height())),
                pageBox(pageSize.width(), pageSize.height()));
}

void paintPages(const QTextDocument& document, QPdfWriter& writer)
{
    QPainter painter(&writer);
    const QSizeF page = document.pageSize();
    const int pages = document.pageCount();
    for (int number = 0; number < pages; ++number) {
        if (number > 0) {
            writer.newPage();
            painter.translate(0, -page.height());
        }
        QAbstractTextDocumentLayout::PaintContext context;
        context.clip = QRectF(QPointF(0, number * page.height()), page);
        painter.setClipRect(context.clip);
        document.documentLayout()->draw(&painter, context);
    }
}

} // namespace

QByteArray pdfOf(const NSAttributedString& text, const QSizeF& pageSize)
{
    QBuffer file;
    file.open(QIODevice::WriteOnly);
    QPdfWriter writer(&file);
    writer.setCreator(QStringLiteral("Marrowvale"));
    writer.setResolution(dotsPerInch);
    writer.setPageSize(QPageSize(pageSize, QPageSize::Point));
    writer.setPageMargins(QMarginsF());
    QTextDocument document;
    document.documentLayout()->setPaintDevice(&writer);
    document.setDocumentMargin(inset);
    document.setPageSize(pageSize * dotsPerInch / pointsPerInch);
    fillDocument(document, text);
    paintPages(document, writer);
    QByteArray pdf = file.data();
    setExactPageBox(pdf, pageSize);
    return pdf;
}
