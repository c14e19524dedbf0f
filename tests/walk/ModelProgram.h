#pragma once

#include "tests/walk/ModelScene.h"

#include <QHash>
#include <map>

// The texts of an editor's fields, by their labels.
using FormTexts = QHash<QString, QString>;

// An open movie editor.
struct ModelEditor
{
    bool changesStoredMovie = false;
    // As it was when the editor opened.
    ModelFilm film;
    bool showsCover = false;
    // The days that its date has had so far: the pickers' ways to one of them are their own business.
    QSet<QDate> days;
};

// An open print screen.
struct ModelPrint
{
    std::vector<FilmPointer> films;
    std::optional<QString> title;
    // Everything created so far.
    QString text;
};

// The expected state of the program after each act of its user, as far as the catalogue and the lists go.
// Screens go by numbers that are never used again.
class ModelProgram
{
public:
    explicit ModelProgram(ModelCatalogue initial)
        : catalogue(std::move(initial))
    {
    }

    // `below`: the screen that it was opened from; 0: none.
    void open(int screen, const QString& screenClass, int below);
    // It is on top, the first time or again.
    void appear(int screen);
    void close(int screen);

    void tapSort(int screen);
    void chooseOrder(int screen, MovieKey key);
    void search(int screen, const QString& text);
    void tapRow(int screen, std::size_t row);
    void deleteRow(int screen, std::size_t row);

    enum class Outcome { Alert, Stays, Leaves };
    Outcome saveMovie(int screen, const FormTexts& form);
    void showDate(int screen, const QString& text);
    void showCover(int screen, bool shown);
    void removeStoredCover(int screen);
    Outcome addValue(ValueList list, const QString& text);
    void renameValue(ValueList list, const QString& text);
    void importText(QString text);

    // An editor has saved, or a value was added or renamed: the list below reloads where it does so.
    void comeBack(int screen);

    // Takes over what only the store knows: ids, and which of the possible days was stored.
    [[nodiscard]] QStringList compareWithStore();
    // Null where the screen is no such list.
    [[nodiscard]] ModelScene* list(int screen);
    [[nodiscard]] ModelEditor* editor(int screen);
    [[nodiscard]] ModelPrint* print(int screen);
    // The film last chosen from a list, as it was then.
    [[nodiscard]] const ModelFilm& chosenFilm() const { return chosen.film; }
    // "Create and Print".
    void createPrint(int screen);

    ModelCatalogue catalogue;

private:
    struct Chosen
    {
        ModelFilm film;
        int month = 0;
        int monthYear = 0;
        QString values[3];
    };
    // A stored day that may be any of `days`.
    struct OpenDay
    {
        FilmPointer film;
        QSet<QDate> days;
        bool setsParts;
    };

    void load(ModelScene& scene);
    [[nodiscard]] ModelPrint printOpenedFrom(const ModelScene* list) const;
    void keepTexts();
    void write(ModelFilm& film, const FormTexts& form, const ModelEditor& open);
    void importLine(const QStringList& fields);

    std::map<int, ModelScene> lists;
    std::map<int, ModelEditor> editors;
    std::map<int, ModelPrint> prints;
    // The direction last chosen on a summary or on one of its lists.
    bool lastAscending = true;
    Chosen chosen;
    std::vector<OpenDay> openDays;
};

// As an editor's year and run time must read.
[[nodiscard]] bool isInt16(const QString& text);
