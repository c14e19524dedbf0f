#pragma once

#include "editing/MovieEditorViewController.h"

// The entry of a new movie. Nothing is stored until the user saves; then it returns to the screen that opened
// it. The same movie may be entered any number of times.
class AddMovieViewController : public MovieEditorViewController
{
    Q_OBJECT
    QML_ELEMENT
    QML_UNCREATABLE("Screens are made by the storyboard")
    Q_PROPERTY(UITextField* WatchedOnTextField MEMBER providerField CONSTANT FINAL)
    Q_PROPERTY(UIImageView* FrontImageView MEMBER coverView CONSTANT FINAL)

public:
    void viewDidLoad() override;
    void RemoveFrontImage() override;

    UITextField* const& WatchedOnTextField = providerField;
    UIImageView* const& FrontImageView = coverView;
    // Null until the first save.
    NSManagedObjectContext* managedObjectContext = nullptr;

protected:
    [[nodiscard]] QString missingFieldsMessage() const override;
    [[nodiscard]] std::shared_ptr<Movies> recordToSave() override;
    // The year, month and day become those of the date that the record held before: for a new record the
    // default one. A record without a date ends the program.
    void writeDateWatched(Movies& movie) override;
    void leave() override;
};
