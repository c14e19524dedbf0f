#pragma once

#include "platform/store/RecordValues.h"

// One record of a store. Objects are made by a context, by inserting or fetching, and shared; as long as
// anyone holds the object of a record, every fetch of that record answers this object. They live on the
// context's thread and may outlive it.
//
// Changes become part of the store with the context's next save. Once the record is deleted or the context
// gone, the object keeps its values but for binary ones, and setting any is ignored.
class NSManagedObject : public std::enable_shared_from_this<NSManagedObject>
{
public:
    // For the factories of entities only: an object made in another way belongs to no fetch and no save.
    NSManagedObject(const NSEntityDescription& entity, NSManagedObjectContext& insertInto);
    virtual ~NSManagedObject();
    NSManagedObject(const NSManagedObject&) = delete;
    NSManagedObject& operator=(const NSManagedObject&) = delete;

    [[nodiscard]] const NSEntityDescription& entity() const { return description; }

    // The entity and the text by which people know the record, such as "Movies: Zodiac": that of the
    // attribute that the entity's first index sorts by, else of the first attribute.
    [[nodiscard]] QString shortDescription() const;

    // By the attribute's name. An unknown key, or a value of another type than the attribute's, ends the
    // program.
    [[nodiscard]] AttributeValue valueForKey(const QString& key) const;
    void setValueForKey(const AttributeValue& value, const QString& key);

    // By the attribute's position in the entity, whose type the caller knows. A number without a value reads
    // 0. A binary value that is not waiting to be saved is read from the store each time, and not kept; one
    // that cannot be read counts as absent.
    [[nodiscard]] std::optional<QString> text(int index) const;
    // Whether there is a text and the one looked for is in it; spares the copy.
    [[nodiscard]] bool textMatches(int index, const LowerCaseSearch& search) const;
    [[nodiscard]] qint16 int16(int index) const;
    [[nodiscard]] std::optional<QDateTime> date(int index) const;
    [[nodiscard]] std::optional<QByteArray> binary(int index) const;
    void setText(int index, std::optional<QString> value);
    void setInt16(int index, std::optional<qint16> value);
    // Kept to the millisecond; an invalid date is none.
    void setDate(int index, std::optional<QDateTime> value);
    void setBinary(int index, std::optional<QByteArray> value);

private:
    friend class NSManagedObjectContext;
    friend class EntityTable;
    friend class UnsavedChanges;

    [[nodiscard]] int requireIndex(const QString& key) const;
    void set(int index, AttributeValue value);

    const NSEntityDescription& description;
    // Null once the record is deleted or the context gone.
    NSManagedObjectContext* context;
    RecordValues values;
    // The record's key in its table; 0 while it has no row.
    qint64 recordId = 0;
    // Orders the changes of a context; 0 without unsaved changes.
    quint64 changeNumber = 0;
    bool isNew = false;
    bool isDeleted = false;
    // The unsaved changes are in the open transaction.
    bool isWritten = false;
};

// The factory of the entity whose records are of class T.
template <typename T>
std::shared_ptr<NSManagedObject> makeManagedObject(const NSEntityDescription& entity,
                                                   NSManagedObjectContext& context)
{
    return std::make_shared<T>(entity, context);
}
