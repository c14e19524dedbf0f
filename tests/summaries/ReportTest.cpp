#include "platform/services/UIActivityViewController.h"
#include "platform/toolkit/UIAlertController.h"
#include "platform/toolkit/UIImage.h"
#include "resources/Resources.h"
#include "tests/summaries/BreakdownFixture.h"

#include <QDir>
#include <QFile>
#include <QProcess>
#include <QRegularExpression>

namespace {

class ReportTest : public BreakdownTest
{
protected:
    void SetUp() override { shared().CurrentMovie.genre = "Horror"; }

    // Presses the button twice. Returns the file that the sheet offers.
    QUrl share(BreakdownTableViewController& screen)
    {
        testing::internal::CaptureStdout();
        screen.shareButtonClicked();
        screen.shareButtonClicked();
        EXPECT_TRUE(screen.activityIndicator->isAnimating());
        queue.advance(std::chrono::milliseconds(1));
        told = QString::fromStdString(testing::internal::GetCapturedStdout());
        EXPECT_FALSE(screen.activityIndicator->isAnimating());
        auto* sheet = qobject_cast<UIActivityViewController*>(screen.presentedViewController());
        if (sheet == nullptr || sheet->activityItems().size() != 1)
            return {};
        const auto* url = std::get_if<QUrl>(&sheet->activityItems().front());
        return url == nullptr ? QUrl() : *url;
    }

    static QByteArray content(const QUrl& url)
    {
        QFile file(url.toLocalFile());
        return file.open(QIODevice::ReadOnly) ? file.readAll() : QByteArray();
    }

    // As viewers show it.
    static QString titleOf(const QUrl& url)
    {
        QProcess reader;
        reader.start("pdfinfo", {url.toLocalFile()});
        EXPECT_TRUE(reader.waitForFinished()) << qPrintable(reader.errorString());
        const auto told = QString::fromUtf8(reader.readAllStandardOutput());
        return told.section("Title:", 1).section('\n', 0, 0).trimmed();
    }

    QString told;
};

TEST_F(ReportTest, AReportIsAPdfOfTheTextAndNamedAfterItsFirstLine)
{
    alien();
    auto& screen = opened<GenreBreakdownTableViewController>();
    const QUrl file = share(screen);
    EXPECT_EQ(told, "wrote PDF file with multiple pages to: " + file.toLocalFile() + "\n");
    EXPECT_TRUE(screen.MovieString.runs().front().style.centred);
    EXPECT_EQ(screen.MovieString.runs().front().style.fontSize, 21);
    const QByteArray pdf = content(file);
    EXPECT_TRUE(pdf.startsWith("%PDF-"));
    EXPECT_TRUE(pdf.contains("/MediaBox [0 0 595.200000 841.800000]"));
    EXPECT_FALSE(pdf.contains("842.000000]"));
    EXPECT_TRUE(pdf.contains("/FontFile2")) << "fonts are embedded";
    EXPECT_EQ(titleOf(file), "Movies Filtered by Genre: Horror");
}

// As a camera writes that was held upright: its first row is the picture's right side.
QByteArray heldUpright(const QByteArray& jpeg)
{
    return QByteArray(jpeg).insert(
        2, QByteArray::fromHex(
               "ffe1 0022 457869660000 4d4d002a00000008 0001 0112 0003 00000001 00060000 00000000"));
}

TEST_F(ReportTest, FollowsTheSearchAndTheViewsWidth)
{
    const auto covered = given({.name = "Bee", .genre = "Horror"});
    QImage cover(300, 150, QImage::Format_RGB32);
    cover.fill(Qt::red);
    covered->setFrontCover(UIImageJPEGRepresentation(cover, 0.9));
    given({.name = "By phone", .genre = "Horror"})->setFrontCover(heldUpright(*covered->frontCover()));
    given({.name = "Bad cover", .genre = "Horror"})->setFrontCover(QByteArray("no picture"));
    given({.name = "Ant", .genre = "Horror"});
    auto& screen = opened<GenreBreakdownTableViewController>();
    screen.viewWidth = 600;
    screen.searchController->searchBar()->setText("b");
    share(screen);
    EXPECT_EQ(screen.MovieString.string().count("Movie Name: "), 3);
    std::vector<QSizeF> sizes;
    for (const auto& run : screen.MovieString.runs())
        if (run.attachment)
            sizes.push_back(run.attachment->size);
    const QSizeF logo = QSizeF(movieLogo().size()) * (100.0 / movieLogo().width());
    EXPECT_EQ(sizes, std::vector<QSizeF>({logo, QSizeF(100, 50), QSizeF(100, 200)}));
}

TEST_F(ReportTest, TheFileReadsAsItsText)
{
    alien()->setNotes(QString::fromUtf8("Ünïcödé ΑΒΓ абв\nשלום"));
    given({.name = "Brazil", .genre = "Horror", .year = 1985});
    auto& screen = opened<GenreBreakdownTableViewController>();
    QProcess reader;
    reader.start("pdftotext", {"-layout", share(screen).toLocalFile(), "-"});
    ASSERT_TRUE(reader.waitForFinished()) << qPrintable(reader.errorString());
    // Marks of direction are the reader's own.
    static const QRegularExpression marks("[\\x{202A}-\\x{202E}]");
    const QString read = QString::fromUtf8(reader.readAllStandardOutput()).remove(marks);
    EXPECT_EQ(read.simplified().toStdString(),
              screen.MovieString.string().remove(u'\uFFFC').simplified().toStdString());
}

TEST_F(ReportTest, AFileThatCanNotBeWrittenIsOnlyToldToTheConsole)
{
    alien();
    QFile inTheWay(QDir::home().filePath("Documents"));
    ASSERT_TRUE(inTheWay.open(QFile::WriteOnly));
    EXPECT_EQ(share(opened<GenreBreakdownTableViewController>()).fileName(), "GenreMovieList.pdf");
    EXPECT_TRUE(told.startsWith("Could not create PDF file: ")) << qPrintable(told);
}

TEST_F(ReportTest, NeedsADeviceThatSendsTexts)
{
    alien();
    device.setCanSendText(false);
    auto& screen = opened<GenreBreakdownTableViewController>();
    screen.shareButtonClicked();
    queue.advance({});
    const auto* alert = qobject_cast<UIAlertController*>(screen.presentedViewController());
    ASSERT_NE(alert, nullptr);
    EXPECT_EQ(alert->title() + "/" + alert->message(),
              "Can't Send Text Message/Your device is not able to send text messages.");
}

using ReportDeathTest = ReportTest;

TEST_F(ReportDeathTest, AReportOfNothingEndsTheProgram)
{
    auto& screen = opened<GenreBreakdownTableViewController>();
    EXPECT_DEATH(screen.shareButtonClicked(), "Fatal error: A report of no movies");
}

} // namespace
