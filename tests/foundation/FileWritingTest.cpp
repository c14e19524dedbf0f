#include "platform/foundation/FileWriting.h"

#include <QDir>
#include <QFile>
#include <gtest/gtest.h>

namespace {

TEST(FileWritingTest, AFileThatCanNotTakeItsPlaceIsNotWritten)
{
    const QString path = QDir::home().filePath("Marrowvale.csv");
    const auto writeWhileAFolderAppears = [&path](QFileDevice& file) {
        EXPECT_TRUE(QDir().mkdir(path));
        return writeAll(file, "new");
    };
    EXPECT_FALSE(replaceAtomically(path, FileReaders::AsUsual, writeWhileAFolderAppears));
    EXPECT_EQ(QDir::home().entryList({"Marrowvale*"}), QStringList("Marrowvale.csv"));
    const auto fail = [](QFileDevice& /*file*/) { return Status(NSError{"no", {}}); };
    EXPECT_EQ(problemOf(replaceAtomically(path + "2", FileReaders::AsUsual, fail)), "no");
    EXPECT_FALSE(QFile::exists(path + "2"));
}

} // namespace
