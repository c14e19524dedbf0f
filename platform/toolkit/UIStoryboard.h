#pragma once

#include <QString>
#include <functional>
#include <memory>
#include <optional>

class UIViewController;

// One way from a screen to another. `source` and `destination` outlive the passage.
struct UIStoryboardSegue
{
    QString identifier;
    UIViewController* source = nullptr;
    UIViewController* destination = nullptr;
};

// Where a segue leads: to a new screen, or back to the nearest screen below that has the unwind action.
struct SegueTarget
{
    std::function<std::unique_ptr<UIViewController>()> makeDestination;
    // The name of an invokable taking a `UIStoryboardSegue`, such as "unwindToMenuWithSegue"; empty: not an
    // unwind segue.
    QString unwindAction;
};

// What joins screens: it knows each screen's segues and makes layouts. Screens know it through this alone.
class UIStoryboard
{
public:
    virtual ~UIStoryboard() = default;

    // Absent where `source` has no segue of that identifier.
    [[nodiscard]] virtual std::optional<SegueTarget> segue(const UIViewController& source,
                                                           const QString& identifier) const = 0;

    // Called once per screen before its viewDidLoad: the place to make a layout and to check its names.
    virtual void loadView(UIViewController& controller) = 0;
};
