#pragma once

#include "platform/store/AttributeValue.h"

#include <QStringList>
#include <memory>
#include <optional>
#include <vector>

class NSManagedObject;
class NSManagedObjectContext;
struct NSEntityDescription;

// The class of an entity's records: `makeManagedObject<Class>` of NSManagedObject.h.
using ManagedObjectFactory = std::shared_ptr<NSManagedObject> (*)(const NSEntityDescription&,
                                                                  NSManagedObjectContext&);

struct NSAttributeDescription
{
    QString name;
    AttributeType type = AttributeType::Text;
    // What a new record holds. An Int16 attribute without one starts at 0.
    AttributeValue defaultValue;
};

// One kind of record. At most 64 attributes; `indexes` lists attribute names, most significant first.
struct NSEntityDescription
{
    QString name;
    std::vector<NSAttributeDescription> attributes;
    std::vector<QStringList> indexes;
    ManagedObjectFactory factory = nullptr;

    // The position of the attribute called `name` (exact case).
    [[nodiscard]] std::optional<int> indexOf(const QString& attribute) const
    {
        for (std::size_t index = 0; index < attributes.size(); ++index) {
            if (attributes[index].name == attribute)
                return static_cast<int>(index);
        }
        return std::nullopt;
    }
};
