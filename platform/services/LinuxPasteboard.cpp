#include "platform/services/LinuxPasteboard.h"

#include <QClipboard>
#include <QGuiApplication>
#include <QMimeData>

bool LinuxPasteboard::hasImages() const
{
    const QMimeData* content = QGuiApplication::clipboard()->mimeData();
    return content != nullptr && content->hasImage();
}

QImage LinuxPasteboard::image() const
{
    return QGuiApplication::clipboard()->image();
}

void LinuxPasteboard::setString(const QString& text)
{
    QGuiApplication::clipboard()->setText(text);
}

void LinuxPasteboard::setImage(const QImage& image)
{
    QGuiApplication::clipboard()->setImage(image);
}
