#include "platform/toolkit/TextDocument.h"

#include "platform/toolkit/UIImage.h"

#include <QAbstractTextDocumentLayout>
#include <QPainter>
#include <QTextCursor>
#include <QTextObjectInterface>

namespace {

constexpr int attachmentObject = QTextFormat::UserObject;
constexpr int attachmentNumber = QTextFormat::UserProperty;
constexpr double pointsPerInch = 72;
constexpr double screenDotsPerInch = 96;
constexpr double bodySize = 12;
// Met by the metric twin that systems without it have.
const QString bodyFamily = QStringLiteral("Arial");

// Measures and draws a document's pictures. A picture is decoded while it is drawn and then forgotten,
// however many there are; one picture standing in many places stays one.
class Attachments final : public QObject, public QTextObjectInterface
{
    Q_OBJECT
    Q_INTERFACES(QTextObjectInterface)

public:
    using QObject::QObject;

    int add(const TextAttachment& attachment)
    {
        attachments.push_back(attachment);
        return static_cast<int>(attachments.size()) - 1;
    }

    QSizeF intrinsicSize(QTextDocument* document, int /*position*/, const QTextFormat& format) override
    {
        const QPaintDevice* device = document->documentLayout()->paintDevice();
        const double dotsPerInch = device != nullptr ? device->logicalDpiY() : screenDotsPerInch;
        return attachmentOf(format).size * dotsPerInch / pointsPerInch;
    }

    void drawObject(QPainter* painter, const QRectF& rect, QTextDocument* /*document*/, int /*position*/,
                    const QTextFormat& format) override
    {
        const TextAttachment& attachment = attachmentOf(format);
        painter->drawImage(rect, attachment.encoded.isEmpty() ? attachment.image
                                                              : imageWithData(attachment.encoded));
    }

private:
    [[nodiscard]] const TextAttachment& attachmentOf(const QTextFormat& format) const
    {
        return attachments[static_cast<std::size_t>(format.intProperty(attachmentNumber))];
    }

    std::vector<TextAttachment> attachments;
};

QTextCharFormat characterFormat(const TextStyle& style)
{
    QFont font(style.fontFamily.isEmpty() ? bodyFamily : style.fontFamily);
    font.setPointSizeF(style.fontSize > 0 ? style.fontSize : bodySize);
    QTextCharFormat format;
    format.setFont(font);
    format.setForeground(style.color);
    return format;
}

QTextBlockFormat paragraphFormat(const TextStyle& style)
{
    QTextBlockFormat format;
    format.setAlignment(style.centred ? Qt::AlignHCenter : Qt::AlignLeading);
    return format;
}

} // namespace

void fillDocument(QTextDocument& document, const NSAttributedString& text)
{
    document.setUndoRedoEnabled(false);
    auto* attachments = new Attachments(&document);
    document.documentLayout()->registerHandler(attachmentObject, attachments);
    QTextCursor cursor(&document);
    cursor.beginEditBlock();
    for (const NSAttributedString::Run& run : text.runs()) {
        QTextCharFormat format = characterFormat(run.style);
        if (run.attachment) {
            format.setObjectType(attachmentObject);
            format.setProperty(attachmentNumber, attachments->add(*run.attachment));
        } else if (cursor.atBlockStart()) {
            cursor.setBlockFormat(paragraphFormat(run.style));
        }
        cursor.insertText(run.text, format);
    }
    cursor.endEditBlock();
}

std::unique_ptr<QTextDocument> textDocument(const NSAttributedString& text)
{
    auto document = std::make_unique<QTextDocument>();
    fillDocument(*document, text);
    return document;
}

#include "TextDocument.moc"
