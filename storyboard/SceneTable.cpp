#include "storyboard/SceneTable.h"

#include "browse/DefaultsViewController.h"
#include "browse/MainListTableViewController.h"
#include "browse/ViewController.h"
#include "editing/AddMovieViewController.h"
#include "editing/EditMovieViewController.h"
#include "editing/ReferenceAddScreens.h"
#include "editing/ReferenceEditScreens.h"
#include "editing/ReferenceListScreens.h"
#include "editing/ReferenceListViewController.h"
#include "editing/ZoomViewController.h"
#include "exchange/ExportViewController.h"
#include "exchange/ImportExportViewController.h"
#include "exchange/ImportViewController.h"
#include "exchange/PrintMoviesViewController.h"
#include "feedback/RateShareTableViewController.h"
#include "summaries/BreakdownScreens.h"
#include "summaries/GroupScreens.h"
#include "summaries/GroupTabBarController.h"

namespace {

template <typename Screen>
QString nameOf()
{
    return QString::fromLatin1(Screen::staticMetaObject.className());
}

template <typename Screen>
SceneDescription scene(const QString& layout)
{
    return {nameOf<Screen>(), layout};
}

template <typename Source, typename Destination>
SegueDescription show(const QString& identifier)
{
    return {nameOf<Source>(), identifier, {[] { return std::make_unique<Destination>(); }, {}}};
}

template <typename Source>
SegueDescription unwind(const QString& identifier, const QString& action)
{
    return {nameOf<Source>(), identifier, {nullptr, action}};
}

// A reference list with the screens that add and change its values; these come back by `back`.
template <typename List, typename Add, typename Edit>
void addReferenceList(std::vector<SegueDescription>& table, const QString& identifier, const QString& back)
{
    const QString action = back + QStringLiteral("WithSegue");
    table.push_back(show<ReferenceListViewController, List>(identifier));
    table.push_back(show<List, Add>(QStringLiteral("AddReference")));
    table.push_back(show<List, Edit>(QStringLiteral("EditReference")));
    table.push_back(unwind<Add>(back, action));
    table.push_back(unwind<Edit>(back, action));
}

// A group summary with the list of one of its groups; the update screen comes back to that by `back`.
template <typename Summary, typename Breakdown>
void addSummary(std::vector<SegueDescription>& table, const QString& back)
{
    table.push_back(unwind<Summary>(QStringLiteral("unwindToMenu"), QStringLiteral("unwindToMenuWithSegue")));
    table.push_back(show<Summary, Breakdown>(QStringLiteral("Breakdown")));
    table.push_back(show<Breakdown, PrintMoviesViewController>(QStringLiteral("Print")));
    table.push_back(show<Breakdown, EditMovieViewController>(QStringLiteral("EditMovie")));
    table.push_back(unwind<EditMovieViewController>(back, back + QStringLiteral("WithSegue")));
}

std::vector<SegueDescription> plainSegues()
{
    static const QString toMenu = QStringLiteral("unwindToMenuWithSegue");
    static const QString toList = QStringLiteral("unwindToListWithSegue");
    return {
        show<ViewController, MainListTableViewController>(QStringLiteral("MovieList")),
        show<ViewController, AddMovieViewController>(QStringLiteral("AddMovie")),
        show<ViewController, GroupTabBarController>(QStringLiteral("TabBarController")),
        show<ViewController, DefaultsViewController>(QStringLiteral("Settings")),
        show<ViewController, PrintMoviesViewController>(QStringLiteral("Print")),
        show<ViewController, ReferenceListViewController>(QStringLiteral("ReferenceLists")),
        show<ViewController, ImportExportViewController>(QStringLiteral("ImportExport")),
        show<ViewController, RateShareTableViewController>(QStringLiteral("RateShare")),
        show<MainListTableViewController, AddMovieViewController>(QStringLiteral("AddMovie")),
        show<MainListTableViewController, EditMovieViewController>(QStringLiteral("EditMovie")),
        show<EditMovieViewController, ZoomViewController>(QStringLiteral("Zoom")),
        unwind<EditMovieViewController>(QStringLiteral("unwindToList"), toList),
        unwind<AddMovieViewController>(QStringLiteral("unwindToList"), toList),
        unwind<AddMovieViewController>(QStringLiteral("unwindToMenu"), toMenu),
        show<ImportExportViewController, ImportViewController>(QStringLiteral("Import")),
        show<ImportExportViewController, ExportViewController>(QStringLiteral("Export")),
        unwind<ImportViewController>(QStringLiteral("unwindToMenu"), toMenu),
    };
}

std::vector<SegueDescription> allSegues()
{
    std::vector<SegueDescription> table = plainSegues();
    addReferenceList<GenreReferenceListTableViewController, AddGenreViewController, EditGenreViewController>(
        table, QStringLiteral("Genres"), QStringLiteral("unwindToGenreTableView"));
    addReferenceList<ProviderReferenceListTableViewController, AddProviderViewController,
                     EditProviderViewController>(table, QStringLiteral("Providers"),
                                                 QStringLiteral("unwindToProviderTableView"));
    addReferenceList<RatingReferenceListTableViewController, AddRatingViewController,
                     EditRatingViewController>(table, QStringLiteral("Ratings"),
                                               QStringLiteral("unwindToRatingTableView"));
    addSummary<GenreGroupTableViewController, GenreBreakdownTableViewController>(
        table, QStringLiteral("unwindToGenreBreakdownTableView"));
    addSummary<DateReleasedGroupTableViewController, DateReleasedBreakdownTableViewController>(
        table, QStringLiteral("unwindToDateReleasedBreakdownTableView"));
    addSummary<DateWatchedGroupTableViewController, DateWatchedBreakdownTableViewController>(
        table, QStringLiteral("unwindToDateWatchedBreakdownTableView"));
    addSummary<RatingGroupTableViewController, RatingBreakdownTableViewController>(
        table, QStringLiteral("unwindToRatingBreakdownTableView"));
    addSummary<ProviderGroupTableViewController, ProviderBreakdownTableViewController>(
        table, QStringLiteral("unwindToProviderBreakdownTableView"));
    return table;
}

} // namespace

