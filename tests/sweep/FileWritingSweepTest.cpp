#include "platform/foundation/FileWriting.h"
#include "platform/foundation/UserDefaults.h"
#include "platform/services/FileBytes.h"
#include "tests/sweep/SweepRun.h"
#include "tests/sweep/SystemCallFaults.h"

#include <QDir>
#include <QFile>
#include <QTemporaryDir>
#include <gtest/gtest.h>

namespace {

const QByteArray oldContent = "old";
const QByteArray newContent = QByteArray("new ").repeated(100'000);

QByteArray contentOf(const QString& path)
{
    QFile file(path);
    return file.open(QFile::ReadOnly) ? file.readAll() : QByteArray();
}

void fill(const QString& path, const QByteArray& content)
{
    QFile file(path);
    ASSERT_TRUE(file.open(QFile::WriteOnly));
    ASSERT_EQ(file.write(content), content.size());
}

struct Writer
{
    const char* name;
    Status (*write)(const QString& folder, const QString& path);
};

const Writer writers[] = {
    {"content",
     [](const QString& /*folder*/, const QString& path) { return writeAtomically(newContent, path); }},
    {"content for its owner",
     [](const QString& /*folder*/, const QString& path) {
         return writeAtomically(newContent, path, FileReaders::OwnerOnly);
     }},
    {"a copy", [](const QString& folder, const QString& path) { return copyFile(folder + "/source", path); }},
};

struct WritingFault
{
    const char* name;
    Fault fault;
    const char* message;
};

const WritingFault writingFaults[] = {
    {"an error", Fault::Error, "Input/output error"},
    {"errors for good", Fault::ErrorForGood, "Input/output error"},
    {"a full disk", Fault::DiskFull, "No space left on device"},
    {"a full disk for good", Fault::DiskFullForGood, "No space left on device"},
    {"a short write", Fault::ShortWrite, ""},
    {"a failed sync", Fault::FailedSync, "Input/output error"},
    {"a failed open", Fault::FailedOpen, "Permission denied"},
};

class FileWritingSweep : public testing::TestWithParam<WritingFault>
{
protected:
    FileWritingSweep()
    {
        QDir().mkdir(folder);
        fill(home.filePath("source"), newContent);
    }
    void TearDown() override { SystemCallFaults::plan().disarm(); }

    bool strike(const Writer& writer, bool replaces, int number);

    const QTemporaryDir home;
    const QString folder = home.filePath("folder");
    const QString path = folder + "/file";
    SweepFigures figures{std::string("writing a file, ") + GetParam().name};
};

bool FileWritingSweep::strike(const Writer& writer, bool replaces, int number)
{
    QFile::remove(path);
    if (replaces)
        fill(path, oldContent);
    auto& plan = SystemCallFaults::plan();
    SystemCallFaults::forgetNamedUnsynced();
    plan.arm(GetParam().fault, number);
    const auto written = writer.write(home.path(), path);
    plan.disarm();
    const auto place = std::string(writer.name) + ", call " + std::to_string(number);
    ++figures.interruptions;
    figures.states += 2;
    EXPECT_EQ(SystemCallFaults::namedUnsynced(), 0) << place;
    EXPECT_EQ(contentOf(path), written ? newContent : replaces ? oldContent : QByteArray()) << place;
    // QSaveFile has no words for a name that can't be given.
    if (const auto problem = problemOf(written); problem != "Unknown error") {
        EXPECT_EQ(problem, written ? "" : GetParam().message) << place;
    }
    EXPECT_EQ(QDir(folder).entryList(QDir::Files | QDir::Hidden).size(), written || replaces ? 1 : 0)
        << place;
    EXPECT_TRUE(writer.write(home.path(), path)) << place << ", again";
    EXPECT_EQ(contentOf(path), newContent) << place << ", again";
    return plan.struck();
}

TEST_P(FileWritingSweep, leavesTheOldFileOrTheNewOne)
{
    for (const auto& writer : writers) {
        for (const bool replaces : {false, true}) {
            int number = 0;
            while (strike(writer, replaces, number))
                ++number;
            EXPECT_GT(number, 0) << writer.name;
        }
    }
}

// What can't be written lasts as long as the handle, and is written with the next value.
TEST_P(FileWritingSweep, leavesTheSettingsWhole)
{
    const auto place = QDir::home().filePath("config/marrowvale/marrowvale.ini");
    for (int number = 0;; ++number) {
        const auto kept = QStringLiteral("kept %1").arg(number);
        auto defaults = UserDefaults::standard();
        defaults.setObject(kept, "DefaultDate");
        defaults.setBool(false, "UseDateWheel");
        const auto before = contentOf(place);
        SystemCallFaults::forgetNamedUnsynced();
        SystemCallFaults::plan().arm(GetParam().fault, number);
        defaults.setBool(true, "UseDateWheel");
        SystemCallFaults::plan().disarm();
        ++figures.interruptions;
        figures.states += 2;
        EXPECT_EQ(SystemCallFaults::namedUnsynced(), 0) << number;
        EXPECT_TRUE(defaults.boolForKey("UseDateWheel")) << number;
        auto after = before;
        after.replace("UseDateWheel=false", "UseDateWheel=true");
        EXPECT_NE(after, before) << number;
        const auto found = contentOf(place);
        EXPECT_TRUE(found == before || found == after) << number << ": " << found.constData();
        defaults.setBool(true, "UseDateInline");
        EXPECT_TRUE(contentOf(place).contains("UseDateWheel=true")) << number;
        if (!SystemCallFaults::plan().struck())
            break;
    }
}

INSTANTIATE_TEST_SUITE_P(Faults, FileWritingSweep, testing::ValuesIn(writingFaults), [](const auto& tested) {
    return QString::fromLatin1(tested.param.name).replace(' ', '_').toStdString();
});

} // namespace
