#include "storyboard/LayoutBinding.h"

#include "platform/toolkit/UIBarButtonItem.h"
#include "platform/toolkit/UITextInput.h"
#include "platform/toolkit/UIViewController.h"
#include "storyboard/ControlTrigger.h"

#include <QMetaMethod>
#include <QMetaProperty>
#include <QQuickItem>
#include <QSet>

namespace {

// Items of a layout are joined as objects and as pictures; either tree alone misses some.
void collect(QObject* object, QSet<QObject*>& found)
{
    if (object == nullptr || found.contains(object))
        return;
    found.insert(object);
    for (QObject* child : object->children())
        collect(child, found);
    if (const auto* item = qobject_cast<QQuickItem*>(object))
        for (QQuickItem* child : item->childItems())
            collect(child, found);
}

QObject* outletOf(const QObject* control)
{
    return control->property("outlet").value<QObject*>();
}

bool isOutlet(const QMetaProperty& property)
{
    const QMetaObject* type = property.metaType().metaObject();
    return property.isConstant() && type != nullptr && type->inherits(&UIView::staticMetaObject) &&
           QChar::isUpper(static_cast<unsigned char>(property.name()[0]));
}

QStringList unshownOutlets(const QSet<QObject*>& controls, const UIViewController& screen)
{
    QSet<QObject*> shown;
    for (const QObject* control : controls)
        shown.insert(outletOf(control));
    QStringList unshown;
    const QMetaObject* type = screen.metaObject();
    for (int i = 0; i < type->propertyCount(); ++i)
        if (isOutlet(type->property(i)) && !shown.contains(type->property(i).read(&screen).value<QObject*>()))
            unshown.append(QStringLiteral("outlet ") + QString::fromLatin1(type->property(i).name()));
    return unshown;
}

class Binder
{
public:
    Binder(UIViewController& screen, const UIStoryboard& storyboard)
        : screen(screen)
        , storyboard(storyboard)
    {
    }

    void bind(QObject* control)
    {
        bindAction(control);
        bindSegue(control);
        bindBeginAction(control);
    }

    QStringList missing;

private:
    static QString nameIn(const QObject* control, const char* property)
    {
        return control->property(property).toString();
    }

    static QMetaMethod triggeredSignal(const QObject* control)
    {
        return control->metaObject()->method(control->metaObject()->indexOfSignal("triggered()"));
    }

    QMetaMethod actionNamed(const QString& name)
    {
        const int index =
            screen.metaObject()->indexOfMethod((name + QStringLiteral("()")).toLatin1().constData());
        if (index < 0)
            missing.append(QStringLiteral("action ") + name);
        return screen.metaObject()->method(index);
    }

    void bindAction(QObject* control)
    {
        const QString name = nameIn(control, "action");
        if (name.isEmpty())
            return;
        const QMetaMethod action = actionNamed(name);
        if (action.isValid())
            bindTrigger(control, [&screen = screen, action] { action.invoke(&screen); });
    }

    void bindSegue(QObject* control)
    {
        const QString identifier = nameIn(control, "segue");
        if (identifier.isEmpty())
            return;
        if (!storyboard.segue(screen, identifier)) {
            missing.append(QStringLiteral("segue ") + identifier);
            return;
        }
        bindTrigger(control, [&screen = screen, identifier] { screen.performSegue(identifier); });
    }

    void bindTrigger(QObject* control, std::function<void()> act)
    {
        auto* trigger = new ControlTrigger(screen, std::move(act), control);
        QObject::connect(control, triggeredSignal(control), trigger, ControlTrigger::slot());
    }

    void bindBeginAction(QObject* control)
    {
        const QString name = nameIn(control, "beginAction");
        auto* input = qobject_cast<UITextInput*>(outletOf(control));
        if (name.isEmpty() || input == nullptr)
            return;
        const QMetaMethod action = actionNamed(name);
        if (action.isValid())
            QObject::connect(input, QMetaMethod::fromSignal(&UITextInput::editingDidBegin), &screen, action);
    }

    UIViewController& screen;
    const UIStoryboard& storyboard;
};

} // namespace

QStringList bindLayout(QObject& layout, UIViewController& screen, const UIStoryboard& storyboard)
{
    QSet<QObject*> controls;
    collect(&layout, controls);
    Binder binder(screen, storyboard);
    for (QObject* control : controls)
        binder.bind(control);
    return binder.missing + unshownOutlets(controls, screen);
}
