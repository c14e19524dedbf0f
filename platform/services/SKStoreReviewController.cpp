#include "platform/services/SKStoreReviewController.h"

#include "platform/services/Device.h"

void SKStoreReviewController::requestReview()
{
    Device::current().reviewPrompt->ask(nullptr);
}

void SKStoreReviewController::requestReviewInScene(UIWindowScene& scene)
{
    Device::current().reviewPrompt->ask(&scene);
}
