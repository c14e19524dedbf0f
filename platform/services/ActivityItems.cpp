#include "platform/services/ActivityItems.h"

#include <QBuffer>

namespace {

template <typename Item>
QList<Item> itemsOfType(const ActivityItems& items)
{
    QList<Item> found;
    for (const ActivityItem& item : items)
        if (const auto* one = std::get_if<Item>(&item))
            found.append(*one);
    return found;
}

bool isFile(const ActivityItem& item)
{
    const auto* address = std::get_if<QUrl>(&item);
    return address != nullptr && address->isLocalFile();
}

bool isWords(const ActivityItem& item)
{
    return !isFile(item) && !std::holds_alternative<QImage>(item);
}

QString lineOf(const ActivityItem& item)
{
    if (const auto* text = std::get_if<QString>(&item))
        return *text;
    const QUrl& address = std::get<QUrl>(item);
    return address.isLocalFile() ? address.toLocalFile() : address.toString();
}

QString joinedLines(const ActivityItems& items, bool (*isWanted)(const ActivityItem&))
{
    QStringList lines;
    for (const ActivityItem& item : items)
        if (isWanted(item))
            lines.append(lineOf(item));
    return lines.join(QLatin1Char('\n'));
}

} // namespace

QString wordsOf(const ActivityItems& items)
{
    return joinedLines(items, isWords);
}

QString linesOf(const ActivityItems& items)
{
    return joinedLines(items, [](const ActivityItem& item) { return isWords(item) || isFile(item); });
}

QString nameOf(const ActivityItems& items)
{
    constexpr qsizetype longestName = 100;
    const QString words = wordsOf(items).trimmed();
    if (!words.isEmpty())
        return words.left(words.indexOf(QLatin1Char('\n'))).left(longestName);
    const QList<QUrl> files = filesOf(items);
    return files.isEmpty() ? QString() : files.first().fileName();
}

QList<QUrl> addressesOf(const ActivityItems& items)
{
    return itemsOfType<QUrl>(items);
}

QList<QUrl> filesOf(const ActivityItems& items)
{
    QList<QUrl> files = addressesOf(items);
    files.removeIf([](const QUrl& address) { return !address.isLocalFile(); });
    return files;
}

QList<QImage> picturesOf(const ActivityItems& items)
{
    return itemsOfType<QImage>(items);
}

bool hasWords(const ActivityItems& items)
{
    return std::any_of(items.begin(), items.end(), isWords);
}

QByteArray pngOf(const QImage& picture)
{
    QBuffer buffer;
    picture.save(&buffer, "PNG");
    return buffer.data();
}
