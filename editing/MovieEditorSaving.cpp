// What a movie editor stores, and in which order.

#include "editing/CoverImage.h"
#include "editing/MovieEditorViewController.h"
#include "platform/foundation/Console.h"

void MovieEditorViewController::SaveButtonClicked()
{
    if (lacksRequiredField()) {
        showAlert(QStringLiteral("Movie Not Saved"), missingFieldsMessage());
        return;
    }
    const std::shared_ptr<Movies> movie = recordToSave();
    if (!movie)
        return;
    writeFields(movieFields(), *movie);
    writeCover(*movie);
    if (const Status saved = context.save(); !saved)
        console(saved.error().localizedDescription);
    leave();
}

bool MovieEditorViewController::lacksRequiredField() const
{
    return MovieNameTextField->text().isEmpty() || YearReleasedTextField->text().isEmpty() ||
           GenreTextField->text().isEmpty();
}

std::vector<MovieField> MovieEditorViewController::movieFields()
{
    MovieField rating = trimmedField(RatingTextField, &Movies::setRating);
    rating.whenEmpty = MovieField::Empty::Written;
    const MovieField watched{DateWatchedTextField,
                             [this](Movies& movie, const QString& /*text*/) { writeDateWatched(movie); }};
    return {
        trimmedField(MovieNameTextField, &Movies::setMovieName),
        untrimmedField(providerField, &Movies::setProvider),
        numberField(YearReleasedTextField, &Movies::setYearReleased),
        trimmedField(ActorsTextView, &Movies::setActors),
        trimmedField(DirectorsTextView, &Movies::setDirectors),
        trimmedField(ProducersTextView, &Movies::setProducers),
        rating,
        watched,
        numberField(RunTimeTextField, &Movies::setRunTime),
        trimmedField(GenreTextField, &Movies::setGenre),
        trimmedField(NotesTextView, &Movies::setNotes),
    };
}

void MovieEditorViewController::writeCover(Movies& movie)
{
    if (coverView->image().isNull())
        return;
    const QByteArray cover = storedCover(coverView->image());
    if (!cover.isEmpty())
        movie.setFrontCover(cover);
}
