#pragma once

#include "tests/walk/ModelCatalogue.h"

#include <QSet>

// The differences between lists: a row of the one table `listKinds`.
struct ModelListKind
{
    enum class Content { Movies, TextGroups, YearGroups, MonthGroups, MoviesOfGroup, Values };

    QString screenClass;
    Content content;
    QString headerPrefix;
    // Where the text that a group goes by stands; null for the others.
    std::optional<QString> ModelFilm::*groupText = nullptr;
    ValueList values = ValueList::Genres;
    // The value of ReturnScreen when an editor is opened from here.
    QString returnScreen = {};
};

// Null where the screen is no list that a model knows.
[[nodiscard]] const ModelListKind* listKindOf(const QString& screenClass);

// The order in which a movie list stands and what its search looks at.
enum class MovieKey { Name, Genre, Year, Rating };

// The content of a list screen. Rows once drawn may show what they were drawn with until the list is
// reloaded.
struct ModelScene
{
    const ModelListKind* kind = nullptr;
    bool ascending = true;
    MovieKey key = MovieKey::Name;
    QString search;

    // Movies, or one movie for each group.
    std::vector<FilmPointer> films;
    std::vector<FilmPointer> filteredFilms;
    // The keys of text groups.
    QStringList keys;
    QStringList filteredKeys;
    std::vector<ValuePointer> values;
    // The value that all movies of a group's list share.
    QString chosenText;
    int chosenYear = 0;
    int chosenMonth = 0;

    // By row: texts that it may still show.
    std::vector<QSet<QString>> earlierTexts;

    // As on the first showing, on every sort of the whole and on the returns that reload.
    void load(const ModelCatalogue& catalogue);
    void sort(const ModelCatalogue& catalogue);
    void filter();
    void forget(std::size_t row);
    // Call before the catalogue changes.
    void keepTexts(const ModelCatalogue& catalogue);

    [[nodiscard]] const std::vector<FilmPointer>& shownFilms() const;
    [[nodiscard]] const QStringList& shownKeys() const;
    [[nodiscard]] QStringList rowTexts(const ModelCatalogue& catalogue) const;
    [[nodiscard]] QString header() const;
    // Whether the texts may stand in the list one below the other.
    [[nodiscard]] bool mayShow(const QStringList& texts, const ModelCatalogue& catalogue) const;

private:
    void loadMovies(const ModelCatalogue& catalogue);
    void loadTextGroups(const ModelCatalogue& catalogue);
    void loadDateGroups(const ModelCatalogue& catalogue);
    void loadValues(const ModelCatalogue& catalogue);
    void sortFiltered();
};
