#pragma once

#include <QString>

// Writes `line` and a line feed to standard output as UTF-8, flushed at once: no level, no prefix.
void console(const QString& line);

// Does the same to standard error.
void consoleError(const QString& line);

// Writes "Fatal error: " and `text` to standard error, then ends the process with abort(). What was saved
// stays saved.
[[noreturn]] void fatalError(const QString& text);
