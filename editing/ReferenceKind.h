#pragma once

#include "model/SharedValues.h"

// What tells one of the three reference lists from the others. Two members stand out: the genres' header
// counts in the singular, and the providers call an empty field by the ratings' name.
struct ReferenceKind
{
    QString entityName;
    QString attribute;
    // The list's title, and what one of its values is called.
    QString pluralName;
    QString singularName;
    // The number of values follows it.
    QString headerPrefix;
    QString addTitle;
    QString editTitle;
    QString emptyFieldMessage;
    // The action that saves a changed value.
    QString editAction;
    // Leads from a value back to its list.
    QString unwindSegue;
    // Where the value last tapped in the list is kept.
    QString SharedValues::*chosenValue;
};

[[nodiscard]] const ReferenceKind& genreKind();
[[nodiscard]] const ReferenceKind& providerKind();
[[nodiscard]] const ReferenceKind& ratingKind();
