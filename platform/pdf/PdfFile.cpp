#include "platform/pdf/PdfFile.h"

#include "platform/foundation/Console.h"
#include "platform/pdf/PdfText.h"
#include "platform/toolkit/TextDocument.h"

#include <QAbstractTextDocumentLayout>
#include <QBuffer>
#include <QPageSize>
#include <QPainter>
#include <QPdfWriter>

namespace {

// The layout counts in 64ths of a dot, in 32 bits: so many dots an inch leave room for 19,000 pages. Glyphs
// are placed by their design, not by whole dots.
constexpr int dotsPerInch = 144;
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

void drawPage(const QTextDocument& document, int number, QPainter& painter)
{
    QAbstractTextDocumentLayout::PaintContext context;
    const QSizeF page = document.pageSize();
    context.clip = QRectF(QPointF(0, number * page.height()), page);
    painter.setClipRect(context.clip);
    document.documentLayout()->draw(&painter, context);
}

void paintPages(const QTextDocument& document, QPdfWriter& writer)
{
    QPainter painter(&writer);
    const int pages = document.pageCount();
    if (pages < 1)
        fatalError(QStringLiteral("The report has no pages"));
    for (int number = 0; number < pages; ++number) {
        if (number > 0) {
            writer.newPage();
            painter.translate(0, -document.pageSize().height());
        }
        drawPage(document, number, painter);
    }
}

CodeUnits charactersOf(const NSAttributedString& text)
{
    CodeUnits characters;
    for (const NSAttributedString::Run& run : text.runs())
        for (const QChar unit : run.text)
            characters.set(unit.unicode());
    return characters;
}

PdfPageItems itemsOfPage(const QTextDocument& document, int number)
{
    const QSizeF page = document.pageSize();
    return {pdfTextItems(page.toSize(), dotsPerInch,
                         [&](QPainter& painter) { drawPage(document, number, painter); }),
            number * page.height()};
}

} // namespace

QByteArray pdfOf(const NSAttributedString& text, const QSizeF& pageSize, const QString& title)
{
    QByteArray pdf;
    QBuffer file(&pdf);
    file.open(QIODevice::WriteOnly);
    QPdfWriter writer(&file);
    writer.setCreator(QStringLiteral("Marrowvale"));
    writer.setTitle(title);
    writer.setResolution(dotsPerInch);
    writer.setPageSize(QPageSize(pageSize, QPageSize::Point));
    writer.setPageMargins(QMarginsF());
    QTextDocument document;
    document.documentLayout()->setPaintDevice(&writer);
    document.setUseDesignMetrics(true);
    document.setDocumentMargin(inset);
    document.setPageSize(pageSize * dotsPerInch / pointsPerInch);
    fillDocument(document, text);
    paintPages(document, writer);
    setExactPageBox(pdf, pageSize);
    // Pictures, which take long to draw, say nothing.
    const auto itemsOf = [&document](int page) {
        document.documentLayout()->unregisterHandler(QTextFormat::UserObject);
        return itemsOfPage(document, page);
    };
    makeTextReadable(pdf, charactersOf(text), itemsOf);
    return pdf;
}
