#pragma once

#include "editing/ReferenceKind.h"
#include "model/AppDelegate.h"
#include "model/ReferenceRecords.h"
#include "platform/toolkit/UITextField.h"
#include "platform/toolkit/UIViewController.h"

// What the adding and the editing of a reference value share: the one field, which has the keyboard from the
// start, and the way back to the list.
class ReferenceValueViewController : public UIViewController, public UITextFieldDelegate
{
    Q_OBJECT
    QML_ELEMENT
    QML_UNCREATABLE("Screens are made by the storyboard")
    Q_PROPERTY(UITextField* valueField MEMBER valueField CONSTANT FINAL)
    Q_PROPERTY(QString fieldLabel READ fieldLabel CONSTANT FINAL)
    Q_PROPERTY(QString saveAction READ saveAction CONSTANT FINAL)
    Q_PROPERTY(QString tapAction READ tapAction CONSTANT FINAL)

public:
    void viewDidLoad() override;
    // Anything may be typed.
    [[nodiscard]] bool shouldChangeCharactersInRange(UITextField& field, const NSRange& range,
                                                     const QString& string) override;

    [[nodiscard]] QString fieldLabel() const { return kind.singularName; }
    // The names of the actions that the save button and a tap on the view call; empty: a tap does nothing.
    [[nodiscard]] virtual QString saveAction() const = 0;
    [[nodiscard]] virtual QString tapAction() const { return {}; }

    // Each subclass shows it under a name of its own.
    UITextField* const valueField = new UITextField(this);
    NSManagedObjectContext& managedObjectContext = AppDelegate::shared().persistentContainer().viewContext();

protected:
    // `valueKind` is one of the three, which live as long as the process.
    explicit ReferenceValueViewController(const ReferenceKind& valueKind);

    // Gives the record the field's text without the blanks and tabs at its ends, and saves. A save that fails
    // is told on the console alone; the value stays unsaved in the context.
    void store(ReferenceRecord& record);
    void returnToList();

    const ReferenceKind& kind;
};
