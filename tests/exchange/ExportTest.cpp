#include "exchange/ExportViewController.h"
#include "platform/services/UIActivityViewController.h"
#include "platform/toolkit/UIAlertController.h"
#include "platform/toolkit/UINavigationController.h"
#include "tests/support/Catalogue.h"
#include "tests/support/FullDisk.h"
#include "tests/support/PlainStoryboard.h"

#include <QFile>

namespace {

using namespace std::chrono_literals;

class ExportTest : public CatalogueTest
{
protected:
    void SetUp() override { navigation.push(std::make_unique<ExportViewController>()); }

    ExportViewController& screen()
    {
        return static_cast<ExportViewController&>(*navigation.topViewController());
    }

    void create()
    {
        screen().CreateUpdateFile();
        queue.advance(999ms);
    }

    QString path() { return device.temporaryDirectory.path() + "/Marrowvale.csv"; }

    QByteArray written()
    {
        QFile file(path());
        return file.open(QIODevice::ReadOnly) ? file.readAll() : QByteArray("no file");
    }

    // Enabled: export, save, e-mail.
    QString enabledButtons()
    {
        QString letters;
        for (const auto& [button, letter] :
             {std::pair(screen().ExportButton, 'x'), std::pair(screen().SaveButton, 's'),
              std::pair(screen().EmailButton, 'e')})
            if (button->isEnabled())
                letters += letter;
        return letters;
    }

    UIAlertController* alert()
    {
        return qobject_cast<UIAlertController*>(screen().presentedViewController());
    }

    PlainStoryboard storyboard;
    UINavigationController navigation{storyboard};
};

TEST_F(ExportTest, AnEmptyCatalogueIsTheHeaderAlone)
{
    EXPECT_EQ(enabledButtons(), "x");
    EXPECT_TRUE(
        screen().HelpTextView->text().startsWith("Step 1: Create the Export File\nStep 2: Option 1: Click "
                                                 "'Save To Files' button\nOption 2: Click the Email"));
    screen().CreateUpdateFile();
    EXPECT_TRUE(screen().activityIndicator->isAnimating());
    EXPECT_EQ(enabledButtons(), "");
    queue.advance(999ms);
    EXPECT_FALSE(screen().activityIndicator->isAnimating());
    EXPECT_EQ(screen().ExportTextView->text(), "[MARROWVALE]\n");
    EXPECT_EQ(enabledButtons(), "se");
    EXPECT_EQ(alert(), nullptr) << "the alert comes a second later";
    queue.advance(1ms);
    ASSERT_NE(alert(), nullptr);
    EXPECT_EQ(alert()->title() + "/" + alert()->message(),
              "Data Export/Process Complete - File Ready to Save To Files or Email");
}

TEST_F(ExportTest, TheBarIsFullAfterTenMovies)
{
    for (int i = 0; i < 3; ++i)
        given({.name = "m"});
    create();
    EXPECT_DOUBLE_EQ(screen().ProgressView->progress(), 0.3);
    for (int i = 0; i < 200; ++i)
        given({.name = QString::number(i)});
    create();
    EXPECT_DOUBLE_EQ(screen().ProgressView->progress(), 1);
}

TEST_F(ExportTest, SavesWhatWasMadeAndMailsWhatIsShown)
{
    given({.name = QString::fromUtf8("Amélie"), .year = 2001});
    create();
    const QString made = *screen().DataString;
    ASSERT_TRUE(screen().ExportTextView->edit(made + "more"));

    screen().SaveToFiles();
    screen().WriteTextFile();
    queue.advance({});
    EXPECT_EQ(written(), made.toUtf8()) << "one after the other";
    auto* sheet = qobject_cast<UIActivityViewController*>(screen().presentedViewController());
    ASSERT_NE(sheet, nullptr);
    EXPECT_EQ(std::get<QUrl>(sheet->activityItems().front()), QUrl::fromLocalFile(path()));
    EXPECT_EQ(sheet->activityTitles().value(0), "Save to Files");
    EXPECT_FALSE(sheet->activityTitles().contains("Mail"));
    EXPECT_EQ(QFile::permissions(path()) & (QFile::ReadGroup | QFile::ReadOther), QFile::Permissions());
    screen().dismiss();

    screen().WriteTextFile();
    queue.advance({});
    EXPECT_EQ(written(), (made + "more").toUtf8());
    ASSERT_EQ(device.mailTwin->composed.size(), 1U);
    const MailMessage& message = device.mailTwin->composed.front();
    EXPECT_EQ(message.subject + "/" + message.body,
              "Marrowvale Update Text File/Attachment: Marrowvale Text File");
    EXPECT_TRUE(message.recipients.isEmpty());
    ASSERT_EQ(message.attachments.size(), 1U);
    EXPECT_EQ(message.attachments[0].fileName + "/" + message.attachments[0].mimeType, "Marrowvale.csv/csv");
    EXPECT_EQ(std::get<QUrl>(message.attachments[0].content), QUrl::fromLocalFile(path()));
    device.mailTwin->told(MFMailComposeResult::Sent);
    EXPECT_EQ(screen().presentedViewController(), nullptr);
}

TEST_F(ExportTest, AnEarlierFileIsNeverTakenForOneThatCouldNotBeWritten)
{
    create();
    ASSERT_TRUE(screen().ExportTextView->edit("edited, mailed"));
    screen().WriteTextFile();
    queue.advance({});
    ASSERT_EQ(written(), "edited, mailed");
    screen().dismiss();
    device.mailTwin->composed.clear();
    const FullDisk disk(4);
    screen().SaveToFiles();
    queue.advance({});
    auto* sheet = qobject_cast<UIActivityViewController*>(screen().presentedViewController());
    ASSERT_NE(sheet, nullptr) << "a failure is not reported, and the sheet comes all the same";
    sheet->choose(0);
    EXPECT_TRUE(device.documentsTwin->saved.empty());
    ASSERT_NE(alert(), nullptr);
    EXPECT_EQ(alert()->title(), "Save to Files");
    screen().dismiss();
    screen().WriteTextFile();
    queue.advance({});
    EXPECT_TRUE(device.mailTwin->composed.empty());
    EXPECT_EQ(screen().presentedViewController(), nullptr) << "nothing to attach: nothing is shown";
    EXPECT_EQ(screen().ExportTextView->text(), "edited, mailed");
}

TEST_F(ExportTest, FilmsOfATitleStandInTheOrderOfYearThenDirectors)
{
    given({.name = "a", .year = 10})->setDirectors(QString("b"));
    given({.name = "a", .year = 10})->setDirectors(QString("a"));
    given({.name = "a", .year = 2})->setDirectors(QString("c"));
    create();
    EXPECT_EQ(screen().ExportTextView->text(),
              "[MARROWVALE]\n^^c^^a^^^^0^2^^\n\n^^a^^a^^^^0^10^^\n\n^^b^^a^^^^0^10^^\n\n");
}

using ExportDeathTest = ExportTest;

TEST_F(ExportDeathTest, ACoverThatIsNoPictureEndsTheProgram)
{
    const auto spoil = [this] {
        given({.name = "Spoilt"})->setFrontCover(QByteArray("no picture"));
        create();
    };
    EXPECT_DEATH(spoil(), "Fatal error: The cover of \"Spoilt\" is no picture");
    EXPECT_EQ(written(), "no file");
}

} // namespace
