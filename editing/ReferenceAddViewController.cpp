#include "editing/ReferenceAddViewController.h"

#include "editing/ReferenceFetch.h"
#include "platform/foundation/Text.h"
#include "platform/toolkit/UIAlertController.h"

void ReferenceAddViewController::viewDidLoad()
{
    setTitle(kind.addTitle);
    for (const auto& record : fetchedReferences(managedObjectContext, NSFetchRequest(kind.entityName)))
        listOfValues.append(record->value().value_or(QString()));
    ReferenceValueViewController::viewDidLoad();
}

void ReferenceAddViewController::dismissKeyboard()
{
    endEditing();
}

void ReferenceAddViewController::SaveGenre()
{
    const QString text = valueField->text();
    if (text.isEmpty()) {
        refuse(kind.emptyFieldMessage);
        return;
    }
    if (isInList(text)) {
        refuse(QStringLiteral("Duplicates not allowed"));
        return;
    }
    store(static_cast<ReferenceRecord&>(*managedObjectContext.insert(kind.entityName)));
    returnToList();
}

bool ReferenceAddViewController::isInList(const QString& text) const
{
    return std::any_of(
        listOfValues.begin(), listOfValues.end(),
        [wanted = canonical(text)](const QString& known) { return canonical(known) == wanted; });
}

void ReferenceAddViewController::refuse(const QString& reason)
{
    present(UIAlertController::withOk(QStringLiteral("Record not Saved!"), reason));
}
