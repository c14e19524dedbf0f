#pragma once

#include "platform/store/Database.h"
#include "platform/store/NSPersistentContainer.h"
#include "platform/store/StoreFile.h"
#include "platform/store/StoreSchema.h"

#include <QDir>

class Films : public NSManagedObject
{
public:
    using NSManagedObject::NSManagedObject;
    enum Attribute { Title, Year, Seen, Cover, Genre };

    static QString entityName() { return QStringLiteral("Films"); }
    static NSFetchRequest fetchRequest() { return NSFetchRequest(entityName()); }
    [[nodiscard]] QString title() const { return text(Title).value_or(QStringLiteral("(none)")); }
};

class Tags : public NSManagedObject
{
public:
    using NSManagedObject::NSManagedObject;
    static QString entityName() { return QStringLiteral("Tags"); }
};

using FilmList = std::vector<std::shared_ptr<Films>>;

inline const QDateTime defaultSeen = QDateTime::fromMSecsSinceEpoch(978307200000, Qt::UTC);

inline const NSManagedObjectModel& testModel()
{
    static const auto model = [] {
        NSEntityDescription films{
            QStringLiteral("Films"),
            {{QStringLiteral("title"), AttributeType::Text, {}},
             {QStringLiteral("year"), AttributeType::Int16, {}},
             {QStringLiteral("seen"), AttributeType::Date, defaultSeen},
             {QStringLiteral("cover"), AttributeType::Binary, {}},
             {QStringLiteral("genre"), AttributeType::Text, {}}},
            {{QStringLiteral("title")}, {QStringLiteral("genre"), QStringLiteral("title")}},
            &makeManagedObject<Films>};
        NSEntityDescription tags{QStringLiteral("Tags"),
                                 {{QStringLiteral("label"), AttributeType::Text, {}}},
                                 {},
                                 &makeManagedObject<Tags>};
        NSManagedObjectModel built{0x54455354, {films, tags}, {}};
        built.migrations.push_back({QStringLiteral("create films"), createStatements(built.entities)});
        return built;
    }();
    return model;
}

// A store in the test's own home directory, and a second connection that sees what was saved.
class TestStore
{
public:
    TestStore() { reopen(); }

    static QString directory() { return qEnvironmentVariable("XDG_DATA_HOME") + QStringLiteral("/films"); }
    static QString path() { return directory() + QStringLiteral("/Films.sqlite"); }

    std::shared_ptr<Films> add(std::optional<QString> title, qint16 year = 0,
                               std::optional<QString> genre = {})
    {
        auto film = context->insert<Films>();
        film->setText(Films::Title, std::move(title));
        film->setInt16(Films::Year, year);
        film->setText(Films::Genre, std::move(genre));
        return film;
    }

    FilmList all() { return context->fetch<Films>(Films::fetchRequest()).value(); }
    void reopen()
    {
        context.reset();
        context = std::make_unique<NSManagedObjectContext>(testModel(), open());
    }
    // Asks on a connection of its own: nothing unsaved counts.
    static qint64 saved(const QByteArray& sql)
    {
        return Database::open(path(), Database::Access::ReadWrite).value()->number(sql).value();
    }

    std::unique_ptr<NSManagedObjectContext> context;
    // The context's own connection.
    Database* connection = nullptr;

private:
    std::unique_ptr<Database> open()
    {
        auto opened = openStoreFile(path(), testModel());
        connection = opened.value().get();
        return std::move(opened).value();
    }
};

inline QString titlesOf(const FilmList& films)
{
    QStringList titles;
    for (const auto& film : films)
        titles << film->title();
    return titles.join(QLatin1Char(' '));
}
