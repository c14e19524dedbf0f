#pragma once

#include "platform/services/UIActivityViewController.h"

// What the items of a share sheet are to those who do something with them.

using ActivityItems = std::vector<ActivityItem>;

// The texts and web addresses, a line each.
[[nodiscard]] QString wordsOf(const ActivityItems& items);
// The same with the paths of files.
[[nodiscard]] QString linesOf(const ActivityItems& items);
// The first line that says anything, else the name of the first file; empty where there is neither.
[[nodiscard]] QString nameOf(const ActivityItems& items);

[[nodiscard]] QList<QUrl> addressesOf(const ActivityItems& items);
[[nodiscard]] QList<QUrl> filesOf(const ActivityItems& items);
[[nodiscard]] QList<QImage> picturesOf(const ActivityItems& items);

[[nodiscard]] bool hasWords(const ActivityItems& items);
[[nodiscard]] QByteArray pngOf(const QImage& picture);
