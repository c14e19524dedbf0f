#include "tests/walk/ModelRows.h"

#include <QLocale>

namespace {

QString longDate(const QDateTime& moment)
{
    return QLocale(QLocale::English, QLocale::UnitedStates)
        .toString(moment.toLocalTime().date(), "MMMM d, yyyy");
}

} // namespace

QString namesOnOneLine(QString people)
{
    people.replace('\n', ',');
    if (people.endsWith(','))
        people.chop(1);
    return people;
}

QString movieRowText(const ModelFilm& film, MovieKey key)
{
    const QString name = "Movie Name: " + film.name.value_or("");
    const QString genre = "Genre: " + film.genre.value_or("");
    const QString rating = "Rating: " + film.rating.value_or("");
    const QString year = QString::number(film.year);
    QString upper;
    if (key == MovieKey::Rating)
        upper = rating + '\n' + name + " Year Released: " + year;
    else if (key == MovieKey::Year)
        upper = "Year Released: " + year + '\n' + name + ' ' + rating;
    else if (key == MovieKey::Genre)
        upper = genre + '\n' + name + ' ' + rating;
    else
        upper = name + "\nDate Released: " + year + ' ' + genre + ' ' + rating;
    const QString runTime = QString::number(film.runTime);
    if (!film.watched)
        return upper + "\nDate Watched: N/A  Run Time: " + runTime;
    return upper + "\nDate Watched: " + longDate(*film.watched) + " Run Time: " + runTime +
           (key == MovieKey::Name ? " min" : "");
}

QString groupMovieRowText(const ModelFilm& film, const ModelListKind& kind)
{
    const QString genre = "Genre: " + film.genre.value_or("");
    const QString year = QString::number(film.year);
    QString first = "Date Watched: " + (film.watched ? longDate(*film.watched) : QString());
    QString afterName = "   " + genre;
    if (kind.returnScreen == "DateReleasedBreakdown") {
        first = "Year Released: " + year;
    } else if (kind.groupText != nullptr) {
        afterName = "   Year: " + year;
        first = kind.groupText == &ModelFilm::genre ? genre
                : kind.groupText == &ModelFilm::rating
                    ? "Rating: " + film.rating.value_or("")
                    : "Provider: " + film.provider.value_or("") + "  " + genre;
    }
    return first + "\n " + film.name.value_or("") + afterName +
           "  Run Time: " + QString::number(film.runTime) +
           " min.\nActors: " + namesOnOneLine(film.actors.value_or(""));
}

QString groupRowText(const QString& label, qsizetype count)
{
    return (label.isEmpty() ? "Empty" : label) + '\n' + QString::number(count);
}

bool searchFinds(const QString& text, const QString& within)
{
    const auto form = [](const QString& any) {
        return any.toLower().normalized(QString::NormalizationForm_D);
    };
    return !within.isEmpty() && form(within).contains(form(text));
}

QString momentText(const QDateTime& moment)
{
    return moment.toUTC().toString("yyyy-MM-dd HH:mm:ss") + " +0000";
}
