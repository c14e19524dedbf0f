#pragma once

#include "platform/toolkit/UITextInput.h"

class UITextView;

class UITextViewDelegate
{
public:
    virtual ~UITextViewDelegate() = default;

    // Whether `text` may replace `range` of the view's text.
    virtual bool shouldChangeTextInRange(UITextView& view, const NSRange& range, const QString& text) = 0;
};

// A text of any number of lines, which the user edits unless it is not editable.
class UITextView : public UITextInput
{
    Q_OBJECT
    QML_ELEMENT
    QML_UNCREATABLE("Views belong to screens")
    Q_PROPERTY(bool editable READ isEditable NOTIFY changed FINAL)

public:
    using UITextInput::UITextInput;

    // Not owned; must outlive the view or be replaced first. Null: none.
    void setDelegate(UITextViewDelegate* value) { viewDelegate = value; }

    [[nodiscard]] bool isEditable() const { return editable; }
    void setEditable(bool value) { assign(editable, value); }

protected:
    bool allowsChange(const NSRange& range, const QString& replacement) override;

private:
    UITextViewDelegate* viewDelegate = nullptr;
    bool editable = true;
};
