#include "platform/toolkit/UIImage.h"
#include "tests/editing/AddMovieTest.h"

#include <QBuffer>
#include <QCoreApplication>
#include <QFile>
#include <QTemporaryDir>

namespace {

class CoverTest : public AddMovieTest
{
protected:
    static QImage plain(const QColor& colour, const QSize& size = {30, 10})
    {
        QImage image(size, QImage::Format_RGB32);
        image.fill(colour);
        return image;
    }

    static QByteArray pngOf(const QImage& image)
    {
        QBuffer buffer;
        image.save(&buffer, "PNG");
        return buffer.data();
    }

    QUrl file(const QString& name, const QByteArray& content)
    {
        QFile written(folder.filePath(name));
        EXPECT_TRUE(written.open(QIODevice::WriteOnly));
        written.write(content);
        return QUrl::fromLocalFile(written.fileName());
    }

    // What the console shows as `picked` is chosen in the dialog; absent: the dialog is cancelled.
    std::string pick(AddMovieViewController& screen, const std::optional<QUrl>& picked)
    {
        screen.AttachFrontImage();
        EXPECT_TRUE(screen.isFrontImage);
        testing::internal::CaptureStdout();
        device.nextPick = picked;
        device.answerPick();
        EXPECT_EQ(screen.presentedViewController(), nullptr);
        return testing::internal::GetCapturedStdout();
    }

    static UIImagePickerController* shownCamera(const AddMovieViewController& screen)
    {
        return qobject_cast<UIImagePickerController*>(screen.presentedViewController());
    }

    QTemporaryDir folder;
};

TEST_F(CoverTest, WhateverItsShapeACoverIsStoredAsASquareJpeg)
{
    AddMovieViewController& screen = openedAndFilled();
    QImage halves = plain(Qt::black, {300, 100});
    for (int y = 0; y < 100; ++y)
        for (int x = 150; x < 300; ++x)
            halves.setPixelColor(x, y, Qt::white);
    screen.FrontImageView->setImage(halves);
    screen.SaveButtonClicked();

    const QByteArray bytes = storedMovie()->frontCover().value_or(QByteArray());
    EXPECT_TRUE(bytes.startsWith("\xff\xd8\xff"));
    const QImage stored = imageWithData(bytes);
    ASSERT_EQ(stored.size(), QSize(150, 150));
    for (const int y : {2, 147}) {
        EXPECT_LT(stored.pixelColor(5, y).lightness(), 16) << "squeezed, not letterboxed";
        EXPECT_GT(stored.pixelColor(144, y).lightness(), 240);
    }
    EXPECT_EQ(bytes, UIImageJPEGRepresentation(imageDrawnInto({150, 150}, halves), 0.9));
}

TEST_F(CoverTest, TheLastImagePastedIsTheOneStoredUnlessRemoved)
{
    AddMovieViewController& screen = openedAndFilled();
    screen.PasteImage();
    EXPECT_EQ(closedAlert(screen), "Clipboard: There is no image in the Clipboard");
    for (const Qt::GlobalColor colour : {Qt::red, Qt::blue}) {
        device.pasteboard->setContent({}, plain(colour));
        screen.PasteImage();
        EXPECT_EQ(screen.FrontImageView->image().pixelColor(0, 0), QColor(colour));
    }
    device.pasteboard->setContent("words", {});
    screen.PasteImage();
    EXPECT_EQ(closedAlert(screen), "Clipboard: There is no image in the Clipboard");
    EXPECT_FALSE(screen.FrontImageView->image().isNull());

    screen.RemoveFrontImage();
    EXPECT_EQ(screen.presentedViewController(), nullptr) << "without a question";
    screen.SaveButtonClicked();
    EXPECT_EQ(storedMovie()->frontCover(), std::nullopt);
}

TEST_F(CoverTest, TheCameraGivesACoverWhereThereIsOne)
{
    AddMovieViewController& screen = opened();
    screen.OpenFrontCamera();
    EXPECT_EQ(closedAlert(screen), "Camera: There is no camera available");
    EXPECT_FALSE(screen.isFromCamera);

    device.setCameraAvailable(true);
    screen.OpenFrontCamera();
    UIImagePickerController* picker = shownCamera(screen);
    ASSERT_NE(picker, nullptr);
    EXPECT_TRUE(screen.isFrontImage && screen.isFromCamera);
    screen.didFinishPickingMediaWithInfo(*picker, {});
    ASSERT_EQ(shownCamera(screen), picker) << "a result without an image changes nothing";
    device.letCameraTell(plain(Qt::green));
    shownCamera(screen)->take();
    EXPECT_EQ(screen.presentedViewController(), nullptr);
    EXPECT_EQ(screen.chosenFrontImage, plain(Qt::green));
    EXPECT_FALSE(screen.isFrontImage || screen.isFromCamera);
}

TEST_F(CoverTest, AFileIsTakenForWhatItHoldsAndABadOneLeavesTheCover)
{
    AddMovieViewController& screen = opened();
    screen.FrontImageView->setContentMode(UIImageView::ContentMode::ScaleToFill);
    EXPECT_EQ(pick(screen, file("cover.jpg", pngOf(plain(Qt::red)))), "Chosen\n");
    EXPECT_EQ(screen.FrontImageView->image().pixelColor(0, 0), QColor(Qt::red));
    EXPECT_EQ(screen.FrontImageView->contentMode(), UIImageView::ContentMode::ScaleAspectFit);

    const QByteArray truncated = pngOf(plain(Qt::blue)).left(40);
    QByteArray huge = pngOf(plain(Qt::blue));
    huge.resize(64 * 1024 * 1024 + 1, '\0');
    for (const QUrl& bad :
         {file("text.png", "no image"), file("cut.png", truncated), file("huge.png", huge),
          QUrl::fromLocalFile(folder.filePath("missing")), QUrl("https://example.org/cover.png")}) {
        EXPECT_EQ(pick(screen, bad), "Chosen\n");
        EXPECT_EQ(screen.FrontImageView->image().pixelColor(0, 0), QColor(Qt::red))
            << qPrintable(bad.toString());
    }
    EXPECT_EQ(pick(screen, std::nullopt), "");
    EXPECT_FALSE(screen.FrontImageView->image().isNull());
}

TEST_F(CoverTest, OlderSystemsAreAskedForFilesOfAnyKind)
{
    const std::vector<std::pair<double, QStringList>> cases{
        {14, {"public.data", "public.jpeg", "public.png"}}, {13.9, {"public.data"}}};
    for (const auto& [version, types] : cases) {
        device.systemVersion = version;
        AddMovieViewController& screen = opened();
        screen.AttachFrontImage();
        const auto* picker = qobject_cast<UIDocumentPickerViewController*>(screen.presentedViewController());
        ASSERT_NE(picker, nullptr);
        EXPECT_EQ(picker->contentTypes(), types);
    }
}

} // namespace
