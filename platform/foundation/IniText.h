#pragma once

#include <QByteArray>
#include <QMap>
#include <QVariant>

// The text of an INI file in UTF-8, and back. Keys are "key", which stands in the section General, or
// "section/key". Values are texts; one that needs it is quoted, with \n, \", \x1b and the like for
// characters.
[[nodiscard]] QByteArray iniText(const QMap<QString, QVariant>& values);

// Lines that are no section, comment or key with a value are skipped.
[[nodiscard]] QMap<QString, QVariant> valuesOfIniText(const QByteArray& text);
