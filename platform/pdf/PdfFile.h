#pragma once

#include "platform/toolkit/NSAttributedString.h"

// `text` as a PDF file in memory: as many pages of `pageSize` (points, to the tenth) as its layout fills,
// with its fonts in it. The text can be found and copied, in any script. Viewers show `title` for the name of
// the document. May be called on any thread.
[[nodiscard]] QByteArray pdfOf(const NSAttributedString& text, const QSizeF& pageSize, const QString& title);
