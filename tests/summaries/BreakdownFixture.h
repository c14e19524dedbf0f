#pragma once

#include "model/SharedValues.h"
#include "summaries/BreakdownScreens.h"
#include "tests/support/Catalogue.h"
#include "tests/support/PlainStoryboard.h"

// A list of one of a catalogue's groups.
class BreakdownTest : public CatalogueTest
{
protected:
    template <typename Screen>
    Screen& opened()
    {
        navigation.push(std::make_unique<Screen>());
        return static_cast<Screen&>(*navigation.topViewController());
    }

    // A film with every text, in the group of every kind.
    static std::shared_ptr<Movies> alien()
    {
        const auto movie = given({.name = "Alien",
                                  .genre = "Horror",
                                  .rating = "R",
                                  .year = 1979,
                                  .runTime = 117,
                                  .watched = QDateTime(QDate(2021, 3, 5), QTime(20, 15), Qt::UTC)});
        movie->setProvider(QString("Netflix"));
        movie->setActors(QString("Ann\nBob\n\n"));
        movie->setDirectors(QString("Cy\nDi"));
        movie->setProducers(QString("Ed, Flo"));
        movie->setNotes(QString("one\ntwo"));
        movie->setWYear(2021);
        movie->setWMonth(3);
        EXPECT_TRUE(context().save().ok());
        return movie;
    }

    PlainStoryboard storyboard;
    UINavigationController navigation{storyboard};
};
