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
    const auto isAbove = [](const QQuickItem* a, const QQuickItem* b) { return a->y() < b->y(); };
    auto sorted = content->childItems();
    if (std::is_sorted(sorted.cbegin(), sorted.cend(), isAbove))
        return;
    std::stable_sort(sorted.begin(), sorted.end(), isAbove);
    for (qsizetype row = 1; row < sorted.size(); ++row)
        sorted[row]->stackAfter(sorted[row - 1]);
}
