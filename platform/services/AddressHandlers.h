#pragma once

#include <QString>

// Whether the desktop has a default program for addresses of `scheme`, such as "mailto".
[[nodiscard]] bool hasHandlerFor(const char* scheme);

// Starts the desktop's default program for `address`, an encoded one or that of a file, with it. Answers
// whether there is one and it could be started.
bool openInHandler(const QString& address);
