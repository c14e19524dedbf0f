#include "platform/store/Migrations.h"
#include "model/AppDelegate.h"
#include "model/MarrowvaleModel.h"
#include "model/Movies.h"
#include "platform/store/Database.h"
#include "platform/store/StoreSchema.h"

#include <QDir>
#include <QFile>
#include <QRegularExpression>

namespace {

// What a database holds, whatever the white space of the statements that made it.
QStringList schemaOf(Database& database)
{
    QStringList parts;
    auto select = database.query("SELECT sql FROM sqlite_schema WHERE sql IS NOT NULL ORDER BY name");
    EXPECT_TRUE(select.forEachRow([&] {
        parts << QString::fromUtf8(select.text(0)).remove(QRegularExpression(QStringLiteral("\\s")));
    }));
    return parts;
}

// A file that the first version of the program made. Its imports stored absent numbers.
void makeFirstVersion()
{
    const auto directory = qEnvironmentVariable("XDG_DATA_HOME") + QStringLiteral("/marrowvale");
    QDir().mkpath(directory);
    const auto database =
        Database::open(directory + QStringLiteral("/Marrowvale.sqlite"), Database::Access::ReadWrite);
    QFile script(QStringLiteral(MARROWVALE_SOURCE_DIR "/tests/data/catalogue-version-1.sql"));
    ASSERT_TRUE(script.open(QFile::ReadOnly));
    auto statements = script.readAll().replace(";\n", QByteArray(1, '\0')).split('\0');
    statements.removeLast();
    for (const auto& statement : statements)
        ASSERT_TRUE(database.value()->run(statement)) << statement.constData();
}

std::vector<std::shared_ptr<Movies>> moviesWhere(const char* format, const NSPredicate::Argument& argument)
{
    NSFetchRequest request = Movies::fetchRequest();
    request.predicate = NSPredicate(QString::fromLatin1(format), argument);
    return AppDelegate::shared().persistentContainer().viewContext().fetch<Movies>(request).value();
}

} // namespace

TEST(MigrationsTest, LeadToTheFormThatTheEntitiesDescribe)
{
    const auto& model = MarrowvaleModel::description();
    const auto migrated = Database::open(QStringLiteral(":memory:"), Database::Access::ReadWrite);
    ASSERT_TRUE(migrate(*migrated.value(), model));
    const auto described = Database::open(QStringLiteral(":memory:"), Database::Access::ReadWrite);
    for (const auto& statement : createStatements(model.entities))
        ASSERT_TRUE(described.value()->run(statement)) << statement.constData();
    EXPECT_EQ(schemaOf(*migrated.value()), schemaOf(*described.value()));
}

TEST(MigrationsTest, BringTheFirstVersionsCatalogueForward)
{
    makeFirstVersion();
    const AppDelegate delegate;
    // Four were made by lines without a year, and one lost its year.
    EXPECT_EQ(moviesWhere("yearReleased == %@", qint64(0)).size(), 6U);
    EXPECT_EQ(moviesWhere("runTime == %@", qint64(0)).size(), 7U);
    const auto ran = moviesWhere("movieName == %@", QStringLiteral("Ran"));
    ASSERT_EQ(ran.size(), 1U);
    EXPECT_EQ(ran.front()->notes(), QStringLiteral("one\ntwo"));
    EXPECT_EQ(ran.front()->dateWatched(), QDateTime(QDate(2020, 5, 3), QTime(20, 0), Qt::UTC));
    EXPECT_EQ(ran.front()->runTime(), 162);
    EXPECT_EQ(ran.front()->wYear(), 2020);
    EXPECT_FALSE(ran.front()->producers());
    for (const auto* name : {"Ran", "Alien", "Up"}) {
        const auto movie = moviesWhere("movieName == %@", QString::fromLatin1(name)).front();
        EXPECT_TRUE(movie->frontCover().value_or(QByteArray()).startsWith("\xff\xd8")) << name;
    }
    const auto solaris = moviesWhere("movieName == %@", QStringLiteral("Solaris")).front();
    solaris->setFrontCover(QByteArray("new"));
    auto& context = AppDelegate::shared().persistentContainer().viewContext();
    ASSERT_TRUE(context.save());
    context.deleteObject(ran.front());
    ASSERT_TRUE(context.save());
    const auto path = qEnvironmentVariable("XDG_DATA_HOME") + QStringLiteral("/marrowvale/Marrowvale.sqlite");
    const auto database = Database::open(path, Database::Access::ReadWrite);
    EXPECT_EQ(database.value()->number("SELECT COUNT(*) FROM Movies_frontCover").value(), 3)
        << "a cover goes with its movie";
}
