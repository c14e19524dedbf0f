#pragma once

#include "platform/services/Printer.h"

#include <QPageLayout>
#include <QPageRanges>

// What pages of a document are made, and how.
struct PageSetup
{
    QPageLayout layout = {};
    // Of a text, from the first to the last of them; empty: all.
    QPageRanges wanted = {};
};

// Writes `content` into a new file at `path`, as pages titled `title`. Runs on any thread. A PDF file is no
// content for it.
[[nodiscard]] Status renderPdf(const PrintContent& content, const PageSetup& setup, const QString& title,
                               const QString& path);
