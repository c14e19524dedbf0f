#pragma once

#include "platform/toolkit/NSAttributedString.h"
#include "summaries/ReportKind.h"

// The text of a report, piece by piece: a title, then a block for each movie.

// The title's text, two line feeds and all that stands in `text` before them, in the look of a title. What
// stood there keeps only its characters.
void appendReportTitle(NSAttributedString& text, const QString& title);
// The look of a title for all that stands in `text`, which keeps only its characters.
void makeAllTitle(NSAttributedString& text);

// What `kind` says of `movie`, its cover (or the built-in picture) drawn one sixth of `viewWidth` wide, and
// an empty line.
void appendMovieBlock(NSAttributedString& text, const Movies& movie, const ReportKind& kind,
                      double viewWidth);
