#include "platform/toolkit/UINavigationController.h"

#include "platform/foundation/Console.h"
#include "platform/toolkit/UIBarButtonItem.h"

namespace {

QByteArray signatureOf(const QString& unwindAction)
{
    return QMetaObject::normalizedSignature(
        (unwindAction + QStringLiteral("(UIStoryboardSegue)")).toLatin1());
}

bool hasUnwindAction(const UIViewController& controller, const QString& action)
{
    return controller.metaObject()->indexOfMethod(signatureOf(action)) >= 0;
}

} // namespace

UINavigationController::UINavigationController(UIStoryboard& storyboard, QObject* parent)
    : QObject(parent)
    , storyboard(storyboard)
{
}

UINavigationController::~UINavigationController() = default;

UINavigationController* UINavigationController::makeStackWithin(UIViewController& host) const
{
    auto* inner = new UINavigationController(storyboard, &host);
    inner->hostScreen = &host;
    return inner;
}

UIViewController* UINavigationController::topViewController() const
{
    return stack.empty() ? nullptr : stack.back().get();
}

UIViewController* UINavigationController::rootViewController() const
{
    return stack.empty() ? nullptr : stack.front().get();
}

void UINavigationController::push(std::unique_ptr<UIViewController> controller)
{
    UIViewController* covered = topViewController();
    UIViewController* shown = controller.get();
    shown->setNavigationController(this);
    shown->loadViewIfNeeded(&storyboard);
    if (covered != nullptr)
        covered->endEditing();
    stack.emplace_back(controller.release(), [](UIViewController* popped) { popped->deleteLater(); });
    shown->viewWillAppear(true);
    Q_EMIT pushed(shown);
    Q_EMIT topChanged();
    if (covered != nullptr)
        covered->viewDidDisappear(true);
}

void UINavigationController::pop()
{
    if (stack.size() > 1)
        popTo(stack.size() - 1);
}

void UINavigationController::popToRoot()
{
    if (stack.size() > 1)
        popTo(1);
}

void UINavigationController::popTo(std::size_t depth)
{
    const std::vector<std::shared_ptr<UIViewController>> leaving(
        stack.rbegin(), stack.rend() - static_cast<std::ptrdiff_t>(depth));
    stack.resize(depth);
    stack.back()->viewWillAppear(true);
    for (const auto& controller : leaving) {
        controller->dismiss();
        Q_EMIT popped(controller);
    }
    Q_EMIT topChanged();
    for (const auto& controller : leaving) {
        controller->setNavigationController(nullptr);
        controller->viewDidDisappear(true);
    }
}

void UINavigationController::perform(UIViewController& source, const QString& identifier)
{
    const std::optional<SegueTarget> target = storyboard.segue(source, identifier);
    if (!target)
        fatalError(QStringLiteral("%1 has no segue with identifier '%2'")
                       .arg(QString::fromLatin1(source.metaObject()->className()), identifier));
    if (target->unwindAction.isEmpty())
        show(target->makeDestination(), source, identifier);
    else
        unwind(source, {identifier, &source, nullptr}, target->unwindAction);
}

void UINavigationController::show(std::unique_ptr<UIViewController> destination, UIViewController& source,
                                  const QString& identifier)
{
    // A second tap while the first one's screen comes in must not open it twice.
    if (&source != topViewController())
        return;
    source.prepareForSegue({identifier, &source, destination.get()});
    push(std::move(destination));
}

void UINavigationController::unwind(const UIViewController& from, UIStoryboardSegue segue,
                                    const QString& action)
{
    for (std::size_t below = positionOf(from); below > 0; --below) {
        UIViewController& destination = *stack[below - 1];
        if (!hasUnwindAction(destination, action))
            continue;
        segue.destination = &destination;
        segue.source->prepareForSegue(segue);
        QMetaObject::invokeMethod(&destination, action.toLatin1().constData(), Qt::DirectConnection,
                                  Q_ARG(UIStoryboardSegue, segue));
        popTo(below);
        return;
    }
    if (hostScreen != nullptr && hostScreen->navigationController() != nullptr)
        hostScreen->navigationController()->unwind(*hostScreen, std::move(segue), action);
}

std::size_t UINavigationController::positionOf(const UIViewController& controller) const
{
    const auto found =
        std::find_if(stack.begin(), stack.end(), [&](const auto& held) { return held.get() == &controller; });
    return static_cast<std::size_t>(found - stack.begin()) % std::max<std::size_t>(stack.size(), 1);
}

void UINavigationController::setNavigationBarHidden(bool hidden, bool /*animated*/)
{
    if (hidden == barHidden)
        return;
    barHidden = hidden;
    Q_EMIT navigationBarChanged();
}
