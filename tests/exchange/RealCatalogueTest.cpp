#include "exchange/ExchangeWriter.h"
#include "exchange/TextFile.h"
#include "tests/exchange/ImportFixture.h"

#include <QMap>

namespace {

// What a run makes of the catalogue's keys, told in the plainest way: every line is looked up among all.
class PlainCatalogue
{
public:
    void import(QString text)
    {
        text.replace('\r', '\n').remove('\'');
        for (const QString& line : text.split('\n')) {
            const QStringList fields = line.split('^');
            const QString name = fields.value(4);
            const int year = fields.value(9).toInt();
            if (name.isEmpty() || films.value({name, year}) == 0)
                ++films[{name, year}];
        }
    }

    // How often each title and year is there.
    QMap<std::pair<QString, int>, int> films;
};

class RealCatalogueTest : public ImportTest
{
protected:
    static PlainCatalogue stored()
    {
        PlainCatalogue catalogue;
        for (const auto& movie : storedMovies())
            ++catalogue.films[{movie->movieName().value_or(QString()), movie->yearReleased()}];
        return catalogue;
    }

    static QString exported()
    {
        QString text = exchangeOpening();
        const auto movies = context().fetch<Movies>(exchangeRequest());
        for (const auto& movie : movies.value())
            text += exchangeRecord(exchangeValues(*movie)).value();
        return text;
    }
};

TEST_F(RealCatalogueTest, IsMergedByTitleAndYearTwice)
{
    const auto file = textOfFile(MARROWVALE_SOURCE_DIR "/tests/data/Marrowvale.csv");
    ASSERT_TRUE(file.ok()) << qPrintable(file.error().localizedDescription);
    PlainCatalogue expected;
    expected.import(file.value());
    importText(file.value());
    EXPECT_EQ(stored().films, expected.films);
    EXPECT_EQ(film("Zoolander")->notes(), QString("Original Screenplay\nContemporary Fiction\nScore 6.4"));

    // What comes back from its own export is in place, but for the records between the films.
    const QString first = exported();
    const auto zoolander = film("Zoolander");
    expected.import(first);
    importText(first);
    EXPECT_EQ(stored().films, expected.films);
    EXPECT_EQ(film("Zoolander"), zoolander);
    EXPECT_EQ(zoolander->notes(), QString("Original Screenplay\nContemporary Fiction\nScore 6.4"));
}

TEST_F(RealCatalogueTest, ExportsEveryFilmAsItCame)
{
    const auto file = textOfFile(MARROWVALE_SOURCE_DIR "/tests/data/Marrowvale.csv").value();
    importText(file);
    const auto fieldsButDateAndCover = [](const QString& line) {
        QStringList fields = line.split('^');
        if (fields.size() != 12)
            return QString();
        fields[1].clear();
        fields[11].clear();
        return fields.join('^');
    };
    QSet<QString> written;
    for (const QString& line : exported().split('\n'))
        written.insert(fieldsButDateAndCover(line));
    int missing = 0;
    for (const QString& line : file.split('\n'))
        missing += written.contains(fieldsButDateAndCover(line).remove('\'')) ? 0 : 1;
    EXPECT_EQ(missing, 0);
}

} // namespace
