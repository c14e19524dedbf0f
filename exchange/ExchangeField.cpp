#include "exchange/ExchangeField.h"

#include "platform/foundation/DateDescription.h"
#include "platform/foundation/DateFormatter.h"
#include "platform/foundation/Text.h"
#include "platform/toolkit/UIImage.h"

namespace {

constexpr double exchangedCoverQuality = 0.6;
constexpr qsizetype quotedLength = 40;
constexpr qsizetype base64GroupLength = 4;
// Stands for a line feed in names and in notes.
constexpr QLatin1String nameBreak(", ");
constexpr QChar noteBreak = u'~';

template <typename T>
T valueOr(const AttributeValue& value, const T& fallback)
{
    const T* held = std::get_if<T>(&value);
    return held != nullptr ? *held : fallback;
}

Result<QString> writtenText(const AttributeValue& value)
{
    return valueOr(value, QString());
}

Result<AttributeValue> readText(QStringView text, ImportTarget /*target*/)
{
    return AttributeValue(text.toString());
}

Result<QString> writtenNames(const AttributeValue& value)
{
    return valueOr(value, QString()).replace(u'\n', nameBreak);
}

// A new movie keeps the names on one line; the catalogue has always had them so.
Result<AttributeValue> readNames(QStringView text, ImportTarget target)
{
    QString names = text.toString();
    if (target == ImportTarget::ExistingMovie)
        names.replace(nameBreak, QLatin1String("\n"));
    return AttributeValue(std::move(names));
}

Result<QString> writtenNotes(const AttributeValue& value)
{
    return valueOr(value, QString()).remove(exchangeSeparator).replace(u'\n', noteBreak);
}

Result<AttributeValue> readNotes(QStringView text, ImportTarget /*target*/)
{
    return AttributeValue(text.toString().replace(noteBreak, u'\n'));
}

Result<QString> writtenDate(const AttributeValue& value)
{
    const auto* date = std::get_if<QDateTime>(&value);
    return date != nullptr ? descriptionOf(*date) : QString();
}

// A formatter that was told no style understands no text: watch dates stay behind, and the field clears the
// one that a movie has.
Result<AttributeValue> readDate(QStringView text, ImportTarget /*target*/)
{
    const auto date = DateFormatter().dateFrom(text.toString());
    return date ? AttributeValue(*date) : AttributeValue();
}

Result<QString> writtenNumber(const AttributeValue& value)
{
    return QString::number(valueOr(value, qint16(0)));
}

Result<AttributeValue> readNumber(QStringView text, ImportTarget target)
{
    const auto number = int16From(text.toString());
    if (number)
        return AttributeValue(*number);
    if (target == ImportTarget::ExistingMovie)
        return AttributeValue();
    return NSError{
        QStringLiteral("\"%1\" is not a whole number from -32768 to 32767").arg(text.left(quotedLength)), {}};
}

Result<QString> writtenCover(const AttributeValue& value)
{
    const auto* cover = std::get_if<QByteArray>(&value);
    if (cover == nullptr)
        return QString();
    const QImage picture = imageWithData(*cover);
    if (picture.isNull())
        return NSError{QStringLiteral("The front cover is not a picture"), {}};
    return QString::fromLatin1(UIImageJPEGRepresentation(picture, exchangedCoverQuality).toBase64());
}

// Strict: a picture with a character lost is no cover.
Result<AttributeValue> readCover(QStringView text, ImportTarget /*target*/)
{
    if (text.size() % base64GroupLength != 0)
        return AttributeValue();
    auto decoded = QByteArray::fromBase64Encoding(text.toLatin1(), QByteArray::AbortOnBase64DecodingErrors);
    return decoded ? AttributeValue(std::move(decoded.decoded)) : AttributeValue();
}

} // namespace

const std::array<ExchangeField, exchangeFieldCount>& exchangeFields()
{
    static const std::array<ExchangeField, exchangeFieldCount> fields{{
        {QStringLiteral("actors"), writtenNames, readNames},
        {QStringLiteral("dateWatched"), writtenDate, readDate},
        {QStringLiteral("directors"), writtenNames, readNames},
        {QStringLiteral("genre"), writtenText, readText},
        {QStringLiteral("movieName"), writtenText, readText},
        {QStringLiteral("provider"), writtenText, readText},
        {QStringLiteral("producers"), writtenNames, readNames},
        {QStringLiteral("rating"), writtenText, readText},
        {QStringLiteral("runTime"), writtenNumber, readNumber},
        {QStringLiteral("yearReleased"), writtenNumber, readNumber},
        {QStringLiteral("notes"), writtenNotes, readNotes},
        {QStringLiteral("frontCover"), writtenCover, readCover},
    }};
    return fields;
}
