#pragma once

#include "editing/MovieEditorViewController.h"
#include "feedback/ReviewService.h"
#include "model/SharedValues.h"
#include "platform/toolkit/UIBarButtonItem.h"

// The update of the movie in CurrentMovie, which is also found again by the title and year that it has there.
// A field left empty keeps what is stored, but for the rating. Removing the cover reaches the store at once;
// everything else waits for a save.
class EditMovieViewController : public MovieEditorViewController
{
    Q_OBJECT
    QML_ELEMENT
    QML_UNCREATABLE("Screens are made by the storyboard")
    Q_PROPERTY(UITextField* ProviderTextField MEMBER providerField CONSTANT FINAL)
    Q_PROPERTY(UIImageView* FrontImage MEMBER coverView CONSTANT FINAL)
    Q_PROPERTY(UIBarButtonItem* ZoomButton MEMBER ZoomButton CONSTANT FINAL)
    Q_PROPERTY(UIBarButtonItem* ShareButton MEMBER ShareButton CONSTANT FINAL)

public:
    // Asks for a review five seconds later, unless the screen is gone by then.
    void viewDidLoad() override;
    // Its movie and its way back are those of its opening, whatever another tab has opened since.
    void viewWillAppear(bool animated) override;

    // Shows the stored cover large.
    Q_INVOKABLE void TapFrontImage();
    Q_INVOKABLE void shareButtonClicked();
    // Asks first.
    void RemoveFrontImage() override;

    UITextField* const& ProviderTextField = providerField;
    UIImageView* const& FrontImage = coverView;
    UIBarButtonItem* const ZoomButton = new UIBarButtonItem(this);
    UIBarButtonItem* const ShareButton = new UIBarButtonItem(this);

    // What the last save found under the title and year.
    std::vector<std::shared_ptr<Movies>> Results;
    int ResultsCount = 0;
    ReviewService reviewService;

protected:
    [[nodiscard]] QString missingFieldsMessage() const override;
    // The first of those found; null: none was.
    [[nodiscard]] std::shared_ptr<Movies> recordToSave() override;
    // The day, month and year are those of the chosen date.
    void writeDateWatched(Movies& movie) override;
    // Stays when the screen was opened from a place without a way back.
    void leave() override;

private:
    struct Opening
    {
        MovieFields movie;
        QString returnScreen;
    };

    void showCurrentMovie();
    void showDateWatched();
    void showCover();
    void labelBarButtons();
    [[nodiscard]] std::vector<std::shared_ptr<Movies>> selectedRecords();
    void removeStoredCover();

    Opening opening;
};
