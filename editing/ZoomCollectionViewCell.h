#pragma once

#include "platform/toolkit/Appearance.h"

#include <QImage>
#include <QObject>

// The cell of the zoom screen. A null image: the movie has no cover that can be shown.
struct ZoomCollectionViewCell
{
    Q_GADGET
    QML_VALUE_TYPE(zoomCollectionViewCell)
    Q_PROPERTY(QImage ZoomImage MEMBER ZoomImage FINAL)
    Q_PROPERTY(Layer layer MEMBER layer FINAL)

public:
    QImage ZoomImage;
    // Of the cell and of its image alike.
    Layer layer;

    bool operator==(const ZoomCollectionViewCell&) const = default;
};
