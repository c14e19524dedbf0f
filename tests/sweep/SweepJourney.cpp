#include "tests/sweep/SweepJourney.h"

#include "model/MarrowvaleModel.h"
#include "model/Movies.h"
#include "model/ReferenceRecords.h"
#include "platform/store/Database.h"

#include <gtest/gtest.h>

namespace {

QByteArray coverOf(const QString& title, int bytes)
{
    return (title.toUtf8() + ' ').repeated(bytes).first(bytes);
}

QString filmTitle(int number)
{
    return QStringLiteral("Film %1").arg(number);
}

} // namespace

std::span<const SweepJourney::Stage> SweepJourney::stages()
{
    static constexpr Stage all[] = {
        {"first launch", &SweepJourney::launch},  {"adds with covers", &SweepJourney::add},
        {"edits", &SweepJourney::edit},           {"import", &SweepJourney::import},
        {"deletes", &SweepJourney::remove},       {"renames", &SweepJourney::rename},
        {"migration", &SweepJourney::open, true},
    };
    return all;
}

NSManagedObjectContext* SweepJourney::context() const
{
    return container ? &container->viewContext() : nullptr;
}

template <typename Work>
auto SweepJourney::secondTry(Work work)
{
    auto outcome = work();
    if (outcome)
        return outcome;
    onFailure();
    outcome = work();
    if (!outcome)
        throw std::runtime_error("refused: " + outcome.error().debugText().toStdString());
    return outcome;
}

void SweepJourney::open()
{
    container.reset();
    container =
        std::make_unique<NSPersistentContainer>(QStringLiteral("Marrowvale"), MarrowvaleModel::description());
    (void)secondTry([this] { return container->loadPersistentStores(directory); });
}

bool SweepJourney::save(bool survivesPowerLoss)
{
    onSaving(catalogue.lines());
    const bool saved = context()->save().ok();
    if (saved)
        onSaved(survivesPowerLoss);
    return saved;
}

void SweepJourney::settle()
{
    if (!container)
        open();
    onFailure();
    const auto title = QStringLiteral("Settled %1").arg(catalogue.films.size());
    context()->insert<Movies>()->setMovieName(title);
    catalogue.films[title] = {};
    if (!save())
        throw std::runtime_error("what was not saved can't be saved any more");
}

std::vector<std::shared_ptr<Movies>> SweepJourney::find(const QString& title)
{
    auto request = Movies::fetchRequest();
    request.predicate = NSPredicate(QStringLiteral("movieName == %@"), title);
    return secondTry([&] { return context()->fetch<Movies>(request); }).value();
}

void SweepJourney::launch()
{
    open();
    for (const auto* name : {"Action", "Comedy", "Drama"}) {
        context()->insert<Genres>()->setGenre(QString::fromLatin1(name));
        catalogue.genres << QString::fromLatin1(name);
    }
    save();
}

void SweepJourney::add()
{
    open();
    for (int number = 0; number < 5; ++number) {
        const auto title = filmTitle(number);
        const auto cover = coverOf(title, number * 3000);
        const auto movie = context()->insert<Movies>();
        movie->setMovieName(title);
        movie->setGenre(QStringLiteral("Drama"));
        movie->setYearReleased(static_cast<qint16>(1990 + number));
        movie->setFrontCover(cover);
        catalogue.films[title] = {QStringLiteral("Drama"), {}, 1990 + number, cover};
        save();
    }
}

// A long text, a cover in the place of another, and a cover taken away.
void SweepJourney::edit()
{
    open();
    for (const auto& movie : find(filmTitle(1))) {
        const QString notes(6000, QLatin1Char('n'));
        movie->setNotes(notes);
        catalogue.films[filmTitle(1)].notes = notes;
    }
    save();
    for (const auto& movie : find(filmTitle(2))) {
        const auto cover = coverOf(QStringLiteral("new"), 9000);
        movie->setFrontCover(cover);
        catalogue.films[filmTitle(2)].cover = cover;
    }
    save();
    for (const auto& movie : find(filmTitle(3))) {
        movie->setFrontCover(std::nullopt);
        movie->setGenre(std::nullopt);
        catalogue.films[filmTitle(3)].cover.reset();
        catalogue.films[filmTitle(3)].genre.reset();
    }
    save();
}

// As the import screen does it: with a second container over the store, each line into the one film of its
// title or into a new one, and saved on its own.
void SweepJourney::import()
{
    open();
    NSPersistentContainer second(QStringLiteral("Marrowvale"), MarrowvaleModel::description());
    (void)secondTry([&] { return second.loadPersistentStores(directory); });
    {
        const NSManagedObjectContext::BulkSaves run(*context());
        for (int line = 0; line < importedLines; ++line) {
            const auto title = line % 6 == 5 ? filmTitle(line / 6) : QStringLiteral("Line %1").arg(line);
            importLine(title, 2000 + line, coverOf(title, line % 4 * 700));
        }
    }
    if (!context()->hasChanges())
        onSaved(true);
    context()->insert<Movies>()->setMovieName(QStringLiteral("After the import"));
    catalogue.films[QStringLiteral("After the import")] = {};
    save();
}

void SweepJourney::importLine(const QString& title, int year, const QByteArray& cover)
{
    const auto found = find(title);
    const auto movie = found.empty() ? context()->insert<Movies>() : found.front();
    EXPECT_EQ(found.size(), catalogue.films.count(title)) << qPrintable(title);
    movie->setMovieName(title);
    movie->setYearReleased(static_cast<qint16>(year));
    movie->setFrontCover(cover);
    auto& film = catalogue.films[title];
    film.year = year;
    film.cover = cover;
    save(false);
}

void SweepJourney::remove()
{
    open();
    for (const int number : {0, 2, 4}) {
        for (const auto& movie : find(filmTitle(number)))
            context()->deleteObject(movie);
        catalogue.films.erase(filmTitle(number));
        save();
    }
}

void SweepJourney::rename()
{
    open();
    const auto genres = secondTry([this] { return context()->fetch<Genres>(Genres::fetchRequest()); });
    for (const auto& genre : genres.value()) {
        const auto renamed = genre->genre().value_or(QString()) + QStringLiteral(" (renamed)");
        catalogue.genres.removeOne(genre->genre().value_or(QString()));
        catalogue.genres << renamed;
        genre->setGenre(renamed);
        save();
    }
}
