#pragma once

#include "model/AppDelegate.h"
#include "model/Movies.h"
#include "tests/support/ManualQueue.h"
#include "tests/support/RecordingDevice.h"

#include <gtest/gtest.h>

// An empty catalogue on a recording device, and a main queue moved by hand: what a screen's test starts from.
class CatalogueTest : public testing::Test
{
protected:
    static NSManagedObjectContext& context()
    {
        return AppDelegate::shared().persistentContainer().viewContext();
    }

    struct Film
    {
        std::optional<QString> name;
        std::optional<QString> genre = std::nullopt;
        std::optional<QString> rating = std::nullopt;
        qint16 year = 0;
        qint16 runTime = 0;
        std::optional<QDateTime> watched = std::nullopt;
    };

    static std::shared_ptr<Movies> given(const Film& film)
    {
        const auto movie = context().insert<Movies>();
        movie->setMovieName(film.name);
        movie->setGenre(film.genre);
        movie->setRating(film.rating);
        movie->setYearReleased(film.year);
        movie->setRunTime(film.runTime);
        movie->setDateWatched(film.watched);
        EXPECT_TRUE(context().save().ok());
        return movie;
    }

    static std::vector<std::shared_ptr<Movies>> storedMovies()
    {
        return context().fetch<Movies>(Movies::fetchRequest()).value();
    }

    RecordingDevice device;
    ManualQueue queue;
    AppDelegate delegate;
};
