#include "platform/services/Activity.h"
#include "platform/services/ActivityItems.h"
#include "platform/toolkit/UIAlertController.h"
#include "tests/support/RecordingDevice.h"

#include <QDir>
#include <QFile>
#include <gtest/gtest.h>

namespace {

class ActivityTest : public testing::Test
{
protected:
    enum Row { Copy, Save };

    // Takes what `items` offers and chooses the activity.
    void share(const std::vector<ActivityItem>& items, const QString& activity)
    {
        UIActivityViewController& sheet = shown(items);
        sheet.choose(static_cast<int>(sheet.activityTitles().indexOf(activity)));
    }

    static QUrl writtenFile(const QString& name, const QByteArray& content)
    {
        QFile file(QDir::home().absoluteFilePath(name));
        EXPECT_TRUE(file.open(QIODevice::WriteOnly));
        file.write(content);
        return QUrl::fromLocalFile(file.fileName());
    }

    UIActivityViewController& shown(const std::vector<ActivityItem>& items)
    {
        screen.present(std::make_unique<UIActivityViewController>(items));
        return *qobject_cast<UIActivityViewController*>(screen.presentedViewController());
    }

    [[nodiscard]] QString alertText() const
    {
        const auto* alert = qobject_cast<UIAlertController*>(screen.presentedViewController());
        return alert == nullptr
                   ? QString()
                   : alert->title() + ": " + alert->message() + " " + alert->actionTitles().join(',');
    }

    static QImage picture()
    {
        QImage image(3, 2, QImage::Format_RGB32);
        image.fill(Qt::darkGreen);
        return image;
    }

