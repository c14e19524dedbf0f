#include "exchange/ExchangeWriter.h"
#include "tests/exchange/ChildProcess.h"
#include "tests/exchange/ImportFixture.h"

#include <QDir>
#include <QFile>

namespace {

// A file in the test's home directory.
QUrl fileWith(const QByteArray& bytes)
{
    QFile file(qEnvironmentVariable("HOME") + "/My Movies.csv");
    EXPECT_TRUE(file.open(QIODevice::WriteOnly));
    file.write(bytes);
    return QUrl::fromLocalFile(file.fileName());
}

TEST_F(ImportTest, PickerOffersTheKindsThatThePlatformKnows)
{
    const auto offered = [this](double version) {
        device.systemVersion = version;
        screen->LoadFile();
        const auto* picker = qobject_cast<UIDocumentPickerViewController*>(screen->presentedViewController());
        const QStringList types = picker->contentTypes();
        screen->dismiss();
        return types;
    };
    EXPECT_EQ(offered(14), QStringList({"public.file-url", "public.image", "public.item"}));
    EXPECT_EQ(offered(13.4), QStringList("public.data"));
}

TEST_F(ImportTest, LoadsThenMergesThenLeaves)
{
    device.nextPick = fileWith("[MARROWVALE]\n^^^^Am\xE9lie^^^^0^2001^^\n\n");
    screen->LoadFile();
    device.answerPick();
    EXPECT_EQ(screen->filename, QString("My Movies.csv"));
    EXPECT_EQ(screen->ImportTextView->text(), QString::fromUtf8("[MARROWVALE]\n^^^^Amélie^^^^0^2001^^\n\n"));
    EXPECT_TRUE(screen->ImportButton->isEnabled());
    EXPECT_FALSE(screen->LoadFileButton->isEnabled());
    EXPECT_EQ(closedAlert(), QString("Data Import: File Loaded and Ready to Import [OK]"));
    EXPECT_TRUE(storyboard.performed.isEmpty());

    screen->ImportTextFile();
    EXPECT_EQ(screen->wrongFile, std::optional(false));
    EXPECT_EQ(film(QString::fromUtf8("Amélie"))->yearReleased(), 2001);
    EXPECT_TRUE(storyboard.performed.isEmpty());
    EXPECT_EQ(closedAlert(), QString("Data Import: Data Import Completed [OK]"));
    EXPECT_EQ(storyboard.performed, QStringList("unwindToMenu"));
}

TEST_F(ImportTest, AFileWithoutTheHeaderIsNamedAndChangesNothing)
{
    device.nextPick = fileWith("^^^^Alien^^^^0^1979^^\n\n");
    screen->LoadFile();
    device.answerPick();
    closedAlert();
    screen->ImportTextFile();
    EXPECT_EQ(closedAlert(), QString("Data Import: My Movies.csv Is The Incorrect Import File [OK]"));
    EXPECT_EQ(storyboard.performed, QStringList("unwindToMenu"));
    EXPECT_TRUE(storedMovies().empty());
}

TEST_F(ImportTest, CancellingOrAnUnreadableFileLeavesTheScreenAsItWas)
{
    for (const std::optional<QUrl>& pick :
         {std::optional<QUrl>(), std::optional(QUrl::fromLocalFile("/nowhere/x.csv")),
          std::optional(QUrl("https://localhost/x.csv"))}) {
        device.nextPick = pick;
        testing::internal::CaptureStdout();
        screen->LoadFile();
        device.answerPick();
        EXPECT_EQ(testing::internal::GetCapturedStdout().empty(), !pick);
        EXPECT_EQ(screen->presentedViewController(), nullptr);
        EXPECT_FALSE(screen->ImportButton->isEnabled());
        EXPECT_TRUE(screen->LoadFileButton->isEnabled());
        EXPECT_TRUE(screen->ImportTextView->text().isEmpty());
    }
}

// What the catalogue holds, as records of the file without their watch dates.
QStringList records(const std::vector<std::shared_ptr<Movies>>& movies)
{
    QStringList all;
    for (const auto& movie : movies) {
        auto values = exchangeValues(*movie);
        values[1] = {};
        all.append(exchangeRecord(values).value().trimmed());
    }
    return all;
}

TEST_F(ImportTest, EveryLineMakesOrMeetsARecord)
{
    const QString blank = "^^^^^^^^0^0^^";
    const QString header = "[MARROWVALE]" + blank;
    const struct
    {
        const char* what = nullptr;
        QStringList lines;
        QStringList records;
    } cases[]{
        {"the header alone", {}, {header}},
        {"the end of the header's line", {""}, {header, blank}},
        {"two lines of one film",
         {"^^^G^F^^^^1^1999^^", "^^^H^F^^^^^1999^n^"},
         {header, "^^^H^F^^^^1^1999^n^"}},
        {"years told apart",
         {"^^^^F^^^^^1999^^", "^^^^F^^^^^2000^^"},
         {header, "^^^^F^^^^0^1999^^", "^^^^F^^^^0^2000^^"}},
        {"years written in two ways",
         {"^^^^F^^^^^1999^^", "^^^G^F^^^^^+1999^^"},
         {header, "^^^G^F^^^^0^1999^^"}},
        {"lines without a key",
         {"^^^^F", "^^^^F", "a"},
         {header, "^^^^F^^^^0^0^^", "^^^^F^^^^0^0^^", "a" + blank}},
        {"a hundred separators", {QString(100, '^')}, {header, blank}},
        {"a separator in the title", {"^^^^2^1^V^^^90^1999^^"}, {header, "^^^^2^1^V^^0^90^1999^"}},
    };
    for (const auto& [what, lines, expected] : cases) {
        importLines(lines);
        EXPECT_EQ(records(storedMovies()), expected) << what;
        for (const auto& movie : storedMovies())
            context().deleteObject(movie);
        ASSERT_TRUE(context().save().ok());
    }
}

TEST_F(ImportTest, ANewMovieWithoutAProperNumberEndsTheProgramAfterTheLinesBefore)
{
    for (const QString& line : {QString("^^^^Bad^^^^^abc^^"), QString("^^^^Bad^^^^1.5^1999^^")}) {
        testing::internal::CaptureStderr();
        ChildProcess child([&] { importLines({"^^^^Good^^^^^1999^^", line, "^^^^Late^^^^^2000^^"}); });
        EXPECT_EQ(child.signalThatEndedIt(), SIGABRT);
        EXPECT_TRUE(testing::internal::GetCapturedStderr().starts_with("Fatal error: "));
    }
    EXPECT_EQ(storedMovies().size(), 3U); // Two headers and the good one: the second run met it.
    EXPECT_EQ(film("Good")->yearReleased(), 1999);
}

TEST_F(ImportTest, ACatalogueThatDoesNotOpenEndsTheProgramFirst)
{
    EXPECT_DEATH(
        {
            QDir().mkpath(qEnvironmentVariable("XDG_DATA_HOME") + "/marrowvale/Marrowvale.sqlite");
            importLines({});
        },
        "Fatal error: Unresolved error .+, \\{.*\\}\n");
}

TEST_F(ImportTest, TwoMoviesOfOneKeyAreLeftAlone)
{
    given({.name = "F", .genre = "G", .year = 1999});
    given({.name = "F", .genre = "H", .year = 1999});
    importLines({"^^^X^F^^^^1^1999^^"});
    EXPECT_EQ(records(storedMovies()),
              QStringList({"^^^G^F^^^^0^1999^^", "^^^H^F^^^^0^1999^^", "[MARROWVALE]^^^^^^^^0^0^^"}));
}

TEST_F(ImportTest, ALineClearsTheWatchDateAndKeepsItsParts)
{
    const QDateTime watched(QDate(2020, 1, 2), QTime(3, 4), Qt::UTC);
    const auto movie = given({.name = "F", .genre = "G", .year = 1999, .watched = watched});
    movie->setWYear(2020);
    importLines({"^2021-03-05 20:15:00 +0000^^^F^^^^^1999^^"});
    EXPECT_EQ(movie->dateWatched(), std::nullopt);
    EXPECT_EQ(movie->wYear(), 2020);
    EXPECT_EQ(movie->genre(), QString("G"));
}

} // namespace
