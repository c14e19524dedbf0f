#pragma once

#include "editing/ReferenceAddViewController.h"

// The entry of a new value, for each of the three reference lists.

class AddGenreViewController : public ReferenceAddViewController
{
    Q_OBJECT
    Q_PROPERTY(UITextField* GenreTextField MEMBER valueField CONSTANT FINAL)

public:
    AddGenreViewController()
        : ReferenceAddViewController(genreKind())
    {
    }

    UITextField* const& GenreTextField = valueField;
    QStringList& ListOfGenre = listOfValues;
};

class AddProviderViewController : public ReferenceAddViewController
{
    Q_OBJECT
    Q_PROPERTY(UITextField* ProviderTextField MEMBER valueField CONSTANT FINAL)

public:
    AddProviderViewController()
        : ReferenceAddViewController(providerKind())
    {
    }

    UITextField* const& ProviderTextField = valueField;
    QStringList& ListOfProviders = listOfValues;
};

class AddRatingViewController : public ReferenceAddViewController
{
    Q_OBJECT
    Q_PROPERTY(UITextField* RatingTextField MEMBER valueField CONSTANT FINAL)

public:
    AddRatingViewController()
        : ReferenceAddViewController(ratingKind())
    {
    }

    UITextField* const& RatingTextField = valueField;
    QStringList& ListOfRating = listOfValues;
};
