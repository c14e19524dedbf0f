#include "storyboard/controls/ImageItem.h"

#include <QPainter>
#include <QPainterPath>

ImageItem::ImageItem(QQuickItem* parent)
    : QQuickPaintedItem(parent)
{
    setAntialiasing(true);
}

void ImageItem::setImage(const QImage& value)
{
    picture = value;
    update();
    Q_EMIT imageChanged();
}

void ImageItem::setFillMode(FillMode value)
{
    mode = value;
    update();
    Q_EMIT imageChanged();
}

void ImageItem::setRadius(double value)
{
    cornerRadius = value;
    update();
    Q_EMIT imageChanged();
}

QRectF ImageItem::targetRect() const
{
    const QRectF bounds = boundingRect();
    if (mode == FillMode::Stretch)
        return bounds;
    const auto aspect = mode == FillMode::Fit ? Qt::KeepAspectRatio : Qt::KeepAspectRatioByExpanding;
    QRectF target(QPointF(), QSizeF(picture.size()).scaled(bounds.size(), aspect));
    target.moveCenter(bounds.center());
    return target;
}

void ImageItem::paint(QPainter* painter)
{
    if (picture.isNull())
        return;
    const QRectF target = targetRect();
    QPainterPath outline;
    outline.addRoundedRect(target & boundingRect(), cornerRadius, cornerRadius);
    painter->setRenderHints(QPainter::Antialiasing | QPainter::SmoothPixmapTransform);
    painter->setClipPath(outline);
    painter->drawImage(target, picture);
}
