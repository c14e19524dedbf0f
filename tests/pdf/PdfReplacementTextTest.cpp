#include "platform/pdf/PdfReplacementText.h"

#include <QList>
#include <gmock/gmock.h>

namespace {

// What has glyphs at `x`, as the writer writes it.
QByteArray block(int x, const QByteArray& codes)
{
    return "q\nBT\n/F7 100 Tf 1 0 0 -1 0 0 Tm\n" + QByteArray::number(x) + " -200 Td <" + codes +
           "> Tj\nET\nQ\n";
}

PdfTextItem item(const QString& text, int x, bool rightToLeft = false)
{
    return {text, rightToLeft, QRectF(x, 120, 100, 100), 200};
}

// What a reader meets, in order: "b" for a block, "B" for one of the unseen font, replacements in brackets.
QString outline(const QByteArray& content)
{
    QString seen;
    for (const QByteArray& line : content.split('\n')) {
        const qsizetype text = line.indexOf("<FEFF");
        if (text >= 0) {
            const QByteArray units =
                QByteArray::fromHex(line.mid(text + 5, line.indexOf('>', text) - text - 5));
            seen += '[';
            for (qsizetype at = 0; at < units.size(); at += 2)
                seen += QChar(units[at + 1], units[at]);
        }
        if (line.startsWith("/F7 "))
            seen += 'b';
        if (line.startsWith("/Unseen "))
            seen += 'B';
        if (line == "EMC")
            seen += ']';
    }
    return seen;
}

const QByteArray codeA = "0001";
const QByteArray lost = "0000";

struct PageMember
{
    QByteArray content;
    std::vector<PdfTextItem> items;
    QString outline;
};

const PageMember pageMembers[] = {
    {block(10, codeA), {item("a", 10)}, "b"},
    {block(10, lost), {item("x", 10)}, "[xb]"},
    {block(10, codeA), {item("a\u0301", 10)}, "[a\u0301b]"},
    {block(90, lost), {item("xy", 10, true)}, "[b]B[x][y]"},
    // Boxes have no block: first, between, last, and on a page of nothing else.
    {block(110, codeA), {item("x", 10), item("a", 110)}, "B[x]b"},
    {block(10, codeA) + block(210, lost), {item("a", 10), item("x", 110), item("y", 210)}, "bB[x][yb]"},
    {block(10, codeA), {item("a", 10), item("x", 110)}, "bB[x]"},
    {"", {item("x", 10), item("y", 110)}, "B[x]B[y]"},
    {"", {item(" ", 10), {"\u200B", false, QRectF(10, 120, 0, 100), 200}}, ""},
    // A glyph that belongs to no item does not keep the others from theirs.
    {block(800, codeA) + block(10, lost), {item("x", 10)}, "b[xb]"},
};

TEST(PdfReplacementTextTest, StandsWithItsItem)
{
    const PdfCharacterMaps maps{{"F7", PdfCharacterMap("<0001> <0001> [<0061> ]")}};
    for (const PageMember& page : pageMembers) {
        const QByteArray content = "q\n" + page.content + "Q\n";
        EXPECT_EQ(outline(withReplacementText(content, {page.items, 0}, maps)), page.outline);
    }
}

TEST(PdfReplacementTextTest, HasThePlaceOfItsBoxes)
{
    const QByteArray onEmptyPage = withReplacementText("q\nQ\n", {{item("x", 10)}, 7000}, {});
    EXPECT_TRUE(onEmptyPage.contains("1 0 0 1 0 -7000.000000 cm\n")) << "from the top of the page";
    EXPECT_TRUE(onEmptyPage.contains("200.00 0 0 -100.00 10.00 200.00 Tm"))
        << "half as wide as the font is high";
    const QByteArray turned = withReplacementText("", {{item("xy", 10, true)}, 0}, {});
    EXPECT_LT(turned.indexOf(" 60.00 200.00 Tm"), turned.indexOf(" 10.00 200.00 Tm"));
}

} // namespace
