#pragma once

#include "model/AppDelegate.h"
#include "model/Movies.h"
#include "platform/toolkit/UIBarButtonItem.h"
#include "platform/toolkit/UISearchController.h"
#include "platform/toolkit/UITableViewController.h"

// Every watched movie, sorted and searched by one of four keys. A tap fills CurrentMovie; the layout's segue
// follows.
class MainListTableViewController : public UITableViewController
{
    Q_OBJECT
    QML_ELEMENT
    QML_UNCREATABLE("Screens are made by the storyboard")
    Q_PROPERTY(UIBarButtonItem* SortButton MEMBER SortButton CONSTANT FINAL)
    Q_PROPERTY(UIBarButtonItem* ShareButton MEMBER ShareButton CONSTANT FINAL)
    Q_PROPERTY(UISearchController* searchController MEMBER searchController CONSTANT FINAL)

public:
    using MovieRecords = std::vector<std::shared_ptr<Movies>>;

    using UITableViewController::UITableViewController;

    void viewDidLoad() override;
    void viewWillAppear(bool animated) override;

    // Reverses the order, keeping the key.
    Q_INVOKABLE void SortMoviesTapped();
    Q_INVOKABLE void fallbackMenuTapped();
    Q_INVOKABLE void shareButtonClicked();
    Q_INVOKABLE void unwindToListWithSegue(const UIStoryboardSegue& segue);
    void updateSearchResultsForSearchController(UISearchController& controller);

    [[nodiscard]] int numberOfRowsInSection(int section) override;
    [[nodiscard]] QVariant cellForRowAt(const NSIndexPath& indexPath) override;
    [[nodiscard]] double heightForRowAt(const NSIndexPath& indexPath) override;
    [[nodiscard]] std::optional<LabelContent> viewForHeaderInSection(int section) override;
    [[nodiscard]] bool canEditRowAt(const NSIndexPath& indexPath) override;
    [[nodiscard]] std::vector<UIAction>
    trailingSwipeActionsConfigurationForRowAt(const NSIndexPath& indexPath) override;
    void didSelectRowAt(const NSIndexPath& indexPath) override;
    // Takes the row out of the table alone; deleting is the swipe action's work.
    void commitEditingStyle(UITableView::EditingStyle style, const NSIndexPath& indexPath);

    UIBarButtonItem* const SortButton = new UIBarButtonItem(this);
    UIBarButtonItem* const ShareButton = new UIBarButtonItem(this);
    UISearchController* const searchController = new UISearchController(this);

    MovieRecords MovieList;
    MovieRecords FilteredMovieList;
    // Absent until the screen is loaded; every sort run and every appearance inverts it.
    std::optional<bool> SortAsc;
    // "MovieName", "Genre", "Year" or "Rating".
    std::optional<QString> SortName;
    bool DarkMode = false;

private:
    [[nodiscard]] bool isSearching() const;
    [[nodiscard]] MovieRecords& shownList();
    // Inverts the direction, then fetches.
    void sortMovies();
    void setBarButtons();
    [[nodiscard]] std::unique_ptr<UIMenu> sortMenu();
    void deleteMovie(const NSIndexPath& indexPath);

    NSManagedObjectContext& context = AppDelegate::shared().persistentContainer().viewContext();
};
