#include "platform/services/LinuxMail.h"

#include "platform/foundation/Background.h"
#include "platform/services/AddressHandlers.h"
#include "platform/services/AttachmentFiles.h"
#include "platform/services/Command.h"
#include "platform/services/MailText.h"

#include <QDBusMetaType>
#include <QDBusUnixFileDescriptor>
#include <QFile>

namespace {

using Descriptors = QList<QDBusUnixFileDescriptor>;

// Some desktops' command ends only with the mail program that it starts.
constexpr CommandLimits commandLimits{.patience = std::chrono::seconds(10), .leaveRunning = true};

Descriptors descriptorsOf(const QStringList& paths)
{
    Descriptors descriptors;
    for (const QString& path : paths) {
        QFile file(path);
        if (file.open(QIODevice::ReadOnly))
            descriptors.append(QDBusUnixFileDescriptor(file.handle()));
    }
    return descriptors;
}

QVariantMap portalOptions(const MailMessage& message, const QStringList& files)
{
    QVariantMap options{{QStringLiteral("subject"), message.subject}, {QStringLiteral("body"), message.body}};
    // Old portals know one recipient only.
    if (message.recipients.size() == 1)
        options.insert(QStringLiteral("address"), message.recipients.first());
    else if (!message.recipients.isEmpty())
        options.insert(QStringLiteral("addresses"), message.recipients);
    if (!files.isEmpty())
        options.insert(QStringLiteral("attachment_fds"), QVariant::fromValue(descriptorsOf(files)));
    return options;
}

} // namespace

LinuxMail::LinuxMail(QDBusConnection bus, const PortalRequest::Limits& limits)
    : bus(std::move(bus))
    , limits(limits)
{
    qDBusRegisterMetaType<Descriptors>();
}

bool LinuxMail::canSendMail() const
{
    return hasHandlerFor("mailto");
}

void LinuxMail::compose(const MailMessage& message, Told told)
{
    folders.push_back(std::make_shared<TemporaryFolder>());
    // Holds the folder, so that it isn't removed while files are written to it.
    auto prepare = [message, folder = folders.back(), path = folders.back()->path()]() -> Result<Prepared> {
        const MailMessage tamed = tamedMail(message);
        const Result<QStringList> files = writeAttachments(path, tamed.attachments);
        if (files)
            return Prepared{tamed, files.value()};
        return files.error();
    };
    background(Pool::allCores(), std::move(prepare))
        .then(works, [this, told = std::move(told)](const Result<Prepared>& mail) {
            if (mail)
                handOver(mail.value(), told);
            else
                told(MFMailComposeResult::Failed);
        });
}

void LinuxMail::handOver(const Prepared& mail, const Told& told)
{
    if (mayUsePortal(mail))
        handToPortal(mail, told);
    else
        handToCommand(mail, told);
}

bool LinuxMail::mayUsePortal(const Prepared& mail) const
{
    return bus.isConnected() && (mail.files.isEmpty() || bus.connectionCapabilities().testFlag(
                                                             QDBusConnection::UnixFileDescriptorPassing));
}

void LinuxMail::handToPortal(const Prepared& mail, const Told& told)
{
    using Answer = PortalRequest::Answer;
    const auto answered = [this, mail, told](Answer answer) {
        if (answer == Answer::Failed)
            handToCommand(mail, told);
        else
            told(answer == Answer::Done ? MFMailComposeResult::Sent : MFMailComposeResult::Cancelled);
    };
    PortalRequest::send(bus, QStringLiteral("org.freedesktop.portal.Email"), QStringLiteral("ComposeEmail"),
                        portalOptions(mail.message, mail.files), limits, answered, works);
}

void LinuxMail::handToCommand(const Prepared& mail, const Told& told)
{
    QStringList line{QStringLiteral("xdg-email"), QStringLiteral("--utf8")};
    for (const QString& file : mail.files)
        line << QStringLiteral("--attach") << file;
    line << mailtoAddress(mail.message);
    runCommand(works, line, commandLimits, [told](const CommandOutcome& outcome) {
        const bool isTaken = outcome.succeeded() || outcome.end == CommandOutcome::End::Late;
        told(isTaken ? MFMailComposeResult::Sent : MFMailComposeResult::Failed);
    });
}
