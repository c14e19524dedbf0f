#include "model/SharedValues.h"

#include "model/Movies.h"

SharedValues& shared()
{
    static SharedValues values;
    return values;
}

MovieFields fieldsOf(const Movies& movie)
{
    const auto text = [](const std::optional<QString>& value) { return value.value_or(QString()); };
    return {.movieName = text(movie.movieName()),
            .provider = text(movie.provider()),
            .genre = text(movie.genre()),
            .rating = text(movie.rating()),
            .yearReleased = movie.yearReleased(),
            .runTime = movie.runTime(),
            .dateWatched = movie.dateWatched(),
            .actors = text(movie.actors()),
            .directors = text(movie.directors()),
            .producers = text(movie.producers()),
            .notes = text(movie.notes()),
            .frontCover = movie.frontCover()};
}
