#pragma once

#include "platform/services/Mail.h"

// `message` as any mail program may take it: the body plain, each value free of what would end it or begin
// another.
[[nodiscard]] MailMessage tamedMail(const MailMessage& message);

// "mailto:" with the recipients, subject and body of a tamed message, every other character encoded.
[[nodiscard]] QString mailtoAddress(const MailMessage& message);

// `text` as the value of an address's parameter.
[[nodiscard]] QString asParameter(const QString& text);

// `name` without folders and without characters that programs take for something else; never empty, and short
// enough for a file's name.
[[nodiscard]] QString harmlessFileName(const QString& name);
