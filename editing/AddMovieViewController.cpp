#include "editing/AddMovieViewController.h"

#include "model/SharedValues.h"
#include "platform/foundation/Calendar.h"
#include "platform/foundation/Console.h"

void AddMovieViewController::viewDidLoad()
{
    setTitle(QStringLiteral("Add Movie"));
    MovieEditorViewController::viewDidLoad();
}

void AddMovieViewController::RemoveFrontImage()
{
    coverView->setImage({});
}

QString AddMovieViewController::missingFieldsMessage() const
{
    return QStringLiteral(
        "Required Fields Labeled in RED Not Entered or Date Released is not 4 numbers (yyyy)");
}

std::shared_ptr<Movies> AddMovieViewController::recordToSave()
{
    managedObjectContext = &AppDelegate::shared().persistentContainer().viewContext();
    return managedObjectContext->insert<Movies>();
}

void AddMovieViewController::writeDateWatched(Movies& movie)
{
    const std::optional<QDateTime> held = movie.dateWatched();
    if (!held)
        fatalError(QStringLiteral("A new movie has no default date watched"));
    const DateComponents day = Calendar::current().components(*held);
    movie.setDateWatched(DateWatched);
    movie.setWDay(static_cast<qint16>(day.day));
    movie.setWMonth(static_cast<qint16>(day.month));
    movie.setWYear(static_cast<qint16>(day.year));
}

void AddMovieViewController::leave()
{
    const QString& origin = shared().ReturnScreen;
    if (origin == QStringLiteral("MainList"))
        performSegue(QStringLiteral("unwindToList"));
    else if (origin == QStringLiteral("MainMenu"))
        performSegue(QStringLiteral("unwindToMenu"));
}
