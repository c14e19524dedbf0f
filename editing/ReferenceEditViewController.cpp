#include "editing/ReferenceEditViewController.h"

void ReferenceEditViewController::viewDidLoad()
{
    setTitle(kind.editTitle);
    ReferenceValueViewController::viewDidLoad();
    valueField->setText(shared().*kind.chosenValue);
}

void ReferenceEditViewController::saveValue()
{
    NSFetchRequest request(kind.entityName);
    request.predicate = NSPredicate(kind.attribute + QStringLiteral(" = %@"), shared().*kind.chosenValue);
    Results = fetchedReferences(managedObjectContext, request);
    ResultsCount = static_cast<int>(Results.size());
    if (ResultsCount > 0)
        store(*Results.front());
    returnToList();
}
