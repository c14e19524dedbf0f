#pragma once

#include "platform/toolkit/Appearance.h"

#include <QObject>
#include <QtQmlIntegration/qqmlintegration.h>

// The state of something on a screen, without its looks: a layout shows it and tells it what the user did.
// Code sets the properties; a layout only reads them. One signal, `changed`, tells of all of them.
class UIView : public QObject
{
    Q_OBJECT
    QML_ELEMENT
    QML_UNCREATABLE("Views belong to screens")
    Q_PROPERTY(bool hidden READ isHidden NOTIFY changed FINAL)
    Q_PROPERTY(double hidingDuration READ hidingDuration NOTIFY changed FINAL)
    Q_PROPERTY(Layer layer READ layer NOTIFY changed FINAL)
    Q_PROPERTY(QColor backgroundColor READ backgroundColor NOTIFY changed FINAL)
    Q_PROPERTY(QString accessibilityLabel READ accessibilityLabel NOTIFY changed FINAL)

public:
    using QObject::QObject;

    [[nodiscard]] bool isHidden() const { return hidden; }
    // The layout folds the view out or in over `seconds`.
    void setHidden(bool value, double seconds = 0);
    // Seconds that the last change of `hidden` is to take.
    [[nodiscard]] double hidingDuration() const { return hidingSeconds; }

    [[nodiscard]] Layer layer() const { return layerValue; }
    void setLayer(const Layer& value) { assign(layerValue, value); }

    // Invalid until set: the layout's own background.
    [[nodiscard]] QColor backgroundColor() const { return background; }
    void setBackgroundColor(const QColor& value) { assign(background, value); }

    // The name told to assistive technology; empty: the view's visible text is its name.
    [[nodiscard]] QString accessibilityLabel() const { return label; }
    void setAccessibilityLabel(const QString& value) { assign(label, value); }

Q_SIGNALS:
    void changed();

protected:
    template <typename T>
    void assign(T& member, const T& value)
    {
        if (member == value)
            return;
        member = value;
        Q_EMIT changed();
    }

private:
    bool hidden = false;
    double hidingSeconds = 0;
    Layer layerValue;
    QColor background;
    QString label;
};
