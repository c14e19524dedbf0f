#include "platform/services/MailText.h"

#include <QRegularExpression>
#include <QTextDocumentFragment>

namespace {

// Programs get an address as one argument, which the system limits to 128 kB.
constexpr qsizetype longestBody = 32000;
constexpr qsizetype longestSubject = 150;
// Bytes are what counts, of which a character has up to three.
constexpr qsizetype longestFileName = 80;
constexpr qsizetype lengthOfEnding = 20;

bool isPlainAddress(const QString& address)
{
    static const QRegularExpression plain(QStringLiteral(R"(\A[\w.!#$*+/=^{|}~-]+@[\w.-]+\z)"),
                                          QRegularExpression::UseUnicodePropertiesOption);
    return !address.startsWith(QLatin1Char('-')) && plain.match(address).hasMatch();
}

// Line feeds and tabs are the only ones left.
QString withoutControls(QString text)
{
    text.replace(QStringLiteral("\r\n"), QStringLiteral("\n")).replace(QLatin1Char('\r'), QLatin1Char('\n'));
    text.removeIf([](QChar character) {
        return character.category() == QChar::Other_Control && character != QLatin1Char('\n') &&
               character != QLatin1Char('\t');
    });
    return text;
}

QString plainBody(const MailMessage& message)
{
    return withoutControls(message.isHtml ? QTextDocumentFragment::fromHtml(message.body).toPlainText()
                                          : message.body);
}

bool isHarmlessInFileNames(QChar character)
{
    return character.isLetterOrNumber() || character.isMark() ||
           QStringLiteral(" .-_()+@").contains(character);
}

} // namespace

MailMessage tamedMail(const MailMessage& message)
{
    MailMessage tamed = message;
    tamed.recipients.removeIf([](const QString& recipient) { return !isPlainAddress(recipient); });
    tamed.subject = withoutControls(message.subject).simplified().left(longestSubject);
    tamed.body = plainBody(message);
    tamed.isHtml = false;
    if (tamed.body.size() > longestBody || asParameter(tamed.body).size() > longestBody) {
        tamed.attachments.push_back(
            {QStringLiteral("Message.txt"), QStringLiteral("text/plain"), tamed.body.toUtf8()});
        tamed.body = QStringLiteral("Attachment: Message.txt");
    }
    for (MailAttachment& attachment : tamed.attachments)
        attachment.fileName = harmlessFileName(attachment.fileName);
    return tamed;
}

QString mailtoAddress(const MailMessage& message)
{
    QStringList recipients;
    for (const QString& recipient : message.recipients)
        recipients.append(QString::fromLatin1(QUrl::toPercentEncoding(recipient, "@")));
    QStringList parameters;
    if (!message.subject.isEmpty())
        parameters.append(QStringLiteral("subject=") + asParameter(message.subject));
    if (!message.body.isEmpty())
        parameters.append(QStringLiteral("body=") + asParameter(message.body));
    return QStringLiteral("mailto:") + recipients.join(QLatin1Char(',')) + QLatin1Char('?') +
           parameters.join(QLatin1Char('&'));
}

QString asParameter(const QString& text)
{
    QString lines = withoutControls(text);
    lines.replace(QLatin1Char('\n'), QStringLiteral("\r\n"));
    return QString::fromLatin1(QUrl::toPercentEncoding(lines));
}

QString harmlessFileName(const QString& name)
{
    QString harmless = name.section(QLatin1Char('/'), -1);
    for (QChar& character : harmless) {
        if (!isHarmlessInFileNames(character))
            character = QLatin1Char('_');
    }
    if (harmless.size() > longestFileName)
        harmless = harmless.left(longestFileName - lengthOfEnding) + harmless.right(lengthOfEnding);
    harmless = harmless.simplified();
    // Hidden files, folders above, and options.
    while (!harmless.isEmpty() && QStringLiteral(".- ").contains(harmless.front()))
        harmless.remove(0, 1);
    return harmless.isEmpty() ? QStringLiteral("Attachment") : harmless;
}
