#include "tests/store/TestStore.h"

#include <csignal>
#include <gtest/gtest.h>
#include <sys/wait.h>
#include <unistd.h>

namespace {

constexpr int filmsPerSave = 3;

qint16 latestYear(NSManagedObjectContext& context)
{
    auto request = Films::fetchRequest();
    request.sortDescriptors = {{QStringLiteral("year"), false}};
    const auto films = context.fetch<Films>(request).value();
    return films.empty() ? qint16{0} : films.front()->int16(Films::Year);
}

// Saves generation after generation of films, marked by their year, and says so after each, until it is
// killed.
[[noreturn]] void saveUntilKilled(int acknowledgements, bool isBulk)
{
    NSPersistentContainer container(QStringLiteral("Films"), testModel());
    if (!container.loadPersistentStores())
        ::_exit(1);
    auto& context = container.viewContext();
    std::optional<NSManagedObjectContext::BulkSaves> bulk;
    if (isBulk)
        bulk.emplace(context);
    for (auto year = latestYear(context);;) {
        ++year;
        for (int number = 0; number < filmsPerSave; ++number) {
            const auto film = context.insert<Films>();
            film->setInt16(Films::Year, year);
            film->setBinary(Films::Cover, QByteArray(3000, 'x'));
            (void)context.count(Films::fetchRequest()).ok();
        }
        if (!context.save() || ::write(acknowledgements, &year, sizeof year) != sizeof year)
            ::_exit(1);
    }
}

// The last generation that the killed process said it had saved; `known` when it said nothing.
qint16 lastAcknowledged(int acknowledgements, qint16 known)
{
    qint16 year = 0;
    while (::read(acknowledgements, &year, sizeof year) == sizeof year)
        known = year;
    return known;
}

// Kills a saving process after a while, which starts at once or with its first save; the last acknowledged
// year.
qint16 killWhileSaving(int round, qint16 known)
{
    int ends[2] = {};
    if (::pipe(ends) != 0)
        return known;
    const auto saver = ::fork();
    if (saver == 0) {
        ::close(ends[0]);
        saveUntilKilled(ends[1], round % 4 >= 2);
    }
    ::close(ends[1]);
    if (round % 2 == 0)
        (void)(::read(ends[0], &known, sizeof known) == sizeof known);
    ::usleep(static_cast<useconds_t>(round * 37 % 100) * 100);
    ::kill(saver, SIGKILL);
    int status = 0;
    ::waitpid(saver, &status, 0);
    EXPECT_TRUE(WIFSIGNALED(status)) << "it stopped by itself";
    known = lastAcknowledged(ends[0], known);
    ::close(ends[0]);
    return known;
}

TEST(Kill, leavesEverySaveWholeAndEveryAcknowledgedSaveThere)
{
    constexpr int rounds = 100;
    constexpr int roundsPerFile = 20;
    qint16 acknowledged = 0;
    for (int round = 0; round < rounds; ++round) {
        if (round % roundsPerFile == 0) {
            QDir(TestStore::directory()).removeRecursively();
            acknowledged = 0;
        }
        acknowledged = killWhileSaving(round, acknowledged);
        ASSERT_TRUE(openStoreFile(TestStore::path(), testModel())) << round;
        const auto films = TestStore::saved("SELECT COUNT(*) FROM Films");
        const auto latest = TestStore::saved("SELECT COALESCE(MAX(year), 0) FROM Films");
        EXPECT_GE(latest, acknowledged) << round;
        EXPECT_LE(latest, acknowledged + 1) << round;
        EXPECT_EQ(films, latest * filmsPerSave) << round;
        EXPECT_EQ(TestStore::saved("SELECT COUNT(*) FROM Films_cover"), films) << round;
        EXPECT_EQ(
            TestStore::saved("SELECT COUNT(*) FROM pragma_integrity_check WHERE integrity_check = 'ok'"), 1);
        acknowledged = static_cast<qint16>(latest);
    }
    EXPECT_GE(acknowledged, roundsPerFile / 2) << "half of the rounds wait for a save";
}

} // namespace
