#pragma once

#include "platform/services/Printer.h"

class QPageLayout;

// Writes `content` into a new file at `path`, as pages of `layout` titled `title`. Runs on any thread. A PDF
// file is no content for it.
[[nodiscard]] Status renderPdf(const PrintContent& content, const QPageLayout& layout, const QString& title,
                               const QString& path);
