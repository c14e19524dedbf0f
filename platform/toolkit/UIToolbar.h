#pragma once

#include "platform/toolkit/UIBarButtonItem.h"

// A bar of buttons, fixed once its items are set; the accessory above a field's input view.
class UIToolbar : public UIView
{
    Q_OBJECT
    QML_ELEMENT
    QML_UNCREATABLE("Views belong to screens")
    Q_PROPERTY(bool blackStyle READ isBlackStyle NOTIFY changed FINAL)
    Q_PROPERTY(bool translucent READ isTranslucent NOTIFY changed FINAL)
    Q_PROPERTY(QColor tintColor READ tintColor NOTIFY changed FINAL)
    Q_PROPERTY(QList<UIBarButtonItem*> items READ items NOTIFY changed FINAL)

public:
    using UIView::UIView;

    // False: the default, light bar.
    [[nodiscard]] bool isBlackStyle() const { return black; }
    void setBlackStyle(bool value) { assign(black, value); }

    [[nodiscard]] bool isTranslucent() const { return translucent; }
    void setTranslucent(bool value) { assign(translucent, value); }

    [[nodiscard]] QColor tintColor() const { return tint; }
    void setTintColor(const QColor& value) { assign(tint, value); }

    [[nodiscard]] QList<UIBarButtonItem*> items() const { return itemList; }
    // Takes ownership; may be called once.
    void setItems(std::vector<std::unique_ptr<UIBarButtonItem>> items);

private:
    bool black = false;
    bool translucent = false;
    QColor tint;
    QList<UIBarButtonItem*> itemList;
};
