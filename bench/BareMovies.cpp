#include "bench/BareMovies.h"

std::string bareInsertMovie()
{
    std::string parameters = "?";
    for (int column = 1; column < bareTextCount + bareNumberCount; ++column)
        parameters += ", ?";
    return std::string("INSERT INTO Movies (") + bareMovieColumns + ") VALUES (" + parameters + ")";
}

BareMovie::BareMovie(const MovieFields& movie)
    : texts{movie.actors.toStdString(),    movie.directors.toStdString(), movie.genre.toStdString(),
            movie.movieName.toStdString(), movie.notes.toStdString(),     movie.producers.toStdString(),
            movie.provider.toStdString(),  movie.rating.toStdString()}
{
    const auto day = movie.dateWatched.value_or(QDateTime()).date();
    numbers = {std::nullopt, movie.runTime, day.day(), day.month(), day.year(), movie.yearReleased};
    if (movie.dateWatched)
        numbers.front() = movie.dateWatched->toMSecsSinceEpoch();
}

void BareMovie::bindTo(const BareStatement& statement) const
{
    int parameter = 0;
    for (const auto& text : texts) {
        ++parameter;
        if (text.empty())
            sqlite3_bind_null(statement.get(), parameter);
        else
            bindBare(statement, parameter, text);
    }
    for (const auto& number : numbers) {
        ++parameter;
        if (number)
            sqlite3_bind_int64(statement.get(), parameter, *number);
        else
            sqlite3_bind_null(statement.get(), parameter);
    }
}
