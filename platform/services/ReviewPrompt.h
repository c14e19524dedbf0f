#pragma once

#include <QUrl>

class UIWindowScene;

// Where reviews of the program are written.
inline const QUrl reviewAddress{QStringLiteral("https://marrowvale.example/review")};

// The device's question whether the user would like to review the program.
class ReviewPrompt
{
public:
    virtual ~ReviewPrompt() = default;

    // Asks in `scene`, or, where that is null, wherever the device finds fit. The device may choose not to
    // ask.
    virtual void ask(UIWindowScene* scene) = 0;
};
