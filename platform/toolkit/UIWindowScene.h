#pragma once

#include <vector>

class UINavigationController;

// A window of the program, as far as screens and services know of it. Connected from its construction to its
// destruction.
class UIWindowScene
{
public:
    enum class ActivationState { ForegroundActive, ForegroundInactive };

    UIWindowScene();
    virtual ~UIWindowScene();
    UIWindowScene(const UIWindowScene&) = delete;
    UIWindowScene& operator=(const UIWindowScene&) = delete;

    // In the order in which they were made; not owned.
    [[nodiscard]] static const std::vector<UIWindowScene*>& connectedScenes();

    [[nodiscard]] virtual ActivationState activationState() const = 0;
    [[nodiscard]] virtual UINavigationController& navigationController() = 0;
};
