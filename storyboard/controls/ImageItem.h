#pragma once

#include <QImage>
#include <QQuickPaintedItem>

// Shows a QImage, which no element of Qt Quick does.
class ImageItem : public QQuickPaintedItem
{
    Q_OBJECT
    QML_ELEMENT
    Q_PROPERTY(QImage image READ image WRITE setImage NOTIFY imageChanged FINAL)
    Q_PROPERTY(FillMode fillMode READ fillMode WRITE setFillMode NOTIFY imageChanged FINAL)
    Q_PROPERTY(double radius READ radius WRITE setRadius NOTIFY imageChanged FINAL)

public:
    // Stretch: the whole item, whatever the aspect; Fit: all of the picture; Fill: all of the item, cut at
    // the edges.
    enum class FillMode { Stretch, Fit, Fill };
    Q_ENUM(FillMode)

    explicit ImageItem(QQuickItem* parent = nullptr);

    [[nodiscard]] QImage image() const { return picture; }
    void setImage(const QImage& value);
    [[nodiscard]] FillMode fillMode() const { return mode; }
    void setFillMode(FillMode value);
    // Of the picture's corners, in pixels.
    [[nodiscard]] double radius() const { return cornerRadius; }
    void setRadius(double value);

    void paint(QPainter* painter) override;

Q_SIGNALS:
    void imageChanged();

private:
    [[nodiscard]] QRectF targetRect() const;

    QImage picture;
    FillMode mode = FillMode::Fill;
    double cornerRadius = 0;
};
