#include "platform/pdf/PdfCharacterMap.h"

#include "platform/pdf/PdfHex.h"

#include <QRegularExpression>
#include <QtEndian>
#include <algorithm>
#include <iterator>

namespace {

// What a section of a map may hold at most.
constexpr std::ptrdiff_t sectionRows = 100;
constexpr qsizetype bytesOfCode = 2;

const QByteArray endOfHead = "endcodespacerange\n";
const QByteArray startOfTail = "endcmap";

char16_t hexNumber(const QString& digits)
{
    constexpr int hexadecimal = 16;
    return digits.toUShort(nullptr, hexadecimal);
}

bool isRightToLeft(QChar character)
{
    return character.direction() == QChar::DirR || character.direction() == QChar::DirAL;
}

// Readers disagree on the order of several characters in one glyph that runs from right to left: there, what
// stands for its shape is the better text.
QString meaning(const QString& drawn, const CodeUnits& ofText)
{
    if (drawn.front().category() == QChar::Other_Control)
        return QStringLiteral(" ");
    if (ofText[drawn.front().unicode()])
        return drawn;
    const QString base = drawn.normalized(QString::NormalizationForm_KC);
    const bool isOfText = std::ranges::all_of(base, [&](QChar unit) { return ofText[unit.unicode()]; });
    return isOfText && (base.size() == 1 || !isRightToLeft(base.front())) ? base : drawn;
}

} // namespace

PdfCharacterMap::PdfCharacterMap(QByteArray content)
    : frame(std::move(content))
{
    // Of so many glyphs: the text of each, or that of the first, which those of the others follow.
    static const QRegularExpression range(QStringLiteral(R"(<(\w+)> <(\w+)> (?:\[([<>\w\s]*)\]|<(\w+)>))"));
    static const QRegularExpression between(QStringLiteral(R"([<>\s]+)"));
    for (auto ranges = range.globalMatch(QString::fromLatin1(frame)); ranges.hasNext();) {
        const QRegularExpressionMatch found = ranges.next();
        const QStringList each = found.captured(3).split(between, Qt::SkipEmptyParts);
        const char16_t first = hexNumber(found.captured(1));
        for (int code = first; code <= hexNumber(found.captured(2)); ++code) {
            const int at = code - first;
            const int text = each.isEmpty() ? hexNumber(found.captured(4)) + at : hexNumber(each.value(at));
            if (text != 0)
                texts[static_cast<char16_t>(code)] = QChar(text);
        }
    }
}

void PdfCharacterMap::meanCharacters(const CodeUnits& ofText)
{
    for (auto& [code, text] : texts)
        text = meaning(text, ofText);
}

QString PdfCharacterMap::textOf(const QByteArray& codes) const
{
    QString text;
    for (qsizetype at = 0; at + bytesOfCode <= codes.size(); at += bytesOfCode) {
        const auto found = texts.find(qFromBigEndian<char16_t>(codes.constData() + at));
        if (found != texts.end())
            text += found->second;
    }
    return text;
}

void PdfCharacterMap::addTo(CodeUnits& characters) const
{
    for (const auto& [code, text] : texts)
        for (const QChar unit : text)
            characters.set(unit.unicode());
}

QByteArray PdfCharacterMap::content() const
{
    QByteArray rows;
    for (auto row = texts.begin(); row != texts.end();) {
        const auto size = std::min(sectionRows, std::distance(row, texts.end()));
        rows += QByteArray::number(size) + " beginbfchar\n";
        for (const auto end = std::next(row, size); row != end; ++row)
            rows += '<' + pdfHex(QChar(row->first)) + "> <" + pdfHex(row->second) + ">\n";
        rows += "endbfchar\n";
    }
    return frame.left(frame.indexOf(endOfHead) + endOfHead.size()) + rows +
           frame.mid(frame.indexOf(startOfTail));
}
