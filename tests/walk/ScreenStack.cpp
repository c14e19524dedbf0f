#include "tests/walk/ScreenStack.h"

#include "platform/toolkit/UITabBarController.h"

namespace {

constexpr auto numberProperty = "walkNumber";

} // namespace

std::vector<ScreenStack::Change> ScreenStack::follow()
{
    std::vector<Change> changes;
    followOne(outer, changes);
    if (auto& inner = innermost(); &inner != &outer)
        followOne(inner, changes);
    if (const int now = topNumber(); std::exchange(lastTop, now) != now)
        changes.push_back({Change::Kind::Appeared, now, topClass()});
    return changes;
}

void ScreenStack::followOne(UINavigationController& stack, std::vector<Change>& changes)
{
    std::vector<int>& numbers = known[&stack];
    UIViewController& shown = *stack.topViewController();
    const auto depth = static_cast<std::size_t>(stack.depth());
    const bool isNew = numberOf(shown) == 0;
    while (numbers.size() > depth - (isNew ? 1 : 0)) {
        changes.push_back({Change::Kind::Closed, numbers.back(), {}});
        numbers.pop_back();
    }
    if (isNew) {
        shown.setProperty(numberProperty, ++lastNumber);
        changes.push_back(
            {Change::Kind::Opened, lastNumber, classOf(shown), numbers.empty() ? 0 : numbers.back()});
        numbers.push_back(lastNumber);
    }
    if (numbers.size() != depth || numbers.back() != numberOf(shown))
        changes.push_back({Change::Kind::Closed, -1, "two screens opened at once"});
}

UINavigationController& ScreenStack::innermost() const
{
    auto* tabs = qobject_cast<UITabBarController*>(outer.topViewController());
    return tabs == nullptr ? outer : *tabs->stack(tabs->selectedIndex());
}

UIViewController& ScreenStack::top() const
{
    return *innermost().topViewController();
}

int ScreenStack::depth() const
{
    return outer.depth() - 1 + (&innermost() == &outer ? 0 : innermost().depth());
}

UIViewController* ScreenStack::presented() const
{
    UIViewController* last = nullptr;
    for (UIViewController* next = top().presentedViewController(); next != nullptr;
         next = next->presentedViewController())
        last = next;
    return last;
}

int ScreenStack::numberOf(const UIViewController& screen)
{
    return screen.property(numberProperty).toInt();
}

QString ScreenStack::classOf(const UIViewController& screen)
{
    return QString::fromLatin1(screen.metaObject()->className());
}
