#include "tests/walk/EditorChecks.h"

#include "storyboard/controls/ImageItem.h"
#include "tests/walk/ModelForm.h"

void EditorChecks::check(const std::vector<Seen>& all)
{
    if (state.screens.presented() != nullptr ||
        std::any_of(all.begin(), all.end(), [](const Seen& seen) { return seen.inPopup; }))
        return;
    if (state.screens.topClass() == "ZoomViewController")
        checkCover(all, state.model.chosenFilm().hasCover);
    const ModelEditor* editor = state.model.editor(state.screens.topNumber());
    if (editor == nullptr)
        return;
    if (state.screens.topNumber() > compared)
        checkTexts(all, *editor);
    checkCover(all, editor->showsCover);
}

void EditorChecks::checkTexts(const std::vector<Seen>& all, const ModelEditor& editor)
{
    compared = state.screens.topNumber();
    const FormTexts expected = openingForm(editor);
    const FormTexts found = formOf(all);
    for (const QString& label : expected.keys())
        if (found.value(label) != expected[label])
            throw WalkFailure(QString(R"(The field %1 opens with "%2", expected "%3")")
                                  .arg(label, found.value(label), expected[label]));
}

void EditorChecks::checkCover(const std::vector<Seen>& all, bool isExpected) const
{
    const auto cover = std::find_if(all.begin(), all.end(), [](const Seen& seen) {
        return seen.role == QAccessible::Graphic && seen.name == "Front Cover";
    });
    if (cover == all.end())
        throw WalkFailure("There is no front cover");
    const auto* picture = cover->item->findChild<ImageItem*>();
    if (const bool isShown = picture != nullptr && !picture->image().isNull(); isShown != isExpected)
        throw WalkFailure(isShown ? "A cover is shown where there is none" : "The cover is not shown");
}
