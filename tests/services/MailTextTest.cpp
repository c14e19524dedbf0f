#include "platform/services/MailText.h"

#include <gmock/gmock.h>

namespace {

TEST(MailTextTest, NoValueReachesBeyondItsPlace)
{
    struct Case
    {
        MailMessage message;
        QString address;
    };
    const std::vector<Case> cases{
        {{}, "mailto:?"},
        {{.recipients = {"a@b.example", "c@d.example"}}, "mailto:a@b.example,c@d.example?"},
        {{.recipients = {"a@b.example\nc@d.example", "a@b?cc=c@d", "x@y&bcc=z@w", "-a@b", "'a'@b", "nobody",
                         "a%0Ab@c", "a@b\n", "o+list@b"}},
         "mailto:o%2Blist@b?"},
        {{.subject = "A&B=?#%0A\r\nCc: x"}, "mailto:?subject=A%26B%3D%3F%23%250A%20Cc%3A%20x"},
        {{.subject = "\n\v"}, "mailto:?"},
        {{.body = "a\nb\rc\r\nd\te\x1B%0D"}, "mailto:?body=a%0D%0Ab%0D%0Ac%0D%0Ad%09e%250D"},
        {{.subject = "s", .body = "&attach=/etc/passwd"},
         "mailto:?subject=s&body=%26attach%3D%2Fetc%2Fpasswd"},
        {{.body = "Amélie +1"}, "mailto:?body=Am%C3%A9lie%20%2B1"},
        {{.body = "<p>Tell us:&nbsp;</p><p>x</p><script>y</script>", .isHtml = true},
         "mailto:?body=Tell%20us%3A%20%0D%0Ax"},
        {{.body = "<p>plain</p>"}, "mailto:?body=%3Cp%3Eplain%3C%2Fp%3E"},
    };
    for (const Case& each : cases)
        EXPECT_EQ(mailtoAddress(tamedMail(each.message)), each.address);
}

TEST(MailTextTest, FileNamesAreHarmless)
{
    const std::vector<std::pair<QString, QString>> cases{
        {"Marrowvale.csv", "Marrowvale.csv"},
        {"Amélie (2001).pdf", "Amélie (2001).pdf"},
        {"../../etc/passwd", "passwd"},
        {"..", "Attachment"},
        {"", "Attachment"},
        {"dir/", "Attachment"},
        {".bashrc", "bashrc"},
        {"- -rf", "rf"},
        {"a',b\\c\n\r%0A&?*\"$`.csv", "a__b_c___0A______.csv"},
        {"two  blanks\t.txt", "two blanks_.txt"},
        {QString(300, 'x') + ".pdf", QString(76, 'x') + ".pdf"},
    };
    for (const auto& [name, harmless] : cases)
        EXPECT_EQ(harmlessFileName(name), harmless);
}

TEST(MailTextTest, ABodyThatNoAddressHoldsIsAttached)
{
    for (const QString& body : {QString(40000, 'a'), QString(12000, QChar(0xE9))}) {
        const MailMessage tamed = tamedMail({.body = body, .attachments = {{"a/b.png", "image/png", {}}}});
        ASSERT_EQ(tamed.attachments.size(), 2U);
        EXPECT_EQ(tamed.attachments[0].fileName, "b.png");
        EXPECT_EQ(std::get<QByteArray>(tamed.attachments[1].content), body.toUtf8());
        EXPECT_EQ(tamed.body, "Attachment: Message.txt");
    }
    EXPECT_TRUE(tamedMail({.body = QString(30000, 'a')}).attachments.empty());
}

} // namespace
