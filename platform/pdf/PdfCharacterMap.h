#pragma once

#include <QByteArray>
#include <QString>
#include <bitset>
#include <map>

// The UTF-16 code units of a text.
using CodeUnits = std::bitset<0x10000>;

// The text that each glyph of one font in a PDF file stands for, by the code of the glyph.
class PdfCharacterMap
{
public:
    // Of the content of a "ToUnicode" stream. A glyph without text has none.
    explicit PdfCharacterMap(QByteArray content);

    // A font's own map says of a glyph that several characters share which of them comes first, and of joined
    // letters and ligatures a character that stands for their shape. Has every glyph say what is meant by it
    // in a text of the characters `ofText`.
    void meanCharacters(const CodeUnits& ofText);

    // The text of the glyphs with these codes, of two bytes each.
    [[nodiscard]] QString textOf(const QByteArray& codes) const;
    // Adds every code unit that some glyph stands for.
    void addTo(CodeUnits& characters) const;
    // The content of a "ToUnicode" stream that says the same.
    [[nodiscard]] QByteArray content() const;

private:
    QByteArray frame;
    std::map<char16_t, QString> texts;
};
