#pragma once

#include <QPointer>
#include <QQuickItem>

// A button for assistive technology. It reports what the attached `Accessible` says, and besides whether the
// item is enabled, which Qt Quick (6.4) keeps to itself.
class ButtonItem : public QQuickItem
{
    Q_OBJECT
    QML_ELEMENT

public:
    explicit ButtonItem(QQuickItem* parent = nullptr);

    // The attached `Accessible`, whose properties are plain C++ values; null until the item is complete.
    // Reading them needs no QML context, which is gone before the items of a layout are.
    [[nodiscard]] const QObject* accessibleAttached() const { return attached; }

Q_SIGNALS:
    // Assistive technology presses it; never while it is disabled.
    void pressAsked();

protected:
    void componentComplete() override;

private:
    QPointer<QObject> attached;
};
