#include "browse/MovieSharing.h"

#include "model/MovieLines.h"

QString sharedText(const std::vector<std::shared_ptr<Movies>>& movies)
{
    QString text;
    for (const auto& movie : movies) {
        text += movieLines({.movieName = movie->movieName(),
                            .provider = movie->provider(),
                            .yearReleased = QString::number(movie->yearReleased()),
                            .runTime = QString::number(movie->runTime()),
                            .rating = movie->rating(),
                            .genre = movie->genre(),
                            .actors = movie->actors(),
                            .directors = movie->directors(),
                            .notes = movie->notes()});
        text += QStringLiteral("\n\n");
    }
    return text;
}
