#pragma once

#include "platform/foundation/TemporaryFolder.h"
#include "platform/services/Mail.h"
#include "platform/services/PortalRequest.h"

// Mail through the desktop portal, or, where there is none or it fails, through `xdg-email`; both take the
// body as plain text only. Attachments wait for the mail program in private folders, until the program ends.
class LinuxMail : public Mail
{
public:
    explicit LinuxMail(QDBusConnection bus, const PortalRequest::Limits& limits = {});

    [[nodiscard]] bool canSendMail() const override;
    void compose(const MailMessage& message, Told told) override;

private:
    struct Prepared
    {
        MailMessage message;
        // One an attachment.
        QStringList files;
    };
    void handOver(const Prepared& mail, const Told& told);
    void handToPortal(const Prepared& mail, const Told& told);
    void handToCommand(const Prepared& mail, const Told& told);
    [[nodiscard]] bool mayUsePortal(const Prepared& mail) const;

    QDBusConnection bus;
    PortalRequest::Limits limits;
    std::vector<std::shared_ptr<TemporaryFolder>> folders;
    // Owns what is under way: goes before all else.
    QObject works;
};
