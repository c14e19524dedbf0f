#include "platform/services/PdfRendering.h"

#include "platform/toolkit/TextDocument.h"

#include <QFile>
#include <QPainter>
#include <QPdfWriter>

namespace {

void drawPicture(const QImage& picture, QPdfWriter& pages)
{
    QPainter painter(&pages);
    const QSize size = picture.size().scaled(painter.viewport().size(), Qt::KeepAspectRatio);
    QRect place(QPoint(), size);
    place.moveCenter(painter.viewport().center());
    painter.drawImage(place, picture);
}

} // namespace

Status renderPdf(const PrintContent& content, const PageSetup& setup, const QString& title,
                 const QString& path)
{
    QFile file(path);
    if (!file.open(QIODevice::WriteOnly, QFileDevice::ReadOwner | QFileDevice::WriteOwner))
        return NSError{file.errorString(), {}};
    {
        QPdfWriter pages(&file);
        pages.setCreator(QStringLiteral("Marrowvale"));
        pages.setTitle(title);
        pages.setPageLayout(setup.layout);
        pages.setPageRanges(setup.wanted);
        if (const auto* text = std::get_if<NSAttributedString>(&content))
            textDocument(*text)->print(&pages);
        else
            drawPicture(std::get<QImage>(content), pages);
    }
    if (!file.flush() || file.error() != QFileDevice::NoError)
        return NSError{file.errorString(), {}};
    return success();
}
