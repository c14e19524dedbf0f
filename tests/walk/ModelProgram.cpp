#include "tests/walk/ModelProgram.h"

#include "tests/walk/ModelTexts.h"

namespace {

using Content = ModelListKind::Content;

} // namespace

ModelScene* ModelProgram::list(int screen)
{
    const auto found = lists.find(screen);
    return found == lists.end() ? nullptr : &found->second;
}

ModelEditor* ModelProgram::editor(int screen)
{
    const auto found = editors.find(screen);
    return found == editors.end() ? nullptr : &found->second;
}

ModelPrint* ModelProgram::print(int screen)
{
    const auto found = prints.find(screen);
    return found == prints.end() ? nullptr : &found->second;
}

void ModelProgram::open(int screen, const QString& screenClass, int below)
{
    if (const auto* kind = listKindOf(screenClass)) {
        ModelScene& scene = lists[screen];
        scene.kind = kind;
        // The movie list inverts its direction before it first loads.
        scene.ascending = kind->content != Content::Movies;
        load(scene);
        if (kind->content == Content::MoviesOfGroup)
            lastAscending = true;
    } else if (screenClass == "PrintMoviesViewController") {
        prints[screen] = printOpenedFrom(list(below));
    } else if (screenClass == "AddMovieViewController") {
        editors[screen].days = {QDate::currentDate()};
    } else if (screenClass == "EditMovieViewController") {
        ModelEditor& editor = editors[screen];
        editor.changesStoredMovie = true;
        editor.film = chosen.film;
        editor.showsCover = chosen.film.hasCover;
        editor.days = {chosen.film.watched ? chosen.film.watched->toLocalTime().date()
                                           : QDate::currentDate()};
    }
}

void ModelProgram::appear(int screen)
{
    ModelScene* scene = list(screen);
    if (scene != nullptr && scene->kind->content == Content::Movies)
        scene->ascending = !scene->ascending;
    // Another tab may have chosen another movie since.
    if (const ModelEditor* open = editor(screen); open != nullptr && open->changesStoredMovie)
        chosen.film = open->film;
}

void ModelProgram::close(int screen)
{
    lists.erase(screen);
    editors.erase(screen);
    prints.erase(screen);
}

void ModelProgram::load(ModelScene& scene)
{
    if (scene.kind->content == Content::MoviesOfGroup) {
        if (scene.kind->groupText != nullptr)
            scene.chosenText = (chosen.film.*scene.kind->groupText).value_or("");
        const bool isMonth = scene.kind->returnScreen == "DateWatchedBreakdown";
        scene.chosenYear = isMonth ? chosen.monthYear : chosen.film.year;
        scene.chosenMonth = chosen.month;
    }
    scene.load(catalogue);
}

// All movies, or those of the group: its search counts for nothing.
ModelPrint ModelProgram::printOpenedFrom(const ModelScene* list) const
{
    static const ModelListKind everything{"", Content::Movies, ""};
    ModelScene printed;
    printed.kind = &everything;
    if (list != nullptr)
        printed = *list;
    printed.ascending = lastAscending;
    printed.load(catalogue);
    std::optional<QString> title;
    if (list != nullptr && list->kind->returnScreen == "GenreBreakdown")
        title = "Movies Filtered by Genre: " + list->chosenText;
    return {printed.films, title, {}};
}

void ModelProgram::createPrint(int screen)
{
    if (ModelPrint* open = print(screen))
        open->text += printedText(open->films, open->title);
}

void ModelProgram::tapSort(int screen)
{
    ModelScene& scene = *list(screen);
    if (scene.kind->content == Content::MoviesOfGroup) {
        scene.ascending = !scene.ascending;
        load(scene);
    } else {
        scene.sort(catalogue);
    }
    if (scene.kind->content != Content::Movies)
        lastAscending = scene.ascending;
}

void ModelProgram::chooseOrder(int screen, MovieKey key)
{
    list(screen)->key = key;
    tapSort(screen);
}

void ModelProgram::search(int screen, const QString& text)
{
    list(screen)->search = text;
    list(screen)->filter();
}

void ModelProgram::tapRow(int screen, std::size_t row)
{
    ModelScene& scene = *list(screen);
    if (scene.kind->content == Content::Values) {
        chosen.values[static_cast<std::size_t>(scene.kind->values)] = scene.values[row]->text;
    } else if (scene.kind->content == Content::TextGroups) {
        chosen.film.*scene.kind->groupText = scene.shownKeys()[static_cast<qsizetype>(row)];
    } else if (scene.kind->content == Content::MonthGroups) {
        const QDate day = scene.shownFilms()[row]->watched.value_or(QDateTime()).toLocalTime().date();
        chosen.monthYear = day.year();
        chosen.month = day.month();
    } else if (scene.kind->content == Content::YearGroups) {
        chosen.film.year = scene.shownFilms()[row]->year;
    } else {
        chosen.film = *scene.shownFilms()[row];
        if (scene.kind->content == Content::MoviesOfGroup) {
            chosen.film.notes.reset();
            chosen.film.year = std::max(-1, chosen.film.year);
            chosen.film.runTime = std::max(-1, chosen.film.runTime);
        }
    }
}

void ModelProgram::keepTexts()
{
    for (auto& [screen, scene] : lists)
        scene.keepTexts(catalogue);
}

void ModelProgram::deleteRow(int screen, std::size_t row)
{
    keepTexts();
    ModelScene& scene = *list(screen);
    if (scene.kind->content == Content::Values) {
        std::erase(catalogue.of(scene.kind->values), scene.values[row]);
    } else {
        std::erase(catalogue.films, scene.shownFilms()[row]);
        // A list may go on showing the film's texts; its cover is read when it is asked for.
        scene.shownFilms()[row]->hasCover = false;
    }
    scene.forget(row);
}

void ModelProgram::showDate(int screen, const QString& text)
{
    const QDate day = QLocale(QLocale::English, QLocale::UnitedStates).toDate(text, "dddd, MMMM d, yyyy");
    if (ModelEditor* open = editor(screen); open != nullptr && day.isValid())
        open->days.insert(day);
}

void ModelProgram::showCover(int screen, bool shown)
{
    if (ModelEditor* open = editor(screen))
        open->showsCover = shown;
}

void ModelProgram::removeStoredCover(int screen)
{
    if (const FilmPointer film = catalogue.find(chosen.film.name.value_or(""), chosen.film.year))
        film->hasCover = false;
    showCover(screen, false);
}

void ModelProgram::comeBack(int screen)
{
    ModelScene* scene = list(screen);
    if (scene != nullptr &&
        (scene->kind->content == Content::Values || scene->kind->content == Content::MoviesOfGroup))
        load(*scene);
}

QStringList ModelProgram::compareWithStore()
{
    ModelCatalogue stored = storedCatalogue();
    for (const OpenDay& open : openDays) {
        const auto place =
            std::find(catalogue.films.begin(), catalogue.films.end(), open.film) - catalogue.films.begin();
        if (static_cast<std::size_t>(place) >= stored.films.size())
            continue;
        const ModelFilm& there = *stored.films[static_cast<std::size_t>(place)];
        const QDate day = there.watched ? there.watched->toLocalTime().date() : QDate();
        if (!open.days.contains(day))
            return {QString("%1 is stored as watched on a day that its form never showed")
                        .arg(there.description())};
        open.film->watched = there.watched;
        if (open.setsParts)
            open.film->watchedParts = day;
    }
    openDays.clear();
    return differences(catalogue, stored);
}
