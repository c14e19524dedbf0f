#include "browse/MainListTableViewController.h"

#include "browse/MovieListRow.h"
#include "browse/MovieSearch.h"
#include "browse/MovieSharing.h"
#include "model/SharedValues.h"
#include "platform/foundation/Console.h"
#include "platform/services/Device.h"
#include "platform/services/SystemVersions.h"
#include "platform/services/TextSharing.h"
#include "platform/services/UITraitCollection.h"

namespace {

constexpr double rowHeightInPoints = 60;

struct SortOption
{
    QString actionTitle;
    QString sortName;
    // The attribute sorted by before the movie's name.
    QString leadingKey;
    QString placeholder;
};

const std::vector<SortOption>& sortOptions()
{
    static const std::vector<SortOption> options{
        {QStringLiteral("By Movie Name"), QStringLiteral("MovieName"), QString(),
         QStringLiteral("Search by Movie Name")},
        {QStringLiteral("By Genre"), QStringLiteral("Genre"), QStringLiteral("genre"),
         QStringLiteral("Search by Genre")},
        {QStringLiteral("By Year"), QStringLiteral("Year"), QStringLiteral("yearReleased"),
         QStringLiteral("Search by Year")},
        {QStringLiteral("By Rating"), QStringLiteral("Rating"), QStringLiteral("rating"),
         QStringLiteral("Search by Rating")},
    };
    return options;
}

std::vector<NSSortDescriptor> sortDescriptors(const std::optional<QString>& sortName, bool ascending)
{
    std::vector<NSSortDescriptor> descriptors;
    for (const SortOption& option : sortOptions()) {
        if (option.sortName != sortName)
            continue;
        if (!option.leadingKey.isEmpty())
            descriptors.push_back({option.leadingKey, ascending});
        descriptors.push_back({QStringLiteral("movieName"), ascending});
    }
    return descriptors;
}

bool inverted(const std::optional<bool>& direction)
{
    if (!direction)
        fatalError(QStringLiteral("SortAsc is absent before the movie list is loaded"));
    return !*direction;
}

} // namespace

void MainListTableViewController::viewDidLoad()
{
    SortAsc = true;
    SortName = QStringLiteral("MovieName");
    searchController->setSearchResultsUpdater(
        [this](UISearchController& controller) { updateSearchResultsForSearchController(controller); });
    searchController->setHidesNavigationBarDuringPresentation(false);
    searchController->setObscuresBackgroundDuringPresentation(false);
    searchController->searchBar()->setPlaceholder(sortOptions().front().placeholder);
    sortMovies();
    shared().ReturnScreen = QStringLiteral("MainList");
    DarkMode = currentUserInterfaceStyle() == UIUserInterfaceStyle::Dark;
    setBarButtons();
}

void MainListTableViewController::viewWillAppear(bool /*animated*/)
{
    shared().ReturnScreen = QStringLiteral("MainList");
    SortAsc = inverted(SortAsc);
}

void MainListTableViewController::setBarButtons()
{
    const double version = Device::current().systemVersion;
    SortButton->setTitle(QStringLiteral("Sort"));
    ShareButton->setTitle(QStringLiteral("Share"));
    if (version >= SystemVersions::symbolImages) {
        SortButton->setImage(QStringLiteral("arrow.up.arrow.down"));
        ShareButton->setImage(QStringLiteral("square.and.arrow.up"));
    }
    auto menuButton = std::make_unique<UIBarButtonItem>(
        UIAction{.title = QStringLiteral("Menu"), .handler = [this] { fallbackMenuTapped(); }});
    if (version >= SystemVersions::menus) {
        menuButton->setImage(QStringLiteral("ellipsis.circle"));
        menuButton->setMenu(sortMenu());
    }
    setRightBarButtonItem(std::move(menuButton));
}

