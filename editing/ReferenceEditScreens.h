#pragma once

#include "editing/ReferenceEditViewController.h"

// The renaming of a value, for each of the three reference lists.

class EditGenreViewController : public ReferenceEditViewController
{
    Q_OBJECT
    Q_PROPERTY(UITextField* GenreTextField MEMBER valueField CONSTANT FINAL)

public:
    EditGenreViewController()
        : ReferenceEditViewController(genreKind())
    {
    }

    Q_INVOKABLE void SaveGenre() { saveValue(); }

    UITextField* const& GenreTextField = valueField;
};

class EditProviderViewController : public ReferenceEditViewController
{
    Q_OBJECT
    Q_PROPERTY(UITextField* ProviderTextField MEMBER valueField CONSTANT FINAL)

public:
    EditProviderViewController()
        : ReferenceEditViewController(providerKind())
    {
    }

    Q_INVOKABLE void SaveRating() { saveValue(); }

    UITextField* const& ProviderTextField = valueField;
};

class EditRatingViewController : public ReferenceEditViewController
{
    Q_OBJECT
    Q_PROPERTY(UITextField* RatingTextField MEMBER valueField CONSTANT FINAL)

public:
    EditRatingViewController()
        : ReferenceEditViewController(ratingKind())
    {
    }

    Q_INVOKABLE void SaveRating() { saveValue(); }

    UITextField* const& RatingTextField = valueField;
};
