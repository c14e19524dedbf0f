#include "platform/services/LinuxPrinter.h"
#include "platform/services/PdfRendering.h"
#include "platform/services/PrintTarget.h"
#include "platform/services/Spooler.h"
#include "tests/services/PrintServer.h"
#include "tests/support/RecordingDevice.h"

#include <QApplication>
#include <QCheckBox>
#include <QComboBox>
#include <QLineEdit>
#include <QPrintDialog>
#include <QPrintEngine>
#include <QPrinter>
#include <QRadioButton>
#include <QSpinBox>

namespace {

class PrintQueueTest : public testing::Test
{
protected:
    void print(const PrintContent& content)
    {
        told.clear();
        printer.print({"My\tMovies", content}, [this](bool completed, const std::optional<NSError>& error) {
            told = error ? error->localizedDescription : completed ? "completed" : "cancelled";
        });
        ASSERT_TRUE(comesTrue([] { return dialog() != nullptr; }));
    }

    static QPrintDialog* dialog()
    {
        for (QWidget* widget : QApplication::topLevelWidgets())
            if (auto* shown = qobject_cast<QPrintDialog*>(widget); shown != nullptr && shown->isVisible())
                return shown;
        return nullptr;
    }

    template <typename Control>
    static Control& control(const char* name)
    {
        return *dialog()->findChild<Control*>(name);
    }

    static void choosePages(int from, int to)
    {
        control<QRadioButton>("printRange").click();
        control<QSpinBox>("from").setValue(from);
        control<QSpinBox>("to").setValue(to);
    }

    void accept()
    {
        QMetaObject::invokeMethod(dialog(), "accept");
        EXPECT_TRUE(comesTrue([this] { return !told.isEmpty(); }));
        EXPECT_EQ(told, "completed");
    }

    // The job that arrives.
    QStringList accepted()
    {
        accept();
        return PrintServer::keptJob();
    }

    static qsizetype pagesIn(const QByteArray& document) { return document.count("/Type /Page\n"); }
    static qsizetype keptPages() { return pagesIn(PrintServer::keptDocument()); }

    const PrintServer server;
    RecordingDevice device;
    LinuxPrinter printer;
    QString told;
};

TEST_F(PrintQueueTest, GetsWhatTheDialogSays)
{
    const PrintContent text = NSAttributedString(QString("Movie Name: Alien\n").repeated(300));
    print(text);
    control<QSpinBox>("copies").setValue(3);
    control<QCheckBox>("reverse").setChecked(true);
    QStringList job = accepted();
    EXPECT_EQ(job[2], "My Movies");
    EXPECT_EQ(job[3], "3");
    for (const char* option : {"media=A4", "sides=one-sided", "outputorder=reverse"})
        EXPECT_TRUE(job[4].split(' ').contains(option)) << option << " in " << job[4].toStdString();
    const qsizetype pages = keptPages();
    EXPECT_GE(pages, 5);

    print(text);
    choosePages(2, 3);
    job = accepted();
    EXPECT_EQ(keptPages(), 2);
    EXPECT_FALSE(job[4].contains("page-ranges")) << "of these two, it would print none";

    print(text);
    control<QComboBox>("pageSetCombo").setCurrentIndex(2);
    job = accepted();
    EXPECT_EQ(keptPages(), pages);
    EXPECT_TRUE(job[4].contains("page-set=even"));

    print(text);
    control<QRadioButton>("pagesRadioButton").click();
    control<QLineEdit>("pagesLineEdit").setText("1,3-4");
    job = accepted();
    EXPECT_EQ(keptPages(), pages);
    EXPECT_TRUE(job[4].contains("page-ranges=1,3-4"));

    print(text);
    auto& printers = control<QComboBox>("printers");
    printers.setCurrentIndex(printers.count() - 1);
    choosePages(2, 3);
    const QString path = QDir::home().absoluteFilePath("printed.pdf");
    control<QLineEdit>("filename").setText(path);
    accept();
    EXPECT_EQ(pagesIn(contentOf(path)), 2);
}

TEST_F(PrintQueueTest, TakesTheChosenPagesOutOfAFile)
{
    const QString path = QDir::home().absoluteFilePath("GenreMovieList.pdf");
    ASSERT_TRUE(renderPdf(NSAttributedString(QString("Alien\n").repeated(300)), {}, "Movies", path).ok());
    print(PrintableFile{path});
    EXPECT_EQ(control<QComboBox>("printers").count(), 1) << "there is no file to make of a file";
    choosePages(2, 3);
    EXPECT_TRUE(accepted()[4].contains("page-ranges=2-3"));
    EXPECT_EQ(PrintServer::keptDocument(), contentOf(path));
}

TEST_F(PrintQueueTest, GetsATextOfTheDialogAsOneOption)
{
    const QString path = QDir::home().absoluteFilePath("pages.pdf");
    writeFile(path, "%PDF-1.4");
    QPrinter chosen;
    chosen.setPrinterName("Office");
    chosen.printEngine()->setProperty(QPrintEngine::PrintEnginePropertyKey(0xfe00),
                                      QStringList{"job-billing", R"(a b='c' page-set=odd \)"});
    QObject owner;
    spool(owner, PrintTarget::of(chosen), "Movies", path,
          [this](const QString& problem) { told = problem + '.'; });
    ASSERT_TRUE(comesTrue([this] { return !told.isEmpty(); }));
    EXPECT_EQ(told, ".");
    EXPECT_TRUE(PrintServer::keptJob()[4].contains(R"(job-billing=a\ b=\'c\'\ page-set=odd\ \\)"));
}

} // namespace
