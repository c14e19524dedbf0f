#include "summaries/GroupTableViewController.h"

#include "model/SharedValues.h"
#include "platform/foundation/Console.h"
#include "platform/services/Device.h"
#include "platform/services/SystemVersions.h"
#include "platform/services/UITraitCollection.h"
#include "platform/toolkit/UITabBarController.h"
#include "summaries/GroupTableViewCell.h"

#include <limits>

namespace {

constexpr double groupRowHeight = 60;
constexpr int fewestTabs = 5;

bool hasSymbols()
{
    return Device::current().systemVersion >= SystemVersions::symbolImages;
}

} // namespace

GroupTableViewController::GroupTableViewController(const GroupKind& groupKind)
    : kind(groupKind)
{
}

void GroupTableViewController::viewDidLoad()
{
    setTitle(kind.title);
    searchController->setSearchResultsUpdater(
        [this](UISearchController& controller) { updateSearchResultsForSearchController(controller); });
    searchController->setHidesNavigationBarDuringPresentation(false);
    searchController->setObscuresBackgroundDuringPresentation(false);
    searchController->searchBar()->setPlaceholder(kind.placeholder);
    SortAsc = true;
    load();
    SortButton->setTitle(QStringLiteral("Sort"));
    if (hasSymbols())
        SortButton->setImage(QStringLiteral("arrow.up.arrow.down"));
    DarkMode = currentUserInterfaceStyle() == UIUserInterfaceStyle::Dark;
    setTabImage(kind);
}

void GroupTableViewController::setTabImage(const GroupKind& tabKind)
{
    if (!hasSymbols())
        return;
    UITabBarController* tabs = tabBarController();
    if (tabs == nullptr || tabs->tabCount() < fewestTabs)
        fatalError(QStringLiteral("A group summary stands in no bar of five tabs"));
    tabs->item(tabKind.tab)->setImage(tabKind.tabImage);
}

void GroupTableViewController::load()
{
    groupMovies();
    tableView()->reloadData();
}

GroupTableViewController::MovieRecords GroupTableViewController::fetchedMovies()
{
    NSFetchRequest request = Movies::fetchRequest();
    request.setReturnsObjectsAsFaults(false);
    request.sortDescriptors = {{kind.attribute, SortAsc.value_or(true)}};
    auto fetched = context.fetch<Movies>(request);
    if (fetched)
        return std::move(fetched).value();
    if (tellsOfFailedFetch())
        console(fetched.error().localizedDescription);
    return {};
}

void GroupTableViewController::SortButtonTapped()
{
    if (!SortAsc)
        fatalError(QStringLiteral("SortAsc is absent before a group summary is loaded"));
    SortAsc = !*SortAsc;
    shared().GlobalSortAsc = *SortAsc;
    if (!isSearching()) {
        load();
        return;
    }
    sortFilteredRows();
    tableView()->reloadData();
}

void GroupTableViewController::UnwindSegue()
{
    performSegue(QStringLiteral("unwindToMenu"));
}

void GroupTableViewController::updateSearchResultsForSearchController(UISearchController& controller)
{
    const QString text = controller.searchBar()->text();
    if (text.isEmpty())
        unfilterRows();
    else
        filterRows(text);
    tableView()->reloadData();
}

bool GroupTableViewController::isSearching() const
{
    return !searchController->searchBar()->text().isEmpty();
}

int GroupTableViewController::numberOfRowsInSection(int /*section*/)
{
    return static_cast<int>(shownRows());
}

QVariant GroupTableViewController::cellForRowAt(const NSIndexPath& indexPath)
{
    const auto row = static_cast<std::size_t>(indexPath.row);
    GroupTableViewCell cell;
    cell.MovieNameLabel.text = labelOfRow(row);
    cell.CountLabel.text = countText(membersOfRow(row));
    if (DarkMode) {
        cell.MovieNameLabel.textColor = Qt::black;
        cell.CountLabel.textColor = Qt::black;
    }
    return QVariant::fromValue(cell);
}

QString GroupTableViewController::countText(const NSPredicate& members)
{
    NSFetchRequest request = Movies::fetchRequest();
    request.predicate = members;
    const auto counted = context.count(request);
    if (!counted)
        console(counted.error().localizedDescription);
    const qsizetype count = counted ? counted.value() : 0;
    if (count > std::numeric_limits<qint16>::max())
        fatalError(QStringLiteral("A group of %1 movies is larger than a 16-bit count").arg(count));
    return QString::number(count);
}

double GroupTableViewController::heightForRowAt(const NSIndexPath& /*indexPath*/)
{
    return groupRowHeight;
}

std::optional<LabelContent> GroupTableViewController::viewForHeaderInSection(int /*section*/)
{
    return countHeader(kind.headerPrefix + QString::number(shownRows()));
}
