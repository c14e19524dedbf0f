#pragma once

#include "platform/toolkit/UIView.h"

// A search field. Text set by code is told like text typed: both change what is searched.
class UISearchBar : public UIView
{
    Q_OBJECT
    QML_ELEMENT
    QML_UNCREATABLE("Views belong to screens")
    Q_PROPERTY(QString text READ text NOTIFY changed FINAL)
    Q_PROPERTY(QString placeholder READ placeholder NOTIFY changed FINAL)

public:
    using UIView::UIView;

    [[nodiscard]] QString text() const { return content; }
    Q_INVOKABLE void setText(const QString& value);

    [[nodiscard]] QString placeholder() const { return hint; }
    void setPlaceholder(const QString& value) { assign(hint, value); }

Q_SIGNALS:
    void textDidChange();

private:
    QString content;
    QString hint;
};

// Searches within the screen that made it: there is no separate screen of results.
class UISearchController : public UIView
{
    Q_OBJECT
    QML_ELEMENT
    QML_UNCREATABLE("Views belong to screens")
    Q_PROPERTY(UISearchBar* searchBar READ searchBar CONSTANT FINAL)
    Q_PROPERTY(bool hidesNavigationBarDuringPresentation READ hidesNavigationBarDuringPresentation NOTIFY
                   changed FINAL)
    Q_PROPERTY(bool obscuresBackgroundDuringPresentation READ obscuresBackgroundDuringPresentation NOTIFY
                   changed FINAL)

public:
    using Updater = std::function<void(UISearchController&)>;

    using UIView::UIView;

    [[nodiscard]] UISearchBar* searchBar() { return &bar; }

    // Called after every change of the search text. What it captures must outlive this object.
    void setSearchResultsUpdater(Updater updater);

    [[nodiscard]] bool hidesNavigationBarDuringPresentation() const { return hidesBar; }
    void setHidesNavigationBarDuringPresentation(bool value) { assign(hidesBar, value); }
    [[nodiscard]] bool obscuresBackgroundDuringPresentation() const { return obscures; }
    void setObscuresBackgroundDuringPresentation(bool value) { assign(obscures, value); }

private:
    UISearchBar bar;
    bool hidesBar = true;
    bool obscures = true;
};
