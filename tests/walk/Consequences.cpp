#include "tests/walk/Consequences.h"

namespace {

const QHash<QString, MovieKey> orders{{"By Movie Name", MovieKey::Name},
                                      {"By Genre", MovieKey::Genre},
                                      {"By Year", MovieKey::Year},
                                      {"By Rating", MovieKey::Rating}};

ValueList valueListOf(const QString& screenClass)
{
    return screenClass.contains("Genre")      ? ValueList::Genres
           : screenClass.contains("Provider") ? ValueList::Providers
                                              : ValueList::Ratings;
}

bool opensOrCloses(Qt::Key key)
{
    return key == Qt::Key_Return || key == Qt::Key_Enter || key == Qt::Key_Space;
}

} // namespace

QQuickItem* Consequences::rowAround(const Seen& control)
{
    QQuickItem* around = control.item;
    while (around != nullptr && !around->property("spokenName").isValid())
        around = around->parentItem();
    return around;
}

std::optional<std::size_t> Consequences::positionOf(const Seen& row) const
{
    QQuickItem* item = rowAround(row);
    if (state.list() == nullptr || item == nullptr)
        return std::nullopt;
    const int index = item->property("index").toInt();
    const QStringList texts = state.list()->rowTexts(state.model.catalogue);
    if (index < 0 || index >= texts.size())
        throw WalkFailure(QString("Row %1 is in sight where %2 are expected").arg(index).arg(texts.size()));
    return static_cast<std::size_t>(index);
}

std::optional<Consequence> Consequences::of(const Seen& control) const
{
    ModelScene* list = state.list();
    const int screen = state.screens.topNumber();
    const QString screenClass = state.screens.topClass();
    if (control.inPopup)
        return inPopup(control.name);
    if (isBehindDialog())
        return Consequence();
    if (control.isRow()) {
        const auto row = positionOf(control);
        return row && state.uncoveredRow() != control.name ? choosing(*row) : Consequence();
    }
    if (control.name == "delete" && rowAround(control) != nullptr)
        return deleting(*positionOf(control));
    if (list != nullptr && control.name == "Sort" && control.role == QAccessible::Button)
        return [this, screen] { state.model.tapSort(screen); };
    if (control.name == "Save")
        return ofSaving();
    if (screenClass == "ImportViewController" && control.name == "Import File")
        return [this] { state.model.importText(state.loadedText); };
    if (control.name == "Create and Print")
        return [this, screen] { state.model.createPrint(screen); };
    if (control.name == "Remove" && screenClass == "AddMovieViewController")
        return [this, screen] { state.model.showCover(screen, false); };
    if (control.name == "Paste" && !state.program.device.pasteboardTwin->picture.isNull())
        return [this, screen] { state.model.showCover(screen, true); };
    return Consequence();
}

bool Consequences::isBehindDialog() const
{
    const UIViewController* presented = state.screens.presented();
    return presented != nullptr && presented->isModal();
}

std::optional<Consequence> Consequences::inPopup(const QString& name) const
{
    const int screen = state.screens.topNumber();
    if (state.list() != nullptr && orders.contains(name))
        return [this, screen, name] { state.model.chooseOrder(screen, orders[name]); };
    if (name == "Yes")
        return [this, screen] { state.model.removeStoredCover(screen); };
    if (name == "Take Photo")
        return [this, screen] { state.model.showCover(screen, true); };
    return Consequence();
}

Consequence Consequences::choosing(std::size_t row) const
{
    return [this, row, screen = state.screens.topNumber()] { state.model.tapRow(screen, row); };
}

Consequence Consequences::deleting(std::size_t row) const
{
    return [this, row, screen = state.screens.topNumber()] {
        state.model.deleteRow(screen, row);
        state.uncoveredRow().clear();
    };
}

std::optional<Consequence> Consequences::ofSaving() const
{
    const QString screenClass = state.screens.topClass();
    const FormTexts texts = formOf(state.hand.look());
    if (!screenClass.endsWith("MovieViewController"))
        return ofSavingValue(screenClass, texts);
    const bool isReadable =
        isInt16(texts["Year Released"]) && (texts["Run Time"].isEmpty() || isInt16(texts["Run Time"]));
    if (!isReadable && !texts["Year Released"].isEmpty())
        return std::nullopt;
    return ofSavingMovie(texts);
}

Consequence Consequences::ofSavingMovie(const FormTexts& texts) const
{
    return [this, texts, screen = state.screens.topNumber()] {
        if (state.model.saveMovie(screen, texts) == ModelProgram::Outcome::Leaves) {
            state.mustBeGone = screen;
            state.comesBack = true;
        }
    };
}

Consequence Consequences::ofSavingValue(const QString& screenClass, const FormTexts& texts) const
{
    const ValueList list = valueListOf(screenClass);
    const QString text = texts.isEmpty() ? QString() : texts.begin().value();
    return [this, list, text, isNew = screenClass.startsWith("Add"), screen = state.screens.topNumber()] {
        if (isNew && state.model.addValue(list, text) == ModelProgram::Outcome::Alert)
            return;
        if (!isNew)
            state.model.renameValue(list, text);
        state.mustBeGone = screen;
        state.comesBack = true;
    };
}

std::optional<Consequence> Consequences::ofKey(Qt::Key key, Qt::KeyboardModifiers modifiers) const
{
    const QString screenClass = state.screens.topClass();
    const bool isEditor = screenClass.startsWith("Add") || screenClass.startsWith("Edit");
    const bool isFree = !isBehindDialog();
    if (key == Qt::Key_S && modifiers == Qt::ControlModifier && isEditor && isFree)
        return ofSaving();
    for (const Seen& seen : state.hand.look()) {
        if (!seen.state.focused || seen.isRow())
            continue;
        if (seen.role == QAccessible::List && modifiers == Qt::NoModifier && isFree)
            return ofKeyInList(key, seen);
        if (opensOrCloses(key) && modifiers == Qt::NoModifier && seen.isPressable() &&
            seen.role != QAccessible::EditableText)
            return of(seen);
        const bool isValue = isEditor && !screenClass.endsWith("MovieViewController");
        if (opensOrCloses(key) && key != Qt::Key_Space && isValue && seen.role == QAccessible::EditableText)
            return ofSaving();
    }
    return Consequence();
}

std::optional<Consequence> Consequences::ofKeyInList(Qt::Key key, const Seen& list) const
{
    const int row = list.item->property("currentIndex").toInt();
    if (state.list() == nullptr || row < 0 || row >= state.list()->rowTexts(state.model.catalogue).size())
        return Consequence();
    const auto position = static_cast<std::size_t>(row);
    if (key == Qt::Key_Return || key == Qt::Key_Enter)
        return choosing(position);
    const bool canDelete = state.list()->kind->content == ModelListKind::Content::Movies ||
                           state.list()->kind->content == ModelListKind::Content::Values;
    if (key != Qt::Key_Delete || !canDelete)
        return Consequence();
    const auto* item = list.item->property("currentItem").value<QQuickItem*>();
    const QString text = item == nullptr ? QString() : item->property("spokenName").toString();
    if (item != nullptr && item->property("isOpen").toBool())
        return deleting(position);
    return [this, text] { state.uncoveredRow() = text; };
}
