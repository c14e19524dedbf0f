#include "platform/foundation/LowerCaseSearch.h"

#include "platform/foundation/Text.h"

#include <string_view>

namespace {

bool isAscii(std::string_view text)
{
    // Without an early way out, so that the compiler takes many bytes at a time.
    unsigned char all = 0;
    for (const char byte : text)
        all |= static_cast<unsigned char>(byte);
    return all < 0x80;
}

char loweredAscii(char byte)
{
    const bool isUpper = byte >= 'A' && byte <= 'Z';
    return static_cast<char>(byte | (isUpper ? 0x20 : 0));
}

} // namespace

LowerCaseSearch::LowerCaseSearch(const QString& text)
    : wanted(canonical(text.toLower()))
{
    const QByteArray utf8 = wanted.toUtf8();
    if (isAscii(utf8.toStdString()))
        wantedAscii = utf8.toStdString();
}

bool LowerCaseSearch::isIn(const QString& text) const
{
    return canonical(text.toLower()).contains(wanted);
}

bool LowerCaseSearch::isIn(QUtf8StringView text) const
{
    const std::string_view bytes(text.data(), static_cast<std::size_t>(text.size()));
    if (!isAscii(bytes))
        return isIn(text.toString());
    // Lower-casing keeps ASCII within ASCII, and ASCII is its own canonical form.
    if (wantedAscii.empty() && !wanted.isEmpty())
        return false;
    lowered.resize(bytes.size());
    std::transform(bytes.begin(), bytes.end(), lowered.begin(), loweredAscii);
    return lowered.find(wantedAscii) != std::string::npos;
}
