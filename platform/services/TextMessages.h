#pragma once

// Text messages (SMS).
class TextMessages
{
public:
    virtual ~TextMessages() = default;

    // Whether a message could be handed to some program of the device. Asked at every use; takes well under a
    // millisecond.
    [[nodiscard]] virtual bool canSendText() const = 0;
};
