#pragma once

#include <QAccessible>

// What a visitor looks for: what it is, and the name by which assistive technology calls it.
struct Control
{
    QAccessible::Role role;
    QString name;
    // The name may go on after `name`.
    bool beginsSo = false;

    [[nodiscard]] bool fits(QAccessibleInterface& seen) const
    {
        if (seen.role() != role)
            return false;
        const QString seenName = seen.text(QAccessible::Name);
        return beginsSo ? seenName.startsWith(name) : seenName == name;
    }
};

inline Control button(const QString& name)
{
    return {QAccessible::Button, name};
}
inline Control choice(const QString& name)
{
    return {QAccessible::MenuItem, name};
}
inline Control field(const QString& name)
{
    return {QAccessible::EditableText, name};
}
inline Control checkBox(const QString& name)
{
    return {QAccessible::CheckBox, name};
}
inline Control heading(const QString& name)
{
    return {QAccessible::Heading, name};
}
inline Control tab(const QString& name)
{
    return {QAccessible::PageTab, name};
}
inline Control text(const QString& name)
{
    return {QAccessible::StaticText, name};
}
// A row of a table, by the start of its texts.
inline Control row(const QString& beginning)
{
    return {QAccessible::ListItem, beginning, true};
}
// A value on a wheel.
inline Control wheelValue(const QString& name)
{
    return {QAccessible::ListItem, name};
}
