#pragma once

#include <QString>

// Text messages (SMS).
class TextMessages
{
public:
    virtual ~TextMessages() = default;

    // Whether a message could be handed to some program of the device. Asked at every use; takes well under a
    // millisecond.
    [[nodiscard]] virtual bool canSendText() const = 0;

    // Opens a message with `text` in that program, for the user to choose who gets it. Answers whether the
    // program could be started; a text of some ten thousand characters may be too long for it.
    virtual bool compose(const QString& text) = 0;
};
