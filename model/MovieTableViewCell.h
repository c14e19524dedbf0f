#pragma once

#include "model/Movies.h"
#include "platform/toolkit/Appearance.h"

#include <QImage>
#include <QObject>

// A row that shows a movie: three lines beside its cover. The lists call its parts by different names.
struct MovieTableViewCell
{
    Q_GADGET
    QML_VALUE_TYPE(movieTableViewCell)
    Q_PROPERTY(LabelContent MovieNameLabel MEMBER MovieNameLabel FINAL)
    Q_PROPERTY(LabelContent MovieNamesLabel MEMBER MovieNameLabel FINAL)
    Q_PROPERTY(LabelContent SecondLabel MEMBER SecondLabel FINAL)
    Q_PROPERTY(LabelContent SecondLabels MEMBER SecondLabel FINAL)
    Q_PROPERTY(LabelContent ThirdLabel MEMBER ThirdLabel FINAL)
    Q_PROPERTY(LabelContent ThirdLabels MEMBER ThirdLabel FINAL)
    Q_PROPERTY(QImage FrontImage MEMBER FrontImage FINAL)
    Q_PROPERTY(QImage FrontImageView MEMBER FrontImage FINAL)
    Q_PROPERTY(QImage FrontCoverImage MEMBER FrontImage FINAL)
    Q_PROPERTY(Layer layer MEMBER layer FINAL)
    Q_PROPERTY(QColor backgroundColor MEMBER backgroundColor FINAL)

public:
    LabelContent MovieNameLabel;
    LabelContent SecondLabel;
    LabelContent ThirdLabel;
    QImage FrontImage;
    Layer layer = rowLayer();
    QColor backgroundColor = rowBackgroundColor();

    bool operator==(const MovieTableViewCell&) const = default;
};

struct MovieRowTexts
{
    QString first;
    QString second;
    QString third;
};

// The row of `movie`. `blackText`: the list is in dark style, where the row stays light.
[[nodiscard]] MovieTableViewCell movieTableViewCell(const MovieRowTexts& texts, const Movies& movie,
                                                    bool blackText);

// The cover, or the built-in picture where the movie has none; null where its bytes are no picture.
[[nodiscard]] QImage coverOrLogo(const Movies& movie);
