#include "platform/toolkit/UICollectionView.h"

void UICollectionView::reloadData()
{
    QVariantList cells;
    const int count = dataSource == nullptr ? 0 : dataSource->numberOfItemsInSection(0);
    for (int item = 0; item < count; ++item)
        cells.append(dataSource->cellForItemAt({.row = item}));
    shown = std::move(cells);
    Q_EMIT changed();
}
