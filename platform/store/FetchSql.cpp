#include "platform/store/FetchSql.h"

#include "platform/foundation/Console.h"
#include "platform/store/Database.h"
#include "platform/store/StoreSchema.h"

namespace {

using SqlValue = std::variant<qint64, QString>;

const NSAttributeDescription& comparableAttribute(const NSEntityDescription& entity, const QString& key)
{
    const auto index = entity.indexOf(key);
    if (!index || entity.attributes[static_cast<std::size_t>(*index)].type == AttributeType::Binary)
        fatalError(QStringLiteral("The attribute %1 is not one to compare or sort by in the entity %2")
                       .arg(key, entity.name));
    return entity.attributes[static_cast<std::size_t>(*index)];
}

QByteArray operatorSql(NSPredicate::Operator comparator)
{
    switch (comparator) {
    case NSPredicate::Operator::Equal:
        return "=";
    case NSPredicate::Operator::NotEqual:
        return "<>";
    case NSPredicate::Operator::Less:
        return "<";
    case NSPredicate::Operator::LessOrEqual:
        return "<=";
    case NSPredicate::Operator::Greater:
        return ">";
    default:
        return ">=";
    }
}

// The number that the leading sign and digits of `text` spell. Past what attributes hold, more digits change
// nothing.
qint64 leadingNumber(const QString& text)
{
    constexpr qint64 enough = 1'000'000;
    const auto isNegative = text.startsWith(QLatin1Char('-'));
    qint64 number = 0;
    for (auto at = isNegative || text.startsWith(QLatin1Char('+')) ? 1 : 0; at < text.size(); ++at) {
        const auto digit = text[at].unicode() - u'0';
        if (digit < 0 || digit > 9 || number > enough)
            break;
        number = number * 10 + digit;
    }
    return isNegative ? -number : number;
}

// Nothing when the argument can be compared, but equals no value of the attribute and has no place among
// them.
std::optional<SqlValue> sqlValue(const NSAttributeDescription& attribute, const NSEntityDescription& entity,
                                 const NSPredicate::Argument& argument)
{
    const auto* text = std::get_if<QString>(&argument);
    const auto* number = std::get_if<qint64>(&argument);
    const auto* moment = std::get_if<QDateTime>(&argument);
    if (attribute.type == AttributeType::Text && !moment)
        return text ? *text : QString::number(*number);
    if (attribute.type == AttributeType::Int16 && number)
        return *number;
    if (attribute.type == AttributeType::Int16 && text)
        return text->isEmpty() ? std::nullopt : std::optional<SqlValue>(leadingNumber(*text));
    if (attribute.type == AttributeType::Date && moment)
        return moment->isValid() ? std::optional<SqlValue>(moment->toMSecsSinceEpoch()) : std::nullopt;
    fatalError(QStringLiteral("The attribute %1 of the entity %2 cannot be compared with such a value")
                   .arg(attribute.name, entity.name));
}

QByteArray condition(const NSPredicate::Comparison& comparison, const NSEntityDescription& entity,
                     std::vector<SqlValue>& values)
{
    const auto& attribute = comparableAttribute(entity, comparison.key);
    auto value = sqlValue(attribute, entity, comparison.argument);
    if (!value)
        return "0";
    values.push_back(*std::move(value));
    return quotedName(attribute.name) + ' ' + operatorSql(comparison.comparator) + " ?";
}

// Ties follow the id in the direction of the first key, so that one index serves both directions.
QByteArray orderSql(const std::vector<NSSortDescriptor>& descriptors, const NSEntityDescription& entity)
{
    QByteArray order = " ORDER BY ";
    for (const auto& descriptor : descriptors) {
        order += quotedName(comparableAttribute(entity, descriptor.key).name);
        order += descriptor.ascending ? ", " : " DESC, ";
    }
    return order + (descriptors.empty() || descriptors.front().ascending ? "id" : "id DESC");
}

} // namespace

FetchSql::FetchSql(const NSFetchRequest& request, const NSEntityDescription& entity)
    : source(" FROM " + quotedName(entity.name))
    , order(orderSql(request.sortDescriptors, entity))
{
    if (!request.predicate)
        return;
    QByteArray separator = " WHERE ";
    for (const auto& comparison : request.predicate->comparisons())
        source += std::exchange(separator, " AND ") + condition(comparison, entity, values);
}

QByteArray FetchSql::select(const QByteArray& columns) const
{
    return "SELECT " + columns + source + order;
}

QByteArray FetchSql::count() const
{
    return "SELECT COUNT(*)" + source;
}

void FetchSql::bindTo(Query& query) const
{
    for (const auto& value : values)
        std::visit([&](const auto& plain) { query.bind(plain); }, value);
}
