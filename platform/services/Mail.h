#pragma once

#include <QByteArray>
#include <QStringList>
#include <QUrl>
#include <functional>
#include <variant>
#include <vector>

struct MailAttachment
{
    // As its reader sees it.
    QString fileName;
    // What the sender takes it for; empty: what its name tells. A device may go by the name anyway.
    QString mimeType;
    // The bytes, or a file that holds them, which must stay until the message is told.
    std::variant<QByteArray, QUrl> content;
};

struct MailMessage
{
    QStringList recipients = {};
    QString subject = {};
    QString body = {};
    // Whether the body is HTML. A device may hand over no more than its words.
    bool isHtml = false;
    std::vector<MailAttachment> attachments = {};
};

enum class MFMailComposeResult {
    Cancelled,
    // Handed over to the mail program, where the user goes on with it.
    Sent,
    Failed
};

// Electronic mail.
class Mail
{
public:
    virtual ~Mail() = default;

    // Whether the device has a mail program. Asked at every use; takes well under a millisecond.
    [[nodiscard]] virtual bool canSendMail() const = 0;

    // Told once, later, on the main thread.
    using Told = std::function<void(MFMailComposeResult)>;
    // Opens `message` in the mail program, for the user to send. Nothing in it reaches a place that it isn't
    // meant for: line ends leave the subject, what is no plain address leaves the recipients, and attachments
    // keep only what is harmless of their names. A body too long for a mail program's address becomes an
    // attachment.
    virtual void compose(const MailMessage& message, Told told) = 0;
};
