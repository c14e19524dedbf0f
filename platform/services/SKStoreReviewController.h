#pragma once

class UIWindowScene;

// Asks the device for its review prompt, which may or may not appear.
class SKStoreReviewController
{
public:
    static void requestReview();
    static void requestReviewInScene(UIWindowScene& scene);
};
