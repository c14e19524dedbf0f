#pragma once

#include "platform/store/NSFetchRequest.h"
#include "platform/store/NSManagedObject.h"

// One value of a list that movies copy from. The lists differ in their entity and in what they call the
// value.
class ReferenceRecord : public NSManagedObject
{
public:
    using NSManagedObject::NSManagedObject;

    [[nodiscard]] std::optional<QString> value() const { return text(0); }
    void setValue(std::optional<QString> value) { setText(0, std::move(value)); }
};

class Genres : public ReferenceRecord
{
public:
    using ReferenceRecord::ReferenceRecord;

    [[nodiscard]] static QString entityName() { return QStringLiteral("Genres"); }
    [[nodiscard]] static NSFetchRequest fetchRequest() { return NSFetchRequest(entityName()); }
    [[nodiscard]] std::optional<QString> genre() const { return value(); }
    void setGenre(std::optional<QString> genre) { setValue(std::move(genre)); }
};

class Providers : public ReferenceRecord
{
public:
    using ReferenceRecord::ReferenceRecord;

    [[nodiscard]] static QString entityName() { return QStringLiteral("Providers"); }
    [[nodiscard]] static NSFetchRequest fetchRequest() { return NSFetchRequest(entityName()); }
    [[nodiscard]] std::optional<QString> name() const { return value(); }
    void setName(std::optional<QString> name) { setValue(std::move(name)); }
};

class Ratings : public ReferenceRecord
{
public:
    using ReferenceRecord::ReferenceRecord;

    [[nodiscard]] static QString entityName() { return QStringLiteral("Ratings"); }
    [[nodiscard]] static NSFetchRequest fetchRequest() { return NSFetchRequest(entityName()); }
    [[nodiscard]] std::optional<QString> rating() const { return value(); }
    void setRating(std::optional<QString> rating) { setValue(std::move(rating)); }
};

// Kept in the store for its own sake: a movie's actors are free text of the movie.
class Actors : public ReferenceRecord
{
public:
    using ReferenceRecord::ReferenceRecord;

    [[nodiscard]] static QString entityName() { return QStringLiteral("Actors"); }
    [[nodiscard]] static NSFetchRequest fetchRequest() { return NSFetchRequest(entityName()); }
    [[nodiscard]] std::optional<QString> name() const { return value(); }
    void setName(std::optional<QString> name) { setValue(std::move(name)); }
};
