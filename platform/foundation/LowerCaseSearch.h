#pragma once

#include <QString>
#include <QUtf8StringView>
#include <string>

// Looks for one text in very many, both lower-cased as a whole. Canonically equivalent texts are found alike:
// "é" is found as one character and as a letter with an accent, whichever way it is typed. Plain ASCII, which
// most texts are, is looked through as it lies in memory.
class LowerCaseSearch
{
public:
    explicit LowerCaseSearch(const QString& text);

    [[nodiscard]] bool isIn(const QString& text) const;
    [[nodiscard]] bool isIn(QUtf8StringView text) const;

private:
    QString wanted;
    // The same in ASCII; empty while it has other characters.
    std::string wantedAscii;
    // Where texts are lower-cased: making room for each would cost more than looking through it.
    mutable std::string lowered;
};
