#pragma once

#include "platform/toolkit/Appearance.h"

// A row of a group summary: the group and how many movies it has.
struct GroupTableViewCell
{
    Q_GADGET
    QML_VALUE_TYPE(groupTableViewCell)
    Q_PROPERTY(LabelContent MovieNameLabel MEMBER MovieNameLabel FINAL)
    Q_PROPERTY(LabelContent CountLabel MEMBER CountLabel FINAL)
    Q_PROPERTY(Layer layer MEMBER layer FINAL)
    Q_PROPERTY(QColor backgroundColor MEMBER backgroundColor FINAL)

public:
    LabelContent MovieNameLabel;
    LabelContent CountLabel;
    Layer layer = rowLayer();
    QColor backgroundColor = rowBackgroundColor();

    bool operator==(const GroupTableViewCell&) const = default;
};

using GenreGroupTableViewCell = GroupTableViewCell;
using DateReleasedGroupTableViewCell = GroupTableViewCell;
using DateWatchedGroupTableViewCell = GroupTableViewCell;
using RatingGroupTableViewCell = GroupTableViewCell;
using ProviderGroupTableViewCell = GroupTableViewCell;
