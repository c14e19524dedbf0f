#include "tour/TourCatalogue.h"

#include "exchange/ImportViewController.h"
#include "tour/TourError.h"

#include <QBuffer>
#include <QFile>
#include <QPainter>

namespace {

QByteArray jpegOf(const QImage& image)
{
    QByteArray bytes;
    QBuffer buffer(&bytes);
    image.save(&buffer, "JPG");
    return bytes;
}

void addLighthouse()
{
    auto& context = AppDelegate::shared().persistentContainer().viewContext();
    const auto movie = context.insert<Movies>();
    movie->setMovieName(QString("The Lighthouse of Marrowvale"));
    movie->setYearReleased(1949);
    movie->setRunTime(93);
    movie->setGenre(QString("Animation"));
    movie->setRating(QString("PG"));
    movie->setProvider(QString("Hulu"));
    movie->setActors(QString("Ida Marlow, Tom Reed"));
    movie->setDirectors(QString("Vera Lund"));
    movie->setDateWatched(QDateTime::currentDateTime());
    movie->setFrontCover(jpegOf(TourCatalogue::paintedCover()));
    if (!context.save())
        throw TourError("The first movie cannot be stored");
}

void importFrom(const QString& path)
{
    QFile file(path);
    if (!file.open(QIODevice::ReadOnly))
        throw TourError(path + ": " + file.errorString());
    ImportViewController importing;
    importing.document = QString::fromUtf8(file.readAll());
    importing.ImportTextFile();
}

} // namespace

void TourCatalogue::fill(Chapter::Catalogue content, const QString& exchangeFile)
{
    if (content != Chapter::Catalogue::Empty)
        addLighthouse();
    if (content == Chapter::Catalogue::AllMovies)
        importFrom(exchangeFile);
}

QImage TourCatalogue::paintedCover()
{
    QImage cover(300, 400, QImage::Format_RGB32);
    QPainter painter(&cover);
    QLinearGradient dusk(0, 0, 0, cover.height());
    dusk.setColorAt(0, QColor(30, 40, 90));
    dusk.setColorAt(1, QColor(240, 140, 60));
    painter.fillRect(cover.rect(), dusk);
    painter.setBrush(QColor(255, 230, 170));
    painter.drawEllipse(QPoint(150, 260), 70, 70);
    return cover;
}
