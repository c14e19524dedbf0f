#pragma once

#include "platform/toolkit/Appearance.h"

// A row of a plain menu: a symbol and a text.
struct UITableViewCell
{
    Q_GADGET
    QML_VALUE_TYPE(tableViewCell)
    Q_PROPERTY(LabelContent textLabel MEMBER textLabel FINAL)
    Q_PROPERTY(QString image MEMBER image FINAL)

public:
    LabelContent textLabel;
    // The name of a symbol; empty: none.
    QString image;

    bool operator==(const UITableViewCell&) const = default;
};
