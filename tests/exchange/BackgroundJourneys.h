#pragma once

#include "exchange/ExportViewController.h"
#include "model/SharedValues.h"
#include "platform/services/LinuxMail.h"
#include "platform/services/LinuxPrinter.h"
#include "platform/services/UIActivityViewController.h"
#include "platform/toolkit/UINavigationController.h"
#include "summaries/BreakdownScreens.h"
#include "tests/services/FakePrograms.h"
#include "tests/support/PlainStoryboard.h"
#include "tests/support/RecordingDevice.h"

#include <QFileInfo>

// What the user waits for while other threads work.
class Journey
{
public:
    virtual ~Journey() = default;
    // Goes on if the last step is done; true at the end.
    virtual bool goOn() = 0;
    // What came of it.
    virtual QString outcome() = 0;
    // Destroys the screen or service that asked for the work.
    virtual void leave() = 0;
};

class ScreenJourney : public Journey
{
public:
    void leave() override { navigation.reset(); }

protected:
    template <typename Screen>
    Screen& opened()
    {
        navigation->push(std::make_unique<Screen>());
        return static_cast<Screen&>(*navigation->topViewController());
    }

    UIActivityViewController* sheet()
    {
        auto* screen = navigation->topViewController();
        return qobject_cast<UIActivityViewController*>(screen->presentedViewController());
    }

    PlainStoryboard storyboard;
    std::unique_ptr<UINavigationController> navigation = std::make_unique<UINavigationController>(storyboard);
};

class ExportJourney final : public ScreenJourney
{
public:
    explicit ExportJourney(RecordingDevice& device)
        : device(device)
    {
        screen.CreateUpdateFile();
    }

    bool goOn() override
    {
        if (!screen.SaveButton->isEnabled() || screen.activityIndicator->isAnimating())
            return false;
        if (sheet() != nullptr) {
            sheet()->choose(0);
            return true;
        }
        screen.SaveToFiles();
        screen.SaveToFiles();
        return false;
    }

    QString outcome() override
    {
        return QString::number(screen.progress.completedUnitCount) +
               QString::fromUtf8(device.savedDocuments().back().content);
    }

private:
    RecordingDevice& device;
    ExportViewController& screen = opened<ExportViewController>();
};

// Two screens share a file, which is to hold the report that was asked for last.
class ReportJourney final : public ScreenJourney
{
public:
    explicit ReportJourney(RecordingDevice& /*device*/)
    {
        shared().CurrentMovie.genre = "War";
        shared().CurrentMovie.rating = "PG";
        opened<RatingBreakdownTableViewController>().shareButtonClicked();
        auto& last = opened<GenreBreakdownTableViewController>();
        last.shareButtonClicked();
        path = last.outputFileURL.toLocalFile();
    }

    bool goOn() override { return sheet() != nullptr; }

    QString outcome() override { return QStringLiteral("%1 bytes").arg(QFileInfo(path).size()); }

private:
    QString path;
};

class PrintJourney final : public Journey
{
public:
    explicit PrintJourney(RecordingDevice& device)
        : device(device)
    {
        FakePrograms::hideOthers();
        const NSAttributedString text(QStringLiteral("Movie Name: Alien\n").repeated(300));
        for (const char* name : {"first", "second"})
            printer->print({name, text}, [this](bool completed, const std::optional<NSError>&) {
                ended.append(completed ? "completed" : "cancelled");
            });
    }

    bool goOn() override { return ended.size() == 2; }

    QString outcome() override
    {
        const auto& saved = device.savedDocuments().back();
        return ended.join(' ') + saved.name + QString::number(saved.content.size());
    }

    void leave() override { printer.reset(); }

private:
    RecordingDevice& device;
    FakePrograms programs;
    QStringList ended;
    std::unique_ptr<LinuxPrinter> printer = std::make_unique<LinuxPrinter>();
};

class MailJourney final : public Journey
{
public:
    explicit MailJourney(RecordingDevice& /*device*/)
    {
        FakePrograms::install("xdg-email");
        mail->compose({.subject = "Update", .attachments = {{"Marrowvale.csv", "csv", QByteArray("bytes")}}},
                      [this](MFMailComposeResult result) { ended = result; });
    }

    bool goOn() override { return ended.has_value(); }

    QString outcome() override
    {
        const QStringList line = FakePrograms::argumentsOf("xdg-email");
        return QString::number(int(*ended)) + line.last() + contentOf(line.value(2));
    }

    void leave() override { mail.reset(); }

private:
    FakePrograms programs;
    std::optional<MFMailComposeResult> ended;
    std::unique_ptr<LinuxMail> mail = std::make_unique<LinuxMail>(QDBusConnection("nowhere"));
};
