#include "platform/pdf/PdfCharacterMap.h"

#include <gmock/gmock.h>

namespace {

QByteArray mapOf(const QByteArray& ranges)
{
    return "1 begincodespacerange\n<0000> <FFFF>\nendcodespacerange\n2 beginbfrange\n<0000> <0000> <0000>\n" +
           ranges + "endbfrange\nendcmap\n";
}

CodeUnits unitsOf(const QString& text)
{
    CodeUnits units;
    for (const QChar unit : text)
        units.set(unit.unicode());
    return units;
}

struct Meaning
{
    QByteArray ofFont;
    QString ofText, meant;
};

const Meaning meanings[] = {
    {"0009", "a b", " "},
    {"FB01", "fi", "fi"},
    {"FB01", "fi \uFB01", "\uFB01"},
    {"FEB3", "\u0633", "\u0633"},
    {"00B5", "\u03BC", "\u03BC"},
    {"2F00", "\u4E00", "\u4E00"},
    {"00B2", "2 \u00B2", "\u00B2"},
    {"FEFC", "\u0644\u0627", "\uFEFC"},
    {"FB01", "film", "fi"},
    {"FB01", "other", "\uFB01"},
};

TEST(PdfCharacterMapTest, MeansTheCharactersOfTheText)
{
    for (const Meaning& expected : meanings) {
        PdfCharacterMap map(mapOf("<0001> <0001> [<" + expected.ofFont + "> ]\n"));
        map.meanCharacters(unitsOf(expected.ofText));
        EXPECT_EQ(map.textOf(QByteArray::fromHex("0001")), expected.meant) << expected.ofFont.toStdString();
    }
}

TEST(PdfCharacterMapTest, SaysTheTextOfEachGlyph)
{
    const PdfCharacterMap map(mapOf("<0001> <0096> <0400>\n<0098> <009A> [<0041> <0000> <0043> ]\n"));
    EXPECT_EQ(map.textOf(QByteArray::fromHex("00010096")), u"\u0400\u0495");
    EXPECT_EQ(map.textOf(QByteArray::fromHex("0000009700980099009A")), u"AC");
    const QByteArray content = map.content();
    EXPECT_TRUE(content.contains("endcodespacerange\n100 beginbfchar\n<0001> <0400>\n"))
        << content.toStdString();
    EXPECT_TRUE(content.contains("endbfchar\n52 beginbfchar\n<0065> <0464>\n")) << content.toStdString();
    EXPECT_TRUE(content.endsWith("<0096> <0495>\n<0098> <0041>\n<009A> <0043>\nendbfchar\nendcmap\n"));
}

} // namespace
