#pragma once

#include "platform/store/NSFetchRequest.h"
#include "platform/store/NSManagedObject.h"

// One watched movie. Its genre, provider and rating are copies of reference values, which may have changed or
// gone since. wDay, wMonth and wYear are parts of a watch date for grouping; keeping them in step is the
// editors' work.
class Movies : public NSManagedObject
{
public:
    // The order of the entity's attributes.
    enum Attribute {
        Actors,
        DateWatched,
        Directors,
        FrontCover,
        Genre,
        MovieName,
        Notes,
        Producers,
        Provider,
        Rating,
        RunTime,
        WDay,
        WMonth,
        WYear,
        YearReleased,
    };

    using NSManagedObject::NSManagedObject;

    [[nodiscard]] static QString entityName() { return QStringLiteral("Movies"); }
    [[nodiscard]] static NSFetchRequest fetchRequest() { return NSFetchRequest(entityName()); }

    [[nodiscard]] std::optional<QString> movieName() const { return text(MovieName); }
    [[nodiscard]] std::optional<QString> genre() const { return text(Genre); }
    [[nodiscard]] std::optional<QString> provider() const { return text(Provider); }
    [[nodiscard]] std::optional<QString> rating() const { return text(Rating); }
    [[nodiscard]] std::optional<QString> actors() const { return text(Actors); }
    [[nodiscard]] std::optional<QString> directors() const { return text(Directors); }
    [[nodiscard]] std::optional<QString> producers() const { return text(Producers); }
    [[nodiscard]] std::optional<QString> notes() const { return text(Notes); }
    void setMovieName(std::optional<QString> value) { setText(MovieName, std::move(value)); }
    void setGenre(std::optional<QString> value) { setText(Genre, std::move(value)); }
    void setProvider(std::optional<QString> value) { setText(Provider, std::move(value)); }
    void setRating(std::optional<QString> value) { setText(Rating, std::move(value)); }
    void setActors(std::optional<QString> value) { setText(Actors, std::move(value)); }
    void setDirectors(std::optional<QString> value) { setText(Directors, std::move(value)); }
    void setProducers(std::optional<QString> value) { setText(Producers, std::move(value)); }
    void setNotes(std::optional<QString> value) { setText(Notes, std::move(value)); }

    // Whole minutes.
    [[nodiscard]] qint16 runTime() const { return int16(RunTime); }
    [[nodiscard]] qint16 yearReleased() const { return int16(YearReleased); }
    [[nodiscard]] qint16 wDay() const { return int16(WDay); }
    [[nodiscard]] qint16 wMonth() const { return int16(WMonth); }
    [[nodiscard]] qint16 wYear() const { return int16(WYear); }
    void setRunTime(qint16 value) { setInt16(RunTime, value); }
    void setYearReleased(qint16 value) { setInt16(YearReleased, value); }
    void setWDay(qint16 value) { setInt16(WDay, value); }
    void setWMonth(qint16 value) { setInt16(WMonth, value); }
    void setWYear(qint16 value) { setInt16(WYear, value); }

    [[nodiscard]] std::optional<QDateTime> dateWatched() const { return date(DateWatched); }
    void setDateWatched(std::optional<QDateTime> value) { setDate(DateWatched, std::move(value)); }

    // Encoded image data; read from the store at each call.
    [[nodiscard]] std::optional<QByteArray> frontCover() const { return binary(FrontCover); }
    void setFrontCover(std::optional<QByteArray> value) { setBinary(FrontCover, std::move(value)); }
};
