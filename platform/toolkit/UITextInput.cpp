#include "platform/toolkit/UITextInput.h"

namespace {

using Shown = std::function<QChar(QChar)>;

// How many characters at the start of `stored` the editor shows as the one at the start of `after`; 0: none.
qsizetype shownFirst(QStringView stored, QStringView after, const Shown& shown)
{
    if (stored.isEmpty() || after.isEmpty())
        return 0;
    if (stored.front() == after.front())
        return 1;
    if (shown(stored.front()) != after.front())
        return 0;
    return stored.startsWith(u"\r\n") ? 2 : 1;
}

// The same at their ends.
qsizetype shownLast(QStringView stored, QStringView after, const Shown& shown)
{
    if (stored.isEmpty() || after.isEmpty())
        return 0;
    const bool isOneBreak = stored.endsWith(u"\r\n") && !after.endsWith(u"\r\n");
    if (stored.back() == after.back())
        return isOneBreak && shown(u'\r') == u'\n' ? 2 : 1;
    return shown(stored.back()) == after.back() ? 1 : 0;
}

struct TextChange
{
    NSRange range;
    QString replacement;
};

// The smallest change of `stored` after which an editor that shows it has `after`.
TextChange changeBetween(const QString& stored, const QString& after, const Shown& shown)
{
    QStringView left = stored;
    QStringView typed = after;
    while (const auto units = shownFirst(left, typed, shown)) {
        left = left.sliced(units);
        typed = typed.sliced(1);
    }
    const qsizetype location = stored.size() - left.size();
    while (const auto units = shownLast(left, typed, shown)) {
        left.chop(units);
        typed.chop(1);
    }
    return {{location, left.size()}, typed.toString()};
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
    const auto [range, typed] =
        changeBetween(content, newText, [this](QChar character) { return shownFor(character); });
    if (range.length == 0 && typed.isEmpty())
        return true;
    const QString replacement = fitted(typed);
    if (!isEnabled() || !allowsChange(range, replacement))
        return false;
    setText(QString(content).replace(range.location, range.length, replacement));
    Q_EMIT editingChanged();
    return true;
}

QString UITextInput::edited(const QString& stored, const QString& newText) const
{
    const auto [range, typed] =
        changeBetween(stored, newText, [this](QChar character) { return shownFor(character); });
    return QString(stored).replace(range.location, range.length, typed);
}
