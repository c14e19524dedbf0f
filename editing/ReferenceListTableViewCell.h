#pragma once

#include "platform/toolkit/Appearance.h"

// A row of a reference list. Its label goes by the name of the list's values.
struct ReferenceListTableViewCell
{
    Q_GADGET
    QML_VALUE_TYPE(referenceListTableViewCell)
    Q_PROPERTY(LabelContent valueLabel MEMBER valueLabel FINAL)
    Q_PROPERTY(LabelContent GenreLabel MEMBER valueLabel FINAL)
    Q_PROPERTY(LabelContent ProviderLabel MEMBER valueLabel FINAL)
    Q_PROPERTY(LabelContent RatingLabel MEMBER valueLabel FINAL)
    Q_PROPERTY(Layer layer MEMBER layer FINAL)
    Q_PROPERTY(QColor backgroundColor MEMBER backgroundColor FINAL)

public:
    LabelContent valueLabel;
    Layer layer = rowLayer();
    QColor backgroundColor = rowBackgroundColor();

    bool operator==(const ReferenceListTableViewCell&) const = default;
};

using GenreReferenceListTableViewCell = ReferenceListTableViewCell;
using ProviderReferenceListTableViewCell = ReferenceListTableViewCell;
using RatingReferenceListTableViewCell = ReferenceListTableViewCell;
