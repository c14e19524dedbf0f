#include "platform/toolkit/UITextInput.h"

namespace {

struct TextChange
{
    NSRange range;
    QString replacement;
};

// The smallest change that turns `before` into `after`.
TextChange changeBetween(const QString& before, const QString& after)
{
    const qsizetype shorter = std::min(before.size(), after.size());
    qsizetype prefix = 0;
    while (prefix < shorter && before[prefix] == after[prefix])
        ++prefix;
    qsizetype suffix = 0;
    while (suffix < shorter - prefix &&
           before[before.size() - 1 - suffix] == after[after.size() - 1 - suffix])
        ++suffix;
    return {{prefix, before.size() - prefix - suffix}, after.mid(prefix, after.size() - prefix - suffix)};
}

} // namespace

void UITextInput::becomeFirstResponder()
{
    if (editing || !isEnabled())
        return;
    editing = true;
    // The handler may give the field a new input view, which the layout must see first.
    Q_EMIT editingDidBegin();
    Q_EMIT changed();
}

void UITextInput::resignFirstResponder()
{
    assign(editing, false);
}

bool UITextInput::edit(const QString& newText)
{
    if (newText == content)
        return true;
    const QString accepted = fitted(newText);
    const TextChange change = changeBetween(content, accepted);
    if (!isEnabled() || !allowsChange(change.range, change.replacement))
        return false;
    setText(accepted);
    Q_EMIT editingChanged();
    return true;
}
