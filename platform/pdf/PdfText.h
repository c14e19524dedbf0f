#pragma once

#include "platform/pdf/PdfReplacementText.h"

// Has a PDF file that QPdfWriter wrote give back the text that was drawn into it, in any script. The fonts'
// own maps do so for scripts of one glyph a character, as long as there is a font; `ofText` are the
// characters that were drawn. `itemsOf` tells what the page of a number, from 0, was drawn from, and is asked
// only when some text needs more than the maps.
void makeTextReadable(QByteArray& pdf, const CodeUnits& ofText,
                      const std::function<PdfPageItems(int page)>& itemsOf);
