#include "tests/walk/SentOut.h"

#include "tests/walk/ModelTexts.h"

namespace {

void expectSame(const QString& what, const QString& sent, const QString& expected)
{
    if (sent != expected)
        throw WalkFailure(what + " is\n" + sent + "\nand should be\n" + expected);
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
    if (copied != device.pasteboardTwin->text)
        checkCopied(copied = device.pasteboardTwin->text);
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
