#include "platform/toolkit/UIPickerView.h"

void UIPickerView::setDelegate(UIPickerViewDelegate* value)
{
    pickerDelegate = value;
    Q_EMIT changed();
}

QStringList UIPickerView::titles() const
{
    QStringList rows;
    if (pickerDelegate == nullptr)
        return rows;
    const int count = pickerDelegate->numberOfRowsInComponent(*this, 0);
    rows.reserve(count);
    for (int row = 0; row < count; ++row)
        rows.append(pickerDelegate->titleForRow(*this, row, 0));
    return rows;
}

LabelContent UIPickerView::rowLook() const
{
    if (pickerDelegate == nullptr || pickerDelegate->numberOfRowsInComponent(*this, 0) == 0)
        return {};
    return pickerDelegate->viewForRow(*this, 0, 0);
}

void UIPickerView::choose(int row)
{
    if (pickerDelegate == nullptr || row < 0 || row >= pickerDelegate->numberOfRowsInComponent(*this, 0))
        return;
    assign(selected, row);
    pickerDelegate->didSelectRow(*this, row, 0);
}
