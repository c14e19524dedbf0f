#pragma once

#include "platform/store/NSEntityDescription.h"

#include <QByteArrayList>

// The statements that make the tables and indexes of `entities`: one table an entity, named and columned as
// the entity and its attributes, keyed by `id`, with a check of each column's type. A binary attribute lives
// in a table of its own, `<Entity>_<attribute>`, keyed by the record, so that reading records does not wade
// through it.
[[nodiscard]] QByteArrayList createStatements(const std::vector<NSEntityDescription>& entities);

// "name" as an SQL identifier.
[[nodiscard]] QByteArray quotedName(const QString& name);

// The quoted name of the table that holds a binary attribute.
[[nodiscard]] QByteArray sideTable(const NSEntityDescription& entity,
                                   const NSAttributeDescription& attribute);
