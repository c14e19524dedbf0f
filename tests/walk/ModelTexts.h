#pragma once

#include "tests/walk/ModelScene.h"

#include <QHash>

// The texts that leave the program.

// A list of movies as it is printed; a picture is one object replacement character. `title`: of the list's
// group.
[[nodiscard]] QString printedText(const std::vector<FilmPointer>& films, const std::optional<QString>& title);
// A report of a group's movies, of which there is at least one.
[[nodiscard]] QString reportText(const std::vector<FilmPointer>& films, const ModelListKind& kind);
// An editor's fields as they are shared.
[[nodiscard]] QString sharedForm(const QHash<QString, QString>& form);
// A list of movies as it is shared.
[[nodiscard]] QString sharedText(const std::vector<FilmPointer>& films);
// The exchange file of the catalogue, but for the covers: their fields say "cover".
[[nodiscard]] QString exchangeText(const ModelCatalogue& catalogue);
