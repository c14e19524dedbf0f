#pragma once

#include <QPointer>
#include <QQuickItem>
#include <QTimer>

// Keeps the rows of a list in their order from top to bottom, as assistive technology reads them: a list
// makes rows in the order in which they come into sight, and uses them again. While it moves, nothing is
// done.
class RowOrder : public QObject
{
    Q_OBJECT
    QML_ELEMENT
    // The rows' parent, which moves when the list scrolls.
    Q_PROPERTY(QQuickItem* content READ contentItem WRITE setContentItem NOTIFY contentItemChanged FINAL)

public:
    explicit RowOrder(QObject* parent = nullptr);

    [[nodiscard]] QQuickItem* contentItem() const { return content; }
    void setContentItem(QQuickItem* item);

Q_SIGNALS:
    void contentItemChanged();

private:
    void sort();

    QPointer<QQuickItem> content;
    // Runs once the list has come to rest.
    QTimer rest;
};
