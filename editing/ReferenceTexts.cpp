#include "editing/ReferenceTexts.h"

#include "editing/ReferenceFetch.h"

QStringList referenceTexts(NSManagedObjectContext& context, const QString& entityName,
                           const QString& attribute)
{
    NSFetchRequest request(entityName);
    request.sortDescriptors = {{attribute, true}};
    QStringList texts;
    for (const auto& record : fetchedReferences(context, request)) {
        const std::optional<QString> text = record->value();
        // Equal ones are neighbours.
        if (text && (texts.isEmpty() || texts.last() != *text))
            texts.append(*text);
    }
    return texts;
}
