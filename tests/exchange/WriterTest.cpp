#include "exchange/ExchangeWriter.h"
#include "platform/toolkit/UIImage.h"

#include <QBuffer>
#include <QTimeZone>

namespace {

struct Given
{
    const char* key;
    AttributeValue value;
};

ExchangeValues movieWith(const std::vector<Given>& attributes)
{
    ExchangeValues values;
    for (const auto& [key, value] : attributes) {
        const auto named = [key = key](const ExchangeField& field) {
            return field.key == QLatin1String(key);
        };
        const auto& fields = exchangeFields();
        const auto found = std::find_if(fields.begin(), fields.end(), named);
        values.at(static_cast<std::size_t>(found - fields.begin())) = value;
    }
    return values;
}

QByteArray pngOf(const QImage& image)
{
    QBuffer buffer;
    image.save(&buffer, "PNG");
    return buffer.data();
}

QString text(const char* utf8)
{
    return QString::fromUtf8(utf8);
}

TEST(Writer, PutsEachAttributeInItsPlace)
{
    const QDateTime watched(QDate(2021, 3, 5), QTime(15, 15), QTimeZone("America/New_York"));
    const struct
    {
        const char* what;
        std::vector<Given> movie;
        const char* record;
    } cases[]{
        {"nothing", {}, "^^^^^^^^0^0^^\n\n"},
        {"title and year",
         {{"movieName", text("Alien")}, {"yearReleased", qint16(1979)}},
         "^^^^Alien^^^^0^1979^^\n\n"},
        {"everything but a cover",
         {{"actors", text("a")},
          {"dateWatched", watched},
          {"directors", text("d")},
          {"genre", text("g")},
          {"movieName", text("m")},
          {"provider", text("v")},
          {"producers", text("p")},
          {"rating", text("r")},
          {"runTime", qint16(32767)},
          {"yearReleased", qint16(-5)},
          {"notes", text("n")}},
         "a^2021-03-05 20:15:00 +0000^d^g^m^v^p^r^32767^-5^n^\n\n"},
        {"names on several lines",
         {{"actors", text("A\nB")}, {"directors", text("\nC")}, {"producers", text("D\n\nE, F")}},
         "A, B^^, C^^^^D, , E, F^^0^0^^\n\n"},
        {"notes with what parts records", {{"notes", text("x^y\nz~w")}}, "^^^^^^^^0^0^xy~z~w^\n\n"},
        {"separators that nothing guards",
         {{"genre", text("G\nH")}, {"movieName", text(" 2^1\t")}, {"actors", text("^")}},
         "^^^^G\nH^ 2^1\t^^^^0^0^^\n\n"},
        {"beyond ASCII", {{"movieName", text("L’été “où” 🎬")}}, "^^^^L’été “où” 🎬^^^^0^0^^\n\n"},
    };
    for (const auto& [what, movie, record] : cases)
        EXPECT_EQ(exchangeRecord(movieWith(movie)).value(), text(record)) << what;
    EXPECT_EQ(exchangeOpening(), text("[MARROWVALE]\n"));
}

TEST(Writer, EncodesEveryCoverAnew)
{
    QImage picture(40, 30, QImage::Format_RGB32);
    picture.fill(Qt::darkGreen);
    const QByteArray png = pngOf(picture);
    const QString record = exchangeRecord(movieWith({{"frontCover", png}})).value();
    const QByteArray expected = UIImageJPEGRepresentation(imageWithData(png), 0.6).toBase64();
    EXPECT_EQ(record, "^^^^^^^^0^0^^" + QString::fromLatin1(expected) + "\n\n");

    for (const QByteArray& noPicture : {QByteArray("ABC"), QByteArray(""), png.left(20)}) {
        const auto failed =
            exchangeRecord(movieWith({{"movieName", text("Alien")}, {"frontCover", noPicture}}));
        ASSERT_FALSE(failed.ok()) << noPicture.size();
        EXPECT_EQ(failed.error().userInfo["movieName"], text("Alien"));
    }
}

} // namespace
