#include "tour/TourDevice.h"

#include "platform/foundation/DispatchQueue.h"
#include "resources/Resources.h"

#include <QDir>
#include <QFile>

struct TourDevice::SelfAnsweringDocuments : Documents
{
    void pickDocument(const Request& /*request*/, Picked picked) override
    {
        const auto answer = [this, tell = std::move(picked)] { tell(QUrl::fromLocalFile(pickedFile)); };
        QMetaObject::invokeMethod(&later, answer, Qt::QueuedConnection);
    }
    void cancelPicking() override {}
    void saveDocument(const QString& name, std::shared_ptr<QIODevice> content, Saved saved) override
    {
        QFile file(QDir(folder).filePath(name));
        const QByteArray bytes = content->readAll();
        const bool written = file.open(QIODevice::WriteOnly) && file.write(bytes) == bytes.size();
        saved(written ? QString() : file.errorString());
    }

    QString folder;
    QString pickedFile;
    QObject later;
};

struct TourDevice::ToldTextMessages : TextMessages
{
    [[nodiscard]] bool canSendText() const override { return can; }
    bool compose(const QString& /*text*/) override { return true; }
    bool can = false;
};

struct TourDevice::ToldInterfaceStyle : InterfaceStyle
{
    [[nodiscard]] bool isDark() const override { return dark; }
    bool dark = false;
};

struct TourDevice::DeafAddressOpener : AddressOpener
{
    bool open(const QUrl& /*address*/) override { return true; }
};

struct TourDevice::PaperlessPrinter : Printer
{
    void print(const PrintJob& /*job*/, Told told) override
    {
        ++jobs;
        DispatchQueue::main().async([told = std::move(told)] { told(true, std::nullopt); });
    }
    void cancelAsking() override {}
    int jobs = 0;
};

struct TourDevice::StillCamera : Camera
{
    [[nodiscard]] bool isAvailable() override { return true; }
    void start(Told told) override
    {
        later = std::make_unique<QObject>();
        const auto tell = [told = std::move(told)] { told(movieLogo()); };
        QMetaObject::invokeMethod(later.get(), tell, Qt::QueuedConnection);
    }
    void stop() override { later.reset(); }

    std::unique_ptr<QObject> later;
};

struct TourDevice::SilentReviewPrompt : ReviewPrompt
{
    void ask(UIWindowScene* /*scene*/) override {}
};

namespace {

template <typename Told, typename Service>
Told* replaceService(std::unique_ptr<Service>& place)
{
    auto told = std::make_unique<Told>();
    Told* made = told.get();
    place = std::move(told);
    return made;
}

} // namespace

TourDevice::TourDevice(const QString& folder)
    : documents(replaceService<SelfAnsweringDocuments>(device->documents))
    , textMessages(replaceService<ToldTextMessages>(device->textMessages))
    , interfaceStyle(replaceService<ToldInterfaceStyle>(device->interfaceStyle))
    , printer(replaceService<PaperlessPrinter>(device->printer))
{
    documents->folder = folder;
    replaceService<DeafAddressOpener>(device->addressOpener);
    replaceService<StillCamera>(device->camera);
    replaceService<SilentReviewPrompt>(device->reviewPrompt);
}

void TourDevice::setPickedFile(const QString& path)
{
    documents->pickedFile = path;
}

void TourDevice::setDark(bool dark)
{
    interfaceStyle->dark = dark;
    Q_EMIT interfaceStyle->changed();
}

void TourDevice::setCanSendText(bool can)
{
    textMessages->can = can;
}

int TourDevice::printedJobs() const
{
    return printer->jobs;
}
