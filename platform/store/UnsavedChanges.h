#pragma once

#include "platform/store/NSManagedObject.h"

#include <map>

// The objects of a context whose changes were not saved, in the order of their first change. Each is kept
// alive, and is either still to be written or already in the open transaction.
class UnsavedChanges
{
public:
    [[nodiscard]] bool isEmpty() const { return count() == 0; }
    // How many objects.
    [[nodiscard]] std::size_t count() const { return unwritten.size() + written.size(); }
    // The first that is still to be written, if any.
    [[nodiscard]] std::shared_ptr<NSManagedObject> next() const;

    template <typename Visit>
    void forEach(Visit visit) const
    {
        for (const auto* objects : {&written, &unwritten}) {
            for (const auto& [number, object] : *objects)
                visit(*object);
        }
    }

    // The object changed, was inserted or was deleted, and is to be written (again).
    void note(NSManagedObject& object);
    // The object needs no saving any more.
    void drop(NSManagedObject& object);
    void markWritten(NSManagedObject& object);
    // Takes out everything, in order, as objects without unsaved changes.
    [[nodiscard]] std::vector<std::shared_ptr<NSManagedObject>> takeAll();

private:
    using Objects = std::map<quint64, std::shared_ptr<NSManagedObject>>;

    Objects unwritten;
    Objects written;
    quint64 lastNumber = 0;
};
