#include "platform/store/NSPredicate.h"

#include "platform/foundation/Console.h"

#include <QHash>
#include <QRegularExpression>

namespace {

using Operator = NSPredicate::Operator;

struct ParsedFormat
{
    QString key;
    Operator comparator = Operator::Equal;
};

const QHash<QString, Operator>& operatorsBySign()
{
    static const QHash<QString, Operator> signs{
        {QStringLiteral("="), Operator::Equal},          {QStringLiteral("=="), Operator::Equal},
        {QStringLiteral("!="), Operator::NotEqual},      {QStringLiteral("<"), Operator::Less},
        {QStringLiteral("<="), Operator::LessOrEqual},   {QStringLiteral(">"), Operator::Greater},
        {QStringLiteral(">="), Operator::GreaterOrEqual}};
    return signs;
}

// The operator that says the same with its sides exchanged.
Operator mirrored(Operator comparator)
{
    switch (comparator) {
    case Operator::Less:
        return Operator::Greater;
    case Operator::LessOrEqual:
        return Operator::GreaterOrEqual;
    case Operator::Greater:
        return Operator::Less;
    case Operator::GreaterOrEqual:
        return Operator::LessOrEqual;
    default:
        return comparator;
    }
}

ParsedFormat parseFormat(const QString& format)
{
    static const QRegularExpression attributeFirst(
        QStringLiteral(R"(^\s*([A-Za-z_]\w*)\s*([=!<>]=?)\s*%@\s*$)"));
    static const QRegularExpression argumentFirst(
        QStringLiteral(R"(^\s*%@\s*([=!<>]=?)\s*([A-Za-z_]\w*)\s*$)"));
    const auto usual = attributeFirst.match(format);
    const auto match = usual.hasMatch() ? usual : argumentFirst.match(format);
    const auto sign = operatorsBySign().constFind(match.captured(usual.hasMatch() ? 2 : 1));
    if (sign == operatorsBySign().constEnd())
        fatalError(QStringLiteral("Unable to parse the format string \"%1\"").arg(format));
    if (usual.hasMatch())
        return {match.captured(1), *sign};
    return {match.captured(2), mirrored(*sign)};
}

// The same few formats come again with every record that is looked up.
const ParsedFormat& parsedFormat(const QString& format)
{
    static QHash<QString, ParsedFormat> known;
    auto found = known.find(format);
    if (found == known.end())
        found = known.insert(format, parseFormat(format));
    return *found;
}

} // namespace

NSPredicate::NSPredicate(const QString& format, Argument argument)
{
    const auto& parsed = parsedFormat(format);
    all.push_back({parsed.key, parsed.comparator, std::move(argument)});
}

NSPredicate NSCompoundPredicate::andPredicate(const std::vector<NSPredicate>& predicates)
{
    NSPredicate both;
    for (const auto& predicate : predicates)
        both.all.insert(both.all.end(), predicate.all.begin(), predicate.all.end());
    return both;
}
