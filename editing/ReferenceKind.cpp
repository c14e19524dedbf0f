#include "editing/ReferenceKind.h"

const ReferenceKind& genreKind()
{
    static const ReferenceKind kind{.entityName = QStringLiteral("Genres"),
                                    .attribute = QStringLiteral("genre"),
                                    .pluralName = QStringLiteral("Genres"),
                                    .singularName = QStringLiteral("Genre"),
                                    .headerPrefix = QStringLiteral("# Genre = "),
                                    .addTitle = QStringLiteral("Add Genre"),
                                    .editTitle = QStringLiteral("Edit Genre"),
                                    .emptyFieldMessage = QStringLiteral("Genre not Entered"),
                                    .editAction = QStringLiteral("SaveGenre"),
                                    .unwindSegue = QStringLiteral("unwindToGenreTableView"),
                                    .chosenValue = &SharedValues::selectedGenre};
    return kind;
}

const ReferenceKind& providerKind()
{
    static const ReferenceKind kind{.entityName = QStringLiteral("Providers"),
                                    .attribute = QStringLiteral("name"),
                                    .pluralName = QStringLiteral("Providers"),
                                    .singularName = QStringLiteral("Provider"),
                                    .headerPrefix = QStringLiteral("# Providers = "),
                                    .addTitle = QStringLiteral("Add Provider"),
                                    .editTitle = QStringLiteral("Edit Provider"),
                                    .emptyFieldMessage = QStringLiteral("Rating not Entered"),
                                    .editAction = QStringLiteral("SaveRating"),
                                    .unwindSegue = QStringLiteral("unwindToProviderTableView"),
                                    .chosenValue = &SharedValues::selectedProvider};
    return kind;
}

const ReferenceKind& ratingKind()
{
    static const ReferenceKind kind{.entityName = QStringLiteral("Ratings"),
                                    .attribute = QStringLiteral("rating"),
                                    .pluralName = QStringLiteral("Ratings"),
                                    .singularName = QStringLiteral("Rating"),
                                    .headerPrefix = QStringLiteral("# Ratings = "),
                                    .addTitle = QStringLiteral("Add Rating"),
                                    .editTitle = QStringLiteral("Edit Rating"),
                                    .emptyFieldMessage = QStringLiteral("Rating not Entered"),
                                    .editAction = QStringLiteral("SaveRating"),
                                    .unwindSegue = QStringLiteral("unwindToRatingTableView"),
                                    .chosenValue = &SharedValues::selectedRating};
    return kind;
}
