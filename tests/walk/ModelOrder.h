#pragma once

#include "tests/walk/ModelScene.h"

// Below 0, 0 or above. Code points decide, and what is absent comes before every text.
[[nodiscard]] int compareTexts(const std::optional<QString>& left, const std::optional<QString>& right);

// As the list stands. Ties go by age, in the direction of the rest; films come in the order of their ids.
void sortFilms(std::vector<FilmPointer>& films, const ModelScene& scene);

// Null: never.
[[nodiscard]] QDate watchedDay(const ModelFilm& film);
// Whether the film is one of the chosen group.
[[nodiscard]] bool belongs(const ModelFilm& film, const ModelScene& scene);
// Whether the search finds it.
[[nodiscard]] bool matches(const ModelFilm& film, const ModelScene& scene);
