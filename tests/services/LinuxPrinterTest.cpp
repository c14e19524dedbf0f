#include "platform/services/LinuxPrinter.h"
#include "platform/services/PdfRendering.h"
#include "platform/services/PrintTarget.h"
#include "platform/services/Spooler.h"
#include "tests/services/FakePrograms.h"
#include "tests/services/PrivateBus.h"
#include "tests/support/RecordingDevice.h"

#include <QApplication>
#include <QPrintDialog>
#include <QPrinter>

using namespace std::chrono_literals;

namespace {

PrintContent longText()
{
    NSAttributedString text(QString("Movie Name: Alien\n").repeated(300));
    text.append({.encoded = {}, .image = QImage(30, 40, QImage::Format_RGB32), .size = {30, 40}});
    return text;
}

PrintContent picture()
{
    QImage image(40, 30, QImage::Format_RGB32);
    image.fill(Qt::darkGreen);
    return image;
}

PrintContent pdfFile()
{
    const QString path = QDir::home().absoluteFilePath("GenreMovieList.pdf");
    writeFile(path, "%PDF-1.4 as it stands");
    return PrintableFile{path};
}

class LinuxPrinterTest : public testing::Test
{
protected:
    LinuxPrinterTest()
    {
        // No queue of this machine.
        qputenv("CUPS_SERVER", (QDir::homePath() + "/no-spooler").toUtf8());
        FakePrograms::install("lpstat", "echo 'Office accepting requests'");
        FakePrograms::hideOthers();
    }

    void print(const PrintContent& content)
    {
        printer->print({"Movies", content}, [this](bool completed, const std::optional<NSError>& error) {
            told.append(error ? error->localizedDescription : completed ? "completed" : "cancelled");
        });
    }

    bool isTold()
    {
        return comesTrue([this] { return !told.isEmpty(); });
    }

    static QPrintDialog* shownDialog()
    {
        for (QWidget* widget : QApplication::topLevelWidgets())
            if (auto* dialog = qobject_cast<QPrintDialog*>(widget); dialog != nullptr && dialog->isVisible())
                return dialog;
        return nullptr;
    }

    FakePrograms programs;
    RecordingDevice device;
    std::unique_ptr<LinuxPrinter> printer = std::make_unique<LinuxPrinter>();
    QStringList told;
};

TEST_F(LinuxPrinterTest, WithoutAnAnsweringQueueThePagesAreOfferedAsAFile)
{
    for (const char* spooler : {"", "exit 1", "exit 0", "exec /bin/sleep 60"}) {
        SCOPED_TRACE(spooler);
        QFile::remove(FakePrograms::path("lpstat"));
        if (*spooler != 0)
            FakePrograms::install("lpstat", spooler);
        for (const PrintContent& content : {longText(), pdfFile()}) {
            printer = std::make_unique<LinuxPrinter>(*spooler == 'e' ? 100ms : 4000ms);
            told.clear();
            print(content);
            ASSERT_TRUE(isTold());
            EXPECT_EQ(told, QStringList("completed"));
            EXPECT_EQ(device.savedDocuments().back().name, "Movies.pdf");
            EXPECT_TRUE(device.savedDocuments().back().content.startsWith("%PDF-1.4"));
            EXPECT_EQ(shownDialog(), nullptr);
        }
    }
}

TEST_F(LinuxPrinterTest, WhatCannotBeSavedIsTold)
{
    ASSERT_TRUE(QFile::remove(FakePrograms::path("lpstat")));
    device.setSaveProblem("No space left on device");
    print(picture());
    print(PrintableFile{"/nowhere/gone.pdf"});
    ASSERT_TRUE(comesTrue([this] { return told.size() == 2; }));
    EXPECT_EQ(told[0], "cancelled");
    EXPECT_TRUE(told[1].startsWith("No such file"));
    print(picture());
    ASSERT_TRUE(comesTrue([this] { return told.size() == 3; }));
    EXPECT_EQ(told[2], "No space left on device");
}

TEST_F(LinuxPrinterTest, ADialogThatIsLeftCancelsTheJob)
{
    const std::vector<std::function<void()>> ways{
        [] { shownDialog()->reject(); },
        [this] { printer->cancelAsking(); },
        [this] { printer.reset(); },
    };
    for (const auto& leave : ways) {
        told.clear();
        print(longText());
        ASSERT_TRUE(comesTrue([] { return shownDialog() != nullptr; }));
        leave();
        EXPECT_EQ(told, QStringList("cancelled"));
        EXPECT_EQ(shownDialog(), nullptr);
    }
}

TEST(PdfRenderingTest, AFileThatTakesNoBytesIsAProblem)
{
    for (const char* path : {"/nowhere/pages.pdf", "/dev/full"})
        for (const PrintContent& content : {longText(), picture()})
            EXPECT_FALSE(renderPdf(content, {}, "Movies", path).ok()) << path;
}

TEST(SpoolerTest, HandsTheFileToTheQueue)
{
    const FakePrograms programs;
    FakePrograms::hideOthers();
    QObject owner;
    QStringList told;
    const auto spooled = [&] {
        told.clear();
        spool(owner, {.queue = "Office", .copies = 3, .options = {"media=A4", "collate=true"}}, "-My\nMovies",
              "/tmp/pages.pdf", [&told](const QString& problem) { told.append(problem); });
        EXPECT_TRUE(comesTrue([&told] { return !told.isEmpty(); }));
        return told.join('|');
    };
    EXPECT_EQ(spooled(), "This device lacks the program that hands pages to printers.");
    FakePrograms::install("lp");
    EXPECT_EQ(spooled(), "");
    EXPECT_EQ(FakePrograms::argumentsOf("lp").join('|'),
              "-d|Office|-n|3|-t|-My Movies|-o|media=A4|-o|collate=true|/tmp/pages.pdf");
    FakePrograms::install("lp", "echo 'lp: No such queue' >&2; exit 1");
    EXPECT_EQ(spooled(), "lp: No such queue");
    FakePrograms::install("lp", "kill -9 $$");
    EXPECT_EQ(spooled(), "The printer did not take the pages.");
}

TEST(PrintTargetTest, IsWhatTheDialogSetUp)
{
    qputenv("CUPS_SERVER", (QDir::homePath() + "/no-spooler").toUtf8());
    QPrinter printer;
    printer.setOutputFormat(QPrinter::PdfFormat);
    printer.setOutputFileName("/tmp/a.pdf");
    printer.setPageSize(QPageSize(QPageSize::A5));
    printer.setColorMode(QPrinter::GrayScale);
    printer.setCollateCopies(false);
    const PrintTarget target = PrintTarget::of(printer);
    EXPECT_EQ(target.file, "/tmp/a.pdf");
    EXPECT_EQ(target.pages.layout.pageSize().id(), QPageSize::A5);
    EXPECT_EQ(target.options, QStringList({"sides=one-sided", "media=A5", "print-color-mode=monochrome"}));
}

} // namespace
