#include "bench/BenchHome.h"
#include "bench/EventLoop.h"
#include "bench/Measurement.h"
#include "bench/Measurements.h"
#include "model/SharedValues.h"
#include "platform/services/Device.h"
#include "platform/toolkit/UIImage.h"
#include "summaries/BreakdownScreens.h"

#include <QFile>
#include <QPageSize>
#include <QPdfWriter>
#include <QTextCursor>
#include <QTextDocument>

namespace {

struct SendingTextMessages : TextMessages
{
    [[nodiscard]] bool canSendText() const override { return true; }
    bool compose(const QString& /*text*/) override { return true; }
};

// The list of the one genre that all movies of the catalogue of covers have.
struct GenreList
{
    explicit GenreList(BenchHome& home)
        : folder(home.useDataFolder(QStringLiteral("covers")))
    {
        device->textMessages = std::make_unique<SendingTextMessages>();
        shared().CurrentMovie.genre = QStringLiteral("Drama");
        screen.emplace();
        screen->outputFileURL = QUrl::fromLocalFile(folder + QStringLiteral("/Report.pdf"));
        screen->viewDidLoad();
    }

    void makeReport()
    {
        screen->shareButtonClicked();
        runUntil([this] { return screen->presentedViewController() != nullptr; });
    }

    const QString folder;
    const std::unique_ptr<Device> device = makeLinuxDevice();
    AppDelegate delegate;
    std::optional<GenreBreakdownTableViewController> screen;
};

void reportOurs(benchmark::State& state, BenchHome& home)
{
    GenreList list(home);
    measureWork(state, [&] {
        list.makeReport();
        return list.screen->MovieCount;
    });
}

void feed(QTextDocument& document, const NSAttributedString& text)
{
    QTextCursor cursor(&document);
    int number = 0;
    for (const auto& run : text.runs()) {
        if (!run.attachment) {
            cursor.insertText(run.text);
            continue;
        }
        QTextImageFormat format;
        format.setName(QString::number(number++));
        format.setWidth(run.attachment->size.width());
        format.setHeight(run.attachment->size.height());
        document.addResource(QTextDocument::ImageResource, QUrl(format.name()),
                             run.attachment->encoded.isEmpty() ? run.attachment->image
                                                               : imageWithData(run.attachment->encoded));
        cursor.insertImage(format);
    }
}

void reportBare(benchmark::State& state, BenchHome& home)
{
    GenreList list(home);
    list.makeReport();
    measureWork(state, [&] {
        QFile file(list.folder + QStringLiteral("/Bare.pdf"));
        file.open(QIODevice::WriteOnly);
        QPdfWriter writer(&file);
        writer.setPageSize(QPageSize(QPageSize::A4));
        QTextDocument document;
        feed(document, list.screen->MovieString);
        document.print(&writer);
        return file.size();
    });
}

} // namespace

void addReportMeasurements(BenchHome& home)
{
    addMeasurement("report/ours", [&home](benchmark::State& state) { reportOurs(state, home); });
    addMeasurement("report/reference", [&home](benchmark::State& state) { reportBare(state, home); });
}
