#include "platform/services/LinuxCamera.h"

#include <QCoreApplication>
#include <QDir>
#include <QFileInfo>
#include <QJsonArray>
#include <QJsonDocument>
#include <QJsonObject>
#include <QLibraryInfo>
#include <QProcess>
#include <QRegularExpression>
#include <QTemporaryDir>
#include <gtest/gtest.h>

namespace {

const QString sourceFolder = MARROWVALE_SOURCE_DIR;
const QString buildFolder = MARROWVALE_BUILD_DIR;
const QString metainfo = "/example.marrowvale.Marrowvale.metainfo.xml";

struct Answer
{
    int exitCode;
    QByteArray output;
    QByteArray errors;
};

Answer answerOf(const QString& program, const QStringList& arguments)
{
    QProcess process;
    process.start(program, arguments);
    if (!process.waitForStarted() || !process.waitForFinished(-1))
        return {-1, {}, "cannot run " + program.toUtf8()};
    return {process.exitStatus() == QProcess::NormalExit ? process.exitCode() : -1,
            process.readAllStandardOutput(), process.readAllStandardError()};
}

QString textOf(const QString& path)
{
    QFile file(path);
    return file.open(QIODevice::ReadOnly) ? QString::fromUtf8(file.readAll()) : QString();
}

QString captured(const QString& pattern, const QString& text)
{
    return QRegularExpression(pattern, QRegularExpression::MultilineOption).match(text).captured(1);
}

TEST(PackagingTest, WhatDesktopsReadIsWellFormed)
{
    const QString packaging = sourceFolder + "/packaging";
    const QList<QStringList> validators = {
        {"desktop-file-validate", packaging + "/marrowvale.desktop"},
        {"appstreamcli", "validate", "--no-net", packaging + metainfo},
        {"groff", "-man", "-Tutf8", "-Kutf8", "-ww", "-z", packaging + "/marrowvale.1"},
    };
    for (const QStringList& validator : validators) {
        const Answer answer = answerOf(validator.first(), validator.mid(1));
        EXPECT_EQ(answer.exitCode, 0) << answer.output.constData() << answer.errors.constData();
        EXPECT_EQ(answer.errors, "") << qPrintable(validator.first());
    }
}

TEST(PackagingTest, AnInstallationHoldsWhatItsPartsLookFor)
{
    const QTemporaryDir prefix;
    const Answer installed = answerOf("cmake", {"--install", buildFolder, "--prefix", prefix.path()});
    ASSERT_EQ(installed.exitCode, 0) << installed.errors.constData();

    const QDir binaries(prefix.filePath("bin"));
    const QString shared = prefix.filePath("share");
    const QString entry = textOf(shared + "/applications/marrowvale.desktop");
    const QString component = textOf(shared + "/metainfo" + metainfo);
    EXPECT_TRUE(QFileInfo(binaries.filePath(captured("^Exec=(.*)$", entry))).isExecutable());
    EXPECT_TRUE(QFileInfo::exists(shared + "/icons/hicolor/scalable/apps/" + captured("^Icon=(.*)$", entry) +
                                  ".svg"));
    EXPECT_TRUE(QFileInfo::exists(shared + "/man/man1/marrowvale.1.gz"));
    EXPECT_TRUE(QFileInfo::exists(shared + "/applications/" + captured(">(.*)</launchable>", component)));
    EXPECT_TRUE(QFileInfo(binaries.filePath(captured("<binary>(.*)</binary>", component))).isExecutable());

    // Where the program would look, were it this test.
    const QDir here(QCoreApplication::applicationDirPath());
    int cameras = 0;
    for (const QString& file : LinuxCamera::installedPluginFiles())
        cameras += QFileInfo::exists(binaries.filePath(here.relativeFilePath(file))) ? 1 : 0;
    EXPECT_EQ(cameras, 1);
}

TEST(PackagingTest, EveryDescriptionTellsTheSameVersion)
{
    const QString version =
        captured("^project\\(.* VERSION ([0-9.]+)", textOf(sourceFolder + "/CMakeLists.txt"));
    ASSERT_NE(version, "");
    EXPECT_EQ(captured("<release version=\"([^\"]*)\"", textOf(sourceFolder + "/packaging" + metainfo)),
              version);
    EXPECT_EQ(captured("^marrowvale \\(([^)]*)\\)", textOf(sourceFolder + "/packaging/changelog")), version);
}

// A scan of shared libraries sees no QML module, and the packages of these do not name each other.
TEST(PackagingTest, ThePackageBringsEveryQmlModuleThatScenesImport)
{
    const QStringList packages =
        captured("CPACK_DEBIAN_PACKAGE_DEPENDS \"([^\"]*)\"", textOf(buildFolder + "/CPackConfig.cmake"))
            .split(", ");
    const Answer scan =
        answerOf(MARROWVALE_QML_IMPORT_SCANNER, {"-rootPath", sourceFolder + "/storyboard", "-importPath",
                                                 QLibraryInfo::path(QLibraryInfo::QmlImportsPath)});
    int found = 0;
    for (const auto& module : QJsonDocument::fromJson(scan.output).array()) {
        const QString folder = module.toObject().value("path").toString();
        if (folder.isEmpty())
            continue; // one of the program's own
        const QByteArray owner = answerOf("dpkg-query", {"--search", folder + "/qmldir"}).output;
        EXPECT_TRUE(packages.contains(QString::fromUtf8(owner).section(':', 0, 0))) << owner.constData();
        found += 1;
    }
    EXPECT_GT(found, 0) << scan.errors.constData();
}

} // namespace
