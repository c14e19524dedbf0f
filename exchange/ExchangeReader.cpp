#include "exchange/ExchangeReader.h"

namespace {

constexpr QChar apostrophe = u'\'';

bool isLineBreak(QChar character)
{
    return character == u'\n' || character == u'\r';
}

// Takes what stands before `separator` off the front of `rest`, which becomes absent with the last part.
template <typename IsSeparator>
QStringView takePart(std::optional<QStringView>& rest, IsSeparator isSeparator)
{
    const auto end = std::find_if(rest->cbegin(), rest->cend(), isSeparator);
    const qsizetype length = end - rest->cbegin();
    const QStringView part = rest->first(length);
    rest = end == rest->cend() ? std::nullopt : std::optional(rest->sliced(length + 1));
    return part;
}

} // namespace

std::optional<QStringView> ExchangeLines::next()
{
    if (!rest)
        return std::nullopt;
    const QStringView line = takePart(rest, isLineBreak);
    if (!line.contains(apostrophe))
        return line;
    withoutApostrophes = line.toString().remove(apostrophe);
    return withoutApostrophes;
}

bool isExchangeText(QStringView text)
{
    ExchangeLines lines(text);
    while (const auto line = lines.next()) {
        if (*line == exchangeHeader)
            return true;
    }
    return false;
}

ExchangeTexts splitRecord(QStringView line)
{
    ExchangeTexts texts;
    std::optional rest(line);
    for (std::size_t index = 0; index < exchangeFieldCount && rest; ++index)
        texts[index] = takePart(rest, [](QChar character) { return character == exchangeSeparator; });
    return texts;
}

Result<ExchangeReadings> readRecord(const ExchangeTexts& texts, ImportTarget target)
{
    ExchangeReadings readings;
    for (std::size_t index = 0; index < exchangeFieldCount; ++index) {
        if (texts[index].isEmpty())
            continue;
        const ExchangeField& field = exchangeFields()[index];
        auto reading = field.read(texts[index], target);
        if (!reading)
            return NSError{field.key + QStringLiteral(": ") + reading.error().localizedDescription, {}};
        readings[index] = std::move(reading).value();
    }
    return readings;
}
