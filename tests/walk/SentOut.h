#pragma once

#include "platform/services/UIActivityViewController.h"
#include "tests/walk/WalkState.h"

// Compares what leaves the program with what the model says: printed, copied and saved texts, and what a
// share sheet offers. Throws
// WalkFailure.
class SentOut
{
public:
    explicit SentOut(WalkState& state)
        : state(state)
    {
    }

    // Looks at what has left since the last call.
    void check();

private:
    // A share sheet that has opened.
    void checkSheet();
    void checkReport(const UIActivityViewController& sheet) const;
    void checkPrinted(const PrintJob& job);
    void checkSaved(const RecordingDevice::SavedDocument& document);
    void checkCopied(const QString& text);

    WalkState& state;
    std::size_t printed = 0;
    std::size_t saved = 0;
    QString copied;
    // The sheet that was compared last; null once it has closed.
    const UIActivityViewController* compared = nullptr;
};
