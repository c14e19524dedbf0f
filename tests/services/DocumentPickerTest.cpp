#include "platform/services/UIDocumentPickerViewController.h"
#include "tests/support/RecordingDevice.h"

#include <QCoreApplication>
#include <gtest/gtest.h>

namespace {

class PickingScreen : public UIViewController, public UIDocumentPickerDelegate
{
public:
    void pick(const QStringList& types = {})
    {
        present(std::make_unique<UIDocumentPickerViewController>(types, *this));
    }

    void didPickDocumentAt(UIDocumentPickerViewController& /*picker*/, const QUrl& url) override
    {
        tell("picked " + url.fileName());
    }
    void documentPickerWasCancelled(UIDocumentPickerViewController& /*picker*/) override
    {
        tell("cancelled");
    }

    QStringList told;

private:
    void tell(const QString& event)
    {
        EXPECT_EQ(presentedViewController(), nullptr) << "the picker is taken away first";
        told.append(event);
    }
};

class DocumentPickerTest : public testing::Test
{
protected:
    static void destroyDismissed() { QCoreApplication::sendPostedEvents(nullptr, QEvent::DeferredDelete); }

    RecordingDevice device;
    std::unique_ptr<PickingScreen> screen = std::make_unique<PickingScreen>();
};

TEST_F(DocumentPickerTest, TheAnswerIsToldOnce)
{
    for (const std::optional<QUrl>& answer :
         {std::optional(QUrl("file:///tmp/My%20Movies.csv")), std::optional<QUrl>()}) {
        screen->pick();
        EXPECT_TRUE(device.isPicking());
        EXPECT_TRUE(screen->told.isEmpty());
        device.nextPick = answer;
        device.answerPick();
        device.answerPick();
        destroyDismissed();
        EXPECT_EQ(std::exchange(screen->told, {}),
                  QStringList(answer ? "picked My Movies.csv" : "cancelled"));
    }
}

TEST_F(DocumentPickerTest, TheDialogLeavesWithThePicker)
{
    screen->pick();
    screen->dismiss();
    EXPECT_FALSE(device.isPicking());

    screen->pick();
    destroyDismissed();
    EXPECT_TRUE(device.isPicking()) << "a picker that is gone must not close the next one's dialog";
    screen.reset();
    EXPECT_FALSE(device.isPicking());
}

TEST_F(DocumentPickerTest, PicturesAreFilteredAndEveryFileStaysWithinReach)
{
    const auto filters = [this](const QStringList& types) {
        screen->pick(types);
        screen->dismiss();
        return device.documentsTwin->request.nameFilters;
    };
    EXPECT_EQ(filters({"public.data"}), QStringList("All files (*)"));
    const QStringList pictures = filters({"public.data", "public.jpeg", "public.png"});
    ASSERT_EQ(pictures.size(), 2);
    EXPECT_TRUE(pictures.first().contains("*.jpeg") && pictures.first().contains("*.png"));
    EXPECT_EQ(pictures.last(), QString("All files (*)"));
}

} // namespace
