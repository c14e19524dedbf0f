#include "tests/walk/Errands.h"

#include <QHash>

namespace {

// A name taps the control of that name, "@" stands for another kind of step, "|" separates alternatives. "?"
// at the end leaves the step out half of the times.
const QStringList errands[] = {
    {"@home", "Menu", "Movie List", "@search", "Sort", "@away", "@away?", "@search?"},
    {"@home", "Menu", "Movie List", "Menu", "By Genre|By Year|By Rating", "@search?", "@away", "@row"},
    {"@home", "Menu", "Movie List", "@search?", "@row", "Movie Name|Year Released|Run Time|Genre|Rating",
     "@retype", "Save", "Sort", "@row"},
    {"@home", "Menu", "Movie List", "@row", "Remove", "Yes", "Magnify"},
    {"@home", "Menu", "Group By", "Genre|Released|Watched|Rating|Provider", "@search?", "@row", "@search?",
     "@row", "Movie Name|Year Released|Genre|Rating|Provider", "@retype", "Save", "@row?"},
    {"@home", "Menu", "Add Movie", "Movie Name", "@type", "Year Released", "@type", "Genre", "@type", "Save",
     "Movie List", "@row"},
    {"@home", "Menu", "Reference Lists", "Genres|Ratings|Providers", "@row", "@retype", "Save", "@row?"},
    {"@home", "Menu", "Reference Lists", "Genres|Ratings|Providers", "@away?",
     "Add Genre|Add Rating|Add Provider", "@type", "Save"},
    {"@home", "Menu", "Movie List", "@search?", "Share", "Copy|Save to Files"},
    {"@home", "Menu", "Movie List", "@row", "Share|Magnify", "Copy|Share"},
    {"@home", "Menu", "Import/Export", "Import Movies", "Load File", "@dialogs", "Import File", "OK"},
    {"@home", "Menu", "Import/Export", "Export Movies", "Create Export File", "Save To Files",
     "Save to Files"},
    {"@home", "Menu", "Print", "Create and Print", "@dialogs", "Create and Print?", "@dialogs?"},
    {"@home", "Menu", "Group By", "Genre|Released|Watched|Rating|Provider", "Sort?", "@search?", "@row",
     "Sort?", "@search?", "Print", "Create and Print", "@dialogs"},
    {"@home", "Menu", "Group By", "Genre|Released|Watched|Rating|Provider", "@row", "Sort?", "@search?",
     "Share", "Copy?"},
};

// A list that shows the group's own tab and a field of an editor can have the same name: what is in sight
// decides.
const QString names[] = {
    "Menu",
    "Movie List",
    "Sort",

    "By Genre",
    "By Year",
    "By Rating",
    "Movie Name",
    "Year Released",
    "Run Time",
    "Genre",
    "Rating",
    "Provider",
    "Save",
    "Group By",
    "Released",
    "Watched",
    "Reference Lists",
    "Genres",
    "Ratings",
    "Providers",
    "Share",
    "Copy",
    "Save to Files",
    "Magnify",
    "Remove",
    "Yes",
    "Import/Export",
    "Export Movies",
    "Create Export File",
    "Save To Files",
    "Print",
    "Add Movie",
    "Create and Print",
    "Add Genre",
    "Add Rating",
    "Add Provider",
    "Load File",
    "Import File",
    "Import Movies",
    "OK",
};

const QHash<QString, Step::Kind> kinds{
    {"@home", Step::Kind::GoHome},          {"@search", Step::Kind::Search}, {"@row", Step::Kind::TapRow},
    {"@away", Step::Kind::DrawRowAway},     {"@retype", Step::Kind::Retype}, {"@type", Step::Kind::Type},
    {"@dialogs", Step::Kind::AnswerDialogs}};

Step stepOf(const QString& name, std::mt19937& random)
{
    const auto first = static_cast<unsigned>(random() % 1000);
    const auto second = static_cast<unsigned>(random() % 1000);
    if (kinds.contains(name))
        return {kinds[name], first, second};
    const auto* known = std::find(std::begin(names), std::end(names), name);
    Q_ASSERT(known != std::end(names));
    return {Step::Kind::TapNamed, static_cast<unsigned>(known - std::begin(names)), second};
}

} // namespace

std::vector<Step> errandSteps(unsigned number, std::mt19937& random)
{
    std::vector<Step> steps;
    // The errand's first alternatives go round with it, the others are chosen at random.
    unsigned alternative = number / std::size(errands);
    for (QString act : chosen(errands, number)) {
        const bool isOptional = act.endsWith('?');
        if (isOptional && random() % 2 == 0)
            continue;
        if (isOptional)
            act.chop(1);
        const QStringList alternatives = act.split('|');
        steps.push_back(stepOf(chosen(alternatives, alternative), random));
        if (alternatives.size() > 1)
            alternative = static_cast<unsigned>(random());
    }
    return steps;
}

const QString& controlName(const Step& step)
{
    return chosen(names, step.first);
}
