#include "platform/services/Activity.h"
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
        EXPECT_EQ(shown(each.items).activityTitles(), QStringList({"Copy", "Save to Files"}));
        shown(each.items).choose(Copy);
        EXPECT_EQ(device.pasteboardTwin->text, each.text);

        screen.dismiss();
        shown(each.items).choose(Save);
        EXPECT_EQ(device.savedDocuments().back().name, QString("Shared.txt"));
        EXPECT_EQ(device.savedDocuments().back().content, each.text.toUtf8());
    }
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

TEST_F(ActivityTest, AFileIsSavedByteForByteUnderItsOwnName)
{
    QFile file(QDir::home().filePath("My Movies.csv"));
    ASSERT_TRUE(file.open(QIODevice::WriteOnly));
    file.write(QByteArray("a\0\xE9", 3));
    file.close();

    UIActivityViewController& sheet = shown({QUrl::fromLocalFile(file.fileName())});
    EXPECT_EQ(sheet.preview(), QString("My Movies.csv"));
    sheet.choose(Save);
    EXPECT_EQ(device.savedDocuments().back().name, QString("My Movies.csv"));
    EXPECT_EQ(device.savedDocuments().back().content, QByteArray("a\0\xE9", 3));
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

TEST_F(ActivityTest, ExcludedActivitiesAreNotOffered)
{
    using Type = UIActivityViewController::ActivityType;
    const UIActivityViewController sheet({QString("text")}, {Type::CopyToPasteboard});
    EXPECT_EQ(sheet.activityTitles(), QStringList("Save to Files"));
    EXPECT_EQ(sheet.activitySymbols(), QStringList("folder.badge.plus"));
}

TEST_F(ActivityTest, ClosingTheSheetOrAChoiceThatIsNotOfferedDoesNothing)
{
    UIActivityViewController& sheet = shown({QString("text")});
    sheet.choose(-1);
    sheet.choose(static_cast<int>(allActivities().size()));
    EXPECT_EQ(screen.presentedViewController(), &sheet);
    sheet.cancel();
    EXPECT_EQ(screen.presentedViewController(), nullptr);
    sheet.choose(Copy);
    EXPECT_TRUE(device.pasteboardTwin->text.isNull());
}

TEST_F(ActivityTest, EveryActivityHasItsSymbol)
{
    for (const Activity& activity : allActivities()) {
        const QString symbol = MARROWVALE_SOURCE_DIR "/resources/symbols/" + activity.symbol + ".svg";
        EXPECT_TRUE(QFile::exists(symbol)) << symbol.toStdString();
    }
}

} // namespace
