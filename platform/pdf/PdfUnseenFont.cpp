#include "platform/pdf/PdfUnseenFont.h"

#include "platform/pdf/PdfObjects.h"

const QByteArray pdfUnseenFontName = "Unseen";

namespace {

// In parts of the height: what readers suppose who tell the size of a text by the widths of its font.
constexpr double unseenWidth = 0.5;

} // namespace

int addPdfUnseenFont(PdfObjects& objects)
{
    const QByteArray width = QByteArray::number(unseenWidth);
    const QByteArray glyph = QByteArray::number(objects.addStream(width + " 0 d0"));
    return objects.add("<<\n/Type /Font\n/Subtype /Type3\n/FontMatrix [1 0 0 1 0 0]\n/FontBBox [0 0 " +
                       width + " 1]\n/CharProcs << /space " + glyph +
                       " 0 R >>\n/Encoding << /Type /Encoding /Differences [32 /space] >>\n/FirstChar 32\n"
                       "/LastChar 32\n/Widths [" +
                       width + "]\n/Resources << >>\n>>");
}

QByteArray pdfUnseenGlyph(const QPointF& place, const QSizeF& size)
{
    const auto number = [](double value) { return QByteArray::number(value, 'f', 2) + ' '; };
    return number(size.width() / unseenWidth) + "0 0 " + number(-size.height()) + number(place.x()) +
           number(place.y()) + "Tm ( ) Tj\n";
}

QByteArray pdfUnseenBlock(const QByteArray& glyphs)
{
    return "q\nBT\n/" + pdfUnseenFontName + " 1 Tf\n" + glyphs + "ET\nQ\n";
}
