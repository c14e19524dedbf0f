#pragma once

#include "bench/BareDatabase.h"
#include "model/SharedValues.h"

#include <array>
#include <optional>

// The columns of a movie but its id, texts first, in the order in which a BareMovie is bound.
inline constexpr auto bareMovieColumns =
    "actors, directors, genre, movieName, notes, producers, provider, rating, "
    "dateWatched, runTime, wDay, wMonth, wYear, yearReleased";
inline constexpr int bareTextCount = 8;
inline constexpr int bareNumberCount = 6;

[[nodiscard]] std::string bareInsertMovie();

// A movie as SQLite takes it. An empty text is no value.
class BareMovie
{
public:
    explicit BareMovie(const MovieFields& movie);

    // The movie must outlive the run of the statement, which is `bareInsertMovie`.
    void bindTo(const BareStatement& statement) const;

private:
    std::array<std::string, bareTextCount> texts;
    std::array<std::optional<qint64>, bareNumberCount> numbers;
};
