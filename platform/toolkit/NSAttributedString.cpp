#include "platform/toolkit/NSAttributedString.h"

NSAttributedString::NSAttributedString(QString text, TextStyle style)
{
    append(std::move(text), std::move(style));
}

void NSAttributedString::append(QString text, TextStyle style)
{
    if (text.isEmpty())
        return;
    // One long run is laid out faster than many short ones.
    if (!parts.empty() && !parts.back().attachment && parts.back().style == style)
        parts.back().text += text;
    else
        parts.push_back({std::move(text), std::move(style), std::nullopt});
}

void NSAttributedString::append(TextAttachment attachment)
{
    parts.push_back({QString(QChar::ObjectReplacementCharacter), {}, std::move(attachment)});
}

QString NSAttributedString::string() const
{
    QString all;
    for (const Run& run : parts)
        all += run.text;
    return all;
}
