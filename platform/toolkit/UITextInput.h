#pragma once

#include "platform/toolkit/UIControl.h"

// A stretch of a text, in UTF-16 units.
struct NSRange
{
    qsizetype location = 0;
    qsizetype length = 0;

    bool operator==(const NSRange&) const = default;
};

// What UITextField and UITextView share: a text that the user edits, guarded by a delegate. Text set by code
// passes unguarded and is not told as an edit.
class UITextInput : public UIControl
{
    Q_OBJECT
    QML_ELEMENT
    QML_UNCREATABLE("Views belong to screens")
    Q_PROPERTY(QString text READ text NOTIFY changed FINAL)
    Q_PROPERTY(bool editing READ isEditing NOTIFY changed FINAL)

public:
    using UIControl::UIControl;

    [[nodiscard]] QString text() const { return content; }
    void setText(const QString& value) { assign(content, value); }

    // Whether the view has the keyboard. A layout follows this and reports the user's own moves.
    [[nodiscard]] bool isEditing() const { return editing; }
    Q_INVOKABLE void becomeFirstResponder();
    Q_INVOKABLE void resignFirstResponder();

    // The user changed the whole text to `newText` (typed, deleted, pasted), as the layout's editor has it.
    // Returns whether the change was accepted, in the form that fits; a layout whose change was refused shows
    // `text` again. What the user did not touch keeps its characters, also those that the editor shows as
    // others.
    Q_INVOKABLE bool edit(const QString& newText);

Q_SIGNALS:
    void editingDidBegin();
    void editingChanged();

protected:
    // Returns the form that an inserted text takes in this view.
    [[nodiscard]] virtual QString fitted(const QString& text) const { return text; }
    // Returns what the layout's editor makes of `character`. Where it makes a line feed of a carriage return,
    // it makes one of both together.
    [[nodiscard]] virtual QChar shownFor(QChar character) const { return character; }
    // Returns `stored` after the user changed it to `newText` in the editor.
    [[nodiscard]] QString edited(const QString& stored, const QString& newText) const;
    virtual bool allowsChange(const NSRange& range, const QString& replacement) = 0;

private:
    QString content;
    bool editing = false;
};
