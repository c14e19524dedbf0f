#include "storyboard/SceneTable.h"

#include "browse/DefaultsViewController.h"
#include "browse/MainListTableViewController.h"
#include "browse/PlaceholderViewController.h"
#include "browse/ViewController.h"
#include "editing/AddMovieViewController.h"
#include "editing/EditMovieViewController.h"
#include "editing/ReferenceAddScreens.h"
#include "editing/ReferenceEditScreens.h"
#include "editing/ReferenceListScreens.h"
#include "editing/ReferenceListViewController.h"
#include "editing/ZoomViewController.h"
#include "exchange/ImportExportViewController.h"
#include "exchange/ImportViewController.h"

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

// A screen that is not there yet: a plain one says what will be there.
template <typename Source>
SegueDescription announce(const QString& identifier, const QString& title, const QString& message)
{
    return {nameOf<Source>(),
            identifier,
            {[=] { return std::make_unique<PlaceholderViewController>(title, message); }, {}}};
}

template <typename Source>
SegueDescription unwind(const QString& identifier, const QString& action)
{
    return {nameOf<Source>(), identifier, {nullptr, action}};
}

} // namespace

const std::vector<SceneDescription>& sceneDescriptions()
{
    static const QString referenceList = QStringLiteral("ReferenceList");
    static const QString referenceValue = QStringLiteral("ReferenceValue");
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
        scene<PlaceholderViewController>(QStringLiteral("Placeholder")),
    };
    return table;
}

const std::vector<SegueDescription>& segueDescriptions()
{
    static const QString toMenu = QStringLiteral("unwindToMenuWithSegue");
    static const QString toList = QStringLiteral("unwindToListWithSegue");
    static const QString add = QStringLiteral("AddReference");
    static const QString edit = QStringLiteral("EditReference");
    static const QString toGenres = QStringLiteral("unwindToGenreTableView");
    static const QString toProviders = QStringLiteral("unwindToProviderTableView");
    static const QString toRatings = QStringLiteral("unwindToRatingTableView");
    static const QString withSegue = QStringLiteral("WithSegue");
    static const std::vector<SegueDescription> table{
        show<ViewController, MainListTableViewController>(QStringLiteral("MovieList")),
        show<ViewController, AddMovieViewController>(QStringLiteral("AddMovie")),
        announce<ViewController>(
            QStringLiteral("TabBarController"), QStringLiteral("Group By"),
            QStringLiteral("Your movies grouped and counted by genre, year released, date "
                           "watched, rating and provider will be here.")),
        show<ViewController, DefaultsViewController>(QStringLiteral("Settings")),
        announce<ViewController>(QStringLiteral("Print"), QStringLiteral("Print"),
                                 QStringLiteral("The movie list will be printed from here.")),
        show<ViewController, ReferenceListViewController>(QStringLiteral("ReferenceLists")),
        show<ViewController, ImportExportViewController>(QStringLiteral("ImportExport")),
        announce<ViewController>(QStringLiteral("RateShare"), QStringLiteral("Rate/Share"),
                                 QStringLiteral("Reviews, sharing and feedback will be here.")),
        show<MainListTableViewController, AddMovieViewController>(QStringLiteral("AddMovie")),
        show<MainListTableViewController, EditMovieViewController>(QStringLiteral("EditMovie")),
        show<EditMovieViewController, ZoomViewController>(QStringLiteral("Zoom")),
        unwind<EditMovieViewController>(QStringLiteral("unwindToList"), toList),
        unwind<AddMovieViewController>(QStringLiteral("unwindToList"), toList),
        unwind<AddMovieViewController>(QStringLiteral("unwindToMenu"), toMenu),
        show<ImportExportViewController, ImportViewController>(QStringLiteral("Import")),
        announce<ImportExportViewController>(QStringLiteral("Export"), QStringLiteral("Export Movies"),
                                             QStringLiteral("The exchange file will be made here.")),
        unwind<ImportViewController>(QStringLiteral("unwindToMenu"), toMenu),
        show<ReferenceListViewController, GenreReferenceListTableViewController>(QStringLiteral("Genres")),
        show<ReferenceListViewController, ProviderReferenceListTableViewController>(
            QStringLiteral("Providers")),
        show<ReferenceListViewController, RatingReferenceListTableViewController>(QStringLiteral("Ratings")),
        show<GenreReferenceListTableViewController, AddGenreViewController>(add),
        show<GenreReferenceListTableViewController, EditGenreViewController>(edit),
        unwind<AddGenreViewController>(toGenres, toGenres + withSegue),
        unwind<EditGenreViewController>(toGenres, toGenres + withSegue),
        show<ProviderReferenceListTableViewController, AddProviderViewController>(add),
        show<ProviderReferenceListTableViewController, EditProviderViewController>(edit),
        unwind<AddProviderViewController>(toProviders, toProviders + withSegue),
        unwind<EditProviderViewController>(toProviders, toProviders + withSegue),
        show<RatingReferenceListTableViewController, AddRatingViewController>(add),
        show<RatingReferenceListTableViewController, EditRatingViewController>(edit),
        unwind<AddRatingViewController>(toRatings, toRatings + withSegue),
        unwind<EditRatingViewController>(toRatings, toRatings + withSegue),
        unwind<PlaceholderViewController>(QStringLiteral("unwindToMenu"), toMenu),
    };
    return table;
}
