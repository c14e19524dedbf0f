#include "platform/toolkit/UITextField.h"

#include <QRegularExpression>

void UITextField::setInputAccessoryView(std::unique_ptr<UIToolbar> value)
{
    // The bar in place may be the one whose button is being tapped.
    if (accessory != nullptr)
        accessory->deleteLater();
    accessory = value.release();
    if (accessory != nullptr)
        accessory->setParent(this);
    Q_EMIT changed();
}

QString UITextField::fitted(const QString& text) const
{
    static const QRegularExpression lineBreak(QStringLiteral("\\R"));
    QString line = text;
    return line.replace(lineBreak, QStringLiteral(" "));
}

bool UITextField::allowsChange(const NSRange& range, const QString& replacement)
{
    return fieldDelegate == nullptr ||
           fieldDelegate->shouldChangeCharactersInRange(*this, range, replacement);
}
