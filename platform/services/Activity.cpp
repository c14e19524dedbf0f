#include "platform/services/Activity.h"

#include "platform/foundation/Result.h"
#include "platform/services/Device.h"
#include "platform/toolkit/UIAlertController.h"
#include "platform/toolkit/UIBarButtonItem.h"

#include <QBuffer>
#include <QFile>
#include <QPointer>

namespace {

struct NamedContent
{
    QString name;
    QByteArray content;
};

// The items' texts and addresses, a line each.
QString textOf(const std::vector<ActivityItem>& items)
{
    QStringList lines;
    for (const ActivityItem& item : items) {
        if (const auto* text = std::get_if<QString>(&item))
            lines.append(*text);
        else if (const auto* url = std::get_if<QUrl>(&item))
            lines.append(url->isLocalFile() ? url->toLocalFile() : url->toString());
    }
    return lines.join(QLatin1Char('\n'));
}

template <typename T>
const T* firstOf(const std::vector<ActivityItem>& items)
{
    for (const ActivityItem& item : items)
        if (const T* found = std::get_if<T>(&item))
            return found;
    return nullptr;
}

Result<NamedContent> sharedFile(const QUrl& url)
{
    QFile file(url.toLocalFile());
    if (!file.open(QIODevice::ReadOnly))
        return NSError{file.errorString(), {}};
    return NamedContent{url.fileName(), file.readAll()};
}

// A file stands for itself, a picture without words for a picture; anything else becomes a text.
Result<NamedContent> fileOf(const std::vector<ActivityItem>& items)
{
    const auto* url = firstOf<QUrl>(items);
    if (url != nullptr && url->isLocalFile())
        return sharedFile(*url);
    const QString text = textOf(items);
    const auto* image = firstOf<QImage>(items);
    if (image == nullptr || !text.isEmpty())
        return NamedContent{QStringLiteral("Shared.txt"), text.toUtf8()};
    QBuffer buffer;
    image->save(&buffer, "PNG");
    return NamedContent{QStringLiteral("Shared.png"), buffer.data()};
}

void copyToPasteboard(const std::vector<ActivityItem>& items, UIViewController& /*presenter*/)
{
    Pasteboard& pasteboard = *Device::current().pasteboard;
    const auto* image = firstOf<QImage>(items);
    const QString text = textOf(items);
    if (image != nullptr && text.isEmpty())
        pasteboard.setImage(*image);
    else
        pasteboard.setString(text);
}

void saveToFiles(const std::vector<ActivityItem>& items, UIViewController& presenter)
{
    const auto tell = [screen = QPointer(&presenter)](const QString& problem) {
        if (screen && !problem.isEmpty())
            screen->present(UIAlertController::withOk(QStringLiteral("Save to Files"), problem));
    };
    const Result<NamedContent> file = fileOf(items);
    if (file)
        Device::current().documents->saveDocument(file.value().name, file.value().content, tell);
    else
        tell(file.error().localizedDescription);
}

} // namespace

const std::vector<Activity>& allActivities()
{
    using Type = UIActivityViewController::ActivityType;
    static const std::vector<Activity> table{
        {Type::CopyToPasteboard, QStringLiteral("Copy"), QStringLiteral("doc.on.doc"), copyToPasteboard},
        {Type::SaveToFiles, QStringLiteral("Save to Files"), QStringLiteral("folder.badge.plus"),
         saveToFiles},
    };
    return table;
}
