#include "platform/store/UnsavedChanges.h"

std::shared_ptr<NSManagedObject> UnsavedChanges::next() const
{
    return unwritten.empty() ? nullptr : unwritten.begin()->second;
}

void UnsavedChanges::note(NSManagedObject& object)
{
    if (object.changeNumber == 0) {
        object.changeNumber = ++lastNumber;
        unwritten.emplace(object.changeNumber, object.shared_from_this());
    } else if (object.isWritten) {
        unwritten.insert(written.extract(object.changeNumber));
    }
    object.isWritten = false;
}

void UnsavedChanges::drop(NSManagedObject& object)
{
    (object.isWritten ? written : unwritten).erase(std::exchange(object.changeNumber, 0));
}

void UnsavedChanges::markWritten(NSManagedObject& object)
{
    written.insert(unwritten.extract(object.changeNumber));
    object.isWritten = true;
}

std::vector<std::shared_ptr<NSManagedObject>> UnsavedChanges::takeAll()
{
    written.merge(unwritten);
    std::vector<std::shared_ptr<NSManagedObject>> all;
    all.reserve(written.size());
    for (auto& [number, object] : written) {
        object->changeNumber = 0;
        object->isWritten = false;
        all.push_back(std::move(object));
    }
    written.clear();
    return all;
}
