#include "platform/services/ActivityActions.h"
#include "platform/services/UIPrintInteractionController.h"
#include "platform/toolkit/UIAlertController.h"
#include "platform/toolkit/UIBarButtonItem.h"

#include <QPointer>

namespace {

// Points: what is wider would be cut off.
constexpr int widestPicture = 360;

QString printableFile(const ActivityItems& items)
{
    for (const QUrl& file : filesOf(items))
        if (file.fileName().endsWith(QStringLiteral(".pdf"), Qt::CaseInsensitive))
            return file.toLocalFile();
    return {};
}

NSAttributedString textWithPictures(const QString& words, const QList<QImage>& pictures)
{
    NSAttributedString text(words);
    for (const QImage& picture : pictures) {
        QSizeF size = picture.size();
        if (size.width() > widestPicture)
            size.scale(widestPicture, size.height(), Qt::KeepAspectRatio);
        text.append(QStringLiteral("\n"));
        text.append({.encoded = {}, .image = picture, .size = size});
    }
    return text;
}

PrintContent contentToPrint(const ActivityItems& items)
{
    const QString file = printableFile(items);
    if (!file.isEmpty())
        return PrintableFile{file};
    const QString words = wordsOf(items);
    const QList<QImage> pictures = picturesOf(items);
    if (words.isEmpty() && pictures.size() == 1)
        return pictures.first();
    return textWithPictures(words, pictures);
}

} // namespace

bool isPrintable(const ActivityItems& items)
{
    return !printableFile(items).isEmpty() || !picturesOf(items).isEmpty() ||
           std::any_of(items.begin(), items.end(),
                       [](const ActivityItem& item) { return std::holds_alternative<QString>(item); });
}

void printOnPaper(const ActivityItems& items, UIViewController& presenter)
{
    auto& printing = UIPrintInteractionController::sharedPrintController();
    const QString name = nameOf(items);
    printing.printInfo = {};
    if (!name.isEmpty())
        printing.printInfo.jobName = name;
    printing.showsNumberOfCopies = true;
    printing.printFormatter = UIPrintFormatter(contentToPrint(items));
    const auto tell = [screen = QPointer(&presenter)](bool /*completed*/,
                                                      const std::optional<NSError>& error) {
        if (screen && error)
            screen->present(UIAlertController::withOk(QStringLiteral("Print"), error->localizedDescription));
    };
    if (!printing.present(true, tell))
        tell(false, NSError{QStringLiteral("Something else is being printed. Try again after that."), {}});
}
