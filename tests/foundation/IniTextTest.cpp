#include "platform/foundation/IniText.h"

#include <QDir>
#include <QFile>
#include <QSettings>
#include <gtest/gtest.h>

namespace {

// Files that older versions wrote are QSettings' own, and an older version may read those that are written
// now.
TEST(IniText, IsWhatQSettingsReadsAndWrites)
{
    QMap<QString, QVariant> values;
    for (const auto* text :
         {"", "plain", " spaces ", "Mar 5, 2021; a=b # c", "\"quoted\"", "back\\slash\\", "@Invalid()",
          "line\nbreak\r\ttab", "\033a\0015g", "caf\u00e9 \u6620\u753b", "[General]", ";no comment"})
        values.insert(QString("ReviewService.%1").arg(values.size()), QString(text));
    values.insert("Window/size", "small");
    const auto path = QDir::home().filePath("a.ini");
    QFile file(path);
    ASSERT_TRUE(file.open(QFile::WriteOnly));
    file.write(iniText(values));
    file.close();
    QSettings settings(path, QSettings::IniFormat);
    EXPECT_EQ(settings.allKeys(), values.keys());
    for (const auto& key : values.keys())
        EXPECT_EQ(settings.value(key), values[key]) << qPrintable(key);

    const auto written = QDir::home().filePath("b.ini");
    QSettings writer(written, QSettings::IniFormat);
    for (const auto& key : values.keys())
        writer.setValue(key, values[key]);
    writer.sync();
    QFile other(written);
    ASSERT_TRUE(other.open(QFile::ReadOnly));
    EXPECT_EQ(valuesOfIniText(other.readAll()), values);
}

TEST(IniText, SkipsWhatItCanNotRead)
{
    const QMap<QString, QVariant> values{{"a", "1"}, {"b", "x\\\\"}, {"c", QString(QChar(0))}};
    EXPECT_EQ(valuesOfIniText("garbage\n=1\n[half\n; c=2\n[General]\r\n a = 1 \r\nb=x\\\\\\\nc=\\x123456"),
              values);
}

} // namespace
