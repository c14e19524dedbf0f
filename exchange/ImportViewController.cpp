#include "exchange/ImportViewController.h"

#include "exchange/ExchangeButton.h"
#include "exchange/TextFile.h"
#include "model/MarrowvaleModel.h"
#include "platform/foundation/Console.h"
#include "platform/services/Device.h"
#include "platform/services/SystemVersions.h"
#include "platform/toolkit/UIAlertController.h"

namespace {

QStringList importableTypes()
{
    if (Device::current().systemVersion < SystemVersions::contentTypes)
        return {QStringLiteral("public.data")};
    return {QStringLiteral("public.file-url"), QStringLiteral("public.image"), QStringLiteral("public.item")};
}

// Better to find out before the first line than in the middle.
void requireCatalogueThatOpens()
{
    NSPersistentContainer container(QStringLiteral("Marrowvale"), MarrowvaleModel::description());
    if (const Status opened = container.loadPersistentStores(); !opened)
        fatalError(QStringLiteral("Unresolved error ") + opened.error().debugText());
}

NSManagedObjectContext& catalogueContext()
{
    return AppDelegate::shared().persistentContainer().viewContext();
}

void setReadings(Movies& movie, const ExchangeReadings& readings)
{
    for (std::size_t index = 0; index < exchangeFieldCount; ++index) {
        if (readings[index])
            movie.setValueForKey(*readings[index], exchangeFields()[index].key);
    }
}

} // namespace

void ImportViewController::viewDidLoad()
{
    setTitle(QStringLiteral("Import Movies"));
    styleExchangeButton(*ImportButton);
    styleExchangeButton(*LoadFileButton);
    ImportButton->setEnabled(false);
    // What is imported is the file, not what became of its text on the screen.
    ImportTextView->setEditable(false);
    HelpTextView->setEditable(false);
    HelpTextView->setText(QStringLiteral("YOU CAN ONLY IMPORT THE FILE CREATED BY THIS APP.\n"
                                         "1: Select the file you saved to your iCloud drive\n"
                                         "2: Import the file into your device"));
}

void ImportViewController::LoadFile()
{
    present(std::make_unique<UIDocumentPickerViewController>(importableTypes(), *this));
}

void ImportViewController::didPickDocumentAt(UIDocumentPickerViewController& /*picker*/, const QUrl& url)
{
    filename = url.fileName();
    auto text = textOfFile(url.toLocalFile());
    if (!text) {
        console(text.error().localizedDescription);
        return;
    }
    document = std::move(text).value();
    ImportTextView->setText(document);
    ImportButton->setEnabled(true);
    LoadFileButton->setEnabled(false);
    showAlert(QStringLiteral("File Loaded and Ready to Import"));
}

void ImportViewController::ImportTextFile()
{
    requireCatalogueThatOpens();
    wrongFile = !isExchangeText(document);
    if (!*wrongFile)
        importLines();
    showResult();
}

void ImportViewController::importLines()
{
    const NSManagedObjectContext::BulkSaves untilAllIsImported(catalogueContext());
    ExchangeLines lines(document);
    while (const auto line = lines.next())
        importLine(splitRecord(*line));
}

void ImportViewController::importLine(const ExchangeTexts& texts)
{
    NSManagedObjectContext& managedObjectContext = catalogueContext();
    theMovieName = texts[movieNameField].toString();
    theYear = texts[yearReleasedField].toString();
    fetchResults(managedObjectContext);
    mergeLine(texts, managedObjectContext);
    if (const Status saved = managedObjectContext.save(); !saved)
        console(saved.error().localizedDescription);
}

void ImportViewController::fetchResults(NSManagedObjectContext& managedObjectContext)
{
    NSFetchRequest request = Movies::fetchRequest();
    request.setReturnsObjectsAsFaults(false);
    request.predicate =
        NSCompoundPredicate::andPredicate({NSPredicate(QStringLiteral("movieName == %@"), theMovieName),
                                           NSPredicate(QStringLiteral("yearReleased == %@"), theYear)});
    auto fetched = managedObjectContext.fetch<Movies>(request);
    // The movies of the line before stand in for those that could not be fetched.
    if (!fetched)
        return;
    results = std::move(fetched).value();
    resultCount = results.size();
}

void ImportViewController::mergeLine(const ExchangeTexts& texts, NSManagedObjectContext& managedObjectContext)
{
    if (resultCount > 1)
        return;
    const bool isNew = resultCount == 0;
    const auto readings = readRecord(texts, isNew ? ImportTarget::NewMovie : ImportTarget::ExistingMovie);
    // Before the movie is made: nothing of this line may come into the catalogue.
    if (!readings)
        fatalError(QStringLiteral("Import of the movie \"%1\": %2")
                       .arg(theMovieName, readings.error().localizedDescription));
    setReadings(isNew ? *managedObjectContext.insert<Movies>() : *results.front(), readings.value());
}

void ImportViewController::showResult()
{
    const QString message = wrongFile.value_or(true)
                                ? filename + QStringLiteral(" Is The Incorrect Import File")
                                : QStringLiteral("Data Import Completed");
    showAlert(message, [this] { performSegue(QStringLiteral("unwindToMenu")); });
}

void ImportViewController::showAlert(const QString& message, std::function<void()> whenClosed)
{
    present(UIAlertController::withOk(QStringLiteral("Data Import"), message, std::move(whenClosed)));
}
