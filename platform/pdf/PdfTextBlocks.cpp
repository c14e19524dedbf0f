#include "platform/pdf/PdfTextBlocks.h"

#include <QList>

namespace {

const QByteArray blockBegin = "\nBT\n";
const QByteArray blockEnd = "\nET\n";

// "/F7 100 Tf 1 0 0 -1 0 0 Tm": the font, and that y runs upwards here.
// "25 -115.531250 Td <0001> Tj": how far on a glyph stands, and its code.
void readLine(const QByteArray& line, PdfTextBlock& block)
{
    if (line.startsWith('/'))
        block.font = line.mid(1, line.indexOf(' ') - 1);
    if (!line.endsWith(" Tj"))
        return;
    const QList<QByteArray> words = line.split(' ');
    if (block.codes.isEmpty())
        block.position = QPointF(words.at(0).toDouble(), -words.at(1).toDouble());
    block.codes += QByteArray::fromHex(words.at(words.size() - 2));
}

} // namespace

std::vector<PdfTextBlock> pdfTextBlocks(const QByteArray& content)
{
    std::vector<PdfTextBlock> blocks;
    qsizetype before = content.indexOf(blockBegin);
    while (before >= 0) {
        const qsizetype begin = before + 1;
        const qsizetype last = content.indexOf(blockEnd, begin);
        if (last < 0)
            break;
        PdfTextBlock block{begin, last + blockEnd.size(), {}, {}, {}};
        for (const QByteArray& line : content.mid(begin, last - begin).split('\n'))
            readLine(line, block);
        if (!block.codes.isEmpty())
            blocks.push_back(std::move(block));
        before = content.indexOf(blockBegin, last);
    }
    return blocks;
}
