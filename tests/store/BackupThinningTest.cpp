#include "platform/store/BackupThinning.h"

#include <QTimeZone>
#include <gmock/gmock.h>

namespace {

const QTimeZone berlin("Europe/Berlin");

QDateTime at(const QString& text)
{
    return QDateTime::fromString(text, Qt::ISODate).toUTC();
}

BackupName copyOf(const QString& moment, BackupReason reason = BackupReason::Automatic)
{
    return {at(moment), reason};
}

TEST(BackupNameTest, OnlyTheExactNameIsABackups)
{
    const QString name = "2026-11-24T04-04-39.123Z-before-import.sqlite";
    const auto backup = BackupName::parse(name);
    ASSERT_TRUE(backup);
    EXPECT_EQ(backup->moment, QDateTime(QDate(2026, 11, 24), QTime(4, 4, 39, 123), Qt::UTC));
    EXPECT_EQ(backup->reason, BackupReason::BeforeImport);
    for (const char* foreign :
         {"", "Marrowvale.sqlite", "2026-11-24T04-04-39.123Z.sqlite",
          "2026-11-24T04-04-39.123Z-before-import.SQLITE",
          "2026-11-24T04-04-39.123Z-before-import.sqlite.part",
          " 2026-11-24T04-04-39.123Z-before-import.sqlite", "2026-02-30T04-04-39.123Z-automatic.sqlite",
          "2026-11-24T04-04-39.12Z-automatic.sqlite", "2026-11-24T24-04-39.123Z-automatic.sqlite",
          "26-011-24T04-04-39.123Z-automatic.sqlite", "2026-11-24T04:04:39.123Z-automatic.sqlite",
          "2026-11-24T04-04-39.123Z-mine.sqlite", "+026-11-24T04-04-39.123Z-automatic.sqlite",
          "2026-11-24T04-04-39.123Z-automatic.sqlite (1)"})
        EXPECT_FALSE(BackupName::parse(foreign)) << foreign;
}

struct Thinned
{
    const char* what;
    QDateTime now;
    std::vector<BackupName> backups;
    // The first this many of `backups` stay.
    std::size_t kept;
};

std::vector<BackupName> every(std::chrono::minutes step, const QDateTime& last, int count)
{
    std::vector<BackupName> backups;
    backups.reserve(static_cast<std::size_t>(count));
    for (std::int64_t index = 0; index < count; ++index)
        backups.push_back({last.addSecs(-index * 60 * step.count()), BackupReason::Automatic});
    return backups;
}

using namespace std::chrono_literals;

const Thinned table[] = {
    {"nothing", at("2026-11-24T12:00:00Z"), {}, 0},
    {"today's twenty", at("2026-11-24T12:00:00Z"), every(1min, at("2026-11-24T11:00:00Z"), 25), 20},
    {"yesterday's last is kept although today has twenty", at("2026-11-24T12:00:00Z"),
     every(33min, at("2026-11-24T09:59:00Z"), 22), 21},
    {"thirteen in one day last week leave one", at("2026-11-24T12:00:00Z"),
     every(10min, at("2026-11-18T12:00:00Z"), 13), 1},
    {"an absence removes nothing of twelve days", at("2036-11-24T12:00:00Z"),
     every(24h, at("2026-11-18T12:00:00Z"), 12), 12},
    {"a day in summer time that ends at 22:00 UTC",
     at("2026-07-10T12:00:00Z"),
     {copyOf("2026-07-01T22:30:00Z"), copyOf("2026-07-01T21:30:00Z"), copyOf("2026-06-30T22:10:00Z")},
     2},
    {"the 25 hours of the day on which summer time ends",
     at("2026-11-10T12:00:00Z"),
     {copyOf("2026-10-25T22:59:00Z"), copyOf("2026-10-24T22:01:00Z")},
     1},
    {"a clock set back removes nothing of the time that was", at("2026-01-01T12:00:00Z"),
     every(1min, at("2026-11-24T11:00:00Z"), 25), 25},
    {"precautions stay for thirty days beside the twenty",
     at("2026-11-24T12:00:00Z"),
     {copyOf("2026-10-26T12:00:00Z", BackupReason::BeforeRestore),
      copyOf("2026-10-26T11:00:00Z", BackupReason::BeforeMigration), copyOf("2026-10-26T10:00:00Z"),
      copyOf("2026-10-26T09:00:00Z", BackupReason::BeforeImport)},
     3},
    {"precautions count after thirty days",
     at("2026-11-24T12:00:00Z"),
     {copyOf("2026-10-24T12:00:00Z", BackupReason::BeforeRestore),
      copyOf("2026-10-24T11:00:00Z", BackupReason::BeforeMigration)},
     1},
};

TEST(BackupThinningTest, KeepsWhatTheTableSays)
{
    for (const Thinned& row : table) {
        const std::vector expected(row.backups.begin() + static_cast<std::ptrdiff_t>(row.kept),
                                   row.backups.end());
        std::vector shuffled(row.backups.rbegin(), row.backups.rend());
        EXPECT_THAT(expiredBackups(shuffled, row.now, berlin), testing::UnorderedElementsAreArray(expected))
            << row.what;
    }
}

// How old the oldest copy is that a user of so many days has, and the widest gap beyond the last two days.
struct Reach
{
    qint64 days = 0;
    double widestGap = 0;
};

Reach reachOf(const std::vector<BackupName>& backups, const QDateTime& now)
{
    Reach reach;
    for (std::size_t index = 0; index < backups.size(); ++index) {
        const qint64 age = backups[index].moment.daysTo(now);
        reach.days = std::max(reach.days, age);
        if (index > 0 && age > 0)
            reach.widestGap =
                std::max(reach.widestGap, double(backups[index].moment.daysTo(backups[index - 1].moment)) /
                                              std::max<double>(1, double(age)));
    }
    return reach;
}

TEST(BackupThinningTest, TwoYearsOfDailyUseLeaveAYearInEverWiderSteps)
{
    std::vector<BackupName> backups;
    QDateTime now = at("2024-11-24T07:00:00Z");
    for (int day = 0; day < 730; ++day) {
        const bool isOnHoliday = day % 97 < 9;
        for (int use = 0; use < (isOnHoliday ? 0 : 1 + day % 7); ++use) {
            backups.insert(backups.begin(), {now.addSecs(qint64{use} * 1800), BackupReason::Automatic});
            const auto newest = backups.front();
            for (const BackupName& expired : expiredBackups(backups, newest.moment, berlin))
                std::erase(backups, expired);
            ASSERT_EQ(backups.front(), newest);
            ASSERT_LE(backups.size(), 20U + 12 + 10 + 9);
        }
        now = now.addDays(1);
    }
    const Reach reach = reachOf(backups, now);
    EXPECT_GT(reach.days, 330);
    EXPECT_LT(reach.widestGap, 0.8);
    EXPECT_GE(backups.size(), 12U + 10 + 9);
}

} // namespace
