#pragma once

#include <QObject>
#include <QStringList>
#include <QtQmlIntegration/qqmlintegration.h>
#include <functional>
#include <vector>

// One entry of a menu or one button of an alert.
struct UIAction
{
    enum class Style { Default, Cancel, Destructive };

    QString title;
    std::function<void()> handler = nullptr;
    Style style = Style::Default;
};

// A titled list of actions, fixed at creation.
class UIMenu : public QObject
{
    Q_OBJECT
    QML_ELEMENT
    QML_UNCREATABLE("Menus belong to buttons")
    Q_PROPERTY(QString title READ title CONSTANT FINAL)
    Q_PROPERTY(QStringList actionTitles READ actionTitles CONSTANT FINAL)

public:
    UIMenu(QString title, std::vector<UIAction> actions);

    [[nodiscard]] QString title() const { return titleText; }
    [[nodiscard]] QStringList actionTitles() const;

    // Runs the action at `index` of actionTitles; an index outside does nothing.
    Q_INVOKABLE void choose(int index);

private:
    QString titleText;
    std::vector<UIAction> actions;
};
