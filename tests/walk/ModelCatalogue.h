#pragma once

#include <QDateTime>
#include <QStringList>
#include <array>
#include <memory>
#include <optional>
#include <vector>

// A movie as the model of a walk holds it: plain data, written without the program's code.
struct ModelFilm
{
    // 0 until the store was read after the film was added.
    qint64 id = 0;
    std::optional<QString> name;
    std::optional<QString> genre;
    std::optional<QString> rating;
    std::optional<QString> provider;
    std::optional<QString> actors;
    std::optional<QString> directors;
    std::optional<QString> producers;
    std::optional<QString> notes;
    int year = 0;
    int runTime = 0;
    std::optional<QDateTime> watched;
    QDate watchedParts; // what wYear, wMonth and wDay say; null: all are 0
    bool hasCover = false;

    // One line for messages; equal films, ids apart, have equal lines.
    [[nodiscard]] QString description() const;
};

struct ModelValue
{
    qint64 id = 0;
    QString text;
};

using FilmPointer = std::shared_ptr<ModelFilm>;
using ValuePointer = std::shared_ptr<ModelValue>;

// Which of the three reference lists.
enum class ValueList { Genres, Providers, Ratings };

// Everything in the order of its ids.
struct ModelCatalogue
{
    std::vector<FilmPointer> films;
    std::array<std::vector<ValuePointer>, 3> values;

    [[nodiscard]] std::vector<ValuePointer>& of(ValueList list)
    {
        return values[static_cast<std::size_t>(list)];
    }
    // The first film of that title and year, as an editor finds it; null: none.
    [[nodiscard]] FilmPointer find(const QString& name, int year) const;
};

// Reads the store file of this process's home, on a connection of its own.
[[nodiscard]] ModelCatalogue storedCatalogue();

// Empty where the store holds just what is expected; otherwise what differs. Gives expected records the ids
// of the stored ones.
[[nodiscard]] QStringList differences(ModelCatalogue& expected, const ModelCatalogue& stored);
