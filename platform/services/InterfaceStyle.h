#pragma once

#include <QObject>
#include <QtQmlIntegration/qqmlintegration.h>

// Whether the user wants dark or light screens.
class InterfaceStyle : public QObject
{
    Q_OBJECT
    QML_ELEMENT
    QML_UNCREATABLE("Belongs to the device")
    Q_PROPERTY(bool dark READ isDark NOTIFY changed FINAL)

public:
    using QObject::QObject;

    // Answers at once with what is known; `changed` tells when the desktop said otherwise.
    [[nodiscard]] virtual bool isDark() const = 0;

Q_SIGNALS:
    void changed();
};
