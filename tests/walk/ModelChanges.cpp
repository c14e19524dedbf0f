// The acts that change the stored catalogue.
#include "tests/walk/ModelProgram.h"

#include <QRegularExpression>

namespace {

// A new movie holds this before anything is written.
const QDate defaultWatchDay(2001, 1, 1);

ModelFilm newFilm()
{
    ModelFilm film;
    film.watched = QDateTime(defaultWatchDay, QTime(12, 0), Qt::UTC);
    return film;
}

QString trimmed(QString text)
{
    static const QRegularExpression ends("^[ \\t]+|[ \\t]+$");
    return text.remove(ends);
}

bool isSameText(const QString& left, const QString& right)
{
    return left.normalized(QString::NormalizationForm_C) == right.normalized(QString::NormalizationForm_C);
}

} // namespace

bool isInt16(const QString& text)
{
    static const QRegularExpression decimal("^[+-]?[0-9]+$");
    bool fits = false;
    text.toShort(&fits);
    return fits && decimal.match(text).hasMatch();
}

ModelProgram::Outcome ModelProgram::saveMovie(int screen, const FormTexts& form)
{
    for (const char* needed : {"Movie Name", "Year Released", "Genre"})
        if (form[needed].isEmpty())
            return Outcome::Alert;
    const ModelEditor& open = *editor(screen);
    FilmPointer film;
    if (open.changesStoredMovie) {
        film = catalogue.find(chosen.film.name.value_or(""), chosen.film.year);
        if (!film)
            return Outcome::Stays;
        keepTexts();
    } else {
        keepTexts();
        film = std::make_shared<ModelFilm>(newFilm());
        catalogue.films.push_back(film);
    }
    write(*film, form, open);
    if (!form["Date Watched"].isEmpty()) {
        openDays.push_back({film, open.days, open.changesStoredMovie});
        if (!open.changesStoredMovie)
            film->watchedParts = defaultWatchDay;
    }
    return Outcome::Leaves;
}

void ModelProgram::write(ModelFilm& film, const FormTexts& form, const ModelEditor& open)
{
    const std::pair<const char*, std::optional<QString> ModelFilm::*> texts[] = {
        {"Movie Name", &ModelFilm::name},     {"Genre", &ModelFilm::genre},
        {"Actors", &ModelFilm::actors},       {"Directors", &ModelFilm::directors},
        {"Producers", &ModelFilm::producers}, {"Notes", &ModelFilm::notes},
    };
    for (const auto& [label, text] : texts)
        if (!form[label].isEmpty())
            film.*text = trimmed(form[label]);
    if (!form["Provider"].isEmpty())
        film.provider = form["Provider"];
    film.rating = trimmed(form["Rating"]);
    film.year = form["Year Released"].toShort();
    if (!form["Run Time"].isEmpty())
        film.runTime = form["Run Time"].toShort();
    film.hasCover = film.hasCover || open.showsCover;
}

ModelProgram::Outcome ModelProgram::addValue(ValueList list, const QString& text)
{
    auto& values = catalogue.of(list);
    if (text.isEmpty() || std::any_of(values.begin(), values.end(),
                                      [&](const auto& value) { return isSameText(value->text, text); }))
        return Outcome::Alert;
    keepTexts();
    values.push_back(std::make_shared<ModelValue>(ModelValue{0, trimmed(text)}));
    return Outcome::Leaves;
}

void ModelProgram::renameValue(ValueList list, const QString& text)
{
    keepTexts();
    for (const auto& value : catalogue.of(list))
        if (value->text == chosen.values[static_cast<std::size_t>(list)]) {
            value->text = trimmed(text);
            return;
        }
}

void ModelProgram::importText(QString text)
{
    const QStringList lines = text.replace('\r', '\n').remove('\'').split('\n');
    if (!lines.contains("[MARROWVALE]"))
        return;
    keepTexts();
    for (const QString& line : lines)
        importLine(line.split('^'));
}

void ModelProgram::importLine(const QStringList& fields)
{
    std::vector<FilmPointer> found;
    for (const auto& film : catalogue.films)
        if (!fields.value(9).isEmpty() && film->name == fields.value(4) &&
            film->year == fields.value(9).toInt())
            found.push_back(film);
    if (found.size() > 1)
        return;
    const bool isNew = found.empty();
    if (isNew)
        catalogue.films.push_back(std::make_shared<ModelFilm>(newFilm()));
    ModelFilm& film = isNew ? *catalogue.films.back() : *found.front();
    const std::pair<int, std::optional<QString> ModelFilm::*> texts[] = {
        {0, &ModelFilm::actors}, {2, &ModelFilm::directors}, {3, &ModelFilm::genre},
        {4, &ModelFilm::name},   {5, &ModelFilm::provider},  {6, &ModelFilm::producers},
        {7, &ModelFilm::rating}, {10, &ModelFilm::notes},
    };
    for (const auto& [index, text] : texts) {
        QString value = fields.value(index);
        if (value.isEmpty())
            continue;
        if (index == 10)
            value.replace('~', '\n');
        else if (!isNew && (index == 0 || index == 2 || index == 6))
            value.replace(", ", "\n");
        film.*text = value;
    }
    if (!fields.value(1).isEmpty())
        film.watched.reset();
    // A text that is no number reads 0; a new movie with such a line would end the program.
    if (!fields.value(8).isEmpty())
        film.runTime = fields[8].toShort();
    if (!fields.value(9).isEmpty())
        film.year = fields[9].toShort();
    if (!fields.value(11).isEmpty())
        film.hasCover = true;
}
