#pragma once

#include "model/SharedValues.h"
#include "summaries/GroupTableViewController.h"

// Groups by a text: one row for each text that movies have, the empty one too.
class TextGroupTableViewController : public GroupTableViewController
{
    Q_OBJECT

public:
    void didSelectRowAt(const NSIndexPath& indexPath) override;

protected:
    // The members under which a tap tells the group, and the attribute that holds it.
    TextGroupTableViewController(const GroupKind& groupKind, Movies::Attribute attribute,
                                 QString MovieFields::*chosen);

    void groupMovies() override;
    void filterRows(const QString& text) override;
    void unfilterRows() override { filteredKeys = keys; }
    void sortFilteredRows() override { sort(filteredKeys); }
    [[nodiscard]] qsizetype shownRows() const override { return shownKeys().size(); }
    [[nodiscard]] QString labelOfRow(std::size_t row) const override;
    [[nodiscard]] NSPredicate membersOfRow(std::size_t row) const override;

    // Each subclass shows them under names of its own.
    QStringList keys;
    QStringList filteredKeys;

private:
    [[nodiscard]] const QStringList& shownKeys() const { return isSearching() ? filteredKeys : keys; }
    void sort(QStringList& list) const;

    const Movies::Attribute attribute;
    QString MovieFields::*const chosen;
};
