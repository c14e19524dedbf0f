#include "editing/CharacterFilters.h"

#include <QStringView>

namespace {

constexpr QStringView numberCharacters = u".0123456789";
constexpr QStringView notesCharacters =
    u".0123456789abcdefghijklmnopqrstuvwxyzABCDEFGHIJKLMNOPQRSTUVWXYZ,;:-=?!@#$%&*()[]{}/<>_+~`' ";

bool hasOnly(QStringView allowed, const QString& text)
{
    return std::all_of(text.begin(), text.end(),
                       [&](QChar character) { return allowed.contains(character); });
}

} // namespace

bool hasDigitsOnly(const QString& text)
{
    // By code point: the digits of some scripts take two UTF-16 units.
    const auto codePoints = text.toUcs4();
    return std::all_of(codePoints.begin(), codePoints.end(),
                       [](char32_t point) { return QChar::isDigit(point); });
}

bool hasNumberCharactersOnly(const QString& text)
{
    return hasOnly(numberCharacters, text);
}

bool hasNotesCharactersOnly(const QString& text)
{
    return hasOnly(notesCharacters, text);
}
