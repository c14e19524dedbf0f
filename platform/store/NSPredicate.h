#pragma once

#include <QDateTime>
#include <QString>
#include <variant>
#include <vector>

// A condition on the attributes of one record. The format is one comparison of an attribute with an argument,
// which takes the place of %@: "genre == %@", "dateWatched >= %@", "%@=genre"; the operators are = == != < <=
// > >=, and blanks do not matter. Any other format is a programming error and ends the program.
//
// What is compared:
// - texts by code point, dates by the moment, numbers by value;
// - a text with a number attribute: as the number that its leading sign and digits spell, 0 where there are
// none; an
//   empty text is no number, and no record matches it;
// - a number with a text attribute: as its decimal text;
// - an attribute without a value matches no comparison, not even "!=";
// - any other pairing is a programming error, as is an attribute that the fetched entity lacks.
class NSPredicate
{
public:
    using Argument = std::variant<QString, qint64, QDateTime>;
    enum class Operator { Equal, NotEqual, Less, LessOrEqual, Greater, GreaterOrEqual };
    struct Comparison
    {
        QString key;
        Operator comparator = Operator::Equal;
        Argument argument;
    };

    NSPredicate(const QString& format, Argument argument);

    // All of them must hold.
    [[nodiscard]] const std::vector<Comparison>& comparisons() const { return all; }

private:
    friend class NSCompoundPredicate;
    NSPredicate() = default;

    std::vector<Comparison> all;
};

class NSCompoundPredicate
{
public:
    // Matches the records that match every one of `predicates`; with none, all records.
    [[nodiscard]] static NSPredicate andPredicate(const std::vector<NSPredicate>& predicates);
};
