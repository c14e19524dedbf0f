#include "platform/services/LinuxDocuments.h"

#include "platform/foundation/Background.h"
#include "platform/services/DialogStacking.h"
#include "platform/services/FileBytes.h"

#include <QFileDialog>
#include <QGuiApplication>
#include <QStandardPaths>

LinuxDocuments::~LinuxDocuments()
{
    cancelPicking();
}

void LinuxDocuments::pickDocument(const Request& request, Picked picked)
{
    QFileDialog& opened = newDialog(request.title, [tell = std::move(picked)](const QList<QUrl>& chosen) {
        tell(chosen.isEmpty() ? std::nullopt : std::optional(chosen.first()));
    });
    opened.setFileMode(QFileDialog::ExistingFile);
    if (!request.nameFilters.isEmpty())
        opened.setNameFilters(request.nameFilters);
    opened.open();
}

void LinuxDocuments::saveDocument(const QString& name, std::shared_ptr<QIODevice> content, Saved saved)
{
    const auto save = [this, content = std::move(content),
                       saved = std::move(saved)](const QList<QUrl>& chosen) {
        if (chosen.isEmpty())
            return;
        // In order, so that the file chosen twice holds what was saved last.
        background(Pool::inOrder(), [content, path = chosen.first().toLocalFile()] {
            return saveBytes(*content, path);
        }).then(works, [saved](const Status& written) { saved(problemOf(written)); });
    };
    QFileDialog& opened = newDialog(QStringLiteral("Save to Files"), save);
    opened.setAcceptMode(QFileDialog::AcceptSave);
    opened.selectFile(name);
    opened.open();
}

void LinuxDocuments::cancelPicking()
{
    if (!dialog)
        return;
    dialog->disconnect();
    dialog->close();
    dialog.clear();
}

QFileDialog& LinuxDocuments::newDialog(const QString& title, Answered answered)
{
    if (dialog)
        dialog->reject();
    cancelPicking();
    QWindow* window = QGuiApplication::focusWindow();
    dialog =
        new QFileDialog(nullptr, title, QStandardPaths::writableLocation(QStandardPaths::DocumentsLocation));
    dialog->setAttribute(Qt::WA_DeleteOnClose);
    dialog->setSupportedSchemes({QStringLiteral("file")});
    stackAbove(*dialog, window);
    QObject::connect(dialog, &QFileDialog::finished, dialog,
                     [this, &finished = *dialog, tell = std::move(answered)](int result) {
                         // What is told may open the next dialog.
                         dialog.clear();
                         tell(result == QDialog::Accepted ? finished.selectedUrls() : QList<QUrl>());
                     });
    return *dialog;
}
