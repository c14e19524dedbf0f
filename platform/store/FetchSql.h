#pragma once

#include "platform/store/NSEntityDescription.h"
#include "platform/store/NSFetchRequest.h"

class Query;

// A fetch request as SQL: the parts of a statement and the values of its parameters. A request that names an
// attribute the entity lacks, or compares what cannot be compared, is a programming error and ends the
// program.
class FetchSql
{
public:
    FetchSql(const NSFetchRequest& request, const NSEntityDescription& entity);

    // "SELECT columns FROM ... WHERE ... ORDER BY ...".
    [[nodiscard]] QByteArray select(const QByteArray& columns) const;
    [[nodiscard]] QByteArray count() const;
    void bindTo(Query& query) const;

private:
    QByteArray source;
    QByteArray order;
    std::vector<std::variant<qint64, QString>> values;
};
