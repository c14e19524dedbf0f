#include "platform/foundation/FileWriting.h"

#include <QDir>
#include <QFile>
#include <csignal>
#include <gtest/gtest.h>
#include <sys/resource.h>

namespace {

QByteArray contentOf(const QString& path)
{
    QFile file(path);
    return file.open(QIODevice::ReadOnly) ? file.readAll() : QByteArray();
}

// A limit of the process stands for a disk that fills up in the middle of the file.
TEST(FileWritingTest, WhatDoesNotFitLeavesTheOldFileAndTellsWhy)
{
    const QString path = QDir::home().filePath("Marrowvale.csv");
    ASSERT_TRUE(writeAtomically("old", path).ok());
    constexpr rlim_t most = 65536;
    constexpr rlimit smallFiles{most, most};
    std::signal(SIGXFSZ, SIG_IGN);
    ASSERT_EQ(setrlimit(RLIMIT_FSIZE, &smallFiles), 0);
    EXPECT_EQ(problemOf(writeAtomically(QByteArray(1'000'000, 'x'), path)), "File too large");
    EXPECT_EQ(contentOf(path), "old");
    EXPECT_EQ(QDir::home().entryList({"Marrowvale*"}), QStringList("Marrowvale.csv"))
        << "nothing half written";
    EXPECT_TRUE(writeAtomically("new", path).ok());
    EXPECT_EQ(contentOf(path), "new");
}

} // namespace
