#pragma once

#include "tests/walk/ModelScene.h"

// What assistive technology reads of a row: its lines, one below the other.
[[nodiscard]] QString movieRowText(const ModelFilm& film, MovieKey key);
[[nodiscard]] QString groupMovieRowText(const ModelFilm& film, const ModelListKind& kind);
// Actors and the like, as rows and reports show them.
[[nodiscard]] QString namesOnOneLine(QString people);
[[nodiscard]] QString groupRowText(const QString& label, qsizetype count);

// What a search for `text` goes through.
[[nodiscard]] bool searchFinds(const QString& text, const QString& within);
// As the platform describes a moment.
[[nodiscard]] QString momentText(const QDateTime& moment);
