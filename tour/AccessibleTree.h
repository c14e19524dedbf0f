#pragma once

#include <QAccessible>
#include <QWindow>

// Calls `visit` with everything of `window` that assistive technology can see, outer things first. What is
// covered, scrolled away or hidden comes too: its state says so.
template <typename Visit>
void forEachAccessible(QAccessibleInterface* from, const Visit& visit)
{
    if (from == nullptr || !from->isValid())
        return;
    visit(*from);
    for (int child = 0; child < from->childCount(); ++child)
        forEachAccessible(from->child(child), visit);
}

template <typename Visit>
void forEachAccessible(QWindow& window, const Visit& visit)
{
    forEachAccessible(QAccessible::queryAccessibleInterface(&window), visit);
}
