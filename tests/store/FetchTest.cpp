#include "tests/store/TestStore.h"

#include <gtest/gtest.h>

namespace {

NSFetchRequest sortedBy(const char* key, bool ascending)
{
    auto request = Films::fetchRequest();
    request.sortDescriptors = {{QString::fromUtf8(key), ascending}};
    return request;
}

QString titlesBy(TestStore& store, const NSFetchRequest& request)
{
    return titlesOf(store.context->fetch<Films>(request).value());
}

TEST(Fetch, sortsByCodePointWithAbsentFirstAndTiesInOrder)
{
    TestStore store;
    store.add(QStringLiteral("b"), 2, QStringLiteral("x"));
    store.add(QStringLiteral("B"), -1, QStringLiteral("x"));
    store.add({}, 3, QStringLiteral("x"));
    store.add(QString::fromUtf8("\xF0\x9F\x8E\xAC"), 2,
              QStringLiteral("y"));                  // beyond the first 65536 code points
    store.add(QString::fromUtf8("\xEF\xBF\xBD"), 2); // just below them
    store.add(QString(), 0);
    const auto expect = [&](const NSFetchRequest& request, const char* titles) {
        EXPECT_EQ(titlesBy(store, request).toStdString(), titles);
    };
    const auto untitled = QStringLiteral("(none)");
    expect(sortedBy("title", true), "(none)  B b \xEF\xBF\xBD \xF0\x9F\x8E\xAC");
    expect(sortedBy("title", false), "\xF0\x9F\x8E\xAC \xEF\xBF\xBD b B  (none)");
    expect(sortedBy("year", true), "B  b \xF0\x9F\x8E\xAC \xEF\xBF\xBD (none)");
    expect(sortedBy("year", false), "(none) \xEF\xBF\xBD \xF0\x9F\x8E\xAC b  B");
    auto twoKeys = sortedBy("genre", false);
    twoKeys.sortDescriptors.push_back({QStringLiteral("title"), true});
    expect(twoKeys, "\xF0\x9F\x8E\xAC (none) B b  \xEF\xBF\xBD");
    expect(Films::fetchRequest(), "b B (none) \xF0\x9F\x8E\xAC \xEF\xBF\xBD ");
}

// However many objects are in memory, and so whichever way is taken, the records and their order are the
// same.
TEST(Fetch, answersTheSameObjectsInTheSameOrderWhateverIsHeld)
{
    TestStore store;
    for (int number = 0; number < 200; ++number)
        store.add(QString::number(number * 7919 % 200), static_cast<qint16>(number % 10));
    ASSERT_TRUE(store.context->save());
    const auto request = sortedBy("title", false);
    const auto titles = titlesBy(store, request);
    for (const auto heldCount : {0U, 1U, 70U, 150U, 200U}) {
        store.reopen();
        auto held = store.all();
        held.resize(heldCount);
        const auto fetched = store.context->fetch<Films>(request).value();
        EXPECT_EQ(titlesOf(fetched), titles) << heldCount;
        for (const auto& film : held)
            EXPECT_EQ(std::count(fetched.begin(), fetched.end(), film), 1) << heldCount;
    }
}

TEST(Fetch, objectsOutliveTheirContext)
{
    auto store = std::make_unique<TestStore>();
    const auto waiting = store->add(QStringLiteral("waiting"));
    store.reset();
    waiting->setText(Films::Title, QStringLiteral("changed"));
    EXPECT_EQ(waiting->title(), QStringLiteral("waiting"));
}

} // namespace
