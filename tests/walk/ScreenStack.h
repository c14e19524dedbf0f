#pragma once

#include "platform/toolkit/UINavigationController.h"

#include <QHash>
#include <vector>

// Follows which screens there are. Every screen gets a number of its own.
class ScreenStack
{
public:
    struct Change
    {
        enum class Kind { Opened, Appeared, Closed } kind;
        int screen;
        QString screenClass;
        // The one below; 0: none.
        int below = 0;
    };

    explicit ScreenStack(UINavigationController& outer)
        : outer(outer)
    {
    }

    // Returns the screens that came and went since the last call, closings first; openings from the bottom to
    // the top.
    [[nodiscard]] std::vector<Change> follow();

    // The screen that the user is in front of, within the tabs where there are some.
    [[nodiscard]] UIViewController& top() const;
    [[nodiscard]] int topNumber() const { return numberOf(top()); }
    [[nodiscard]] QString topClass() const { return classOf(top()); }
    // How many steps back it is to the first screen of all.
    [[nodiscard]] int depth() const;
    // Returns the controller presented on top of the screen, the last if several; null: nothing.
    [[nodiscard]] UIViewController* presented() const;

private:
    [[nodiscard]] UINavigationController& innermost() const;
    [[nodiscard]] static int numberOf(const UIViewController& screen);
    [[nodiscard]] static QString classOf(const UIViewController& screen);
    void followOne(UINavigationController& stack, std::vector<Change>& changes);

    UINavigationController& outer;
    QHash<UINavigationController*, std::vector<int>> known;
    int lastNumber = 0;
    int lastTop = 0;
};
