#include "platform/services/ActivityActions.h"

#include "platform/services/Device.h"
#include "platform/services/FileBytes.h"
#include "platform/services/MFMailComposeViewController.h"
#include "platform/services/MFMessageComposeViewController.h"
#include "platform/toolkit/UIAlertController.h"
#include "platform/toolkit/UIBarButtonItem.h"

#include <QIODevice>
#include <QPointer>

namespace {

struct NamedContent
{
    QString name;
    std::shared_ptr<QIODevice> content;
};

const QString sharedPicture = QStringLiteral("Shared.png");

Result<NamedContent> contentToSave(const ActivityItems& items)
{
    const QList<QUrl> files = filesOf(items);
    if (!files.isEmpty()) {
        const auto content = openFile(files.first().toLocalFile());
        if (content)
            return NamedContent{files.first().fileName(), content.value()};
        return content.error();
    }
    const QString words = wordsOf(items);
    const QList<QImage> pictures = picturesOf(items);
    if (pictures.isEmpty() || !words.isEmpty())
        return NamedContent{QStringLiteral("Shared.txt"), openBytes(words.toUtf8())};
    return NamedContent{sharedPicture, openBytes(pngOf(pictures.first()))};
}

} // namespace

void copyToPasteboard(const ActivityItems& items, UIViewController& /*presenter*/)
{
    Device::current().pasteboard->setContent(linesOf(items), picturesOf(items).value(0));
}

void saveToFiles(const ActivityItems& items, UIViewController& presenter)
{
    const auto tell = [screen = QPointer(&presenter)](const QString& problem) {
        if (screen && !problem.isEmpty())
            screen->present(UIAlertController::withOk(QStringLiteral("Save to Files"), problem));
    };
    const Result<NamedContent> file = contentToSave(items);
    if (file)
        Device::current().documents->saveDocument(file.value().name, file.value().content, tell);
    else
        tell(file.error().localizedDescription);
}

void sendByMail(const ActivityItems& items, UIViewController& presenter)
{
    auto composer = std::make_unique<MFMailComposeViewController>();
    composer->setSubject(nameOf(items));
    composer->setMessageBody(wordsOf(items), false);
    for (const QUrl& file : filesOf(items))
        composer->addAttachmentFile(file);
    for (const QImage& picture : picturesOf(items))
        composer->addAttachmentData(pngOf(picture), QStringLiteral("image/png"), sharedPicture);
    presenter.present(std::move(composer));
}

void sendAsMessage(const ActivityItems& items, UIViewController& presenter)
{
    presenter.present(std::make_unique<MFMessageComposeViewController>(wordsOf(items)));
}

void openElsewhere(const ActivityItems& items, UIViewController& presenter)
{
    QStringList left;
    for (const QUrl& address : addressesOf(items))
        if (!Device::current().addressOpener->open(address))
            left.append(address.isLocalFile() ? address.fileName() : address.toString());
    if (!left.isEmpty())
        presenter.present(UIAlertController::withOk(
            QStringLiteral("Open With"),
            QStringLiteral("No program of this device can open %1.").arg(left.join(QStringLiteral(", ")))));
}
