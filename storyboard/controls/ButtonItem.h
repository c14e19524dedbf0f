#pragma once

#include <QQuickItem>

// What assistive technology may press. It gets told what the attached `Accessible` says, and besides whether
// the item is enabled, which Qt Quick (6.4) keeps to itself.
class ButtonItem : public QQuickItem
{
    Q_OBJECT
    QML_ELEMENT

public:
    explicit ButtonItem(QQuickItem* parent = nullptr);

Q_SIGNALS:
    // Assistive technology presses it; never while it is disabled.
    void pressAsked();
};
