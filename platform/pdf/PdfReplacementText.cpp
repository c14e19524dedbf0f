#include "platform/pdf/PdfReplacementText.h"

#include "platform/pdf/PdfHex.h"
#include "platform/pdf/PdfTextBlocks.h"
#include "platform/pdf/PdfUnseenFont.h"

#include <algorithm>

namespace {

QByteArray asReplaced(const QByteArray& drawing, const QString& text)
{
    return "/Span << /ActualText <FEFF" + pdfHex(text) + "> >> BDC\n" + drawing + "EMC\n";
}

// Readers turn round a replacement that runs from right to left, unless it is of one character.
QByteArray unseenText(const PdfTextItem& item)
{
    const QPointF place(item.box.left(), item.baseline);
    if (!item.rightToLeft)
        return pdfUnseenBlock(asReplaced(pdfUnseenGlyph(place, item.box.size()), item.text));
    const std::u32string characters = item.text.toStdU32String();
    const QSizeF size(item.box.width() / static_cast<double>(characters.size()), item.box.height());
    double x = item.box.right();
    QByteArray glyphs;
    for (const char32_t character : characters) {
        x -= size.width();
        glyphs += asReplaced(pdfUnseenGlyph({x, item.baseline}, size), QString::fromUcs4(&character, 1));
    }
    return pdfUnseenBlock(glyphs);
}

using PdfTextItems = std::vector<PdfTextItem>::const_iterator;

QByteArray textOfBoxes(PdfTextItems first, PdfTextItems last)
{
    QByteArray drawing;
    for (auto item = first; item != last; ++item)
        if (item->box.width() > 0 && !item->text.trimmed().isEmpty())
            drawing += unseenText(*item);
    return drawing;
}

// Marks stand where they look right, which is not where readers look for them.
bool hasMarks(const QString& text)
{
    return std::ranges::any_of(text.normalized(QString::NormalizationForm_KC),
                               [](QChar unit) { return unit.isMark(); });
}

bool readsAs(const PdfTextBlock& block, const QString& text, const PdfCharacterMaps& maps)
{
    constexpr auto form = QString::NormalizationForm_KC;
    const auto map = maps.find(block.font);
    return map != maps.end() && !hasMarks(text) &&
           map->second.textOf(block.codes).normalized(form) == text.normalized(form);
}

QByteArray readable(const QByteArray& drawing, const PdfTextItem& item)
{
    return item.rightToLeft ? asReplaced(drawing, {}) + unseenText(item) : asReplaced(drawing, item.text);
}

// Rounding may put a glyph a little before its item; what stands at the item's end is the next one.
bool holds(const QRectF& box, const QPointF& position)
{
    constexpr double dot = 1;
    return position.y() >= box.top() && position.y() <= box.bottom() && position.x() >= box.left() - dot &&
           position.x() < box.left() + std::max(box.width() - dot, dot);
}

// Outside of all that was drawn, coordinates begin with the page.
QByteArray fromTop(double top, const QByteArray& drawing)
{
    return drawing.isEmpty() ? drawing
                             : "q\n1 0 0 1 0 " + QByteArray::number(-top, 'f') + " cm\n" + drawing + "Q\n";
}

} // namespace

QByteArray withReplacementText(const QByteArray& content, const PdfPageItems& page,
                               const PdfCharacterMaps& maps)
{
    const std::vector<PdfTextBlock> blocks = pdfTextBlocks(content);
    const auto end = page.items.end();
    auto next = page.items.begin();
    qsizetype copied = 0;
    QByteArray result;
    // Items and blocks come in the same order.
    for (const PdfTextBlock& block : blocks) {
        const auto item = std::find_if(
            next, end, [&block](const PdfTextItem& other) { return holds(other.box, block.position); });
        result += content.mid(copied, block.begin - copied);
        copied = block.end;
        const QByteArray drawing = content.mid(block.begin, block.end - block.begin);
        if (item == end) {
            result += drawing;
            continue;
        }
        result += textOfBoxes(next, item);
        result += readsAs(block, item->text, maps) ? drawing : readable(drawing, *item);
        next = item + 1;
    }
    const QByteArray rest = textOfBoxes(next, end);
    return blocks.empty() ? content + fromTop(page.top, rest) : result + rest + content.mid(copied);
}
