#include "platform/store/BackupThinning.h"

#include <QTimeZone>
#include <algorithm>
#include <array>
#include <set>

namespace {

constexpr std::size_t mostRecent = 20;
constexpr int safeDays = 30;

using Span = std::pair<int, int>;

Span dayOf(const QDate& date)
{
    return {date.year(), date.dayOfYear()};
}

Span weekOf(const QDate& date)
{
    int year = 0;
    const int week = date.weekNumber(&year);
    return {year, week};
}

Span monthOf(const QDate& date)
{
    return {date.year(), date.month()};
}

// Keeps the first copy of each span of time that has none, as long as there is room.
struct Rota
{
    Span (*spanOf)(const QDate&);
    std::size_t room;
    std::set<Span> covered{};
};

// Sees the copies that count from the newest to the oldest.
class Keeping
{
public:
    explicit Keeping(const QDate& today)
        : yesterday(today.addDays(-1))
    {
    }

    [[nodiscard]] bool keeps(const QDate& date)
    {
        const bool isKept = isRecent(date) || hasRoomFor(date);
        if (isKept)
            cover(date);
        return isKept;
    }

private:
    [[nodiscard]] bool isRecent(const QDate& date)
    {
        if (date < yesterday || recent == mostRecent)
            return false;
        ++recent;
        return true;
    }
    // Weeks begin to count where the days are full, months where the weeks are.
    [[nodiscard]] bool hasRoomFor(const QDate& date)
    {
        const auto rota =
            std::find_if(rotas.begin(), rotas.end(), [](const Rota& one) { return one.room > 0; });
        if (rota == rotas.end() || rota->covered.contains(rota->spanOf(date)))
            return false;
        --rota->room;
        return true;
    }
    void cover(const QDate& date)
    {
        for (Rota& rota : rotas)
            rota.covered.insert(rota.spanOf(date));
    }

    QDate yesterday;
    std::size_t recent = 0;
    std::array<Rota, 3> rotas{{{dayOf, 12}, {weekOf, 10}, {monthOf, 9}}};
};

bool isOutsideTheCount(const BackupName& backup, const QDateTime& now)
{
    const bool isPrecaution =
        backup.reason == BackupReason::BeforeMigration || backup.reason == BackupReason::BeforeRestore;
    return backup.moment > now || (isPrecaution && backup.moment > now.addDays(-safeDays));
}

} // namespace

std::vector<BackupName> expiredBackups(std::vector<BackupName> backups, const QDateTime& now,
                                       const QTimeZone& zone)
{
    std::erase_if(backups, [&](const BackupName& backup) { return isOutsideTheCount(backup, now); });
    std::sort(backups.begin(), backups.end(),
              [](const BackupName& one, const BackupName& other) { return one.moment > other.moment; });
    Keeping keeping(now.toTimeZone(zone).date());
    std::vector<BackupName> expired;
    for (const BackupName& backup : backups) {
        if (!keeping.keeps(backup.moment.toTimeZone(zone).date()))
            expired.push_back(backup);
    }
    return expired;
}
