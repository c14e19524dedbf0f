#pragma once

#include "platform/toolkit/UIMenu.h"
#include "platform/toolkit/UIViewController.h"

// A message with buttons, shown on top of a screen until one of them is chosen.
class UIAlertController : public UIViewController
{
    Q_OBJECT
    QML_ELEMENT
    QML_UNCREATABLE("Presented by screens")
    Q_PROPERTY(QString message READ message CONSTANT FINAL)
    Q_PROPERTY(QStringList actionTitles READ actionTitles CONSTANT FINAL)
    Q_PROPERTY(int cancelIndex READ cancelIndex CONSTANT FINAL)

public:
    UIAlertController(const QString& title, QString message, std::vector<UIAction> actions);
    // The alert that most screens show: one button "OK", which does `whenClosed` if given.
    [[nodiscard]] static std::unique_ptr<UIAlertController>
    withOk(const QString& title, const QString& message, std::function<void()> whenClosed = nullptr);

    [[nodiscard]] QString message() const { return messageText; }
    [[nodiscard]] QStringList actionTitles() const;
    // The action that closing without a choice stands for: the one in cancel style, else the only one, else
    // -1.
    [[nodiscard]] int cancelIndex() const;

    // The user chose a button: takes the alert away, then runs the action.
    Q_INVOKABLE void choose(int index);

private:
    QString messageText;
    std::vector<UIAction> actions;
};
