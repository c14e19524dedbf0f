#pragma once

#include "platform/services/Pasteboard.h"

class QMimeData;

// Returns the picture in what some program copied: encoded, in a file that it names, or, from this program,
// as it is. Null where there is none that decodes.
[[nodiscard]] QImage imageIn(const QMimeData& content);

// The desktop's clipboard.
class LinuxPasteboard : public Pasteboard
{
public:
    [[nodiscard]] QImage image() const override;
    void setContent(const QString& text, const QImage& image) override;
};
