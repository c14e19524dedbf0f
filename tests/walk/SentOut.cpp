#include "tests/walk/SentOut.h"

#include "summaries/BreakdownTableViewController.h"
#include "tests/walk/ModelTexts.h"

namespace {

void expectSame(const QString& what, const QString& sent, const QString& expected)
{
    if (sent != expected)
        throw WalkFailure(what + " is\n" + sent + "\nand should be\n" + expected);
}

const QString picture = "(a picture)";

QString textOf(const std::vector<ActivityItem>& items)
{
    QString all;
    for (const ActivityItem& item : items)
        if (const auto* text = std::get_if<QString>(&item))
            all += *text;
        else if (const auto* file = std::get_if<QUrl>(&item))
            all += file->fileName();
        else
            all += picture;
    return all;
}

// Covers are encoded anew.
QString withoutCovers(const QString& exchangeFile)
{
    QStringList lines = exchangeFile.split('\n');
    for (QString& line : lines)
        if (line.count('^') == 11 && !line.endsWith('^'))
            line = line.left(line.lastIndexOf('^') + 1) + "cover";
    return lines.join('\n');
}

} // namespace

void SentOut::check()
{
    const RecordingDevice& device = state.program.device;
    for (; printed < device.printerTwin->printed.size(); ++printed)
        checkPrinted(device.printerTwin->printed[printed]);
    for (; saved < device.savedDocuments().size(); ++saved)
        checkSaved(device.savedDocuments()[saved]);
    checkSheet();
    if (copied != device.pasteboardTwin->text)
        checkCopied(copied = device.pasteboardTwin->text);
}

void SentOut::checkSheet()
{
    const auto* sheet = qobject_cast<const UIActivityViewController*>(state.screens.presented());
    if (std::exchange(compared, sheet) == sheet || sheet == nullptr)
        return;
    const ModelScene* list = state.list();
    const ModelEditor* editor = state.model.editor(state.screens.topNumber());
    if (editor != nullptr)
        expectSame("What is shared", textOf(sheet->activityItems()),
                   sharedForm(formOf(state.hand.everything())) + (editor->showsCover ? picture : ""));
    else if (state.screens.topClass() == "ZoomViewController")
        expectSame("What is shared", textOf(sheet->activityItems()),
                   state.model.chosenFilm().hasCover ? picture : "");
    else if (list != nullptr && list->kind->content == ModelListKind::Content::MoviesOfGroup)
        checkReport(*sheet);
    else if (list != nullptr)
        expectSame("What is shared", textOf(sheet->activityItems()), sharedText(list->shownFilms()));
}

void SentOut::checkReport(const UIActivityViewController& sheet) const
{
    const auto& screen = dynamic_cast<const BreakdownTableViewController&>(state.screens.top());
    const ModelListKind& kind = *state.list()->kind;
    const bool isOfDates = kind.groupText == nullptr;
    expectSame("The report's file", textOf(sheet.activityItems()),
               isOfDates ? "YearReleasedMovieList.pdf" : "GenreMovieList.pdf");
    expectSame("The report", screen.MovieString.string(), reportText(state.list()->shownFilms(), kind));
}

void SentOut::checkPrinted(const PrintJob& job)
{
    const auto* text = std::get_if<NSAttributedString>(&job.content);
    if (const ModelPrint* print = state.model.print(state.screens.topNumber());
        print != nullptr && text != nullptr)
        expectSame("What is printed", text->string(), print->text);
}

void SentOut::checkSaved(const RecordingDevice::SavedDocument& document)
{
    if (state.screens.topClass() == "ExportViewController")
        expectSame("The exchange file", withoutCovers(QString::fromUtf8(document.content)),
                   exchangeText(state.model.catalogue));
}

void SentOut::checkCopied(const QString& text)
{
    if (state.screens.topClass() == "MainListTableViewController")
        expectSame("What is copied", text, sharedText(state.list()->shownFilms()));
}
