#include "platform/services/LinuxMail.h"
#include "tests/services/FakePrograms.h"
#include "tests/services/PrivateBus.h"
#include "tests/services/StandInMailPortal.h"

#include <QFileInfo>
#include <QStandardPaths>
#include <QUrlQuery>
#include <gmock/gmock.h>

using namespace std::chrono_literals;

namespace {

using Manner = StandInMailPortal::Manner;
using MailResult = MFMailComposeResult;

const MailMessage exportMail{.recipients = {"ann@example.org"},
                             .subject = "Update\r\nBcc: eve@example.org",
                             .body = "<p>Tom &amp; Jerry?</p>",
                             .isHtml = true,
                             .attachments = {{"Marrowvale.csv", "csv", QByteArray("[MARROWVALE]\n")},
                                             {"../../My Movies.csv", "csv", QByteArray("twice")}}};

class LinuxMailTest : public PrivateBusTest<StandInMailPortal>
{
protected:
    void SetUp() override
    {
        PrivateBusTest::SetUp();
        FakePrograms::install("xdg-email");
    }

    // Silence is known for what it is after an instant.
    [[nodiscard]] std::unique_ptr<LinuxMail> impatientMail() const
    {
        return std::make_unique<LinuxMail>(connection("program"), PortalRequest::Limits{50ms, 50ms});
    }

    // How `message` went.
    static std::optional<MailResult> composed(Mail& mail, const MailMessage& message = exportMail)
    {
        std::vector<MailResult> told;
        mail.compose(message, [&told](MailResult result) { told.push_back(result); });
        EXPECT_TRUE(told.empty()) << "told before the call returned";
        EXPECT_TRUE(comesTrue([&told] { return !told.empty(); }));
        QCoreApplication::processEvents();
        EXPECT_EQ(told.size(), 1U);
        return told.empty() ? std::nullopt : std::optional(told.front());
    }

