#pragma once

#include <QString>

// What tells the five group summaries apart, beside how their rows are made.
struct GroupKind
{
    // The place among the tabs, from 0.
    int tab;
    QString tabTitle;
    QString tabImage;
    // Above the list, and below it where the catalogue has nothing to group.
    QString title;
    // The attribute of a movie that groups it.
    QString attribute;
    QString placeholder;
    // Before the number of rows.
    QString headerPrefix;
};

// They live as long as the process.
[[nodiscard]] const GroupKind& genreGroups();
[[nodiscard]] const GroupKind& dateReleasedGroups();
[[nodiscard]] const GroupKind& dateWatchedGroups();
[[nodiscard]] const GroupKind& ratingGroups();
[[nodiscard]] const GroupKind& providerGroups();
