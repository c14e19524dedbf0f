#pragma once

#include "model/AppDelegate.h"
#include "model/Movies.h"
#include "platform/toolkit/UIBarButtonItem.h"
#include "platform/toolkit/UISearchController.h"
#include "platform/toolkit/UITableViewController.h"
#include "summaries/GroupKind.h"

// The groups of the whole catalogue by one attribute, each with its number of movies. Groups come from the
// movies alone, and are read when the screen loads and when it is sorted without a search. A tap tells
// SharedValues the group; the layout's segue to its list follows.
class GroupTableViewController : public UITableViewController
{
    Q_OBJECT
    QML_ELEMENT
    QML_UNCREATABLE("Screens are made by the storyboard")
    Q_PROPERTY(UIBarButtonItem* SortButton MEMBER SortButton CONSTANT FINAL)
    Q_PROPERTY(UISearchController* searchController MEMBER searchController CONSTANT FINAL)

public:
    using MovieRecords = std::vector<std::shared_ptr<Movies>>;

    // Needs a tab bar with five tabs around it, or the program ends.
    void viewDidLoad() override;

    // Turns the order: of what is stored, or, while there is a search, of what it found.
    Q_INVOKABLE void SortButtonTapped();
    // Back to the home menu.
    Q_INVOKABLE void UnwindSegue();
    void updateSearchResultsForSearchController(UISearchController& controller);

    [[nodiscard]] int numberOfRowsInSection(int section) override;
    // Counts the group's movies in the store; more than 32,767 end the program.
    [[nodiscard]] QVariant cellForRowAt(const NSIndexPath& indexPath) override;
    [[nodiscard]] double heightForRowAt(const NSIndexPath& indexPath) override;
    [[nodiscard]] std::optional<LabelContent> viewForHeaderInSection(int section) override;

    UIBarButtonItem* const SortButton = new UIBarButtonItem(this);
    UISearchController* const searchController = new UISearchController(this);

    MovieRecords MovieList;
    // Absent until the screen is loaded.
    std::optional<bool> SortAsc;
    bool DarkMode = false;

protected:
    // `groupKind` must live as long as the screen.
    explicit GroupTableViewController(const GroupKind& groupKind);

    // Whether rows and header show the filtered list.
    [[nodiscard]] bool isSearching() const;
    // Every movie, in the order of the grouping attribute; none, and a console line, where that fails.
    [[nodiscard]] MovieRecords fetchedMovies();
    // Draws the symbol of that kind's tab, where the system has symbols.
    void setTabImage(const GroupKind& tabKind);

    // Makes the full list anew.
    virtual void groupMovies() = 0;
    // Makes the filtered list from the full one; `text` is not empty.
    virtual void filterRows(const QString& text) = 0;
    virtual void unfilterRows() = 0;
    virtual void sortFilteredRows() = 0;
    [[nodiscard]] virtual qsizetype shownRows() const = 0;
    // Of the list shown.
    [[nodiscard]] virtual QString labelOfRow(std::size_t row) const = 0;
    [[nodiscard]] virtual NSPredicate membersOfRow(std::size_t row) const = 0;
    [[nodiscard]] virtual bool tellsOfFailedFetch() const { return true; }

    const GroupKind& kind;

private:
    void load();
    [[nodiscard]] QString countText(const NSPredicate& members);

    NSManagedObjectContext& context = AppDelegate::shared().persistentContainer().viewContext();
};
