#include "exchange/TextFile.h"
#include "platform/store/Database.h"
#include "summaries/GroupScreens.h"
#include "summaries/GroupTabBarController.h"
#include "summaries/GroupTableViewCell.h"
#include "tests/exchange/ImportFixture.h"

namespace {

class RealGroupsTest : public ImportTest
{
protected:
    // Every film watched on another day, from 1995 on.
    static void watchAll()
    {
        qint64 day = 0;
        for (const auto& movie : storedMovies())
            movie->setDateWatched(QDateTime(QDate(1995, 1, 1).addDays(5 * ++day), QTime(12, 0)));
        EXPECT_TRUE(context().save().ok());
    }

    static QStringList queried(const QByteArray& sql)
    {
        const QString path = qEnvironmentVariable("XDG_DATA_HOME") + "/marrowvale/Marrowvale.sqlite";
        const auto connection = Database::open(path, Database::Access::ReadWrite).value();
        Query query = connection->query(sql);
        QStringList rows;
        EXPECT_TRUE(query.forEachRow([&] { rows.append(QString::fromUtf8(query.text(0))); }).ok());
        return rows;
    }

    static QByteArray countsBy(const QByteArray& column)
    {
        return "SELECT " + column + " || ' ' || count(*) FROM Movies WHERE " + column +
               " IS NOT NULL GROUP BY " + column + " ORDER BY " + column;
    }

    // A row for each month, which tells and counts its year.
    static QByteArray countsByMonth()
    {
        const QByteArray dates =
            "(SELECT *, strftime('%Y', dateWatched / 1000, 'unixepoch', 'localtime') AS year, "
            "strftime('%m', dateWatched / 1000, 'unixepoch', 'localtime') AS month FROM Movies)";
        return "SELECT year || ' ' || (SELECT count(*) FROM " + dates +
               " AS other WHERE other.year = shown.year) FROM " + dates +
               " AS shown GROUP BY year, month ORDER BY year, month";
    }

    QStringList shown(UITabBarController& tabs, int tab)
    {
        tabs.setSelectedIndex(tab);
        auto& screen = static_cast<GroupTableViewController&>(*tabs.stack(tab)->topViewController());
        QStringList rows;
        for (int row = 0; row < screen.tableView()->rowCount(); ++row) {
            const auto cell = screen.cellForRowAt({row}).value<GroupTableViewCell>();
            rows.append(cell.MovieNameLabel.text + " " + cell.CountLabel.text);
        }
        return rows;
    }
};

TEST_F(RealGroupsTest, AreThoseThatTheStoreItselfCounts)
{
    importText(textOfFile(MARROWVALE_SOURCE_DIR "/tests/data/Marrowvale.csv").value());
    watchAll();
    auto bar = std::make_unique<GroupTabBarController>();
    UITabBarController& tabs = *bar;
    navigation.push(std::move(bar));
    const QByteArray groupings[] = {
        countsBy("genre"),    countsBy("coalesce(yearReleased, 0)"), countsByMonth(), countsBy("rating"),
        countsBy("provider"),
    };
    for (int tab = 0; tab < tabs.tabCount(); ++tab) {
        const QStringList expected = queried(groupings[tab]);
        EXPECT_GT(expected.size(), 5) << "tab " << tab;
        EXPECT_EQ(shown(tabs, tab), expected) << "tab " << tab;
    }
}

} // namespace
