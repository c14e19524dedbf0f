#pragma once

#include "platform/toolkit/Appearance.h"

#include <QImage>
#include <QObject>

// A row of the movie list: three lines beside a cover.
struct MainListTableViewCell
{
    Q_GADGET
    QML_VALUE_TYPE(mainListTableViewCell)
    Q_PROPERTY(LabelContent MovieNameLabel MEMBER MovieNameLabel FINAL)
    Q_PROPERTY(LabelContent SecondLabel MEMBER SecondLabel FINAL)
    Q_PROPERTY(LabelContent ThirdLabel MEMBER ThirdLabel FINAL)
    Q_PROPERTY(QImage FrontImage MEMBER FrontImage FINAL)
    Q_PROPERTY(Layer layer MEMBER layer FINAL)
    Q_PROPERTY(QColor backgroundColor MEMBER backgroundColor FINAL)

public:
    LabelContent MovieNameLabel;
    LabelContent SecondLabel;
    LabelContent ThirdLabel;
    QImage FrontImage;
    Layer layer = rowLayer();
    QColor backgroundColor = rowBackgroundColor();

    bool operator==(const MainListTableViewCell&) const = default;
};
