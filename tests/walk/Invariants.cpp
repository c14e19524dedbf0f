#include "tests/walk/Invariants.h"

#include "tests/walk/Consequences.h"

#include <QRegularExpression>

namespace {

constexpr int fingertip = 44;

// Everything that the system writes to its console, by design.
const QRegularExpression
    prescribedLine("^(First Launch|Not First Launch|Option [1-4] selected|Chosen|Image is Printed|"
                   "nil|MainMenu|MainList|[A-Za-z]+Breakdown|"
                   "Could not create.*|wrote PDF file with multiple pages to: .*)$");

// A line of a long text is as high as its words.
bool isLineOfText(const Seen& seen)
{
    return seen.role == QAccessible::EditableText && seen.name.contains("Text");
}

bool hasPopup(const std::vector<Seen>& all)
{
    return std::any_of(all.begin(), all.end(), [](const Seen& seen) { return seen.inPopup; });
}

QString describe(const Seen& seen)
{
    return QString("\"%1\" (%2 by %3 at %4, %5)")
        .arg(seen.name)
        .arg(seen.place.width())
        .arg(seen.place.height())
        .arg(seen.place.x())
        .arg(seen.place.y());
}

} // namespace

void Invariants::check()
{
    followScreens();
    const std::vector<Seen> all = state.hand.look();
    followTexts(all);
    if (const QStringList found = state.model.compareWithStore(); !found.isEmpty())
        throw WalkFailure("The store differs: " + found.join("\n    "));
    checkUncoveredRow(all);
    checkList(all);
    checkControls(all);
    editorChecks.check(all);
    checkOutput();
    sentOut.check();
}

void Invariants::followScreens()
{
    using Kind = ScreenStack::Change::Kind;
    const auto changes = state.screens.follow();
    for (const auto& change : changes) {
        if (change.screen < 0)
            throw WalkFailure("In one step, " + change.screenClass);
        if (change.kind == Kind::Closed) {
            state.model.close(change.screen);
            if (change.screen == state.mustBeGone)
                state.mustBeGone = 0;
        } else if (change.kind == Kind::Opened) {
            state.model.open(change.screen, change.screenClass, change.below);
        } else {
            state.model.appear(change.screen);
            if (state.comesBack)
                state.model.comeBack(change.screen);
        }
    }
    state.comesBack = false;
    if (std::exchange(state.mustBeGone, 0) != 0)
        throw WalkFailure("The screen stays after saving");
}

void Invariants::followTexts(const std::vector<Seen>& all)
{
    const int screen = state.screens.topNumber();
    for (const Seen& seen : all) {
        const QString text = textOf(seen);
        if (seen.isSearchField() && state.list() != nullptr && state.list()->search != text)
            state.model.search(screen, text);
        if (seen.role == QAccessible::EditableText && seen.name == "Date Watched")
            state.model.showDate(screen, text);
    }
}

void Invariants::checkList(const std::vector<Seen>& all) const
{
    ModelScene* list = state.list();
    if (list == nullptr || state.screens.presented() != nullptr || hasPopup(all))
        return;
    const auto hasHeader = [&] {
        return std::any_of(all.begin(), all.end(), [&](const Seen& seen) {
            return seen.role == QAccessible::StaticText && seen.name == list->header();
        });
    };
    // Typing the text over with itself searches again, which may find others than before.
    if (!hasHeader() && !list->search.isEmpty())
        list->filter();
    if (!hasHeader()) {
        QStringList texts;
        for (const Seen& seen : all)
            if (seen.role == QAccessible::StaticText)
                texts.append(seen.name);
        throw WalkFailure("No header \"" + list->header() + "\" among: " + texts.join(" | "));
    }
    checkRows(*list, all);
}

void Invariants::checkRows(const ModelScene& list, const std::vector<Seen>& all) const
{
    QMap<int, QString> byHeight;
    for (const Seen& seen : all)
        if (seen.isRow() && !seen.part.isEmpty())
            byHeight.insert(seen.place.top(), seen.name);
    const QStringList texts = byHeight.values();
    if (list.mayShow(texts, state.model.catalogue))
        return;
    throw WalkFailure("The rows are\n    " + texts.join("\n    ") + "\nwhere the list should be\n    " +
                      list.rowTexts(state.model.catalogue).join("\n    "));
}

// Only the row that the user uncovered shows its action, and only until the list is another one.
void Invariants::checkUncoveredRow(const std::vector<Seen>& all)
{
    bool isUncovered = false;
    for (const Seen& seen : all) {
        QQuickItem* row = seen.role == QAccessible::Button && seen.name == "delete"
                              ? Consequences::rowAround(seen)
                              : nullptr;
        if (row == nullptr)
            continue;
        isUncovered = true;
        if (seen.part.isEmpty())
            continue;
        const QString text = row->property("spokenName").toString();
        if (text != state.uncoveredRow())
            throw WalkFailure(R"("delete" stands on ")" + text + R"(", uncovered was ")" +
                              state.uncoveredRow() + '"');
    }
    if (!isUncovered && !hasPopup(all))
        state.uncoveredRow().clear();
}

void Invariants::checkControls(const std::vector<Seen>& all) const
{
    for (const Seen& seen : all) {
        if (!seen.isPressable() || seen.part.isEmpty())
            continue;
        if (seen.name.isEmpty())
            throw WalkFailure("A control has no name: " + describe(seen));
        if (!isLineOfText(seen) && (seen.place.width() < fingertip || seen.place.height() < fingertip))
            throw WalkFailure("A control is too small for a finger: " + describe(seen));
    }
}

void Invariants::checkOutput()
{
    QStringList texts = state.warnings.texts();
    // Qt's own remark when a popup closes between two fingers.
    texts.removeIf([](const QString& text) { return text.contains("missing from current event"); });
    if (!texts.isEmpty())
        throw WalkFailure("The layouts complain:\n    " + texts.join("\n    "));
    for (const QString& line : state.program.consoleLines())
        if (!prescribedLine.match(line).hasMatch())
            throw WalkFailure("A console line that nothing prescribes: " + line);
}
