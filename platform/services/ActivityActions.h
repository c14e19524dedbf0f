#pragma once

#include "platform/services/ActivityItems.h"

// What the activities of a share sheet do with its items. What fails is said in an alert on `presenter`.

void copyToPasteboard(const ActivityItems& items, UIViewController& presenter);
// A file stands for itself, a picture without words for a picture; anything else becomes a text.
void saveToFiles(const ActivityItems& items, UIViewController& presenter);
// Words become the body; files and pictures are attached.
void sendByMail(const ActivityItems& items, UIViewController& presenter);
void sendAsMessage(const ActivityItems& items, UIViewController& presenter);
// A PDF file is printed as it stands and alone, a picture without words as a picture; else words and pictures
// become a text.
void printOnPaper(const ActivityItems& items, UIViewController& presenter);
// Each file and web address in the program for it.
void openElsewhere(const ActivityItems& items, UIViewController& presenter);

// Whether printOnPaper() has anything to print.
[[nodiscard]] bool isPrintable(const ActivityItems& items);
