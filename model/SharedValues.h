#pragma once

#include <QByteArray>
#include <QDateTime>
#include <QString>
#include <optional>

// The values of one movie as they were when it was chosen. A text that the movie lacks is empty here.
struct MovieFields
{
    QString movieName;
    QString provider;
    QString genre;
    QString rating;
    qint16 yearReleased = 0;
    qint16 runTime = 0;
    std::optional<QDateTime> dateWatched;
    QString actors;
    QString directors;
    QString producers;
    QString notes;
    std::optional<QByteArray> frontCover;
};

class Movies;
// Reads the cover from the store.
[[nodiscard]] MovieFields fieldsOf(const Movies& movie);

// What one screen leaves for the next: it lasts as long as the process and is never stored. A screen writes
// before it opens another, which reads when it loads.
struct SharedValues
{
    // The screen that opened a movie editor or the print screen, such as "MainList" or "GenreBreakdown".
    QString ReturnScreen;
    // The movie last chosen; a group summary sets only the field that it groups on.
    MovieFields CurrentMovie;
    // The date-watched group last chosen; months count from 1.
    std::optional<int> SelectedYear;
    std::optional<int> SelectedMonth;
    // The values last chosen in the reference lists; empty until then.
    QString selectedGenre;
    QString selectedProvider;
    QString selectedRating;
    // The direction last chosen on a summary or on one of its lists.
    bool GlobalSortAsc = true;
};

// The one set of values of the process.
[[nodiscard]] SharedValues& shared();
