#include "summaries/GroupKind.h"

const GroupKind& genreGroups()
{
    static const GroupKind kind{.tab = 0,
                                .tabTitle = QStringLiteral("Genre"),
                                .tabImage = QStringLiteral("book"),
                                .title = QStringLiteral("Genres"),
                                .attribute = QStringLiteral("genre"),
                                .placeholder = QStringLiteral("Sort and Search By Genre"),
                                .headerPrefix = QStringLiteral("# Genre's = ")};
    return kind;
}

const GroupKind& dateReleasedGroups()
{
    static const GroupKind kind{.tab = 1,
                                .tabTitle = QStringLiteral("Released"),
                                .tabImage = QStringLiteral("calendar.circle.fill"),
                                .title = QStringLiteral("Years Released"),
                                .attribute = QStringLiteral("yearReleased"),
                                .placeholder = QStringLiteral("Sort and Search By Release Date"),
                                .headerPrefix = QStringLiteral("# Year's = ")};
    return kind;
}

const GroupKind& dateWatchedGroups()
{
    static const GroupKind kind{.tab = 2,
                                .tabTitle = QStringLiteral("Watched"),
                                .tabImage = QStringLiteral("calendar"),
                                .title = QStringLiteral("Dates Watched"),
                                .attribute = QStringLiteral("dateWatched"),
                                .placeholder = QStringLiteral("Sort and Search By Date Watched"),
                                .headerPrefix = QStringLiteral("# Dates Watched = ")};
    return kind;
}

const GroupKind& ratingGroups()
{
    static const GroupKind kind{.tab = 3,
                                .tabTitle = QStringLiteral("Rating"),
                                .tabImage = QStringLiteral("rectangle.and.pencil.and.ellipsis"),
                                .title = QStringLiteral("Ratings"),
                                .attribute = QStringLiteral("rating"),
                                .placeholder = QStringLiteral("Sort and Search By Rating"),
                                .headerPrefix = QStringLiteral("# Ratings = ")};
    return kind;
}

const GroupKind& providerGroups()
{
    static const GroupKind kind{.tab = 4,
                                .tabTitle = QStringLiteral("Provider"),
                                .tabImage = QStringLiteral("photo.tv"),
                                .title = QStringLiteral("Providers"),
                                .attribute = QStringLiteral("provider"),
                                .placeholder = QStringLiteral("Sort and Search By Provider"),
                                // The genres' wording, kept.
                                .headerPrefix = QStringLiteral("# Genre's = ")};
    return kind;
}
