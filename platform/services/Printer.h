#pragma once

#include "platform/foundation/Result.h"
#include "platform/toolkit/NSAttributedString.h"

#include <QImage>
#include <functional>
#include <variant>

// The path of a PDF file, which is printed as it stands.
struct PrintableFile
{
    QString path;
};

// A text is laid out anew for the printer's page, a picture fills as much of it as it can.
using PrintContent = std::variant<NSAttributedString, QImage, PrintableFile>;

struct PrintJob
{
    // What the queue shows, and what a file is suggested to be called.
    QString name;
    // A file must stay until the job is told.
    PrintContent content;
    // Whether the dialog has to ask for the number of copies. It may do so anyway.
    bool showsNumberOfCopies = true;
};

// Paper, through the device's own print dialog. Nothing blocks.
class Printer
{
public:
    virtual ~Printer() = default;

    // Told once, later, on the main thread. Without an error: whether the job was sent rather than cancelled.
    using Told = std::function<void(bool completed, const std::optional<NSError>& error)>;
    // One dialog at a time: a new job cancels one that is still being asked about.
    virtual void print(const PrintJob& job, Told told) = 0;
    // Takes the dialog away, which cancels its job; none open: does nothing.
    virtual void cancelAsking() = 0;
};
