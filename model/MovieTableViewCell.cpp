#include "model/MovieTableViewCell.h"

#include "platform/toolkit/UIImage.h"
#include "resources/Resources.h"

MovieTableViewCell movieTableViewCell(const MovieRowTexts& texts, const Movies& movie, bool blackText)
{
    const auto label = [blackText](const QString& text) {
        return LabelContent{.text = text, .textColor = blackText ? QColor(Qt::black) : QColor()};
    };
    MovieTableViewCell cell;
    cell.MovieNameLabel = label(texts.first);
    cell.SecondLabel = label(texts.second);
    cell.ThirdLabel = label(texts.third);
    cell.FrontImage = coverOrLogo(movie);
    return cell;
}

QImage coverOrLogo(const Movies& movie)
{
    const std::optional<QByteArray> cover = movie.frontCover();
    return cover ? imageWithData(*cover) : movieLogo();
}
