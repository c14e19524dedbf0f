#pragma once

#include "platform/toolkit/UIView.h"

// One tab of a tab bar: a symbol above a title.
class UITabBarItem : public UIView
{
    Q_OBJECT
    QML_ELEMENT
    QML_UNCREATABLE("Belongs to a tab bar")
    Q_PROPERTY(QString title READ title CONSTANT FINAL)
    Q_PROPERTY(QString image READ image NOTIFY changed FINAL)

public:
    explicit UITabBarItem(QString title, QObject* parent = nullptr)
        : UIView(parent)
        , name(std::move(title))
    {
    }

    [[nodiscard]] QString title() const { return name; }
    // The name of a symbol; empty: none.
    [[nodiscard]] QString image() const { return symbol; }
    void setImage(const QString& value) { assign(symbol, value); }

private:
    QString name;
    QString symbol;
};
