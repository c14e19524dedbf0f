#pragma once

#include <QDir>
#include <QFile>
#include <QStringList>
#include <gtest/gtest.h>

inline void writeFile(const QString& path, const QByteArray& content)
{
    QFile file(path);
    ASSERT_TRUE(file.open(QIODevice::WriteOnly));
    file.write(content);
}

inline QByteArray contentOf(const QString& path)
{
    QFile file(path);
    return file.open(QIODevice::ReadOnly) ? file.readAll() : QByteArray();
}

// Programs of a test's own, found before all others.
class FakePrograms
{
public:
    FakePrograms()
    {
        QDir::home().mkpath("bin");
        qputenv("PATH", path("").toUtf8() + ":" + before);
    }
    ~FakePrograms() { qputenv("PATH", before); }
    FakePrograms(const FakePrograms&) = delete;
    FakePrograms& operator=(const FakePrograms&) = delete;

    // One that logs its arguments, then does as the shell is told.
    static void install(const QString& name, const QByteArray& doing = "exit 0")
    {
        writeFile(path(name), "#!/bin/sh\nfor each; do printf '%s\\0' \"$each\"; done >" +
                                  path(name + ".log").toUtf8() + "\n" + doing + "\n");
        QFile::setPermissions(path(name), QFileDevice::ReadOwner | QFileDevice::ExeOwner);
    }

    // No program but these, for the rest of the test.
    static void hideOthers() { qputenv("PATH", path("").toUtf8()); }

    // What it was last called with; empty: it wasn't.
    static QStringList argumentsOf(const QString& name)
    {
        const QStringList arguments = QString::fromUtf8(contentOf(path(name + ".log"))).split(QChar(0));
        return arguments.mid(0, arguments.size() - 1);
    }

    static QString path(const QString& name) { return QDir::home().absoluteFilePath("bin/" + name); }

private:
    QByteArray before = qgetenv("PATH");
};
