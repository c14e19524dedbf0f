#pragma once

#include "platform/pdf/PdfCharacterMaps.h"
#include "platform/pdf/PdfTextItems.h"

// What was drawn on a page.
struct PdfPageItems
{
    std::vector<PdfTextItem> items;
    // Where the page begins in what the painter was told.
    double top = 0;
};

// `content`, that of a page, with replacement text for each item that its glyphs would not give back: around
// them, or where it has none, being drawn as boxes, around glyphs of the unseen font.
[[nodiscard]] QByteArray withReplacementText(const QByteArray& content, const PdfPageItems& page,
                                             const PdfCharacterMaps& maps);
