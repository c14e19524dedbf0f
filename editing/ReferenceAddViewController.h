#pragma once

#include "editing/ReferenceValueViewController.h"

#include <QStringList>

// The entry of a new reference value. It must have some character and must not be in the list already; both
// are asked of the text as typed, whose blanks go only as it is stored. So blanks alone are stored as an
// empty value, and a known value with a blank behind it a second time.
class ReferenceAddViewController : public ReferenceValueViewController
{
    Q_OBJECT

public:
    void viewDidLoad() override;

    // The save button of every kind.
    Q_INVOKABLE void SaveGenre();
    Q_INVOKABLE void dismissKeyboard();

    [[nodiscard]] QString saveAction() const override { return QStringLiteral("SaveGenre"); }
    [[nodiscard]] QString tapAction() const override { return QStringLiteral("dismissKeyboard"); }

    // The values there were as the screen was loaded. Each subclass shows them under a name of its own.
    QStringList listOfValues;

protected:
    using ReferenceValueViewController::ReferenceValueViewController;

private:
    [[nodiscard]] bool isInList(const QString& text) const;
    void refuse(const QString& reason);
};
