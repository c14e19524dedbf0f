#pragma once

#include "platform/toolkit/UITextInput.h"
#include "platform/toolkit/UIToolbar.h"

class UITextField;

class UITextFieldDelegate
{
public:
    virtual ~UITextFieldDelegate() = default;

    // Whether `string` may replace `range` of the field's text.
    virtual bool shouldChangeCharactersInRange(UITextField& field, const NSRange& range,
                                               const QString& string) = 0;
};

// A line of text that the user edits, by keyboard or through the input view shown in the keyboard's place.
class UITextField : public UITextInput
{
    Q_OBJECT
    QML_ELEMENT
    QML_UNCREATABLE("Views belong to screens")
    Q_PROPERTY(UIView* inputView READ inputView NOTIFY changed FINAL)
    Q_PROPERTY(UIToolbar* inputAccessoryView READ inputAccessoryView NOTIFY changed FINAL)

public:
    using UITextInput::UITextInput;

    // Not owned; must outlive the field or be replaced first. Null: none.
    void setDelegate(UITextFieldDelegate* value) { fieldDelegate = value; }

    // Tells fields apart in a delegate; 0 until set.
    [[nodiscard]] int tag() const { return tagValue; }
    void setTag(int value) { tagValue = value; }

    // A UIPickerView or a UIDatePicker, not owned; null: the keyboard alone.
    [[nodiscard]] UIView* inputView() const { return input; }
    void setInputView(UIView* value) { assign(input, value); }

    // The bar above the input view. The field takes ownership.
    [[nodiscard]] UIToolbar* inputAccessoryView() const { return accessory; }
    void setInputAccessoryView(std::unique_ptr<UIToolbar> value);

protected:
    // Line breaks, which are pasted, become blanks.
    [[nodiscard]] QString fitted(const QString& text) const override;
    bool allowsChange(const NSRange& range, const QString& replacement) override;

private:
    UITextFieldDelegate* fieldDelegate = nullptr;
    int tagValue = 0;
    UIView* input = nullptr;
    UIToolbar* accessory = nullptr;
};
