#pragma once

#include <QStringList>

// Keeps what is warned of, by a layout above all, for as long as it lives; at most one does.
class Warnings
{
public:
    Warnings()
        : before(qInstallMessageHandler(keep))
    {
        kept().clear();
    }
    ~Warnings() { qInstallMessageHandler(before); }
    Warnings(const Warnings&) = delete;
    Warnings& operator=(const Warnings&) = delete;

    [[nodiscard]] QStringList texts() const { return kept(); }

private:
    static QStringList& kept()
    {
        static QStringList texts;
        return texts;
    }

    static void keep(QtMsgType type, const QMessageLogContext& /*context*/, const QString& message)
    {
        if (type != QtDebugMsg && type != QtInfoMsg)
            kept().append(message);
    }

    QtMessageHandler before;
};