    RecordingDevice device;
    UIViewController screen;
};

TEST_F(ActivityTest, WordsAreCopiedAndSavedALineEach)
{
    struct Case
    {
        std::vector<ActivityItem> items;
        QString text;
    };
    const std::vector<Case> cases{
        {{QString("Movie Name: Alien\n")}, "Movie Name: Alien\n"},
        {{QString("one"), QString("two")}, "one\ntwo"},
        {{QString("Look"), QUrl("https://example.org/a?b=c")}, "Look\nhttps://example.org/a?b=c"},
        {{picture(), QString("with a picture")}, "with a picture"},
        {{QString()}, ""},
    };
    for (const Case& each : cases) {
        SCOPED_TRACE(each.text.toStdString());
        device.pasteboardTwin->text = "what was there before";
        shown(each.items).choose(Copy);
        EXPECT_EQ(device.pasteboardTwin->text, each.text);
        EXPECT_EQ(device.pasteboardTwin->picture.isNull(), picturesOf(each.items).isEmpty());

        screen.dismiss();
        shown(each.items).choose(Save);
        EXPECT_EQ(device.savedDocuments().back().name, QString("Shared.txt"));
        EXPECT_EQ(device.savedDocuments().back().content, each.text.toUtf8());
    }
}

TEST_F(ActivityTest, WhatCannotBeSavedIsSaidOnTheScreenBelowTheSheet)
{
    device.setSaveProblem("No space left on device");
    shown({QString("text")}).choose(Save);
    EXPECT_EQ(alertText(), QString("Save to Files: No space left on device OK"));

    screen.dismiss();
    const std::size_t before = device.savedDocuments().size();
    shown({QUrl::fromLocalFile(QDir::home().filePath("gone.pdf"))}).choose(Save);
    EXPECT_TRUE(alertText().startsWith("Save to Files: No such file")) << alertText().toStdString();
    EXPECT_EQ(device.savedDocuments().size(), before);
}

TEST_F(ActivityTest, OffersWhatTheItemsAndTheDeviceAllow)
{
    struct Case
    {
        std::vector<ActivityItem> items;
        QStringList beyondCopyAndSave;
    };
    const QUrl pdf("file:///tmp/GenreMovieList.PDF");
    const QUrl csv("file:///tmp/Marrowvale.csv");
    const QUrl web("https://example.org/");
    const std::vector<Case> cases{
        {{QString("text")}, {"Mail", "Message", "Print"}},
        {{QString("text"), picture()}, {"Mail", "Message", "Print"}},
        {{picture()}, {"Mail", "Print"}},
        {{web}, {"Mail", "Message", "Open With"}},
        {{QString("text"), web}, {"Mail", "Message", "Print", "Open With"}},
        {{pdf}, {"Mail", "Print", "Open With"}},
        {{csv}, {"Mail", "Open With"}},
    };
    for (const Case& each : cases) {
        SCOPED_TRACE(each.beyondCopyAndSave.join(' ').toStdString());
        const auto offered = [&] { return UIActivityViewController(each.items).activityTitles().mid(2); };
        device.setCanSendMail(true);
        device.setCanSendText(true);
        EXPECT_EQ(offered(), each.beyondCopyAndSave);
        device.setCanSendMail(false);
        device.setCanSendText(false);
        QStringList without = each.beyondCopyAndSave;
        without.removeAll("Mail");
        without.removeAll("Message");
        EXPECT_EQ(offered(), without);
    }
}

TEST_F(ActivityTest, MailHasTheWordsInItsBodyAndTheRestAttached)
{
    const QUrl pdf("file:///tmp/GenreMovieList.pdf");
    share({QString("\nMovie Name: Alien\nYear: 1979"), QUrl("https://example.org"), pdf, picture()}, "Mail");
    ASSERT_EQ(device.mailTwin->composed.size(), 1U);
    const MailMessage& message = device.mailTwin->composed.front();
    EXPECT_EQ(message.subject, "Movie Name: Alien");
    EXPECT_EQ(message.body, "\nMovie Name: Alien\nYear: 1979\nhttps://example.org");
    ASSERT_EQ(message.attachments.size(), 2U);
    EXPECT_EQ(std::get<QUrl>(message.attachments[0].content), pdf);
    EXPECT_EQ(message.attachments[1].fileName, "Shared.png");
    EXPECT_EQ(QImage::fromData(std::get<QByteArray>(message.attachments[1].content)).size(),
              picture().size());
    device.mailTwin->told(MFMailComposeResult::Sent);
    EXPECT_EQ(screen.presentedViewController(), nullptr);

    share({pdf}, "Mail");
    EXPECT_EQ(device.mailTwin->composed.back().subject, "GenreMovieList.pdf");
    EXPECT_EQ(device.mailTwin->composed.back().body, "");
}

TEST_F(ActivityTest, PrintsWhatStandsForAllOfIt)
{
    const auto printed = [this](const std::vector<ActivityItem>& items) {
        share(items, "Print");
        device.printerTwin->told(true, std::nullopt);
        return device.printerTwin->printed.back();
    };
    const PrintJob file = printed({QString("text"), QUrl("file:///tmp/GenreMovieList.pdf")});
    EXPECT_EQ(std::get<PrintableFile>(file.content).path, "/tmp/GenreMovieList.pdf");
    EXPECT_EQ(std::get<QImage>(printed({picture()}).content), picture());
    const PrintJob text = printed({QString("Alien\n1979"), picture()});
    EXPECT_EQ(text.name, "Alien");
    const QString words = std::get<NSAttributedString>(text.content).string();
    EXPECT_EQ(words, QString("Alien\n1979\n") + QChar(QChar::ObjectReplacementCharacter));
    EXPECT_EQ(screen.presentedViewController(), nullptr);
}

TEST_F(ActivityTest, WhatCannotBePrintedOrOpenedIsSaid)
{
    share({QString("text")}, "Print");
    share({QString("more")}, "Print");
    EXPECT_EQ(alertText(), "Print: Something else is being printed. Try again after that. OK");
    screen.dismiss();
    device.printerTwin->told(false, std::nullopt);
    EXPECT_EQ(alertText(), "");
    share({QString("more")}, "Print");
    device.printerTwin->told(false, NSError{"No paper", {}});
    EXPECT_EQ(alertText(), "Print: No paper OK");
    screen.dismiss();

    const QUrl pdf("file:///tmp/a.pdf");
    share({QString("text"), pdf}, "Open With");
    EXPECT_EQ(device.addressOpenerTwin->opened, QList<QUrl>{pdf});
    EXPECT_EQ(alertText(), "");
    device.addressOpenerTwin->can = false;
    share({pdf, QUrl("https://example.org")}, "Open With");
    EXPECT_EQ(alertText(), "Open With: No program of this device can open a.pdf, https://example.org. OK");
}

TEST_F(ActivityTest, APictureIsCopiedAndSavedAsAPicture)
{
    shown({picture()}).choose(Copy);
    EXPECT_EQ(device.pasteboardTwin->picture, picture());
    shown({picture()}).choose(Save);
    EXPECT_EQ(device.savedDocuments().back().name, QString("Shared.png"));
    EXPECT_EQ(QImage::fromData(device.savedDocuments().back().content).convertToFormat(QImage::Format_RGB32),
              picture());
}

} // namespace
