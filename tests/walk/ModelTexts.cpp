#include "tests/walk/ModelTexts.h"

#include "tests/walk/ModelOrder.h"
#include "tests/walk/ModelRows.h"

#include <QLocale>

namespace {

QString line(const QString& label, const std::optional<QString>& text)
{
    return text ? label + *text + '\n' : QString();
}

QString peopleLine(const QString& label, const std::optional<QString>& people)
{
    return people ? line(label, namesOnOneLine(*people)) : QString();
}

QString filmBlock(const ModelFilm& film, const QString& firstLine, const QString& lineAfterGenre)
{
    return firstLine + line("Movie Name: ", film.name) + line("Genre: ", film.genre) + lineAfterGenre +
           line("Year: ", QString::number(film.year)) + peopleLine("Actors: ", film.actors) +
           peopleLine("Directors: ", film.directors) + peopleLine("Producer: ", film.producers) +
           line("Notes: ", film.notes) + QChar(QChar::ObjectReplacementCharacter) + "   \n\n";
}

// What the group goes by.
QString groupLine(const ModelFilm& film, const ModelListKind& kind)
{
    if (kind.returnScreen == "DateReleasedBreakdown")
        return line("Year Released: ", QString::number(film.year));
    if (kind.groupText == nullptr)
        return line("Date Watched: ",
                    QLocale(QLocale::English, QLocale::UnitedStates).toString(watchedDay(film), "MMMM yyyy"));
    const QString label = kind.groupText == &ModelFilm::genre    ? "Genre: "
                          : kind.groupText == &ModelFilm::rating ? "Rating: "
                                                                 : "Provider: ";
    return line(label, (film.*kind.groupText).value_or(""));
}

QString onExchangeLine(const std::optional<QString>& people)
{
    return people.value_or("").replace('\n', ", ");
}

QString exchangeRecord(const ModelFilm& film)
{
    const QStringList fields{onExchangeLine(film.actors),
                             film.watched ? momentText(*film.watched) : QString(),
                             onExchangeLine(film.directors),
                             film.genre.value_or(""),
                             film.name.value_or(""),
                             film.provider.value_or(""),
                             onExchangeLine(film.producers),
                             film.rating.value_or(""),
                             QString::number(film.runTime),
                             QString::number(film.year),
                             film.notes.value_or("").remove('^').replace('\n', '~'),
                             film.hasCover ? "cover" : ""};
    return fields.join('^') + "\n\n";
}

} // namespace

QString printedText(const std::vector<FilmPointer>& films, const std::optional<QString>& title)
{
    QString text = title ? *title + "\n\n" : QString();
    for (const auto& film : films)
        text += filmBlock(*film, {}, {});
    return text;
}

QString reportText(const std::vector<FilmPointer>& films, const ModelListKind& kind)
{
    QString text = "Movies Filtered by " + groupLine(*films.front(), kind) + "\n";
    const bool leads = kind.groupText == &ModelFilm::provider || kind.returnScreen == "DateWatchedBreakdown";
    for (const auto& film : films)
        text += filmBlock(*film, leads ? groupLine(*film, kind) : QString(),
                          kind.groupText == &ModelFilm::rating ? groupLine(*film, kind) : QString());
    return text;
}

QString sharedForm(const QHash<QString, QString>& form)
{
    const std::pair<const char*, const char*> lines[] = {
        {"Movie Name: ", "Movie Name"}, {"Provider: ", "Provider"},  {"Year Released: ", "Year Released"},
        {"Run Time: ", "Run Time"},     {"Rating: ", "Rating"},      {"Genre: ", "Genre"},
        {"Actor's: ", "Actors"},        {"Director: ", "Directors"}, {"Notes: ", "Notes"}};
    QString text;
    for (const auto& [label, field] : lines)
        if (!form[field].isEmpty())
            text += line(label, form[field]);
    return text;
}

QString sharedText(const std::vector<FilmPointer>& films)
{
    QString text;
    for (const auto& film : films)
        text += line("Movie Name: ", film->name) + line("Provider: ", film->provider) +
                line("Year Released: ", QString::number(film->year)) +
                line("Run Time: ", QString::number(film->runTime)) + line("Rating: ", film->rating) +
                line("Genre: ", film->genre) + line("Actor's: ", film->actors) +
                line("Director: ", film->directors) + line("Notes: ", film->notes) + "\n\n";
    return text;
}

QString exchangeText(const ModelCatalogue& catalogue)
{
    std::vector<FilmPointer> films = catalogue.films;
    std::stable_sort(films.begin(), films.end(), [](const auto& left, const auto& right) {
        if (const int order = compareTexts(left->name, right->name); order != 0)
            return order < 0;
        if (left->year != right->year)
            return left->year < right->year;
        return compareTexts(left->directors, right->directors) < 0;
    });
    QString text = "[MARROWVALE]\n";
    for (const auto& film : films)
        text += exchangeRecord(*film);
    return text;
}
