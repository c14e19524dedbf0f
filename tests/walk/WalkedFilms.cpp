#include "tests/walk/WalkedFilms.h"

#include "model/Movies.h"
#include "platform/store/NSManagedObjectContext.h"
#include "resources/Resources.h"
#include "tests/walk/Step.h"

#include <QBuffer>
#include <QFile>

namespace {

constexpr int singleFilms = 22;
// Title and two years each, as they are in the real catalogue.
const QString remakes[] = {"Alice in Wonderland", "Casino Royale", "King Kong", "Notorious",
                           "The Alamo",           "The Fog",       "Twilight"};

namespace Field {
constexpr int actors = 0;
constexpr int directors = 2;
constexpr int genre = 3;
constexpr int name = 4;
constexpr int producers = 6;
constexpr int rating = 7;
constexpr int runTime = 8;
constexpr int year = 9;
constexpr int notes = 10;
} // namespace Field

const QList<QStringList>& realRecords()
{
    static const QList<QStringList> all = [] {
        QFile file(MARROWVALE_SOURCE_DIR "/tests/data/Marrowvale.csv");
        QList<QStringList> records;
        if (file.open(QIODevice::ReadOnly))
            for (const QString& line : QString::fromUtf8(file.readAll()).split('\n'))
                if (const QStringList fields = line.split('^'); fields.size() == 12)
                    records.append(fields);
        return records;
    }();
    return all;
}

const QStringList& anyRecord(std::mt19937& random)
{
    return chosen(realRecords(), static_cast<unsigned>(random()));
}

// Up to three of the catalogue's directors.
QString people(std::mt19937& random)
{
    QStringList names;
    for (unsigned person = random() % 4; person > 0; --person)
        if (const QString& name = anyRecord(random)[Field::directors]; !name.isEmpty())
            names.append(name);
    return names.join(", ");
}

// The same words, which groups must keep apart.
QString variant(const QString& text, std::mt19937& random)
{
    const unsigned kind = random() % 12;
    return kind == 0   ? text.toUpper()
           : kind == 1 ? text.toLower()
           : kind == 2 ? QString(text).replace('o', QChar(0xf6))
                       : text;
}

QStringList varied(QStringList fields, std::mt19937& random)
{
    fields[Field::actors] = people(random);
    fields[Field::producers] = people(random);
    fields[Field::genre] = variant(fields[Field::genre], random);
    return fields;
}

QDateTime dayWatched(std::mt19937& random)
{
    const int year = 2020 + static_cast<int>(random() % 3);
    const unsigned edge = random() % 5;
    if (edge == 0)
        return QDate(year, 1, 1).startOfDay();
    if (edge == 1)
        return QDateTime(QDate(year, 12, 31), QTime(23, 59, 59));
    return QDate(year, 1 + static_cast<int>(random() % 12), 15).startOfDay();
}

QByteArray jpegCover()
{
    QByteArray bytes;
    QBuffer buffer(&bytes);
    movieLogo().save(&buffer, "JPG");
    return bytes;
}

QString onLines(QString people, std::mt19937& random)
{
    people.replace(", ", "\n");
    return random() % 6 == 0 ? people + '\n' : people;
}

void setDay(Movies& movie, std::mt19937& random)
{
    const QDateTime moment = dayWatched(random);
    const QDate day = moment.date();
    const bool isKnown = random() % 5 > 0;
    const bool hasParts = random() % 3 > 0;
    movie.setDateWatched(isKnown ? std::optional(moment) : std::nullopt);
    movie.setWYear(static_cast<qint16>(isKnown && hasParts ? day.year() : 0));
    if (!isKnown || !hasParts)
        return;
    movie.setWMonth(static_cast<qint16>(day.month()));
    movie.setWDay(static_cast<qint16>(day.day()));
}

} // namespace

QList<QStringList> chosenRecords(std::mt19937& random)
{
    QList<QStringList> records;
    for (int film = 0; film < singleFilms; ++film)
        records.append(varied(anyRecord(random), random));
    const auto first = static_cast<unsigned>(random());
    for (unsigned remake = 0; remake < 3; ++remake)
        for (const QStringList& fields : realRecords())
            if (fields[Field::name] == chosen(remakes, first + remake))
                records.append(varied(fields, random));
    records.append(records.first());
    return records;
}

void storeFilm(NSManagedObjectContext& context, const QStringList& fields, std::mt19937& random)
{
    const auto movie = context.insert<Movies>();
    const auto sometimes = [&](unsigned part, const QString& text) {
        const unsigned chance = random() % part;
        return chance == 0 ? std::nullopt : std::optional(chance == 1 ? QString() : text);
    };
    movie->setMovieName(fields[Field::name]);
    movie->setActors(sometimes(8, onLines(fields[Field::actors], random)));
    movie->setDirectors(sometimes(8, onLines(fields[Field::directors], random)));
    movie->setProducers(sometimes(8, onLines(fields[Field::producers], random)));
    movie->setGenre(sometimes(16, fields[Field::genre]));
    movie->setProvider(sometimes(12, random() % 3 == 0 ? QString("Netflix") : QString("netflix")));
    movie->setRating(sometimes(16, fields[Field::rating]));
    movie->setYearReleased(fields[Field::year].toShort());
    movie->setRunTime(fields[Field::runTime].toShort());
    movie->setNotes(sometimes(6, QString(fields[Field::notes]).replace('~', '\n')));
    setDay(*movie, random);
    if (random() % 3 == 0)
        movie->setFrontCover(jpegCover());
}
