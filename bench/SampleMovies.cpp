#include "bench/SampleMovies.h"

#include <QBuffer>
#include <QImage>
#include <QPainter>
#include <random>

namespace {

// The distributions of the standard library differ from one library to the next; its generators do not.
using Generator = std::mt19937;

int below(Generator& generator, qsizetype limit)
{
    return static_cast<int>(generator() % static_cast<Generator::result_type>(limit));
}

QString oneOf(const QStringList& choices, Generator& generator)
{
    return choices[below(generator, choices.size())];
}

QString title(Generator& generator)
{
    static const QStringList openings = QStringLiteral("The ,A ,,,Beyond the ,Last ,Return to the ,Été: ,"
                                                       "My ,Under the ,No ")
                                            .split(QLatin1Char(','));
    static const QStringList qualities =
        QStringLiteral("Silent,Golden,Broken,Midnight,Hollow,Crimson,Forgotten,Paper,Winter,Distant,Wild,"
                       "Second,Électric,Hidden,Burning,Gentle,Iron,Seventh,Careless,Lonely")
            .split(QLatin1Char(','));
    static const QStringList things =
        QStringLiteral("Harbour,Garden,Road,Letter,Orchestra,Promise,Lighthouse,Empire,Stranger,River,"
                       "Señorita,Machine,Horizon,Witness,Island,Carnival,Shadow,Kitchen,Mountain,Thief")
            .split(QLatin1Char(','));
    static const QStringList endings =
        QStringLiteral(",,,, II, III,: The Beginning, of Time, Revisited").split(QLatin1Char(','));
    return oneOf(openings, generator) + oneOf(qualities, generator) + QLatin1Char(' ') +
           oneOf(things, generator) + oneOf(endings, generator);
}

QString person(Generator& generator)
{
    static const QStringList givenNames =
        QStringLiteral("Alma,Bruno,Clara,Dario,Edith,Farid,Greta,Hugo,Ines,Jonas,Kaya,Lars,Mina,Noël,Orla,"
                       "Pavel,Rosa,Søren,Tessa,Viktor")
            .split(QLatin1Char(','));
    static const QStringList familyNames =
        QStringLiteral("Abernathy,Bellweather,Castellan,Dunmore,Eastwick,Fairbourne,Greystone,Hallorann,"
                       "Iversen,Jankowski,Kestrel,Löwenthal,Marchetti,Northcott,Okonjo,Pemberton")
            .split(QLatin1Char(','));
    return oneOf(givenNames, generator) + QLatin1Char(' ') + oneOf(familyNames, generator);
}

QString people(int count, Generator& generator)
{
    QStringList names;
    for (int index = 0; index < count; ++index)
        names << person(generator);
    return names.join(QLatin1Char('\n'));
}

QString notes(Generator& generator)
{
    static const QStringList sentences =
        QStringLiteral("Watched it twice and liked the ending better the second time.|The music alone is "
                       "worth it.|Slow first hour, then hard to look away.|Seen with the whole family, and "
                       "nobody fell asleep.|Not as good as the book.|Lent to a friend, ask for it in spring.")
            .split(QLatin1Char('|'));
    QStringList chosen;
    for (int line = 0; line < 3; ++line)
        chosen << oneOf(sentences, generator);
    return chosen.join(QLatin1Char('\n'));
}

QImage coverPicture(Generator& generator)
{
    constexpr QSize size(160, 240);
    constexpr int shapes = 48;
    QImage picture(size, QImage::Format_RGB32);
    picture.fill(QColor::fromHsv(below(generator, 360), 120, 90));
    QPainter painter(&picture);
    for (int shape = 0; shape < shapes; ++shape) {
        painter.setBrush(QColor::fromHsv(below(generator, 360), 160, below(generator, 256)));
        painter.drawEllipse(below(generator, size.width()), below(generator, size.height()),
                            below(generator, 50), below(generator, 50));
    }
    return picture;
}

} // namespace

MovieFields sampleMovie(int number)
{
    static const QStringList genres =
        QStringLiteral("Action,Thriller,Drama,Epic,Horror,Adventure,Animation,Comedy,Crime,Documentary,"
                       "Family,Fantasy,History,Musical,Mystery,Romance,Science Fiction,War,Western")
            .split(QLatin1Char(','));
    static const QStringList providers =
        QStringLiteral("Disc,Cinema,Television,Lent by a friend,Library,Streaming").split(QLatin1Char(','));
    static const QStringList ratings = QStringLiteral("G,PG,PG-13,R").split(QLatin1Char(','));
    Generator generator(static_cast<Generator::result_type>(number));
    MovieFields movie;
    movie.movieName = title(generator);
    movie.provider = oneOf(providers, generator);
    movie.genre = oneOf(genres, generator);
    movie.rating = oneOf(ratings, generator);
    movie.yearReleased = static_cast<qint16>(1930 + below(generator, 95));
    movie.runTime = static_cast<qint16>(70 + below(generator, 110));
    movie.dateWatched = QDateTime(QDate(1990, 1, 1).addDays(below(generator, 12'000)), QTime(12, 0), Qt::UTC);
    movie.actors = people(7, generator);
    movie.directors = people(1 + below(generator, 2), generator);
    movie.producers = people(2, generator);
    movie.notes = notes(generator);
    return movie;
}

QByteArrayList sampleCovers()
{
    constexpr int count = 64;
    constexpr int jpegQuality = 60;
    QByteArrayList covers;
    for (int number = 0; number < count; ++number) {
        Generator generator(static_cast<Generator::result_type>(number));
        QBuffer file;
        coverPicture(generator).save(&file, "JPEG", jpegQuality);
        covers << file.data();
    }
    return covers;
}
