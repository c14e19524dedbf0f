#pragma once

#include <QColor>
#include <QObject>
#include <QString>
#include <QtQmlIntegration/qqmlintegration.h>

// The edge of a view. Lengths in points, which are device-independent pixels here.
struct Layer
{
    Q_GADGET
    QML_VALUE_TYPE(layer)
    Q_PROPERTY(double cornerRadius MEMBER cornerRadius FINAL)
    Q_PROPERTY(double borderWidth MEMBER borderWidth FINAL)
    Q_PROPERTY(QColor borderColor MEMBER borderColor FINAL)

public:
    double cornerRadius = 0;
    double borderWidth = 0;
    // Invalid: the layout's own border colour.
    QColor borderColor{};

    bool operator==(const Layer&) const = default;
};

// A text with its looks, as rows, headers and pickers show it.
struct LabelContent
{
    Q_GADGET
    QML_VALUE_TYPE(labelContent)
    Q_PROPERTY(QString text MEMBER text FINAL)
    Q_PROPERTY(QColor textColor MEMBER textColor FINAL)
    Q_PROPERTY(QColor backgroundColor MEMBER backgroundColor FINAL)
    Q_PROPERTY(double fontSize MEMBER fontSize FINAL)
    Q_PROPERTY(bool bold MEMBER bold FINAL)
    Q_PROPERTY(bool centred MEMBER centred FINAL)

public:
    QString text{};
    // Invalid colours: the layout's own.
    QColor textColor{};
    QColor backgroundColor{};
    // Points; 0: the layout's own size.
    double fontSize = 0;
    bool bold = false;
    bool centred = false;

    bool operator==(const LabelContent&) const = default;
};

// Fractions from 0 to 1, as the system's colours are given.
[[nodiscard]] inline QColor colorWithHue(double hue, double saturation, double brightness, double alpha)
{
    return QColor::fromHsvF(static_cast<float>(hue), static_cast<float>(saturation),
                            static_cast<float>(brightness), static_cast<float>(alpha));
}

// The look that every row of the system shares: a very pale cyan with a round black edge.
[[nodiscard]] Layer rowLayer();
[[nodiscard]] QColor rowBackgroundColor();
// The line above a list that says how many rows it has.
[[nodiscard]] LabelContent countHeader(const QString& text);
