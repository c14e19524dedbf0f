#include "exchange/ExchangeReader.h"
#include "exchange/ExchangeWriter.h"
#include "exchange/TextFile.h"
#include "tests/fuzz/FuzzTarget.h"

namespace {

ExchangeValues valuesOf(const ExchangeReadings& readings)
{
    ExchangeValues values;
    for (std::size_t index = 0; index < exchangeFieldCount; ++index)
        values[index] = readings[index].value_or(AttributeValue());
    return values;
}

QString written(ExchangeValues values)
{
    auto record = exchangeRecord(values);
    if (!record) {
        values.back() = {};
        record = exchangeRecord(values);
    }
    require(record.ok(), "only a cover keeps a record from being written");
    return std::move(record).value();
}

// A number without a value is written, and so read again, as 0; dates and covers change on the way.
bool isSameAfterTheWay(const AttributeValue& before, const AttributeValue& after)
{
    return before == after || (isAbsent(before) && after == AttributeValue(qint16(0))) ||
           std::holds_alternative<QByteArray>(before) || std::holds_alternative<QByteArray>(after);
}

void checkRoundTrip(const ExchangeReadings& readings)
{
    const ExchangeValues values = valuesOf(readings);
    const QString record = written(values);
    ExchangeLines lines(record);
    const auto again = readRecord(splitRecord(lines.next().value()), ImportTarget::ExistingMovie);
    require(again.ok(), "what is written can be read");
    const ExchangeValues valuesAgain = valuesOf(again.value());
    for (std::size_t index = 0; index < exchangeFieldCount; ++index)
        require(isSameAfterTheWay(values[index], valuesAgain[index]), "a value survives the way");
    require(lines.next() == QStringView() && lines.next() == QStringView() && !lines.next(),
            "an empty line follows the one line of a record");
}

void checkLine(QStringView line)
{
    require(!line.contains(u'\'') && !line.contains(u'\n') && !line.contains(u'\r'), "lines are clean");
    const ExchangeTexts texts = splitRecord(line);
    const auto existing = readRecord(texts, ImportTarget::ExistingMovie);
    require(existing.ok(), "a line can always update a movie");
    checkRoundTrip(existing.value());
    const auto made = readRecord(texts, ImportTarget::NewMovie);
    require(made.ok() || !made.error().localizedDescription.isEmpty(), "an error says why");
}

} // namespace

extern "C" int LLVMFuzzerTestOneInput(const unsigned char* data, std::size_t size)
{
    const QByteArray bytes(reinterpret_cast<const char*>(data), static_cast<qsizetype>(size));
    const QString text = decodedText(bytes);
    bool headerSeen = false;
    ExchangeLines lines(text);
    while (const auto line = lines.next()) {
        headerSeen = headerSeen || *line == exchangeHeader;
        checkLine(*line);
    }
    require(headerSeen == isExchangeText(text), "the header makes an exchange file");
    return 0;
}
