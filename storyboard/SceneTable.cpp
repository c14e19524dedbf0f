#include "storyboard/SceneTable.h"

#include "browse/MainListTableViewController.h"
#include "browse/PlaceholderViewController.h"
#include "browse/ViewController.h"
#include "editing/AddMovieViewController.h"
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
    static const std::vector<SceneDescription> table{
        scene<ViewController>(QStringLiteral("Home")),
        scene<MainListTableViewController>(QStringLiteral("MovieList")),
        scene<AddMovieViewController>(QStringLiteral("AddMovie")),
        scene<ImportExportViewController>(QStringLiteral("ImportExport")),
        scene<ImportViewController>(QStringLiteral("Import")),
        scene<PlaceholderViewController>(QStringLiteral("Placeholder")),
    };
    return table;
}

const std::vector<SegueDescription>& segueDescriptions()
{
    static const QString toMenu = QStringLiteral("unwindToMenuWithSegue");
    static const QString toList = QStringLiteral("unwindToListWithSegue");
    static const std::vector<SegueDescription> table{
        show<ViewController, MainListTableViewController>(QStringLiteral("MovieList")),
        show<ViewController, AddMovieViewController>(QStringLiteral("AddMovie")),
        announce<ViewController>(
            QStringLiteral("TabBarController"), QStringLiteral("Group By"),
            QStringLiteral("Your movies grouped and counted by genre, year released, date "
                           "watched, rating and provider will be here.")),
        announce<ViewController>(
            QStringLiteral("Settings"), QStringLiteral("Settings"),
            QStringLiteral("The default watch date and the style of the date picker will be "
                           "chosen here.")),
        announce<ViewController>(QStringLiteral("Print"), QStringLiteral("Print"),
                                 QStringLiteral("The movie list will be printed from here.")),
        announce<ViewController>(QStringLiteral("ReferenceLists"), QStringLiteral("Reference Lists"),
                                 QStringLiteral("Your genres, providers and ratings will be kept here.")),
        show<ViewController, ImportExportViewController>(QStringLiteral("ImportExport")),
        announce<ViewController>(QStringLiteral("RateShare"), QStringLiteral("Rate/Share"),
                                 QStringLiteral("Reviews, sharing and feedback will be here.")),
        show<MainListTableViewController, AddMovieViewController>(QStringLiteral("AddMovie")),
        announce<MainListTableViewController>(QStringLiteral("EditMovie"), QStringLiteral("Update Movie"),
                                              QStringLiteral("The chosen movie will be changed here.")),
        unwind<AddMovieViewController>(QStringLiteral("unwindToList"), toList),
        unwind<AddMovieViewController>(QStringLiteral("unwindToMenu"), toMenu),
        show<ImportExportViewController, ImportViewController>(QStringLiteral("Import")),
        announce<ImportExportViewController>(QStringLiteral("Export"), QStringLiteral("Export Movies"),
                                             QStringLiteral("The exchange file will be made here.")),
        unwind<ImportViewController>(QStringLiteral("unwindToMenu"), toMenu),
        unwind<PlaceholderViewController>(QStringLiteral("unwindToMenu"), toMenu),
    };
    return table;
}
