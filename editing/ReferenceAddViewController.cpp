#include "editing/ReferenceAddViewController.h"

#include "editing/ReferenceFetch.h"
#include "platform/toolkit/UIAlertController.h"

namespace {

// The same characters are the same text, whether composed or not.
QString inComposedForm(const QString& text)
{
    return text.normalized(QString::NormalizationForm_C);
}

} // namespace

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
        [wanted = inComposedForm(text)](const QString& known) { return inComposedForm(known) == wanted; });
}

void ReferenceAddViewController::refuse(const QString& reason)
{
    present(UIAlertController::withOk(QStringLiteral("Record not Saved!"), reason));
}
