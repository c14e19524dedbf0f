#pragma once

#include <QByteArray>
#include <QPointF>
#include <vector>

// The glyphs of one text item in the content of a page that QPdfWriter wrote.
struct PdfTextBlock
{
    // Where it stands in the content, whole lines.
    qsizetype begin;
    qsizetype end;
    // Where the first glyph stands, as the painter was told.
    QPointF position;
    // The font's name among the resources of the page.
    QByteArray font;
    // Of each glyph, in the order of the text: two bytes.
    QByteArray codes;
};

// All in `content` that have glyphs, in order.
[[nodiscard]] std::vector<PdfTextBlock> pdfTextBlocks(const QByteArray& content);
