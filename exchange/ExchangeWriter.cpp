#include "exchange/ExchangeWriter.h"

#include "model/Movies.h"

NSFetchRequest exchangeRequest()
{
    NSFetchRequest request = Movies::fetchRequest();
    request.setReturnsObjectsAsFaults(false);
    for (const auto& key :
         {QStringLiteral("movieName"), QStringLiteral("yearReleased"), QStringLiteral("directors")})
        request.sortDescriptors.push_back({key, true});
    return request;
}

QString exchangeOpening()
{
    return exchangeHeader.toString() + u'\n';
}

ExchangeValues exchangeValues(const NSManagedObject& movie)
{
    ExchangeValues values;
    for (std::size_t index = 0; index < exchangeFieldCount; ++index)
        values[index] = movie.valueForKey(exchangeFields()[index].key);
    return values;
}

Result<QString> exchangeRecord(const ExchangeValues& values)
{
    QString record;
    for (std::size_t index = 0; index < exchangeFieldCount; ++index) {
        const Result<QString> text = exchangeFields()[index].written(values[index]);
        if (!text) {
            const QString* name = std::get_if<QString>(&values[movieNameField]);
            return NSError{text.error().localizedDescription,
                           {{QStringLiteral("movieName"), name != nullptr ? *name : QString()}}};
        }
        if (index > 0)
            record += exchangeSeparator;
        record += text.value();
    }
    return record += QStringLiteral("\n\n");
}
