#include "feedback/ReviewService.h"

#include "platform/foundation/Calendar.h"
#include "platform/services/Device.h"
#include "platform/services/SKStoreReviewController.h"
#include "platform/services/SystemVersions.h"
#include "platform/toolkit/UIWindowScene.h"

namespace {

constexpr int daysBetweenRequests = 7;
const QString lastRequestKey = QStringLiteral("ReviewService.lastRequest");

UIWindowScene* sceneInForeground()
{
    const auto& scenes = UIWindowScene::connectedScenes();
    const auto found = std::find_if(scenes.begin(), scenes.end(), [](const UIWindowScene* scene) {
        return scene->activationState() == UIWindowScene::ActivationState::ForegroundActive;
    });
    return found != scenes.end() ? *found : nullptr;
}

void askTheDevice()
{
    const bool knowsScenes = Device::current().systemVersion >= SystemVersions::reviewsInScenes;
    if (UIWindowScene* scene = knowsScenes ? sceneInForeground() : nullptr)
        SKStoreReviewController::requestReviewInScene(*scene);
    else
        SKStoreReviewController::requestReview();
}

} // namespace

ReviewService::ReviewService(Clock clock)
    : clock(std::move(clock))
{
}

std::optional<QDateTime> ReviewService::lastRequest() const
{
    const auto stored = defaults.objectForKey(lastRequestKey);
    if (!stored || stored->typeId() != QMetaType::QDateTime)
        return std::nullopt;
    return stored->toDateTime();
}

void ReviewService::setLastRequest(const std::optional<QDateTime>& moment)
{
    if (moment)
        defaults.setObject(*moment, lastRequestKey);
}

bool ReviewService::canRequestReview() const
{
    const auto last = lastRequest();
    return !last || *last < Calendar::current().dateByAddingDays(-daysBetweenRequests, clock());
}

void ReviewService::requestReview()
{
    if (!canRequestReview())
        return;
    askTheDevice();
    setLastRequest(clock());
}
