#include "summaries/BreakdownTableViewController.h"

#include "model/SharedValues.h"
#include "platform/foundation/Console.h"
#include "platform/foundation/LowerCaseSearch.h"
#include "platform/services/Device.h"
#include "platform/services/SystemVersions.h"
#include "platform/services/UITraitCollection.h"
#include "summaries/PeopleText.h"

#include <QStandardPaths>

namespace {

constexpr double breakdownRowHeight = 70;

MovieRowTexts rowTexts(const Movies& movie, const BreakdownKind& kind)
{
    return {.first = kind.firstLine(movie),
            .second = QStringLiteral(" ") + movie.movieName().value_or(QString()) + kind.afterName(movie) +
                      QStringLiteral("  Run Time: ") + QString::number(movie.runTime()) +
                      QStringLiteral(" min."),
            .third = QStringLiteral("Actors: ") + peopleOnOneLine(movie.actors().value_or(QString()))};
}

qint16 orMinusOne(qint16 number)
{
    return number < 0 ? static_cast<qint16>(-1) : number;
}

QUrl reportFile(const ReportKind& report)
{
    return QUrl::fromLocalFile(QStandardPaths::writableLocation(QStandardPaths::DocumentsLocation) +
                               QLatin1Char('/') + report.fileName);
}

} // namespace

BreakdownTableViewController::BreakdownTableViewController(const BreakdownKind& breakdownKind)
    : outputFileURL(reportFile(breakdownKind.report))
    , kind(breakdownKind)
{
}

void BreakdownTableViewController::viewDidLoad()
{
    SortAsc = true;
    shared().GlobalSortAsc = true;
    load();
    PrintButton->setTitle(QStringLiteral("Print"));
    SortButton->setTitle(QStringLiteral("Sort"));
    if (Device::current().systemVersion >= SystemVersions::symbolImages) {
        PrintButton->setImage(QStringLiteral("printer"));
        SortButton->setImage(QStringLiteral("arrow.up.arrow.down"));
    }
    DarkMode = currentUserInterfaceStyle() == UIUserInterfaceStyle::Dark;
    searchController->setSearchResultsUpdater(
        [this](UISearchController& controller) { updateSearchResultsForSearchController(controller); });
    searchController->setHidesNavigationBarDuringPresentation(false);
    searchController->setObscuresBackgroundDuringPresentation(false);
    searchController->searchBar()->setPlaceholder(QStringLiteral("Sort and Search By Movie Name"));
}

void BreakdownTableViewController::load()
{
    setTitle(kind.nameOfChosenGroup());
    NSFetchRequest request = Movies::fetchRequest();
    request.setReturnsObjectsAsFaults(false);
    request.predicate = kind.membersOfChosenGroup();
    request.sortDescriptors = {{QStringLiteral("movieName"), SortAsc.value_or(true)}};
    auto fetched = context.fetch<Movies>(request);
    if (!fetched)
        console(fetched.error().localizedDescription);
    MovieList = fetched ? std::move(fetched).value() : MovieRecords();
    MovieCount = static_cast<int>(MovieList.size());
    tableView()->reloadData();
}

void BreakdownTableViewController::prepareForSegue(const UIStoryboardSegue& /*segue*/)
{
    shared().ReturnScreen = kind.returnScreen;
}

void BreakdownTableViewController::SortButtonTapped()
{
    if (!SortAsc)
        fatalError(QStringLiteral("SortAsc is absent before a breakdown is loaded"));
    SortAsc = !*SortAsc;
    shared().GlobalSortAsc = *SortAsc;
    load();
}

void BreakdownTableViewController::updateSearchResultsForSearchController(UISearchController& controller)
{
    const QString text = controller.searchBar()->text();
    if (text.isEmpty()) {
        FilteredMovieList = MovieList;
    } else {
        const LowerCaseSearch search(text);
        FilteredMovieList.clear();
        std::copy_if(MovieList.begin(), MovieList.end(), std::back_inserter(FilteredMovieList),
                     [&](const auto& movie) { return movie->textMatches(Movies::MovieName, search); });
    }
    tableView()->reloadData();
}

bool BreakdownTableViewController::isSearching() const
{
    return !searchController->searchBar()->text().isEmpty();
}

const BreakdownTableViewController::MovieRecords& BreakdownTableViewController::shownMovies() const
{
    return isSearching() ? FilteredMovieList : MovieList;
}

int BreakdownTableViewController::numberOfRowsInSection(int /*section*/)
{
    return static_cast<int>(shownMovies().size());
}

QVariant BreakdownTableViewController::cellForRowAt(const NSIndexPath& indexPath)
{
    const Movies& movie = *shownMovies()[static_cast<std::size_t>(indexPath.row)];
    return QVariant::fromValue(
        movieTableViewCell(rowTexts(movie, kind), movie, DarkMode && kind.turnsTextBlack));
}

double BreakdownTableViewController::heightForRowAt(const NSIndexPath& /*indexPath*/)
{
    return breakdownRowHeight;
}

std::optional<LabelContent> BreakdownTableViewController::viewForHeaderInSection(int /*section*/)
{
    return countHeader(QStringLiteral("# Movies = ") + QString::number(shownMovies().size()));
}

void BreakdownTableViewController::didSelectRowAt(const NSIndexPath& indexPath)
{
    MovieFields fields = fieldsOf(*shownMovies()[static_cast<std::size_t>(indexPath.row)]);
    fields.yearReleased = orMinusOne(fields.yearReleased);
    fields.runTime = orMinusOne(fields.runTime);
    fields.notes.clear();
    shared().CurrentMovie = std::move(fields);
}
