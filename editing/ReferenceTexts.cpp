#include "editing/ReferenceTexts.h"

#include "platform/foundation/Console.h"
#include "platform/store/NSManagedObjectContext.h"

QStringList referenceTexts(NSManagedObjectContext& context, const QString& entityName,
                           const QString& attribute)
{
    NSFetchRequest request(entityName);
    request.sortDescriptors = {{attribute, true}};
    request.setReturnsObjectsAsFaults(false);
    const auto records = context.fetch(request);
    if (!records) {
        console(records.error().localizedDescription);
        return {};
    }
    QStringList texts;
    for (const auto& record : records.value()) {
        const AttributeValue value = record->valueForKey(attribute);
        const auto* text = std::get_if<QString>(&value);
        // Equal ones are neighbours.
        if (text != nullptr && (texts.isEmpty() || texts.last() != *text))
            texts.append(*text);
    }
    return texts;
}
