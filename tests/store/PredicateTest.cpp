#include "tests/store/TestStore.h"

#include <QTimeZone>
#include <gtest/gtest.h>

namespace {

struct PredicateCase
{
    const char* format;
    NSPredicate::Argument argument;
    const char* titles;
};

NSPredicate::Argument words(const char* text)
{
    return QString::fromUtf8(text);
}

TEST(NSPredicate, matchesRecordsByOneComparison)
{
    TestStore store;
    store.add(QStringLiteral("Alien"), 1979, QStringLiteral("Horror"));
    store.add(QStringLiteral("Brazil"), 1985, QStringLiteral("Comedy"));
    store.add(QStringLiteral("Clue"), 0, QStringLiteral("Comedy"));
    store.add(QStringLiteral("12"), -3, QString());
    const auto bare = store.add({}, 1985);
    bare->setDate(Films::Seen, defaultSeen.addMSecs(1));
    const auto yearless = store.add(QStringLiteral("Dune"));
    yearless->setValueForKey({}, QStringLiteral("year"));
    yearless->setDate(Films::Seen, {});

    const PredicateCase cases[] = {
        {"title == %@", words("Alien"), "Alien"},
        {"title = %@", words("alien"), ""},
        {"%@=genre", words("Comedy"), "Brazil Clue"},
        {" genre==%@ ", words(""), "12"},
        {"genre != %@", words("Comedy"), "Alien 12"},
        {"title >= %@", words("Brazil"), "Brazil Clue Dune"},
        {"title == %@", qint64{12}, "12"},
        {"title == %@", words("' OR 1 --"), ""},
        {"year == %@", qint64{1985}, "Brazil (none)"},
        {"year == %@", words("1985"), "Brazil (none)"},
        {"year == %@", words("1979x"), "Alien"},
        {"year == %@", words("+1979"), "Alien"},
        {"year == %@", words("-3 and more"), "12"},
        {"year == %@", words("abc"), "Clue Dune"},
        {"year == %@", words("-"), "Clue Dune"},
        {"year == %@", words(""), ""},
        {"year != %@", words(""), ""},
        {"year >= %@", words(""), ""},
        {"year < %@", words("99999999999999999999999"), "Alien Brazil Clue 12 (none) Dune"},
        {"year > %@", words("-99999999999999999999999"), "Alien Brazil Clue 12 (none) Dune"},
        {"%@ < year", qint64{1979}, "Brazil (none)"},
        {"%@ >= year", qint64{0}, "Clue 12 Dune"},
        {"year <= %@", qint64{1979}, "Alien Clue 12 Dune"},
        {"seen > %@", defaultSeen, "(none)"},
        {"seen <= %@", defaultSeen.toTimeZone(QTimeZone("Asia/Tokyo")), "Alien Brazil Clue 12"},
        {"seen != %@", QDateTime(), ""},
    };
    for (const auto& [format, argument, titles] : cases) {
        auto request = Films::fetchRequest();
        request.predicate = NSPredicate(QString::fromUtf8(format), argument);
        const auto found = store.context->fetch<Films>(request).value();
        EXPECT_EQ(titlesOf(found).toStdString(), titles) << format;
        EXPECT_EQ(store.context->count(request).value(), static_cast<qsizetype>(found.size())) << format;
    }
}

TEST(NSPredicateDeathTest, programmingErrorsEndTheProgramAndSayWhich)
{
    for (const auto* format : {"title LIKE %@", "title == 'x'", "title === %@", "%@ == %@", "! %@", ""}) {
        EXPECT_DEATH(NSPredicate(QString::fromUtf8(format), qint64{1}), "Unable to parse the format string")
            << format;
    }
    TestStore store;
    const auto fetching = [&](const char* format, const NSPredicate::Argument& argument) {
        auto request = Films::fetchRequest();
        request.predicate = NSPredicate(QString::fromUtf8(format), argument);
        (void)store.context->count(request).ok();
    };
    EXPECT_DEATH(fetching("stars == %@", qint64{1}), "attribute stars .* entity Films");
    EXPECT_DEATH(fetching("cover == %@", words("x")), "attribute cover .* entity Films");
    EXPECT_DEATH(fetching("seen == %@", words("2001")), "attribute seen .* entity Films");
    EXPECT_DEATH(fetching("title == %@", defaultSeen), "attribute title .* entity Films");
}

} // namespace
