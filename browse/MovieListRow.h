#pragma once

#include "model/MovieTableViewCell.h"

using MainListTableViewCell = MovieTableViewCell;

// The row that shows `movie` in a list sorted by `sortName`. `blackText`: the list is in dark style, where
// the row stays light.
[[nodiscard]] MainListTableViewCell movieListRow(const Movies& movie, const QString& sortName,
                                                 bool blackText);
