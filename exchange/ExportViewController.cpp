#include "exchange/ExportViewController.h"

#include "exchange/ExchangeButton.h"
#include "exchange/TemporaryFile.h"
#include "model/AppDelegate.h"
#include "platform/foundation/Background.h"
#include "platform/foundation/Console.h"
#include "platform/foundation/DispatchQueue.h"
#include "platform/services/UIActivityViewController.h"
#include "platform/toolkit/UIAlertController.h"

#include <QPointer>

namespace {

using namespace std::chrono_literals;

const QString exchangeFileName = QStringLiteral("Marrowvale.csv");

const std::vector<UIActivityViewController::ActivityType>& activitiesOtherThanSaving()
{
    using Type = UIActivityViewController::ActivityType;
    static const std::vector<Type> types{Type::AirDrop,     Type::AddToReadingList, Type::Mail,
                                         Type::Message,     Type::PostToFacebook,   Type::PostToTwitter,
                                         Type::MarkupAsPDF, Type::CopyToPasteboard, Type::Print};
    return types;
}

ExchangeBuilder::MovieRecords allMovies()
{
    auto fetched = AppDelegate::shared().persistentContainer().viewContext().fetch<Movies>(exchangeRequest());
    if (fetched)
        return std::move(fetched).value();
    console(fetched.error().localizedDescription);
    return {};
}

} // namespace

void ExportViewController::viewDidLoad()
{
    setTitle(QStringLiteral("Export Movies"));
    for (UIButton* button : {ExportButton, SaveButton, EmailButton})
        styleExchangeButton(*button);
    SaveButton->setEnabled(false);
    EmailButton->setEnabled(false);
    HelpTextView->setEditable(false);
    HelpTextView->setText(QStringLiteral(
        "Step 1: Create the Export File\n"
        "Step 2: Option 1: Click 'Save To Files' button\n"
        "Option 2: Click the Email File button to email the file to yourself and then from your "
        "email save the file to your iCloud Drive. There are size limits to email attachments for "
        "most carriers."));
}

void ExportViewController::CreateUpdateFile()
{
    activityIndicator->startAnimating();
    ExportButton->setEnabled(false);
    ExportTextView->setText({});
    theEntryList = allMovies();
    ProgressView->setProgress(0);
    progress.completedUnitCount = 0;
    builder.start(
        theEntryList, [this] { showStep(); }, [this](const Result<QString>& file) { showFile(file); });
}

void ExportViewController::showStep()
{
    ++progress.completedUnitCount;
    ProgressView->setProgress(progress.fractionCompleted());
}

void ExportViewController::showFile(const Result<QString>& file)
{
    if (!file)
        fatalError(QStringLiteral("The cover of \"%1\" is no picture")
                       .arg(file.error().userInfo.value(QStringLiteral("movieName")).toString()));
    DataString = file.value();
    ExportTextView->setText(*DataString);
    EmailButton->setEnabled(true);
    SaveButton->setEnabled(true);
    const auto later = [](std::chrono::milliseconds delay, auto act) {
        DispatchQueue::main().asyncAfter(delay, act);
    };
    later(1ms, [screen = QPointer(this)] {
        if (screen)
            screen->activityIndicator->stopAnimating();
    });
    later(1s, [screen = QPointer(this)] {
        if (screen)
            screen->announceFile();
    });
}

void ExportViewController::announceFile()
{
    present(
        UIAlertController::withOk(QStringLiteral("Data Export"),
                                  QStringLiteral("Process Complete - File Ready to Save To Files or Email")));
}

void ExportViewController::SaveToFiles()
{
    if (activityIndicator->isAnimating())
        return;
    activityIndicator->startAnimating();
    const QString path = temporaryFilePath(exchangeFileName);
    background(Pool::inOrder(), [path, text = DataString.value_or(QString())] {
        return writeTemporaryFile(path, text);
    }).then(*this, [this, path](const Status& /*written*/) {
        // A failure to write isn't reported. The sheet's activities then find no file and say so.
        activityIndicator->stopAnimating();
        present(std::make_unique<UIActivityViewController>(
            std::vector<ActivityItem>{QUrl::fromLocalFile(path)}, activitiesOtherThanSaving()));
    });
}

void ExportViewController::WriteTextFile()
{
    if (activityIndicator->isAnimating())
        return;
    activityIndicator->startAnimating();
    const QString path = temporaryFilePath(exchangeFileName);
    background(Pool::inOrder(), [path, text = ExportTextView->text()] {
        return rewrittenTemporaryFile(path, text);
    }).then(*this, [this, path](const std::optional<QString>& written) {
        activityIndicator->stopAnimating();
        if (written)
            ExportTextView->setText(*written);
        if (!MFMailComposeViewController::canSendMail())
            present(UIAlertController::withOk(QStringLiteral("Sending Email"),
                                              QStringLiteral("Email not Setup or Unavailable")));
        else if (written)
            composeMail(path);
    });
}

void ExportViewController::composeMail(const QString& path)
{
    auto composer = std::make_unique<MFMailComposeViewController>();
    composer->setMailComposeDelegate(this);
    composer->setSubject(QStringLiteral("Marrowvale Update Text File"));
    composer->setMessageBody(QStringLiteral("Attachment: Marrowvale Text File"), false);
    composer->addAttachmentFile(QUrl::fromLocalFile(path), QStringLiteral("csv"));
    present(std::move(composer));
}

void ExportViewController::mailComposeController(MFMailComposeViewController& /*controller*/,
                                                 MFMailComposeResult /*result*/)
{
    dismiss();
}
