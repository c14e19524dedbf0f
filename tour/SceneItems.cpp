#include "tour/SceneItems.h"

#include <QAccessible>
#include <QQmlContext>
#include <QQmlEngine>
#include <QQmlProperty>

namespace {

bool isText(const QQuickItem& item)
{
    return item.inherits("QQuickText") || item.inherits("QQuickTextInput") || item.inherits("QQuickTextEdit");
}

double number(const QQuickItem& item, const char* property)
{
    return item.property(property).toDouble();
}

// Where lines begin and end within the item: a text that is longer than its item sticks out.
QRectF lettersOf(const QQuickItem& text)
{
    const QRectF inside = QRectF(QPointF(), text.size())
                              .adjusted(number(text, "leftPadding"), number(text, "topPadding"),
                                        -number(text, "rightPadding"), -number(text, "bottomPadding"));
    if (text.inherits("QQuickTextInput"))
        return inside;
    QRectF letters(inside.topLeft(), QSizeF(number(text, "contentWidth"), number(text, "contentHeight")));
    const int across = text.property("effectiveHorizontalAlignment").toInt();
    if (across == Qt::AlignHCenter)
        letters.moveCenter({inside.center().x(), letters.center().y()});
    else if (across == Qt::AlignRight)
        letters.moveRight(inside.right());
    const int along = text.property("verticalAlignment").toInt();
    if (along == Qt::AlignVCenter)
        letters.moveCenter({letters.center().x(), inside.center().y()});
    else if (along == Qt::AlignBottom)
        letters.moveBottom(inside.bottom());
    return letters;
}

void cutBy(const QQuickItem& around, SceneItem& seen)
{
    const QRectF place = around.mapRectToScene(QRectF(QPointF(), around.size()));
    const bool scrolls = around.inherits("QQuickFlickable");
    if (!scrolls && !around.clip())
        return;
    QRectF shown = seen.part;
    if (scrolls && number(around, "contentHeight") > around.height()) {
        shown.setTop(std::max(shown.top(), place.top()));
        shown.setBottom(std::min(shown.bottom(), place.bottom()));
    }
    if (scrolls && number(around, "contentWidth") > around.width()) {
        shown.setLeft(std::max(shown.left(), place.left()));
        shown.setRight(std::min(shown.right(), place.right()));
    }
    seen.cutOff = seen.cutOff || (shown.isValid() && !SceneItems::contains(place, shown));
    seen.part = shown.isValid() ? shown & place : QRectF();
}

SceneItem seenOf(QQuickItem& item, const QQuickWindow& window)
{
    SceneItem seen{.item = &item, .place = {}, .part = {}};
    seen.isText = isText(item);
    seen.place = item.mapRectToScene(seen.isText ? lettersOf(item) : QRectF(QPointF(), item.size()));
    seen.part = seen.place;
    for (const QQuickItem* around = item.parentItem(); around != nullptr; around = around->parentItem())
        cutBy(*around, seen);
    const QRectF whole(QPointF(), QSizeF(window.size()));
    seen.cutOff = seen.cutOff || (!seen.part.isEmpty() && !SceneItems::contains(whole, seen.part));
    return seen;
}

void collect(QQuickItem& from, const QQuickWindow& window, std::vector<SceneItem>& found)
{
    if (!from.isVisible() || qFuzzyIsNull(from.opacity()))
        return;
    if (isText(from) ? !SceneItems::textOf(from).trimmed().isEmpty() || SceneItems::isControl(from)
                     : SceneItems::isControl(from))
        if (const SceneItem seen = seenOf(from, window); !seen.part.isEmpty())
            found.push_back(seen);
    for (QQuickItem* child : from.childItems())
        collect(*child, window, found);
}

QString typeOf(const QMetaObject& type)
{
    return QString(type.className()).section("_QML", 0, 0);
}

bool isOfType(const QQuickItem& item, const QString& name)
{
    const QMetaObject* type = item.metaObject();
    while (type != nullptr && typeOf(*type) != name)
        type = type->superClass();
    return type != nullptr;
}

} // namespace

std::vector<SceneItem> SceneItems::inSight(const QQuickWindow& window)
{
    QQuickItem* root = window.contentItem();
    for (QQuickItem* layer : root->childItems())
        if (layer->inherits("QQuickOverlay") && layer->isVisible())
            root = layer;
    std::vector<SceneItem> found;
    collect(*root, window, found);
    return found;
}

QString SceneItems::textOf(const QQuickItem& text)
{
    const QVariant typed = text.property("displayText");
    return (typed.isValid() ? typed : text.property("text")).toString();
}

bool SceneItems::isControl(QQuickItem& item)
{
    static const QSet<int> roles{QAccessible::Button,  QAccessible::MenuItem, QAccessible::CheckBox,
                                 QAccessible::PageTab, QAccessible::ListItem, QAccessible::EditableText};
    auto* seen = QAccessible::queryAccessibleInterface(&item);
    return seen != nullptr && roles.contains(seen->role()) &&
           !QQmlProperty::read(&item, "Accessible.ignored", qmlContext(&item)).toBool();
}

bool SceneItems::isWithin(const QQuickItem& item, const QString& type, const char* property)
{
    for (const QQuickItem* around = &item; around != nullptr; around = around->parentItem())
        if (isOfType(*around, type) && (property == nullptr || around->property(property).toBool()))
            return true;
    return false;
}

QString SceneItems::describe(const SceneItem& seen)
{
    auto* spoken = QAccessible::queryAccessibleInterface(seen.item);
    const QString name = seen.isText         ? textOf(*seen.item)
                         : spoken != nullptr ? spoken->text(QAccessible::Name)
                                             : QString();
    const QRect place = seen.place.toRect();
    return QString("\"%1\" (%2, %3 by %4 at %5, %6)")
        .arg(name.simplified().left(60), typeOf(*seen.item->metaObject()))
        .arg(place.width())
        .arg(place.height())
        .arg(place.x())
        .arg(place.y());
}

bool SceneItems::contains(const QRectF& outer, const QRectF& inner)
{
    return outer.adjusted(-tolerance, -tolerance, tolerance, tolerance).contains(inner);
}
