#pragma once

#include "tests/walk/ModelScene.h"

// The text of a row as assistive technology reads it: its lines, one below the other.
[[nodiscard]] QString movieRowText(const ModelFilm& film, MovieKey key);
[[nodiscard]] QString groupMovieRowText(const ModelFilm& film, const ModelListKind& kind);
// Actors and the like, as rows and reports show them.
[[nodiscard]] QString namesOnOneLine(QString people);
[[nodiscard]] QString groupRowText(const QString& label, qsizetype count);

// Returns whether a search for `text` matches.
[[nodiscard]] bool searchFinds(const QString& text, const QString& within);
// As the platform describes a moment.
[[nodiscard]] QString momentText(const QDateTime& moment);
