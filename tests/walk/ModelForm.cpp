#include "tests/walk/ModelForm.h"

#include <QLocale>

FormTexts openingForm(const ModelEditor& editor)
{
    const ModelFilm& film = editor.film;
    FormTexts form{{"Movie Name", film.name.value_or("")},     {"Genre", film.genre.value_or("")},
                   {"Rating", film.rating.value_or("")},       {"Provider", film.provider.value_or("")},
                   {"Actors", film.actors.value_or("")},       {"Directors", film.directors.value_or("")},
                   {"Producers", film.producers.value_or("")}, {"Notes", film.notes.value_or("")}};
    if (!editor.changesStoredMovie)
        return form;
    form["Year Released"] = QString::number(film.year);
    form["Run Time"] = QString::number(film.runTime);
    const QDateTime watched = film.watched ? film.watched->toLocalTime() : QDateTime::currentDateTime();
    form["Date Watched"] =
        QLocale(QLocale::English, QLocale::UnitedStates).toString(watched.date(), "dddd, MMMM d, yyyy");
    return form;
}
