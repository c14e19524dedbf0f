#pragma once

#include "platform/services/Pasteboard.h"

// The desktop's clipboard.
class LinuxPasteboard : public Pasteboard
{
public:
    [[nodiscard]] bool hasImages() const override;
    [[nodiscard]] QImage image() const override;
    void setString(const QString& text) override;
    void setImage(const QImage& image) override;
};
