#include "model/AppDelegate.h"
#include "model/MarrowvaleModel.h"
#include "model/Movies.h"
#include "model/ReferenceRecords.h"
#include "platform/foundation/Calendar.h"

class EntitiesTest : public testing::Test
{
protected:
    // Sets one attribute through its setter, and finds it under its name and its getter.
    template <typename Entity, typename Value, typename Stored>
    void expectNamed(const char* name, Value (Entity::*get)() const, void (Entity::*set)(Value),
                     const Stored& value)
    {
        const auto record = context.insert<Entity>();
        (record.get()->*set)(value);
        EXPECT_EQ(record->valueForKey(QString::fromLatin1(name)), AttributeValue(value)) << name;
        EXPECT_EQ((record.get()->*get)(), Value(value)) << name;
    }

    AppDelegate delegate;
    NSManagedObjectContext& context = delegate.persistentContainer().viewContext();
};

TEST_F(EntitiesTest, ANewMovieHasADateAndZerosAndNothingElse)
{
    const auto movie = context.insert<Movies>();
    for (const auto& attribute : movie->entity().attributes) {
        const auto value = movie->valueForKey(attribute.name);
        if (attribute.type == AttributeType::Int16)
            EXPECT_EQ(value, AttributeValue(qint16(0))) << attribute.name.toStdString();
        else
            EXPECT_EQ(isAbsent(value), attribute.type != AttributeType::Date) << attribute.name.toStdString();
    }
    ASSERT_EQ(movie->dateWatched(), MarrowvaleModel::defaultWatchDate());
    EXPECT_EQ(Calendar::current().components(*movie->dateWatched()), (DateComponents{2001, 1, 1}));
}

TEST_F(EntitiesTest, EachAccessorIsTheAttributeOfItsName)
{
    const auto text = QStringLiteral("Stalker");
    expectNamed("actors", &Movies::actors, &Movies::setActors, text);
    expectNamed("directors", &Movies::directors, &Movies::setDirectors, text);
    expectNamed("genre", &Movies::genre, &Movies::setGenre, text);
    expectNamed("movieName", &Movies::movieName, &Movies::setMovieName, text);
    expectNamed("notes", &Movies::notes, &Movies::setNotes, text);
    expectNamed("producers", &Movies::producers, &Movies::setProducers, text);
    expectNamed("provider", &Movies::provider, &Movies::setProvider, text);
    expectNamed("rating", &Movies::rating, &Movies::setRating, text);
    const qint16 number = -32768;
    expectNamed("runTime", &Movies::runTime, &Movies::setRunTime, number);
    expectNamed("wDay", &Movies::wDay, &Movies::setWDay, number);
    expectNamed("wMonth", &Movies::wMonth, &Movies::setWMonth, number);
    expectNamed("wYear", &Movies::wYear, &Movies::setWYear, number);
    expectNamed("yearReleased", &Movies::yearReleased, &Movies::setYearReleased, number);
    expectNamed("dateWatched", &Movies::dateWatched, &Movies::setDateWatched,
                QDateTime(QDate(1979, 5, 25), QTime(20, 0), Qt::UTC));
    expectNamed("frontCover", &Movies::frontCover, &Movies::setFrontCover, QByteArray("jpeg"));
    expectNamed("genre", &Genres::genre, &Genres::setGenre, text);
    expectNamed("name", &Providers::name, &Providers::setName, text);
    expectNamed("rating", &Ratings::rating, &Ratings::setRating, text);
    expectNamed("name", &Actors::name, &Actors::setName, text);
}

TEST_F(EntitiesTest, EachEntityIsFetchedByItsOwnRequest)
{
    for (const auto& entity : MarrowvaleModel::description().entities)
        context.insert(entity.name);
    EXPECT_EQ(context.fetch<Movies>(Movies::fetchRequest()).value().size(), 1U);
    EXPECT_EQ(context.fetch<Genres>(Genres::fetchRequest()).value().size(), 1U);
    EXPECT_EQ(context.fetch<Providers>(Providers::fetchRequest()).value().size(), 1U);
    EXPECT_EQ(context.fetch<Ratings>(Ratings::fetchRequest()).value().size(), 1U);
    EXPECT_EQ(context.fetch<Actors>(Actors::fetchRequest()).value().size(), 1U);
}
