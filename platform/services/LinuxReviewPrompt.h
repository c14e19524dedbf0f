#pragma once

#include "platform/services/ReviewPrompt.h"

// A question of our own on top of the window's screen, which opens the review address. It disturbs nobody:
// while something else is presented or the user is typing, it doesn't ask.
class LinuxReviewPrompt : public ReviewPrompt
{
public:
    // A null `scene` stands for the first window; without one nothing is asked.
    void ask(UIWindowScene* scene) override;
};
