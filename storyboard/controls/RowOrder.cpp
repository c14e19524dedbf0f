#include "storyboard/controls/RowOrder.h"

namespace {

constexpr int restMilliseconds = 100;

} // namespace

RowOrder::RowOrder(QObject* parent)
    : QObject(parent)
{
    rest.setSingleShot(true);
    rest.setInterval(restMilliseconds);
    connect(&rest, &QTimer::timeout, this, &RowOrder::sort);
}

void RowOrder::setContentItem(QQuickItem* item)
{
    if (content == item)
        return;
    if (content)
        content->disconnect(&rest);
    content = item;
    if (content) {
        connect(content, &QQuickItem::childrenChanged, &rest, qOverload<>(&QTimer::start));
        connect(content, &QQuickItem::yChanged, &rest, qOverload<>(&QTimer::start));
    }
    Q_EMIT contentItemChanged();
}

void RowOrder::sort()
{
    if (!content)
        return;
    const auto rows = content->childItems();
    auto sorted = rows;
    std::stable_sort(sorted.begin(), sorted.end(),
                     [](const QQuickItem* a, const QQuickItem* b) { return a->y() < b->y(); });
    if (sorted == rows)
        return;
    for (qsizetype row = 1; row < sorted.size(); ++row)
        sorted[row]->stackAfter(sorted[row - 1]);
}