std::unique_ptr<UIMenu> MainListTableViewController::sortMenu()
{
    std::vector<UIAction> actions;
    for (const SortOption& option : sortOptions()) {
        const auto number = actions.size() + 1;
        actions.push_back({.title = option.actionTitle, .handler = [this, number, &option] {
                               console(QStringLiteral("Option %1 selected").arg(number));
                               SortName = option.sortName;
                               searchController->searchBar()->setPlaceholder(option.placeholder);
                               sortMovies();
                           }});
    }
    return std::make_unique<UIMenu>(QStringLiteral("Sort By"), std::move(actions));
}

void MainListTableViewController::SortMoviesTapped()
{
    sortMovies();
}

void MainListTableViewController::fallbackMenuTapped()
{
    sortMovies();
}

void MainListTableViewController::unwindToListWithSegue(const UIStoryboardSegue& /*segue*/) {}

void MainListTableViewController::sortMovies()
{
    SortAsc = inverted(SortAsc);
    NSFetchRequest request = Movies::fetchRequest();
    request.setReturnsObjectsAsFaults(false);
    request.sortDescriptors = sortDescriptors(SortName, *SortAsc);
    // The lists are emptied only now: records held while fetching need not be read again.
    auto fetched = context.fetch<Movies>(request);
    MovieList = fetched ? std::move(fetched).value() : MovieRecords();
    FilteredMovieList = MovieList;
    tableView()->reloadData();
}

void MainListTableViewController::updateSearchResultsForSearchController(UISearchController& controller)
{
    const QString text = controller.searchBar()->text();
    if (text.isEmpty())
        FilteredMovieList = MovieList;
    else if (auto matching = moviesMatching(text, SortName.value_or(QString()), MovieList))
        FilteredMovieList = std::move(*matching);
    tableView()->reloadData();
}

bool MainListTableViewController::isSearching() const
{
    return !searchController->searchBar()->text().isEmpty();
}

MainListTableViewController::MovieRecords& MainListTableViewController::shownList()
{
    return isSearching() ? FilteredMovieList : MovieList;
}

int MainListTableViewController::numberOfRowsInSection(int /*section*/)
{
    return static_cast<int>(shownList().size());
}

QVariant MainListTableViewController::cellForRowAt(const NSIndexPath& indexPath)
{
    const Movies& movie = *shownList()[static_cast<std::size_t>(indexPath.row)];
    return QVariant::fromValue(movieListRow(movie, SortName.value_or(QString()), DarkMode));
}

double MainListTableViewController::heightForRowAt(const NSIndexPath& /*indexPath*/)
{
    return rowHeightInPoints;
}

std::optional<LabelContent> MainListTableViewController::viewForHeaderInSection(int /*section*/)
{
    QString text = QStringLiteral("# Movies = ");
    if (isSearching())
        text += QString::number(FilteredMovieList.size()) + QStringLiteral(" of ");
    return countHeader(text + QString::number(MovieList.size()));
}

bool MainListTableViewController::canEditRowAt(const NSIndexPath& /*indexPath*/)
{
    return true;
}

std::vector<UIAction>
MainListTableViewController::trailingSwipeActionsConfigurationForRowAt(const NSIndexPath& indexPath)
{
    return {{.title = QStringLiteral("delete"),
             .handler = [this, indexPath] { deleteMovie(indexPath); },
             .style = UIAction::Style::Destructive}};
}

void MainListTableViewController::deleteMovie(const NSIndexPath& indexPath)
{
    MovieRecords& list = shownList();
    const auto position = list.begin() + indexPath.row;
    context.deleteObject(*position);
    AppDelegate::shared().saveContext();
    list.erase(position);
    tableView()->deleteRowAt(indexPath);
}

void MainListTableViewController::commitEditingStyle(UITableView::EditingStyle style,
                                                     const NSIndexPath& indexPath)
{
    if (style == UITableView::EditingStyle::Delete)
        tableView()->deleteRowAt(indexPath);
}

void MainListTableViewController::didSelectRowAt(const NSIndexPath& indexPath)
{
    shared().CurrentMovie = fieldsOf(*shownList()[static_cast<std::size_t>(indexPath.row)]);
}

void MainListTableViewController::shareButtonClicked()
{
    shareWhereTextsCanBeSent(*this, [this] { return std::vector<ActivityItem>{sharedText(shownList())}; });
}
