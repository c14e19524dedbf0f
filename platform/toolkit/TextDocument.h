#pragma once

#include "platform/toolkit/NSAttributedString.h"

#include <QTextDocument>
#include <memory>

// Puts `text` into an empty document, which can then be painted and printed, on any one thread. Line feeds
// begin paragraphs; lengths follow the resolution of what the document is laid out for. Whatever changes the
// layout, as the size of the page does, is set before: laying out a long text takes its time.
void fillDocument(QTextDocument& document, const NSAttributedString& text);

// The same in a document of its own. Clones must not outlive it.
[[nodiscard]] std::unique_ptr<QTextDocument> textDocument(const NSAttributedString& text);
