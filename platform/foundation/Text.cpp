#include "platform/foundation/Text.h"

#include <algorithm>
#include <unicode/ustring.h>

namespace {

bool isBlankOrTab(QChar character)
{
    return character == u' ' || character == u'\t';
}

bool isAsciiDigit(QChar character)
{
    return character >= u'0' && character <= u'9';
}

bool isBelowCombiningMarks(QChar character)
{
    return character < u'\u0300';
}

} // namespace

QString trimmingWhitespace(const QString& text)
{
    const auto first = std::find_if_not(text.cbegin(), text.cend(), isBlankOrTab);
    const auto last =
        std::find_if_not(text.crbegin(), std::make_reverse_iterator(first), isBlankOrTab).base();
    return QString(first, last - first);
}

std::optional<qint16> int16From(const QString& text)
{
    const bool isSigned = text.startsWith(u'+') || text.startsWith(u'-');
    const QStringView digits = QStringView(text).mid(isSigned ? 1 : 0);
    // toShort alone would also take surrounding blanks.
    if (!std::all_of(digits.cbegin(), digits.cend(), isAsciiDigit))
        return std::nullopt;
    bool ok = false;
    const qint16 number = text.toShort(&ok);
    return ok ? std::optional(number) : std::nullopt;
}

// Nothing below the first combining mark is part of another form. Texts are searched many at a time, and this
// is many times faster than asking for each character.
QString canonical(const QString& text)
{
    if (std::all_of(text.cbegin(), text.cend(), isBelowCombiningMarks))
        return text;
    return text.normalized(QString::NormalizationForm_C);
}

bool precedesByCodePoint(const QString& left, const QString& right)
{
    const auto length = [](const QString& text) { return static_cast<int32_t>(text.size()); };
    return u_strCompare(reinterpret_cast<const UChar*>(left.utf16()), length(left),
                        reinterpret_cast<const UChar*>(right.utf16()), length(right), UBool(true)) < 0;
}
