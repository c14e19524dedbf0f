#pragma once

#include "platform/toolkit/NSAttributedString.h"

#include <QTextDocument>
#include <memory>

// `text` as a document that can be laid out, painted and printed, on any one thread. Line feeds begin
// paragraphs. Its lengths follow the resolution of what it is laid out for. Clones must not outlive it.
[[nodiscard]] std::unique_ptr<QTextDocument> textDocument(const NSAttributedString& text);
