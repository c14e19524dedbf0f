#include "platform/services/LinuxPrinter.h"

#include "platform/foundation/Background.h"
#include "platform/services/Device.h"
#include "platform/services/DialogStacking.h"
#include "platform/services/FileBytes.h"
#include "platform/services/MailText.h"
#include "platform/services/PdfRendering.h"
#include "platform/services/PendingPrint.h"
#include "platform/services/PrintTarget.h"
#include "platform/services/Spooler.h"

#include <QGuiApplication>
#include <QLineEdit>
#include <QLocale>
#include <QPrintDialog>
#include <QPrinter>

namespace {

QPageLayout pageOfTheCountry()
{
    const bool usesLetter = QLocale().measurementSystem() == QLocale::ImperialUSSystem;
    return {QPageSize(usesLetter ? QPageSize::Letter : QPageSize::A4), QPageLayout::Portrait,
            QMarginsF(10, 10, 10, 10), QPageLayout::Millimeter};
}

QString fileNameFor(const QString& job)
{
    const QString ending = QStringLiteral(".pdf");
    const QString name = harmlessFileName(job);
    return name.endsWith(ending, Qt::CaseInsensitive) ? name : name + ending;
}

// Qt 6.4's dialog asks its printer for the pages that are typed before it hands them over, and refuses all.
void takePagesAsTyped(QPrintDialog& dialog)
{
    const auto* typed = dialog.findChild<QLineEdit*>(QStringLiteral("pagesLineEdit"));
    if (typed != nullptr)
        QObject::connect(typed, &QLineEdit::textChanged, &dialog, [&dialog](const QString& pages) {
            dialog.printer()->setPageRanges(QPageRanges::fromString(pages));
        });
}

} // namespace

LinuxPrinter::LinuxPrinter(std::chrono::milliseconds patience)
    : patience(patience)
{
}

LinuxPrinter::~LinuxPrinter()
{
    closeDialog();
}

void LinuxPrinter::print(const PrintJob& job, Told told)
{
    cancelAsking();
    asking = std::make_shared<PendingPrint>(job, std::move(told));
    askForQueues(works, patience, [this, asked = std::weak_ptr(asking)](bool hasQueues) {
        if (asked.expired())
            return;
        if (hasQueues)
            openDialog();
        else
            offerAsFile(std::exchange(asking, nullptr));
    });
}

void LinuxPrinter::cancelAsking()
{
    if (!offered.expired()) {
        offered.reset();
        Device::current().documents->cancelPicking();
    }
    closeDialog();
}

void LinuxPrinter::closeDialog()
{
    // Told last: what is told may print again.
    const Job cancelled = std::exchange(asking, nullptr);
    if (dialog)
        dialog->reject();
}

void LinuxPrinter::openDialog()
{
    QWindow* window = QGuiApplication::focusWindow();
    const auto printer = std::make_shared<QPrinter>(QPrinter::HighResolution);
    printer->setDocName(harmlessFileName(asking->job.name));
    dialog = new QPrintDialog(printer.get());
    dialog->setAttribute(Qt::WA_DeleteOnClose);
    // Of a file that stands, the queue chooses pages, and there is no other file to make.
    const bool isFile = std::holds_alternative<PrintableFile>(asking->job.content);
    dialog->setOption(QAbstractPrintDialog::PrintPageRange, !isFile);
    dialog->setOption(QAbstractPrintDialog::PrintToFile, !isFile);
    takePagesAsTyped(*dialog);
    stackAbove(*dialog, window);
    QObject::connect(dialog, &QDialog::finished, &works, [this, printer](int result) {
        dialog.clear();
        const Job job = std::exchange(asking, nullptr);
        if (job && result == QDialog::Accepted)
            send(job, PrintTarget::of(*printer));
    });
    dialog->open();
}

void LinuxPrinter::send(const Job& job, const PrintTarget& target)
{
    withPages(job, target.pages, [this, job, target](const QString& pages) {
        const auto told = [job](const QString& problem) { job->end(problem); };
        if (target.file.isEmpty())
            spool(works, target, job->job.name, pages, told);
        else
            background(Pool::inOrder(), [pages, file = target.file] {
                return copyFile(pages, file);
            }).then(works, [told](const Status& copied) { told(problemOf(copied)); });
    });
}

void LinuxPrinter::offerAsFile(const Job& job)
{
    offered = job;
    withPages(job, {.layout = pageOfTheCountry()}, [this, job](const QString& path) {
        if (offered.lock() != job)
            return; // cancelled meanwhile
        const auto pages = openFile(path);
        if (!pages) {
            job->end(problemOf(pages));
            return;
        }
        // A cancelled dialog doesn't call the handler, but releases the job.
        Device::current().documents->saveDocument(fileNameFor(job->job.name), pages.value(),
                                                  [job](const QString& problem) { job->end(problem); });
    });
}

void LinuxPrinter::withPages(const Job& job, const PageSetup& setup,
                             const std::function<void(const QString&)>& then)
{
    if (const auto* file = std::get_if<PrintableFile>(&job->job.content)) {
        then(file->path);
        return;
    }
    const QString path = job->folder() + QStringLiteral("/pages.pdf");
    const auto render = [content = job->job.content, setup, name = job->job.name, path] {
        return renderPdf(content, setup, name, path);
    };
    background(Pool::allCores(), render).then(works, [job, path, then](const Status& rendered) {
        if (rendered)
            then(path);
        else
            job->end(problemOf(rendered));
    });
}
