#include "storyboard/Storyboard.h"

#include "browse/ViewController.h"
#include "storyboard/SceneTable.h"

Storyboard::Storyboard(LayoutLoader loader)
    : loader(std::move(loader))
{
}

std::unique_ptr<UIViewController> Storyboard::makeInitialViewController()
{
    return std::make_unique<ViewController>();
}

std::optional<SegueTarget> Storyboard::segue(const UIViewController& source, const QString& identifier) const
{
    const QString screenClass = QString::fromLatin1(source.metaObject()->className());
    for (const SegueDescription& known : segueDescriptions())
        if (known.screenClass == screenClass && known.identifier == identifier)
            return known.target;
    return std::nullopt;
}

void Storyboard::loadView(UIViewController& controller)
{
    if (loader)
        loader(controller);
}
