#pragma once

#include <QIODevice>
#include <QString>
#include <QStringList>
#include <QUrl>
#include <functional>
#include <memory>
#include <optional>

// The user's files, reached through the desktop's own file dialogs. Nothing blocks: the outcome is told
// later, on the main thread, once per call. One dialog at a time: a new one cancels what is open.
class Documents
{
public:
    virtual ~Documents() = default;

    struct Request
    {
        QString title;
        // Such as "Images (*.png *.jpg)"; the last one lets every file through. Empty: every file.
        QStringList nameFilters;
    };
    // Absent: cancelled.
    using Picked = std::function<void(std::optional<QUrl>)>;
    virtual void pickDocument(const Request& request, Picked picked) = 0;
    // Takes the dialog away, untold; none open: does nothing.
    virtual void cancelPicking() = 0;

    // Empty on success; otherwise a message that can be shown to the user.
    using Saved = std::function<void(const QString& problem)>;
    // Asks where to save `content`, suggesting `name`, and writes it there on another thread, whole or not at
    // all. `content` must be open for reading; it is read from where it stands, and nobody else may use it
    // any more. `saved` is not called if the dialog is cancelled. The end of the program waits for what is
    // being written.
    virtual void saveDocument(const QString& name, std::shared_ptr<QIODevice> content, Saved saved) = 0;
};
