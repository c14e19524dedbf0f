#pragma once

#include <QObject>
#include <QPointF>
#include <QtQmlIntegration/qqmlintegration.h>

// A gesture on a screen. The layout tells how it goes on by `recognize`, as often as it likes while it lasts;
// the screen takes what has gathered and resets it.
class UIGestureRecognizer : public QObject
{
    Q_OBJECT
    QML_ELEMENT
    QML_UNCREATABLE("Recognisers belong to screens")

public:
    using QObject::QObject;

Q_SIGNALS:
    void recognized();
};

class UIPinchGestureRecognizer : public UIGestureRecognizer
{
    Q_OBJECT
    QML_ELEMENT
    QML_UNCREATABLE("Recognisers belong to screens")

public:
    using UIGestureRecognizer::UIGestureRecognizer;

    // How many times as far apart as at the last reset the fingers are.
    [[nodiscard]] double scale() const { return factor; }
    void setScale(double value) { factor = value; }

    Q_INVOKABLE void recognize(double change)
    {
        factor *= change;
        Q_EMIT recognized();
    }

private:
    double factor = 1;
};

class UIPanGestureRecognizer : public UIGestureRecognizer
{
    Q_OBJECT
    QML_ELEMENT
    QML_UNCREATABLE("Recognisers belong to screens")

public:
    using UIGestureRecognizer::UIGestureRecognizer;

    // How far the finger has come since the last reset, in points.
    [[nodiscard]] QPointF translation() const { return way; }
    void setTranslation(const QPointF& value) { way = value; }

    Q_INVOKABLE void recognize(double right, double down)
    {
        way += QPointF(right, down);
        Q_EMIT recognized();
    }

private:
    QPointF way;
};
