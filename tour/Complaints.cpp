#include "tour/Complaints.h"

#include "tour/TourError.h"

#include <QStringList>

namespace {

QtMessageHandler writeAsBefore = nullptr;

QStringList& complaints()
{
    static QStringList kept;
    return kept;
}

void keepWarning(QtMsgType type, const QMessageLogContext& context, const QString& message)
{
    if (type != QtDebugMsg && type != QtInfoMsg)
        complaints().append(message);
    writeAsBefore(type, context, message);
}

} // namespace

void Complaints::listen()
{
    writeAsBefore = qInstallMessageHandler(keepWarning);
}

void Complaints::endTourIfAny()
{
    if (!complaints().isEmpty())
        throw TourError("The program complains:\n" + complaints().join('\n'));
}
