#include "tour/SceneProperties.h"

#include "platform/toolkit/UIControl.h"
#include "tour/SceneExceptions.h"
#include "tour/SceneItems.h"

#include <QAccessible>

namespace {

using Property = SceneException::Property;

QString nameOf(QQuickItem& item)
{
    auto* seen = QAccessible::queryAccessibleInterface(&item);
    return seen != nullptr ? seen->text(QAccessible::Name) : QString();
}

bool says(QQuickItem& item, const QString& text)
{
    auto* seen = QAccessible::queryAccessibleInterface(&item);
    if (seen == nullptr || seen->state().invisible)
        return false;
    QString spoken;
    for (const auto kind : {QAccessible::Name, QAccessible::Value, QAccessible::Description})
        spoken += seen->text(kind) + '\n';
    if (QAccessibleTextInterface* content = seen->textInterface(); content != nullptr)
        spoken += content->text(0, content->characterCount());
    // Whole words: a count of 1 is not spoken by a year.
    return (' ' + spoken.simplified() + ' ').contains(' ' + text.simplified() + ' ');
}

// The control that the text stands on; null: none.
QQuickItem* controlAround(QQuickItem& text)
{
    QQuickItem* around = &text;
    while (around != nullptr && !SceneItems::isControl(*around))
        around = around->parentItem();
    return around;
}

bool isSpoken(QQuickItem& item)
{
    const QString text = SceneItems::textOf(item);
    if (text.trimmed().isEmpty())
        return true;
    if (QQuickItem* control = controlAround(item); control != nullptr)
        return says(*control, text);
    const auto beside = item.parentItem()->childItems();
    return says(item, text) ||
           std::any_of(beside.begin(), beside.end(), [&](QQuickItem* other) { return says(*other, text); });
}

bool isApart(const SceneItem& one, const SceneItem& other)
{
    return !one.item->isAncestorOf(other.item) && !other.item->isAncestorOf(one.item);
}

bool overlap(const SceneItem& one, const SceneItem& other)
{
    const QRectF common = one.part & other.part;
    return common.width() > SceneItems::tolerance && common.height() > SceneItems::tolerance &&
           isApart(one, other);
}

bool isPlaceholder(const SceneItem& text, const SceneItem& field)
{
    return text.isText && field.isText && SceneItems::textOf(*field.item).isEmpty() &&
           nameOf(*field.item) == SceneItems::textOf(*text.item);
}

QString cutOffProblem(const SceneItem& seen)
{
    if (seen.cutOff)
        return " lies outside what shows it";
    if (!seen.isText || SceneItems::isControl(*seen.item))
        return {};
    const QQuickItem& text = *seen.item;
    const QRectF own = text.mapRectToScene(QRectF(QPointF(), text.size()));
    constexpr int elideNone = Qt::ElideNone;
    const bool cut = text.property("truncated").toBool() && text.property("elide").toInt() == elideNone;
    if (cut || !SceneItems::contains(own, seen.place))
        return " is longer than its place";
    QQuickItem* control = controlAround(*seen.item);
    if (control == nullptr)
        return {};
    const QRectF room = control->mapRectToScene(QRectF(QPointF(), control->size()));
    return SceneItems::contains(room, seen.place) ? QString() : QString(" sticks out of its control");
}

// The controls in sight that a screen can switch off, each with its outlet.
std::vector<std::pair<SceneItem, UIControl*>> switchableControls(const QQuickWindow& window)
{
    std::vector<std::pair<SceneItem, UIControl*>> controls;
    for (const SceneItem& seen : SceneItems::inSight(window)) {
        auto* outlet = qobject_cast<UIControl*>(seen.item->property("outlet").value<QObject*>());
        if (outlet != nullptr && !seen.isText)
            controls.emplace_back(seen, outlet);
    }
    return controls;
}

} // namespace

QStringList SceneProperties::unspokenItems(const QQuickWindow& window)
{
    QStringList faults;
    for (const SceneItem& seen : SceneItems::inSight(window)) {
        if (isExcepted(*seen.item, Property::Speech))
            continue;
        if (seen.isText && !isSpoken(*seen.item))
            faults.append(SceneItems::describe(seen) + " is drawn but not spoken");
        if (SceneItems::isControl(*seen.item) && nameOf(*seen.item).isEmpty())
            faults.append(SceneItems::describe(seen) + " has no name");
    }
    return faults;
}

QStringList SceneProperties::displacedItems(const QQuickWindow& window)
{
    QStringList faults;
    std::vector<SceneItem> all = SceneItems::inSight(window);
    std::erase_if(all, [](const SceneItem& seen) { return isExcepted(*seen.item, Property::Place); });
    for (auto one = all.begin(); one != all.end(); ++one) {
        if (const QString problem = cutOffProblem(*one); !problem.isEmpty())
            faults.append(SceneItems::describe(*one) + problem);
        for (auto other = std::next(one); other != all.end(); ++other)
            if (overlap(*one, *other) && !isPlaceholder(*one, *other) && !isPlaceholder(*other, *one))
                faults.append(SceneItems::describe(*one) + " overlaps " + SceneItems::describe(*other));
    }
    return faults;
}

QStringList SceneProperties::unmarkedControls(QQuickWindow& window)
{
    const auto controls = switchableControls(window);
    const auto switchAll = [&] {
        QSet<UIControl*> outlets;
        for (const auto& [seen, outlet] : controls)
            if (!outlets.contains(outlet)) {
                outlets.insert(outlet);
                outlet->setEnabled(!outlet->isEnabled());
            }
    };
    const QImage before = window.grabWindow();
    switchAll();
    const QImage after = window.grabWindow();
    switchAll();
    QStringList faults;
    for (const auto& [seen, outlet] : controls) {
        const QRect place = seen.part.toRect();
        if (before.copy(place) == after.copy(place))
            faults.append(SceneItems::describe(seen) + " looks the same enabled and disabled");
    }
    return faults;
}

QStringList SceneProperties::faultsIn(QQuickWindow& window)
{
    return faintTexts(window) + unspokenItems(window) + displacedItems(window);
}
