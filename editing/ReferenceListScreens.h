#pragma once

#include "editing/ReferenceListTableViewController.h"

// The three reference lists.

class GenreReferenceListTableViewController : public ReferenceListTableViewController
{
    Q_OBJECT

public:
    GenreReferenceListTableViewController()
        : ReferenceListTableViewController(genreKind())
    {
    }

    Q_INVOKABLE void unwindToGenreTableViewWithSegue(const UIStoryboardSegue& /*segue*/) { loadList(); }

    ReferenceRecords& ListOfGenre = listOfValues;
};

class ProviderReferenceListTableViewController : public ReferenceListTableViewController
{
    Q_OBJECT

public:
    ProviderReferenceListTableViewController()
        : ReferenceListTableViewController(providerKind())
    {
    }

    Q_INVOKABLE void unwindToProviderTableViewWithSegue(const UIStoryboardSegue& /*segue*/) { loadList(); }

    ReferenceRecords& ListOfProviders = listOfValues;
};

class RatingReferenceListTableViewController : public ReferenceListTableViewController
{
    Q_OBJECT

public:
    RatingReferenceListTableViewController()
        : ReferenceListTableViewController(ratingKind())
    {
    }

    Q_INVOKABLE void unwindToRatingTableViewWithSegue(const UIStoryboardSegue& /*segue*/) { loadList(); }

    ReferenceRecords& ListOfRating = listOfValues;
};