    FakePrograms programs;
};

TEST_F(LinuxMailTest, ThePortalGetsTheTextAndTheFiles)
{
    LinuxMail mail(connection("program"));
    EXPECT_EQ(composed(mail), MailResult::Sent);
    EXPECT_EQ(portal->options.value("address"), "ann@example.org");
    EXPECT_EQ(portal->options.value("subject"), "Update Bcc: eve@example.org");
    EXPECT_EQ(portal->options.value("body"), "Tom & Jerry?");
    ASSERT_EQ(portal->files.size(), 2U);
    EXPECT_TRUE(portal->files[0].path.endsWith("/Marrowvale.csv"));
    EXPECT_EQ(portal->files[0].content, "[MARROWVALE]\n");
    EXPECT_TRUE(portal->files[1].path.endsWith("/2/My Movies.csv"));
    EXPECT_EQ(portal->files[1].content, "twice");
    EXPECT_TRUE(FakePrograms::argumentsOf("xdg-email").isEmpty());
}

TEST_F(LinuxMailTest, APortalThatFailsOrSaysNothingIsStoodInForByTheCommand)
{
    struct Case
    {
        Manner manner;
        uint response;
        bool usesCommand;
        MailResult told;
    };
    enum Response : uint { Done, Cancelled, Ended, Unknown = 7 };
    for (const Case& each : {Case{Manner::Answers, Done, false, MailResult::Sent},
                             Case{Manner::Answers, Cancelled, false, MailResult::Cancelled},
                             Case{Manner::Answers, Ended, true, MailResult::Sent},
                             Case{Manner::Answers, Unknown, true, MailResult::Sent},
                             Case{Manner::Refuses, Done, true, MailResult::Sent},
                             Case{Manner::NeverTakes, Done, true, MailResult::Sent},
                             Case{Manner::NeverAnswers, Done, true, MailResult::Sent}}) {
        SCOPED_TRACE(testing::Message() << int(each.manner) << " " << each.response);
        QFile::remove(FakePrograms::path("xdg-email.log"));
        portal->manner = each.manner;
        portal->response = each.response;
        const bool isSilent = each.manner == Manner::NeverTakes || each.manner == Manner::NeverAnswers;
        const auto mail = isSilent ? impatientMail() : std::make_unique<LinuxMail>(connection("program"));
        EXPECT_EQ(composed(*mail), each.told);
        EXPECT_EQ(!FakePrograms::argumentsOf("xdg-email").isEmpty(), each.usesCommand);
    }
}

// The command builds an address of its own from what it is given.
TEST_F(LinuxMailTest, TheInstalledCommandLeavesTheMessageWhole)
{
    ASSERT_TRUE(QFile::remove(FakePrograms::path("xdg-email")));
    ASSERT_FALSE(QStandardPaths::findExecutable("xdg-email").isEmpty());
    FakePrograms::install("mail-program");
    qputenv("MAILER", FakePrograms::path("mail-program").toUtf8());
    LinuxMail mail(QDBusConnection("nowhere"));
    EXPECT_EQ(composed(mail), MailResult::Sent);
    const QStringList arguments = FakePrograms::argumentsOf("mail-program");
    ASSERT_EQ(arguments.size(), 1);
    const QUrlQuery query(QUrl(arguments.front()).query());
    EXPECT_EQ(QUrl(arguments.front()).path(), "ann@example.org");
    EXPECT_EQ(query.queryItemValue("subject", QUrl::FullyDecoded), "Update Bcc: eve@example.org");
    EXPECT_EQ(query.queryItemValue("body", QUrl::FullyDecoded), "Tom & Jerry?");
    const QStringList attached = query.allQueryItemValues("attach", QUrl::FullyDecoded);
    ASSERT_EQ(attached.size(), 2);
    EXPECT_EQ(contentOf(attached.last()), "twice");
    EXPECT_EQ(query.queryItems().size(), 4);
}

TEST_F(LinuxMailTest, AMessageWithoutAWayHasFailed)
{
    LinuxMail mail(QDBusConnection("nowhere"));
    FakePrograms::install("xdg-email", "exit 4");
    EXPECT_EQ(composed(mail), MailResult::Failed);

    MailMessage withLostFile = exportMail;
    withLostFile.attachments.push_back({"gone.pdf", "", QUrl("file:///nowhere/gone.pdf")});
    FakePrograms::install("xdg-email");
    EXPECT_EQ(composed(mail, withLostFile), MailResult::Failed);

    QFile::remove(FakePrograms::path("xdg-email"));
    FakePrograms::hideOthers();
    EXPECT_EQ(composed(mail), MailResult::Failed);
}

TEST_F(LinuxMailTest, NothingIsToldAfterItsEnd)
{
    FakePrograms::install("xdg-email", "sleep 60");
    portal->manner = Manner::NeverAnswers;
    for (const bool hasPortal : {true, false}) {
        auto mail =
            std::make_unique<LinuxMail>(hasPortal ? connection("program") : QDBusConnection("nowhere"));
        mail->compose(exportMail, [](MailResult) { FAIL(); });
        EXPECT_TRUE(comesTrue([&] {
            return hasPortal ? portal->asked > 0 : !FakePrograms::argumentsOf("xdg-email").isEmpty();
        }));
        mail.reset();
        QCoreApplication::processEvents();
    }
}

TEST_F(LinuxMailTest, AttachmentsArePrivateAndStayUntilTheProgramEnds)
{
    auto mail = std::make_unique<LinuxMail>(connection("program"));
    composed(*mail);
    const QString path = portal->files.front().path;
    const QString folder = QFileInfo(QFileInfo(path).path()).path();
    const auto others = QFileDevice::ReadGroup | QFileDevice::WriteGroup | QFileDevice::ExeGroup |
                        QFileDevice::ReadOther | QFileDevice::WriteOther | QFileDevice::ExeOther;
    EXPECT_FALSE(QFile::permissions(path) & others);
    EXPECT_FALSE(QFile::permissions(folder) & others);
    composed(*mail);
    EXPECT_TRUE(QFile::exists(path));
    mail.reset();
    EXPECT_FALSE(QFile::exists(folder));
}

} // namespace
