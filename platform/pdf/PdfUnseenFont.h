#pragma once

#include <QByteArray>
#include <QPointF>
#include <QSizeF>

class PdfObjects;

// The name of the unseen font among the resources of a page.
extern const QByteArray pdfUnseenFontName;

// Adds a font whose one glyph shows nothing but can be found and selected, and answers its object.
[[nodiscard]] int addPdfUnseenFont(PdfObjects& objects);

// What draws that glyph with its left end at `place`, on the base line, where y runs downwards, while the
// font is set. Readers that know no replacement text see a space.
[[nodiscard]] QByteArray pdfUnseenGlyph(const QPointF& place, const QSizeF& size);

// A text object of `glyphs`, which sets the font for them alone.
[[nodiscard]] QByteArray pdfUnseenBlock(const QByteArray& glyphs);
