#pragma once

#include "summaries/BreakdownTableViewController.h"

// The five lists of one group. The update screen comes back to each by an action of its own name.

class GenreBreakdownTableViewController : public BreakdownTableViewController
{
    Q_OBJECT
    Q_PROPERTY(UIBarButtonItem* ShareButton MEMBER ShareButton CONSTANT FINAL)

public:
    GenreBreakdownTableViewController()
        : BreakdownTableViewController(genreBreakdown())
    {
    }

    [[nodiscard]] UIBarButtonItem* shareOutlet() const override { return ShareButton; }
    Q_INVOKABLE void unwindToGenreBreakdownTableViewWithSegue(const UIStoryboardSegue& /*segue*/) { load(); }

    UIBarButtonItem* const ShareButton = new UIBarButtonItem(this);
};

class DateReleasedBreakdownTableViewController : public BreakdownTableViewController
{
    Q_OBJECT

public:
    DateReleasedBreakdownTableViewController()
        : BreakdownTableViewController(dateReleasedBreakdown())
    {
    }

    Q_INVOKABLE void unwindToDateReleasedBreakdownTableViewWithSegue(const UIStoryboardSegue& /*segue*/)
    {
        load();
    }
};

class DateWatchedBreakdownTableViewController : public BreakdownTableViewController
{
    Q_OBJECT

public:
    DateWatchedBreakdownTableViewController()
        : BreakdownTableViewController(dateWatchedBreakdown())
    {
    }

    Q_INVOKABLE void unwindToDateWatchedBreakdownTableViewWithSegue(const UIStoryboardSegue& /*segue*/)
    {
        load();
    }
};

class RatingBreakdownTableViewController : public BreakdownTableViewController
{
    Q_OBJECT

public:
    RatingBreakdownTableViewController()
        : BreakdownTableViewController(ratingBreakdown())
    {
    }

    Q_INVOKABLE void unwindToRatingBreakdownTableViewWithSegue(const UIStoryboardSegue& /*segue*/) { load(); }
};

class ProviderBreakdownTableViewController : public BreakdownTableViewController
{
    Q_OBJECT

public:
    ProviderBreakdownTableViewController()
        : BreakdownTableViewController(providerBreakdown())
    {
    }

    Q_INVOKABLE void unwindToProviderBreakdownTableViewWithSegue(const UIStoryboardSegue& /*segue*/)
    {
        load();
    }
};
