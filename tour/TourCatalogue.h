#pragma once

#include "tour/Chapters.h"

#include <QImage>

// What a chapter's catalogue holds before the chapter begins.
namespace TourCatalogue {

// An AppDelegate must exist. `exchangeFile` is read for AllMovies only; a file that can't be read is a
// TourError.
void fill(Chapter::Catalogue content, const QString& exchangeFile);
[[nodiscard]] QImage paintedCover();

} // namespace TourCatalogue
