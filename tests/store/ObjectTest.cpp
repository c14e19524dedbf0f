#include "tests/store/TestStore.h"

#include <QTimeZone>
#include <gtest/gtest.h>

namespace {

TEST(NSManagedObject, startsWithItsDefaults)
{
    TestStore store;
    const auto film = store.context->insert<Films>();
    EXPECT_EQ(film->text(Films::Title), std::nullopt);
    EXPECT_EQ(film->valueForKey(QStringLiteral("year")), AttributeValue(qint16{0}));
    EXPECT_EQ(film->date(Films::Seen), defaultSeen);
    EXPECT_EQ(film->binary(Films::Cover), std::nullopt);
    EXPECT_TRUE(store.context->hasChanges());
}

TEST(NSManagedObject, keepsEveryValueThroughTheStore)
{
    const auto moment = QDateTime(QDate(2021, 3, 5), QTime(20, 15, 0, 123), QTimeZone("America/New_York"));
    const std::pair<const char*, AttributeValue> cases[] = {
        {"title", QStringLiteral("Am\u00e9lie \U0001F3AC\n^'\"")},
        {"title", QString(QChar(0)) + QStringLiteral("after")},
        {"title", QString()},
        {"title", {}},
        {"year", std::numeric_limits<qint16>::min()},
        {"year", std::numeric_limits<qint16>::max()},
        {"seen", moment},
        {"seen", QDateTime::fromMSecsSinceEpoch(-1, Qt::UTC)},
        {"seen", {}},
        {"cover", QByteArray("\0\xff", 2)},
        {"cover", QByteArray()},
        {"cover", {}},
    };
    for (const auto& [name, value] : cases) {
        TestStore store;
        const auto key = QString::fromUtf8(name);
        const auto film = store.context->insert<Films>();
        film->setBinary(Films::Cover, QByteArray("old"));
        film->setValueForKey(value, key);
        EXPECT_EQ(film->valueForKey(key), value) << name;
        ASSERT_TRUE(store.context->save());
        EXPECT_EQ(film->valueForKey(key), value) << name;
        store.reopen();
        const auto read = store.all().front();
        EXPECT_EQ(read->valueForKey(key), value) << name;
        read->setText(Films::Genre, QStringLiteral("unpacked"));
        EXPECT_EQ(read->valueForKey(key), value) << name;
        ASSERT_TRUE(store.context->save());
        store.reopen();
        EXPECT_EQ(store.all().front()->valueForKey(key), value) << name;
        store.context->deleteObject(store.all().front());
        ASSERT_TRUE(store.context->save());
    }
}

TEST(NSManagedObject, readsANumberWithoutValueAsZeroAndAnInvalidDateAsNone)
{
    TestStore store;
    const auto film = store.context->insert<Films>();
    film->setInt16(Films::Year, {});
    film->setDate(Films::Seen, QDateTime());
    EXPECT_EQ(film->int16(Films::Year), 0);
    EXPECT_EQ(film->valueForKey(QStringLiteral("seen")), AttributeValue());
    store.add({}, 1979)->setValueForKey(AttributeValue(), QStringLiteral("year"));
    auto request = Films::fetchRequest();
    request.predicate = NSPredicate(QStringLiteral("year == %@"), qint64(0));
    EXPECT_EQ(store.context->count(request).value(), 2) << "zero for queries, too";
}

TEST(NSManagedObject, leavesBinaryValuesInTheStoreUntilAskedFor)
{
    TestStore store;
    store.context->insert<Films>()->setBinary(Films::Cover, QByteArray("first"));
    ASSERT_TRUE(store.context->save());
    store.reopen();
    const auto film = store.all().front();
    EXPECT_EQ(TestStore::saved("UPDATE Films_cover SET cover = x'6e6577' RETURNING 1"), 1);
    EXPECT_EQ(film->binary(Films::Cover), QByteArray("new"));
    film->setBinary(Films::Cover, QByteArray("unsaved"));
    EXPECT_EQ(film->binary(Films::Cover), QByteArray("unsaved"));
    EXPECT_EQ(TestStore::saved("SELECT COUNT(*) FROM Films_cover WHERE cover = x'6e6577'"), 1);
}

TEST(NSManagedObject, isNotChangedByTheValueItHas)
{
    TestStore store;
    store.add(QStringLiteral("Alien"), 1979);
    ASSERT_TRUE(store.context->save());
    store.reopen();
    const auto film = store.all().front();
    film->setText(Films::Title, QStringLiteral("Alien"));
    film->setInt16(Films::Year, 1979);
    film->setDate(Films::Seen, defaultSeen.toLocalTime());
    film->setText(Films::Genre, {});
    EXPECT_FALSE(store.context->hasChanges());
    film->setText(Films::Genre, QString());
    EXPECT_TRUE(store.context->hasChanges());
}

TEST(NSManagedObjectDeathTest, keysAndTypesAreTheModels)
{
    TestStore store;
    const auto film = store.context->insert<Films>();
    EXPECT_DEATH((void)film->valueForKey(QStringLiteral("Title")), "key Title");
    EXPECT_DEATH(film->setValueForKey({}, QStringLiteral("stars")), "key stars");
    EXPECT_DEATH(film->setValueForKey(QStringLiteral("1979"), QStringLiteral("year")), "attribute year");
}

} // namespace
