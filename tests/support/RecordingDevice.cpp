#include "tests/support/RecordingDevice.h"

namespace {

template <typename Twin, typename Service>
Twin* put(std::unique_ptr<Service>& place)
{
    auto twin = std::make_unique<Twin>();
    Twin* made = twin.get();
    place = std::move(twin);
    return made;
}

} // namespace

RecordingDevice::RecordingDevice()
    : mailTwin(put<RecordingMail>(mail))
    , textMessagesTwin(put<RecordingTextMessages>(textMessages))
    , documentsTwin(put<RecordingDocuments>(documents))
    , pasteboardTwin(put<RecordingPasteboard>(pasteboard))
    , printerTwin(put<RecordingPrinter>(printer))
    , cameraTwin(put<RecordingCamera>(camera))
    , interfaceStyleTwin(put<RecordingInterfaceStyle>(interfaceStyle))
    , addressOpenerTwin(put<RecordingAddressOpener>(addressOpener))
    , reviewPromptTwin(put<RecordingReviewPrompt>(reviewPrompt))
{
}

void RecordingDevice::setDark(bool dark)
{
    interfaceStyleTwin->dark = dark;
    Q_EMIT interfaceStyleTwin->changed();
}

void RecordingDevice::answerPick()
{
    if (const auto tell = std::exchange(documentsTwin->picked, nullptr))
        tell(nextPick);
}

void RecordingDevice::RecordingMail::compose(const MailMessage& message, Told tell)
{
    composed.push_back(message);
    told = std::move(tell);
}

void RecordingDevice::RecordingPrinter::print(const PrintJob& job, Told tell)
{
    printed.push_back(job);
    told = std::move(tell);
}

void RecordingDevice::RecordingPrinter::cancelAsking()
{
    if (const auto tell = std::exchange(told, nullptr))
        tell(false, std::nullopt);
}

void RecordingDevice::RecordingDocuments::pickDocument(const Request& asked, Picked tell)
{
    request = asked;
    picked = std::move(tell);
}

void RecordingDevice::RecordingDocuments::saveDocument(const QString& name,
                                                       std::shared_ptr<QIODevice> content, Saved tell)
{
    saved.push_back({name, content->readAll()});
    tell(problem);
}
