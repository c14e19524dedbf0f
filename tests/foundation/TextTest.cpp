#include "platform/foundation/Text.h"
#include "platform/foundation/Console.h"
#include "platform/foundation/LowerCaseSearch.h"
#include "platform/foundation/Result.h"

TEST(Text, TrimmingTakesBlanksAndTabsAtTheEndsOnly)
{
    const std::pair<QString, QString> cases[] = {
        {QStringLiteral(" \t a \t b \t "), QStringLiteral("a \t b")},
        {QStringLiteral(" \n a \n "), QStringLiteral("\n a \n")},
        {QStringLiteral("\u00a0a\u2003"), QStringLiteral("\u00a0a\u2003")},
        {QStringLiteral(" \t "), QString()},
        {QString(), QString()},
    };
    for (const auto& [given, wanted] : cases)
        EXPECT_EQ(trimmingWhitespace(given), wanted) << given.toStdString();
}

TEST(Text, Int16ReadsAWholeSignedDecimalInRange)
{
    const std::pair<const char*, std::optional<qint16>> cases[] = {
        {"0", 0},
        {"1994", 1994},
        {"+7", 7},
        {"-7", -7},
        {"007", 7},
        {"32767", 32767},
        {"-32768", -32768},
        {"32768", {}},
        {"-32769", {}},
        {"", {}},
        {"+", {}},
        {"-", {}},
        {"+-1", {}},
        {"1.5", {}},
        {" 1", {}},
        {"1,000", {}},
        {"\u0661\u0662", {}},
    };
    for (const auto& [text, wanted] : cases)
        EXPECT_EQ(int16From(QString::fromUtf8(text)), wanted) << text;
}

TEST(NSError, DebugTextListsTheUserInfo)
{
    EXPECT_EQ((NSError{QStringLiteral("No room"), {}}).debugText(), QStringLiteral("No room, {}"));
    const NSError error{QStringLiteral("No room"),
                        {{QStringLiteral("code"), 13}, {QStringLiteral("path"), QStringLiteral("/a")}}};
    EXPECT_EQ(error.debugText(), QStringLiteral("No room, {code = 13; path = /a}"));
}

TEST(ConsoleDeathTest, FatalErrorTellsWhyAndAborts)
{
    EXPECT_EXIT(fatalError(QStringLiteral("caf\u00e9")), testing::KilledBySignal(SIGABRT),
                "(^|\n)Fatal error: caf\u00e9\n$");
}

TEST(LowerCaseSearch, FindsTheSameInUtf8AsInLowerCasedStrings)
{
    const QStringList texts{"Midnight in Paris", "MIDNIGHT", "",          "Amélie",    "AMÉLIE", "10 Things",
                            "\u212Aelvin",       "İstanbul", "Ωmega Man", "naïve ÀÉÎ", "[A_Z]"};
    const QStringList searches{"",  "night", "NIGHT", "amélie", "É",     "\u212A", "k",         "i",
                               "İ", "ω",     "à",     "e",      "[a_z]", "{",      "Ame\u0301", "\u2126"};
    int found = 0;
    for (const QString& wanted : searches) {
        const LowerCaseSearch search(wanted);
        for (const QString& text : texts) {
            const bool expected = canonical(text.toLower()).contains(canonical(wanted.toLower()));
            for (const auto form : {QString::NormalizationForm_C, QString::NormalizationForm_D}) {
                const QString same = text.normalized(form);
                const QByteArray utf8 = same.toUtf8();
                EXPECT_EQ(search.isIn(same), expected) << qPrintable(wanted + " in " + same);
                EXPECT_EQ(search.isIn(QUtf8StringView(utf8)), expected) << qPrintable(wanted + " in " + same);
            }
            found += expected ? 1 : 0;
        }
    }
    EXPECT_GT(found, static_cast<int>(texts.size()) + 10);
}
