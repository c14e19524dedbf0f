#pragma once

#include "platform/toolkit/UIControl.h"

#include <vector>

class UIMenu;

// A push button. What a tap does is the layout's to say: an action of the screen or a segue; a button with a
// menu opens the menu instead.
class UIButton : public UIControl
{
    Q_OBJECT
    QML_ELEMENT
    QML_UNCREATABLE("Views belong to screens")
    Q_PROPERTY(QString title READ title NOTIFY changed FINAL)
    Q_PROPERTY(QString image READ image NOTIFY changed FINAL)
    Q_PROPERTY(QColor disabledTitleColor READ disabledTitleColor NOTIFY changed FINAL)
    Q_PROPERTY(UIMenu* menu READ menu NOTIFY changed FINAL)

public:
    using UIControl::UIControl;

    [[nodiscard]] QString title() const { return titleText; }
    void setTitle(const QString& value) { assign(titleText, value); }

    // The name of a symbol, such as "square.and.arrow.up"; empty: none.
    [[nodiscard]] QString image() const { return symbol; }
    void setImage(const QString& value) { assign(symbol, value); }

    // Invalid until set: the layout's own colour.
    [[nodiscard]] QColor disabledTitleColor() const { return disabledColor; }
    void setDisabledTitleColor(const QColor& value) { assign(disabledColor, value); }

    // Null: none. The button takes ownership.
    [[nodiscard]] UIMenu* menu() const { return menuObject; }
    void setMenu(std::unique_ptr<UIMenu> value);

private:
    QString titleText;
    QString symbol;
    QColor disabledColor;
    UIMenu* menuObject = nullptr;
};
