#pragma once

#include "platform/toolkit/TextPieces.h"
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
    Q_PROPERTY(TextPieces* pieces READ pieces CONSTANT FINAL)

public:
    using UITextInput::UITextInput;

    // Not owned; must outlive the view or be replaced first. Null: none.
    void setDelegate(UITextViewDelegate* value) { viewDelegate = value; }

    [[nodiscard]] bool isEditable() const { return editable; }
    void setEditable(bool value) { assign(editable, value); }

    // The text with looks and pictures; its characters alone are text().
    void setAttributedText(const NSAttributedString& value);
    // Without looks once the text has been set or edited without any.
    [[nodiscard]] NSAttributedString attributedText() const;

    // The text for a layout that shows long ones; cut only once it is asked for.
    [[nodiscard]] TextPieces* pieces();
    // The user changed a piece.
    Q_INVOKABLE void editPiece(int row, const QString& newText);

protected:
    [[nodiscard]] QChar shownFor(QChar character) const override;
    bool allowsChange(const NSRange& range, const QString& replacement) override;

private:
    void followText();

    UITextViewDelegate* viewDelegate = nullptr;
    NSAttributedString attributed;
    TextPieces* cutText = nullptr;
    bool editable = true;
};
