#include "editing/ReferenceValueViewController.h"

#include "platform/foundation/Console.h"
#include "platform/foundation/Text.h"

ReferenceValueViewController::ReferenceValueViewController(const ReferenceKind& valueKind)
    : kind(valueKind)
{
}

void ReferenceValueViewController::viewDidLoad()
{
    valueField->setDelegate(this);
    valueField->setLayer({.cornerRadius = 5, .borderWidth = 1});
    valueField->becomeFirstResponder();
}

bool ReferenceValueViewController::shouldChangeCharactersInRange(UITextField& /*field*/,
                                                                 const NSRange& /*range*/,
                                                                 const QString& /*string*/)
{
    return true;
}

void ReferenceValueViewController::store(ReferenceRecord& record)
{
    record.setValue(trimmingWhitespace(valueField->text()));
    if (const Status saved = managedObjectContext.save(); !saved)
        console(saved.error().localizedDescription);
}

void ReferenceValueViewController::returnToList()
{
    performSegue(kind.unwindSegue);
}
