#pragma once

#include "platform/services/Device.h"

#include <utility>
#include <vector>

// A device that does what a test says and remembers what it was asked for.
struct RecordingDevice : Device
{
    RecordingDevice();

    void setCanSendText(bool can) { textMessagesTwin->can = can; }
    void setCanSendMail(bool can) { mailTwin->can = can; }
    void setDark(bool dark);
    void setCameraAvailable(bool available) { cameraTwin->available = available; }
    [[nodiscard]] bool isCameraOn() const { return cameraTwin->told != nullptr; }
    // The camera must be on.
    void letCameraTell(const Result<QImage>& seen) { cameraTwin->told(seen); }

    // What the next answerPick() tells: a file, or absent for a cancelled dialog.
    std::optional<QUrl> nextPick;
    // Answers the open file dialog with nextPick; none open: does nothing.
    void answerPick();
    [[nodiscard]] bool isPicking() const { return documentsTwin->picked != nullptr; }

    struct SavedDocument
    {
        QString name;
        QByteArray content;
    };
    [[nodiscard]] const std::vector<SavedDocument>& savedDocuments() const { return documentsTwin->saved; }
    // The sentence that every save fails with; empty: saves succeed.
    void setSaveProblem(const QString& problem) { documentsTwin->problem = problem; }

    struct RecordingTextMessages : TextMessages
    {
        [[nodiscard]] bool canSendText() const override { return can; }
        bool compose(const QString& text) override
        {
            composed.append(text);
            return composes;
        }
        bool can = true;
        QStringList composed;
        bool composes = true;
    };
    struct RecordingMail : Mail
    {
        [[nodiscard]] bool canSendMail() const override { return can; }
        void compose(const MailMessage& message, Told tell) override;
        bool can = true;
        std::vector<MailMessage> composed;
        // Tells how the last message went; absent: none is waiting for it.
        Told told;
    };
    struct RecordingPrinter : Printer
    {
        void print(const PrintJob& job, Told tell) override;
        void cancelAsking() override;
        std::vector<PrintJob> printed;
        // Tells how the last job went; absent: none is waiting for it.
        Told told;
    };
    struct RecordingDocuments : Documents
    {
        void pickDocument(const Request& asked, Picked tell) override;
        void cancelPicking() override { picked = nullptr; }
        void saveDocument(const QString& name, std::shared_ptr<QIODevice> content, Saved tell) override;
        Request request;
        Picked picked;
        std::vector<SavedDocument> saved;
        QString problem;
    };
    struct RecordingPasteboard : Pasteboard
    {
        [[nodiscard]] QImage image() const override { return picture; }
        void setContent(const QString& words, const QImage& image) override
        {
            text = words;
            picture = image;
        }
        QString text;
        QImage picture;
    };
    struct RecordingCamera : Camera
    {
        [[nodiscard]] bool isAvailable() override { return available; }
        void start(Told tell) override { told = std::move(tell); }
        void stop() override { told = nullptr; }
        bool available = false;
        // Null while it is off.
        Told told;
    };
    struct RecordingInterfaceStyle : InterfaceStyle
    {
        [[nodiscard]] bool isDark() const override { return dark; }
        bool dark = false;
    };

    struct RecordingAddressOpener : AddressOpener
    {
        bool open(const QUrl& address) override
        {
            opened.append(address);
            return can;
        }
        QList<QUrl> opened;
        bool can = true;
    };
    struct RecordingReviewPrompt : ReviewPrompt
    {
        void ask(UIWindowScene* scene) override { asked.push_back(scene); }
        // Where each question was to be asked; null: anywhere.
        std::vector<UIWindowScene*> asked;
    };

    RecordingMail* mailTwin;
    RecordingTextMessages* textMessagesTwin;
    RecordingDocuments* documentsTwin;
    RecordingPasteboard* pasteboardTwin;
    RecordingPrinter* printerTwin;
    RecordingCamera* cameraTwin;
    RecordingInterfaceStyle* interfaceStyleTwin;
    RecordingAddressOpener* addressOpenerTwin;
    RecordingReviewPrompt* reviewPromptTwin;
};
