#include "platform/foundation/FileWriting.h"
#include "tests/support/FullDisk.h"

#include <QDir>
#include <QFile>
#include <gtest/gtest.h>

namespace {

QByteArray contentOf(const QString& path)
{
    QFile file(path);
    return file.open(QIODevice::ReadOnly) ? file.readAll() : QByteArray();
}

TEST(FileWritingTest, WhatDoesNotFitLeavesTheOldFileAndTellsWhy)
{
    const QString path = QDir::home().filePath("Marrowvale.csv");
    ASSERT_TRUE(writeAtomically("old", path).ok());
    for (const rlim_t most : {65536, 65535, 10, 3, 1, 0}) {
        const FullDisk disk(most);
        for (const rlim_t size : {most + 1, rlim_t(1'000'000)}) {
            EXPECT_EQ(problemOf(writeAtomically(QByteArray(static_cast<qsizetype>(size), 'x'), path)),
                      "File too large")
                << size << " of " << most;
            EXPECT_EQ(contentOf(path), "old") << size << " of " << most;
        }
    }
    EXPECT_EQ(QDir::home().entryList({"Marrowvale*"}), QStringList("Marrowvale.csv"))
        << "nothing half written";
    const FullDisk disk(3);
    EXPECT_TRUE(writeAtomically("new", path).ok());
    EXPECT_EQ(contentOf(path), "new");
}

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
