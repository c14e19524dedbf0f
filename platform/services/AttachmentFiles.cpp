#include "platform/services/AttachmentFiles.h"

#include "platform/services/FileBytes.h"

#include <QDir>
#include <QFile>

namespace {

constexpr auto onlyForOwner = QFileDevice::ReadOwner | QFileDevice::WriteOwner;

Result<std::shared_ptr<QIODevice>> openContent(const MailAttachment& attachment)
{
    if (const auto* bytes = std::get_if<QByteArray>(&attachment.content))
        return openBytes(*bytes);
    return openFile(std::get<QUrl>(attachment.content).toLocalFile());
}

bool writeAttachment(const MailAttachment& attachment, const QString& path)
{
    QFile target(path);
    if (!target.open(QIODevice::WriteOnly | QIODevice::NewOnly, onlyForOwner))
        return false;
    const auto source = openContent(attachment);
    return source && copyBytes(*source.value(), target) && target.flush();
}

} // namespace

Result<QStringList> writeAttachments(const QString& folder, const std::vector<MailAttachment>& attachments)
{
    QStringList paths;
    for (const MailAttachment& attachment : attachments) {
        // Two of them may have one name.
        const QString place = QString::number(paths.size() + 1);
        paths.append(QStringLiteral("%1/%2/%3").arg(folder, place, attachment.fileName));
        if (!QDir(folder).mkdir(place) || !writeAttachment(attachment, paths.last()))
            return NSError{QStringLiteral("%1 could not be attached.").arg(attachment.fileName), {}};
    }
    return paths;
}
