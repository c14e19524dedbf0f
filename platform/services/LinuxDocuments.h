#pragma once

#include "platform/services/Documents.h"

#include <QPointer>

class QFileDialog;

// The desktop's file dialog where it has one, else Qt's own.
class LinuxDocuments : public Documents
{
public:
    ~LinuxDocuments() override;

    void pickDocument(const Request& request, Picked picked) override;
    void cancelPicking() override;
    void saveDocument(const QString& name, std::shared_ptr<QIODevice> content, Saved saved) override;

private:
    // Empty: cancelled.
    using Answered = std::function<void(const QList<QUrl>& chosen)>;
    // A dialog that is still open counts as cancelled. The new one is not shown yet; it destroys itself.
    QFileDialog& newDialog(const QString& title, Answered answered);

    QPointer<QFileDialog> dialog;
    // Owns the handlers of files that are being written.
    QObject works;
};
