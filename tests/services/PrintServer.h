#pragma once

#include "tests/services/FakePrograms.h"
#include "tests/services/PrivateBus.h"

#include <QProcess>

// A print server that nobody else knows of, with one queue, "Office". Its printer keeps the last job: what it
// was called with, and the document.
class PrintServer
{
public:
    PrintServer()
    {
        for (const char* needed : {"bin/backend", "spool/tmp", "state", "cache", "ppd"})
            QDir::home().mkpath(path(needed));
        QFile::link("/usr/lib/cups/daemon", path("bin/daemon"));
        writeFile(path("cupsd.conf"), "Listen " + path("socket").toUtf8() +
                                          "\nBrowsing Off\nWebInterface No\n"
                                          "<Location />\nAllow all\n</Location>\n"
                                          "<Policy default>\n<Limit All>\nAllow all\n</Limit>\n</Policy>\n");
        writeFile(path("cups-files.conf"), places());
        writeFile(path("bin/backend/keep"), "#!/bin/sh\ncp \"$6\" " + path("kept.pdf").toUtf8() +
                                                "\nfor each; do printf '%s\\0' \"$each\"; done >" +
                                                path("kept.log").toUtf8() + "\n");
        QFile::setPermissions(path("bin/backend/keep"), QFileDevice::ReadOwner | QFileDevice::ExeOwner);
        qputenv("CUPS_SERVER", path("socket").toUtf8());
        daemon.start("/usr/sbin/cupsd", {"-f", "-c", path("cupsd.conf"), "-s", path("cups-files.conf")});
        EXPECT_TRUE(comesTrue([] {
            return QProcess::execute("/usr/sbin/lpadmin", {"-p", "Office", "-E", "-v", "keep:/"}) == 0;
        }));
    }
    ~PrintServer()
    {
        daemon.terminate();
        daemon.waitForFinished();
    }
    PrintServer(const PrintServer&) = delete;
    PrintServer& operator=(const PrintServer&) = delete;

    // Job, user, title, copies, options and document of the last job, once there is one.
    static QStringList keptJob()
    {
        EXPECT_TRUE(comesTrue([] { return contentOf(path("kept.log")).count('\0') == 6; }));
        const QStringList job = QString::fromUtf8(contentOf(path("kept.log"))).split(QChar(0));
        QFile::remove(path("kept.log"));
        return job;
    }
    static QByteArray keptDocument() { return contentOf(path("kept.pdf")); }

private:
    static QString path(const QString& name) { return QDir::home().absoluteFilePath("print-server/" + name); }

    static QByteArray places()
    {
        QByteArray lines = "User lp\n";
        for (const auto& [place, name] :
             {std::pair("ServerRoot", ""), std::pair("ServerBin", "bin"), std::pair("RequestRoot", "spool"),
              std::pair("CacheDir", "cache"), std::pair("StateDir", "state"),
              std::pair("TempDir", "spool/tmp"), std::pair("AccessLog", "access"),
              std::pair("ErrorLog", "error"), std::pair("PageLog", "page")})
            lines += place + QByteArray(" ") + path(name).toUtf8() + '\n';
        return lines;
    }

    QProcess daemon;
};
