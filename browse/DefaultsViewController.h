#pragma once

#include "platform/foundation/UserDefaults.h"
#include "platform/toolkit/UIDatePicker.h"
#include "platform/toolkit/UILabel.h"
#include "platform/toolkit/UISwitch.h"
#include "platform/toolkit/UITextField.h"
#include "platform/toolkit/UIViewController.h"

// The settings: a default watch date, and the style of the date pickers. Every change is stored at once.
class DefaultsViewController : public UIViewController, public UITextFieldDelegate
{
    Q_OBJECT
    QML_ELEMENT
    QML_UNCREATABLE("Screens are made by the storyboard")
    Q_PROPERTY(UITextField* dateTextField MEMBER dateTextField CONSTANT FINAL)
    Q_PROPERTY(UITextField* DefaultDateTextField MEMBER dateTextField CONSTANT FINAL)
    Q_PROPERTY(UILabel* DefaultDateLabel MEMBER DefaultDateLabel CONSTANT FINAL)
    Q_PROPERTY(UISwitch* DefaultDateSwitch MEMBER DefaultDateSwitch CONSTANT FINAL)
    Q_PROPERTY(UIDatePicker* datePickerView MEMBER datePickerView CONSTANT FINAL)
    Q_PROPERTY(UISwitch* DateWheelSwitch MEMBER wheelSwitch CONSTANT FINAL)
    Q_PROPERTY(UISwitch* DateInlineSwitch MEMBER inlineSwitch CONSTANT FINAL)
    Q_PROPERTY(UISwitch* DateCompactSwitch MEMBER compactSwitch CONSTANT FINAL)
    Q_PROPERTY(UILabel* SelectDPLabel MEMBER SelectDPLabel CONSTANT FINAL)
    Q_PROPERTY(UILabel* UseDateWheelLabel MEMBER UseDateWheelLabel CONSTANT FINAL)
    Q_PROPERTY(UILabel* UseInlineDateLabel MEMBER UseInlineDateLabel CONSTANT FINAL)
    Q_PROPERTY(UILabel* UseCompactDateLabel MEMBER UseCompactDateLabel CONSTANT FINAL)

public:
    DefaultsViewController();

    void viewDidLoad() override;

    // Actions of the switches, once the user has turned them. Turning a style on turns the other two off;
    // turning one off stores nothing.
    Q_INVOKABLE void SwitchChanged();
    Q_INVOKABLE void DateWheelSwitch();
    Q_INVOKABLE void DateInlineSwitch();
    Q_INVOKABLE void DateCompactSwitch();
    // The layout calls DateEntered when editing of the date begins, dismissKeyboard at a tap on the view.
    Q_INVOKABLE void DateEntered();
    // Takes the picker's date, stores it and ends editing, as doneClick does.
    Q_INVOKABLE void dateChanged();
    Q_INVOKABLE void doneClick();
    // Stores today; the picker stays where it is.
    Q_INVOKABLE void todayClick();
    Q_INVOKABLE void dismissKeyboard();
    // The picker alone changes the date: a typed one would be shown and never stored.
    [[nodiscard]] bool shouldChangeCharactersInRange(UITextField& field, const NSRange& range,
                                                     const QString& string) override;

    // Outlets. The three style switches, which share their names with their actions, are named plainly.
    UITextField* const dateTextField = new UITextField(this);
    UILabel* const DefaultDateLabel = new UILabel(this);
    UISwitch* const DefaultDateSwitch = new UISwitch(this);
    UIDatePicker* const datePickerView = new UIDatePicker(this);
    UISwitch* const wheelSwitch = new UISwitch(this);
    UISwitch* const inlineSwitch = new UISwitch(this);
    UISwitch* const compactSwitch = new UISwitch(this);
    UILabel* const SelectDPLabel = new UILabel(this);
    UILabel* const UseDateWheelLabel = new UILabel(this);
    UILabel* const UseInlineDateLabel = new UILabel(this);
    UILabel* const UseCompactDateLabel = new UILabel(this);

    // The style last chosen; none is on a fresh installation.
    bool UseDateWheel = false;
    bool UseInlineDate = false;
    bool UseCompactDate = false;

private:
    // One of the picker's styles: where it is kept, and since which system version it can be chosen here.
    struct StyleChoice
    {
        UISwitch* toggle;
        bool* chosen;
        QString key;
        UIDatePicker::Style style;
        double since;
    };

    void loadDefaultDate();
    void loadPickerStyle();
    void setDefaultDateHidden(bool hidden, double seconds = 0);
    void setCompanionsHidden(bool hidden);
    [[nodiscard]] bool isStored(const StyleChoice& choice) const;
    void adopt(const StyleChoice& choice);
    void restore(const StyleChoice& choice);
    void turned(const StyleChoice& choice);
    void enterDate(const QDateTime& date);

    UserDefaults userDefaults = UserDefaults::standard();
    const StyleChoice wheel;
    const StyleChoice calendar;
    const StyleChoice compact;
};
