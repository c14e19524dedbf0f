#pragma once

#include <QByteArray>
#include <QColor>
#include <QImage>
#include <QSizeF>
#include <QString>
#include <optional>
#include <vector>

// How characters look, and the paragraph that they begin.
struct TextStyle
{
    // Empty: the plain body font.
    QString fontFamily;
    // Points; 0: the body's size.
    double fontSize = 0;
    bool centred = false;
    QColor color = Qt::black;

    bool operator==(const TextStyle&) const = default;
};

// A picture that stands in a line of text.
struct TextAttachment
{
    // One of the two; encoded pictures are decoded only while they are drawn.
    QByteArray encoded;
    QImage image;
    // Points.
    QSizeF size;
};

// A text of which every part may look different, with pictures in it.
class NSAttributedString
{
public:
    struct Run
    {
        QString text;
        TextStyle style;
        std::optional<TextAttachment> attachment;
    };

    NSAttributedString() = default;
    explicit NSAttributedString(QString text, TextStyle style = {});

    void append(QString text, TextStyle style = {});
    void append(TextAttachment attachment);

    [[nodiscard]] bool isEmpty() const { return parts.empty(); }
    // Without the looks; U+FFFC stands for each picture.
    [[nodiscard]] QString string() const;
    // In the order of the text.
    [[nodiscard]] const std::vector<Run>& runs() const { return parts; }

private:
    std::vector<Run> parts;
};