const std::vector<SceneDescription>& sceneDescriptions()
{
    static const QString referenceList = QStringLiteral("ReferenceList");
    static const QString referenceValue = QStringLiteral("ReferenceValue");
    static const QString summary = QStringLiteral("GroupSummary");
    static const QString breakdown = QStringLiteral("Breakdown");
    static const std::vector<SceneDescription> table{
        scene<ViewController>(QStringLiteral("Home")),
        scene<MainListTableViewController>(QStringLiteral("MovieList")),
        scene<AddMovieViewController>(QStringLiteral("AddMovie")),
        scene<EditMovieViewController>(QStringLiteral("EditMovie")),
        scene<ZoomViewController>(QStringLiteral("Zoom")),
        scene<ImportExportViewController>(QStringLiteral("ImportExport")),
        scene<ImportViewController>(QStringLiteral("Import")),
        scene<DefaultsViewController>(QStringLiteral("Settings")),
        scene<ReferenceListViewController>(QStringLiteral("ReferenceLists")),
        scene<GenreReferenceListTableViewController>(referenceList),
        scene<ProviderReferenceListTableViewController>(referenceList),
        scene<RatingReferenceListTableViewController>(referenceList),
        scene<AddGenreViewController>(referenceValue),
        scene<AddProviderViewController>(referenceValue),
        scene<AddRatingViewController>(referenceValue),
        scene<EditGenreViewController>(referenceValue),
        scene<EditProviderViewController>(referenceValue),
        scene<EditRatingViewController>(referenceValue),
        scene<GroupTabBarController>(QStringLiteral("TabBar")),
        scene<GenreGroupTableViewController>(summary),
        scene<DateReleasedGroupTableViewController>(summary),
        scene<DateWatchedGroupTableViewController>(summary),
        scene<RatingGroupTableViewController>(summary),
        scene<ProviderGroupTableViewController>(summary),
        scene<GenreBreakdownTableViewController>(breakdown),
        scene<DateReleasedBreakdownTableViewController>(breakdown),
        scene<DateWatchedBreakdownTableViewController>(breakdown),
        scene<RatingBreakdownTableViewController>(breakdown),
        scene<ProviderBreakdownTableViewController>(breakdown),
        scene<ExportViewController>(QStringLiteral("Export")),
        scene<PrintMoviesViewController>(QStringLiteral("Print")),
        scene<RateShareTableViewController>(QStringLiteral("RateShare")),
    };
    return table;
}

const std::vector<SegueDescription>& segueDescriptions()
{
    static const std::vector<SegueDescription> table = allSegues();
    return table;
}
