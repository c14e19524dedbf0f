#include "platform/pdf/PdfText.h"
#include "platform/pdf/PdfFile.h"

#include <QBuffer>
#include <QCoreApplication>
#include <QDir>
#include <QFile>
#include <QPainter>
#include <QPdfWriter>
#include <QProcess>
#include <QRegularExpression>
#include <gmock/gmock.h>

namespace {

// Holds a few lines of plain text.
constexpr QSizeF page(400, 150);

QByteArray run(const QString& program, const QStringList& arguments)
{
    QProcess reader;
    reader.start(program, arguments);
    EXPECT_TRUE(reader.waitForFinished()) << qPrintable(reader.errorString());
    EXPECT_EQ(reader.readAllStandardError().toStdString(), "");
    return reader.readAllStandardOutput();
}

QString writtenFile(const QString& name, const QByteArray& content)
{
    QFile file(QDir::home().filePath(name));
    EXPECT_TRUE(file.open(QIODevice::WriteOnly));
    file.write(content);
    return file.fileName();
}

// Marks of direction are the reader's own.
QString comparable(QString text)
{
    static const QRegularExpression marks("[\\x{202A}-\\x{202E}]");
    return text.remove(marks).normalized(QString::NormalizationForm_KC).simplified();
}

QString readBack(const QByteArray& pdf)
{
    return comparable(QString::fromUtf8(run("pdftotext", {"-layout", writtenFile("text.pdf", pdf), "-"})));
}

QString titleOf(const QByteArray& pdf)
{
    const QString told = QString::fromUtf8(run("pdfinfo", {writtenFile("text.pdf", pdf)}));
    static const QRegularExpression title("^Title: +(.*)$", QRegularExpression::MultilineOption);
    return comparable(title.match(told).captured(1));
}

struct ScriptSample
{
    const char* script;
    const char* text;
};

void PrintTo(const ScriptSample& sample, std::ostream* out)
{
    *out << sample.script;
}

class PdfTextTest : public testing::TestWithParam<ScriptSample>
{
};

TEST_P(PdfTextTest, ComesOutAsItWentIn)
{
    const QString sample = QString::fromUtf8(GetParam().text);
    const QString text = sample + QString("\nplain").repeated(12) + "\n" + sample;
    const QByteArray pdf = pdfOf(NSAttributedString(text), page, sample);
    EXPECT_GT(pdf.count("/Type /Page\n"), 1);
    EXPECT_EQ(readBack(pdf).toStdString(), comparable(text).toStdString());
    EXPECT_EQ(titleOf(pdf).toStdString(), comparable(sample).toStdString());
}

const ScriptSample scriptSamples[] = {
    {"Latin", "Großes fi Kino: Ärger im Büro, Señor Łódź \u2013 affiné ﬁ \u00B5 x\u00B2"},
    {"LatinMarks", "o\u0323\u0301 e\u0301 n\u0303 ẹ́"},
    {"Greek", "μΩ Ωκεανός, μία Ἀθήνα"},
    {"Cyrillic", "Съешь ещё этих мягких"},
    {"Hebrew", "שלום עולם"},
    {"HebrewBrackets", "שלום (עולם) שוב"},
    {"HebrewPoints", "שָׁלוֹם לָכֶם"},
    {"Arabic", "سلام مرحبا بالعالم لا"},
    {"Persian", "می\u200Cخواهم"},
    {"ArabicMarks", "مَرْحَبًا بكم"},
    {"HebrewAndLatin", "Notes: שלום עולם"},
    {"Devanagari", "नमस्ते दुनिया, हिन्दी"},
    {"Bengali", "বাংলা ক্ষত্রিয়"},
    {"Tamil", "தமிழ் கொடு"},
    {"Thai", "สวัสดี ภาษาไทย กำ"},
    {"Lao", "ສະບາຍດີ"},
    {"Tibetan", "བོད་སྐད"},
    {"Chinese", "漢字电影 中文"},
    {"Japanese", "日本語 テスト ひらがな"},
    {"Korean", "한국어 영화"},
    {"Cherokee", "ᏣᎳᎩ"},
    {"Balinese", "ᬅᬓ᭄ᬱᬭᬩᬮᬶ"},
    {"Syriac", "ܫܠܡܐ"},
    {"Emoji", "good \U0001F600 \U0001F3AC\uFE0F \U0001F468\u200D\U0001F469 film"},
    {"Symbols", "★★★☆ ♥ ← ∞ №"},
    {"Gothic", "𐌰𐌱𐌲"},
};

INSTANTIATE_TEST_SUITE_P(Scripts, PdfTextTest, testing::ValuesIn(scriptSamples),
                         [](const auto& tested) { return std::string(tested.param.script); });

// Then everything is drawn as boxes. Words of boxes stand too far apart for the reader to take them for one
// line of Hebrew.
TEST(PdfTextWithoutFontsTest, ComesOutAsItWentIn)
{
    const QString fonts = writtenFile("fonts.conf", "<fontconfig></fontconfig>");
    QProcessEnvironment environment = QProcessEnvironment::systemEnvironment();
    environment.insert("FONTCONFIG_FILE", fonts);
    QProcess tests;
    tests.setProcessEnvironment(environment);
    tests.setProcessChannelMode(QProcess::MergedChannels);
    tests.start(QCoreApplication::applicationFilePath(), {"--gtest_filter=Scripts/PdfTextTest.*-*Hebrew*"});
    ASSERT_TRUE(tests.waitForFinished()) << qPrintable(tests.errorString());
    EXPECT_EQ(tests.exitCode(), 0) << tests.readAll().toStdString();
}

TEST(PdfTextOfOrdinaryScriptsTest, IsNotDrawnTwice)
{
    QByteArray pdf;
    QBuffer file(&pdf);
    file.open(QIODevice::WriteOnly);
    QPdfWriter writer(&file);
    QPainter(&writer).drawText(100, 100, "film");
    CodeUnits drawn;
    for (const char letter : {'f', 'i', 'l', 'm'})
        drawn.set(static_cast<unsigned char>(letter));
    const auto before = pdf.size();
    makeTextReadable(pdf, drawn, [](int /*page*/) {
        ADD_FAILURE() << "draws again";
        return PdfPageItems();
    });
    EXPECT_GT(pdf.size(), before);
    EXPECT_EQ(readBack(pdf), "film");
}

TEST(PdfTextOfOtherFilesTest, StaysAsItIs)
{
    for (const QByteArray& other :
         {QByteArray(), QByteArray("%PDF-1.4\nstartxref\n99\n%%EOF\n"), QByteArray("startxref\n-5\n"),
          QByteArray("xref\n0 9\nstartxref\n0\n"), pdfOf(NSAttributedString("film"), page, {})}) {
        QByteArray pdf = other;
        makeTextReadable(pdf, {}, {});
        EXPECT_EQ(pdf, other);
    }
}

} // namespace
