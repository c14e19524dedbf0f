#pragma once

#include "platform/toolkit/UIView.h"

#include <QStringList>

class UIPickerView;

class UIPickerViewDelegate
{
public:
    virtual ~UIPickerViewDelegate() = default;

    [[nodiscard]] virtual int numberOfComponentsInPickerView(const UIPickerView& picker) = 0;
    [[nodiscard]] virtual int numberOfRowsInComponent(const UIPickerView& picker, int component) = 0;
    [[nodiscard]] virtual QString titleForRow(const UIPickerView& picker, int row, int component) = 0;
    // How a row looks; its text is the row's title.
    [[nodiscard]] virtual LabelContent viewForRow(const UIPickerView& picker, int row, int component) = 0;
    // The user chose `row`; told for a tap on the row already chosen too.
    virtual void didSelectRow(UIPickerView& picker, int row, int component) = 0;
};

// A wheel of values, one component wide; its delegate says which.
class UIPickerView : public UIView
{
    Q_OBJECT
    QML_ELEMENT
    QML_UNCREATABLE("Views belong to screens")
    Q_PROPERTY(QStringList titles READ titles NOTIFY changed FINAL)
    Q_PROPERTY(LabelContent rowLook READ rowLook NOTIFY changed FINAL)
    Q_PROPERTY(int selectedRow READ selectedRow NOTIFY changed FINAL)

public:
    using UIView::UIView;

    // Not owned; must outlive the picker. Data source and delegate in one.
    void setDelegate(UIPickerViewDelegate* value);

    // Tells pickers apart in a delegate; 0 until set.
    [[nodiscard]] int tag() const { return tagValue; }
    void setTag(int value) { tagValue = value; }

    [[nodiscard]] QStringList titles() const;
    // The look that all rows share (that of the first).
    [[nodiscard]] LabelContent rowLook() const;

    // -1: none, as it is until a row is chosen or selected.
    [[nodiscard]] int selectedRow() const { return selected; }
    // Turns the wheel without telling the delegate.
    void selectRow(int row) { assign(selected, row); }

    // The user turned the wheel to `row`, or tapped it. A row outside does nothing.
    Q_INVOKABLE void choose(int row);

private:
    UIPickerViewDelegate* pickerDelegate = nullptr;
    int tagValue = 0;
    int selected = -1;
};
