#pragma once

#include "platform/toolkit/UITableView.h"
#include "platform/toolkit/UIView.h"

#include <QPointF>
#include <QSizeF>
#include <QVariantList>

class UICollectionViewDataSource
{
public:
    virtual ~UICollectionViewDataSource() = default;

    [[nodiscard]] virtual int numberOfItemsInSection(int section) = 0;
    // A gadget that the layout shows.
    [[nodiscard]] virtual QVariant cellForItemAt(const NSIndexPath& indexPath) = 0;
};

// A few cells of one size on a ground that can be moved and scaled as a whole.
class UICollectionView : public UIView
{
    Q_OBJECT
    QML_ELEMENT
    QML_UNCREATABLE("Views belong to screens")
    Q_PROPERTY(QVariantList cells READ cells NOTIFY changed FINAL)
    Q_PROPERTY(QSizeF itemSize READ itemSize NOTIFY changed FINAL)
    Q_PROPERTY(double scale READ scale NOTIFY changed FINAL)
    Q_PROPERTY(QPointF center READ center NOTIFY changed FINAL)

public:
    using UIView::UIView;

    // `source` must outlive the view.
    void setDataSource(UICollectionViewDataSource* source) { dataSource = source; }
    [[nodiscard]] QVariantList cells() const { return shown; }
    void reloadData();

    [[nodiscard]] QSizeF itemSize() const { return size; }
    void setItemSize(const QSizeF& value) { assign(size, value); }

    // 1 until set.
    [[nodiscard]] double scale() const { return factor; }
    void setScale(double value) { assign(factor, value); }

    // How far the middle stands from where the layout put it.
    [[nodiscard]] QPointF center() const { return offset; }
    void setCenter(const QPointF& value) { assign(offset, value); }

private:
    UICollectionViewDataSource* dataSource = nullptr;
    QVariantList shown;
    QSizeF size;
    double factor = 1;
    QPointF offset;
};
