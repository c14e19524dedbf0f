#pragma once

#include "model/AppDelegate.h"
#include "model/MovieTableViewCell.h"
#include "platform/toolkit/NSAttributedString.h"
#include "platform/toolkit/UIActivityIndicatorView.h"
#include "platform/toolkit/UIBarButtonItem.h"
#include "platform/toolkit/UISearchController.h"
#include "platform/toolkit/UITableViewController.h"
#include "summaries/BreakdownKind.h"

#include <QUrl>

using GenreBreakdownTableViewCell = MovieTableViewCell;
using DateReleasedBreakdownTableViewCell = MovieTableViewCell;
using DateWatchedBreakdownTableViewCell = MovieTableViewCell;
using RatingBreakdownTableViewCell = MovieTableViewCell;
using ProviderBreakdownTableViewCell = MovieTableViewCell;

// The movies of the group last chosen on a summary, by name. A tap fills CurrentMovie; the layout's segue to
// the update screen follows, which comes back here.
class BreakdownTableViewController : public UITableViewController
{
    Q_OBJECT
    QML_ELEMENT
    QML_UNCREATABLE("Screens are made by the storyboard")
    Q_PROPERTY(UIBarButtonItem* SortButton MEMBER SortButton CONSTANT FINAL)
    Q_PROPERTY(UIBarButtonItem* PrintButton MEMBER PrintButton CONSTANT FINAL)
    Q_PROPERTY(UIBarButtonItem* shareOutlet READ shareOutlet CONSTANT FINAL)
    Q_PROPERTY(UISearchController* searchController MEMBER searchController CONSTANT FINAL)
    Q_PROPERTY(UIActivityIndicatorView* activityIndicator MEMBER activityIndicator CONSTANT FINAL)

public:
    using MovieRecords = std::vector<std::shared_ptr<Movies>>;

    void viewDidLoad() override;
    // The button that shares, where it is an outlet; null: the layout has one of its own.
    [[nodiscard]] virtual UIBarButtonItem* shareOutlet() const { return nullptr; }
    // Tells the next screen where it was opened from.
    void prepareForSegue(const UIStoryboardSegue& segue) override;

    // Turns the order; what a search found keeps its own until the search text changes.
    Q_INVOKABLE void SortButtonTapped();
    // Makes the report of the movies shown and offers its file. That takes a while for many: the indicator
    // turns, and another tap does nothing until the sheet is there. With no movies the program ends.
    Q_INVOKABLE void shareButtonClicked();
    void updateSearchResultsForSearchController(UISearchController& controller);

    [[nodiscard]] int numberOfRowsInSection(int section) override;
    [[nodiscard]] QVariant cellForRowAt(const NSIndexPath& indexPath) override;
    [[nodiscard]] double heightForRowAt(const NSIndexPath& indexPath) override;
    [[nodiscard]] std::optional<LabelContent> viewForHeaderInSection(int section) override;
    void didSelectRowAt(const NSIndexPath& indexPath) override;

    UIBarButtonItem* const SortButton = new UIBarButtonItem(this);
    UIBarButtonItem* const PrintButton = new UIBarButtonItem(this);
    UISearchController* const searchController = new UISearchController(this);

    UIActivityIndicatorView* const activityIndicator = new UIActivityIndicatorView(this);

    MovieRecords MovieList;
    MovieRecords FilteredMovieList;
    // The number of movies of the last load.
    int MovieCount = 0;
    // Absent until the screen is loaded.
    std::optional<bool> SortAsc;
    bool DarkMode = false;
    // The text of the last report.
    NSAttributedString MovieString;
    // Where reports are written.
    QUrl outputFileURL;

protected:
    // `breakdownKind` must live as long as the screen.
    explicit BreakdownTableViewController(const BreakdownKind& breakdownKind);

    // Reads the group anew, the one chosen now.
    void load();
    // The movies of the rows on show.
    [[nodiscard]] const MovieRecords& shownMovies() const;

private:
    [[nodiscard]] bool isSearching() const;
    void writeReport(const QString& title);
    void presentReport(const QString& outcome);

    const BreakdownKind& kind;
    NSManagedObjectContext& context = AppDelegate::shared().persistentContainer().viewContext();
};
