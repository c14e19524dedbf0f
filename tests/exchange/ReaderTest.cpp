#include "exchange/ExchangeReader.h"
#include "exchange/TextFile.h"

#include <QStringEncoder>
#include <QTemporaryDir>
#include <gtest/gtest.h>
#include <sys/stat.h>

namespace {

QStringList linesOf(const QString& text)
{
    QStringList lines;
    ExchangeLines source(text);
    while (const auto line = source.next())
        lines.append(line->toString());
    return lines;
}

TEST(Reader, PartsLinesAtEveryBreakAndDropsApostrophes)
{
    const struct
    {
        QString text;
        QStringList lines;
        bool accepted;
    } cases[]{
        {"", {""}, false},
        {"[MARROWVALE]\n", {"[MARROWVALE]", ""}, true},
        {"a\r\nb\rc\n\n", {"a", "", "b", "c", "", ""}, false},
        {"x\n[MARROWVALE]", {"x", "[MARROWVALE]"}, true},
        {"'[MARRO'WVALE]''\rOcean's", {"[MARROWVALE]", "Oceans"}, true},
        {"[MARROWVALE] \n", {"[MARROWVALE] ", ""}, false},
        {"[marrowvale]^", {"[marrowvale]^"}, false},
        {QString::fromLatin1("a\0b\n", 4), {QString::fromLatin1("a\0b", 3), ""}, false},
    };
    for (const auto& [text, lines, accepted] : cases) {
        EXPECT_EQ(linesOf(text), lines) << qPrintable(text);
        EXPECT_EQ(isExchangeText(text), accepted) << qPrintable(text);
    }
}

constexpr auto untouched = "untouched";
constexpr auto noValue = "no value";

// What one field says, as a text.
QString reading(std::size_t index, const QString& text, ImportTarget target)
{
    ExchangeTexts texts;
    texts[index] = text;
    const auto readings = readRecord(texts, target);
    if (!readings)
        return readings.error().localizedDescription;
    const auto& value = readings.value()[index];
    if (!value)
        return untouched;
    if (const auto* held = std::get_if<QString>(&*value))
        return *held;
    if (const auto* number = std::get_if<qint16>(&*value))
        return QString("number %1").arg(*number);
    if (const auto* bytes = std::get_if<QByteArray>(&*value))
        return "bytes " + QString::fromLatin1(*bytes);
    return noValue;
}

TEST(Reader, ReadsEachFieldInItsWay)
{
    enum : std::size_t {
        Actors,
        Date,
        Directors,
        Genre,
        Name,
        Provider,
        Producers,
        Rating,
        RunTime,
        Year,
        Notes,
        Cover
    };
    const QString noNumber = "\"%1\" is not a whole number from -32768 to 32767";
    const struct
    {
        std::size_t field;
        QString text;
        QString forExisting;
        // Where it differs.
        std::optional<QString> forNew = std::nullopt;
    } cases[]{
        {Actors, "", untouched},
        {Actors, "A, B,C", "A\nB,C", "A, B,C"},
        {Directors, ", ", "\n", ", "},
        {Producers, "P, Q", "P\nQ", "P, Q"},
        {Genre, "A, B~\"C\"", "A, B~\"C\""},
        {Name, " x ", " x "},
        {Provider, "p~", "p~"},
        {Rating, "PG, R", "PG, R"},
        {Date, "2021-03-05 20:15:00 +0000", noValue},
        {Date, "no date", noValue},
        {RunTime, "+32767", "number 32767"},
        {RunTime, "007", "number 7"},
        {Year, "-32768", "number -32768"},
        {Year, "32768", noValue, "yearReleased: " + noNumber.arg("32768")},
        {Year, "abc", noValue, "yearReleased: " + noNumber.arg("abc")},
        {RunTime, " 1", noValue, "runTime: " + noNumber.arg(" 1")},
        {RunTime, "1.5", noValue, "runTime: " + noNumber.arg("1.5")},
        {Year, QString(1000, '9'), noValue, "yearReleased: " + noNumber.arg(QString(40, '9'))},
        {Notes, "x~z, w~", "x\nz, w\n"},
        {Cover, "QUJD", "bytes ABC"},
        {Cover, "QUI=", "bytes AB"},
        {Cover, "QQ==", "bytes A"},
        {Cover, "QUI", noValue},
        {Cover, "QUJD=", noValue},
        {Cover, "QUJDQ", noValue},
        {Cover, "QUI=QUI=", noValue},
        {Cover, "Q===", noValue},
        {Cover, "====", noValue},
        {Cover, "QU=D", noValue},
        {Cover, "QU D", noValue},
        {Cover, "QU_-", noValue},
        {Cover, "QUJ\u0141", noValue},
    };
    for (const auto& [field, text, forExisting, forNew] : cases) {
        EXPECT_EQ(reading(field, text, ImportTarget::ExistingMovie), forExisting) << qPrintable(text);
        EXPECT_EQ(reading(field, text, ImportTarget::NewMovie), forNew.value_or(forExisting))
            << qPrintable(text);
    }
}

TEST(TextFile, IsReadInItsOwnEncoding)
{
    const QString sample = QString::fromUtf8("[MARROWVALE]\n^Amélie 🎬");
    const auto encoded = [&](QStringConverter::Encoding encoding) -> QByteArray {
        QStringEncoder encoder(encoding, QStringConverter::Flag::WriteBom);
        return encoder.encode(sample);
    };
    for (const auto encoding : {QStringConverter::Utf8, QStringConverter::Utf16LE, QStringConverter::Utf16BE,
                                QStringConverter::Utf32LE, QStringConverter::Utf32BE})
        EXPECT_EQ(decodedText(encoded(encoding)), sample) << encoding;
    EXPECT_EQ(decodedText(sample.toUtf8()), sample);
    EXPECT_EQ(decodedText("Am\xE9lie"), QString::fromUtf8("Amélie"));
    EXPECT_EQ(decodedText("cut off \xC3"), QString::fromUtf8("cut off Ã"));
    EXPECT_EQ(decodedText(QByteArray("\0a\0", 3)), QString::fromLatin1("\0a\0", 3));
    EXPECT_EQ(decodedText({}), QString());
}

TEST(TextFile, OfWhatIsNoPlainFileFailsAtOnce)
{
    const QTemporaryDir folder;
    const QString pipe = folder.filePath("pipe");
    ASSERT_EQ(mkfifo(qPrintable(pipe), 0600), 0);
    const QString huge = folder.filePath("huge");
    QFile sparse(huge);
    ASSERT_TRUE(sparse.open(QIODevice::WriteOnly) && sparse.resize((512LL << 20) + 1));
    for (const QString& path : {folder.path(), pipe, huge, folder.filePath("missing"), QString()}) {
        const auto text = textOfFile(path);
        ASSERT_FALSE(text.ok()) << qPrintable(path);
        EXPECT_TRUE(
            text.error().localizedDescription.startsWith("The file \"" + path + "\" could not be read: "));
    }
}

} // namespace
