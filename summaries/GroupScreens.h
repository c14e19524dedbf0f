#pragma once

#include "platform/foundation/Calendar.h"
#include "platform/foundation/DateFormatter.h"
#include "summaries/DateGroupTableViewController.h"
#include "summaries/TextGroupTableViewController.h"

#include <QHash>

// The five group summaries.

class GenreGroupTableViewController : public TextGroupTableViewController
{
    Q_OBJECT

public:
    GenreGroupTableViewController();

    // Draws the symbols of all five tabs: this is the tab shown first.
    void viewDidLoad() override;

    QStringList& GenreList = keys;
    QStringList& FilteredGenreList = filteredKeys;
};

class RatingGroupTableViewController : public TextGroupTableViewController
{
    Q_OBJECT

public:
    RatingGroupTableViewController();

    QStringList& RatingList = keys;
    QStringList& FilteredRatingList = filteredKeys;
};

class ProviderGroupTableViewController : public TextGroupTableViewController
{
    Q_OBJECT

public:
    ProviderGroupTableViewController();

    QStringList& ProviderList = keys;
    QStringList& FilteredProviderList = filteredKeys;
};

class DateReleasedGroupTableViewController : public DateGroupTableViewController
{
    Q_OBJECT

public:
    DateReleasedGroupTableViewController();

    void didSelectRowAt(const NSIndexPath& indexPath) override;

protected:
    [[nodiscard]] QString labelOfRow(std::size_t row) const override;
    [[nodiscard]] NSPredicate membersOfRow(std::size_t row) const override;
    [[nodiscard]] std::optional<QString> keyOf(const Movies& movie) override;
    [[nodiscard]] bool matches(const Movies& movie, const QString& searchText) const override;
    [[nodiscard]] bool precedes(const Movies& left, const Movies& right) const override;
};

// A row for each month, though it tells its year alone, and counts the movies of the whole year.
class DateWatchedGroupTableViewController : public DateGroupTableViewController
{
    Q_OBJECT

public:
    DateWatchedGroupTableViewController();

    void didSelectRowAt(const NSIndexPath& indexPath) override;

protected:
    [[nodiscard]] bool tellsOfFailedFetch() const override { return false; }
    [[nodiscard]] QString labelOfRow(std::size_t row) const override;
    [[nodiscard]] NSPredicate membersOfRow(std::size_t row) const override;
    [[nodiscard]] std::optional<QString> keyOf(const Movies& movie) override;
    [[nodiscard]] bool matches(const Movies& movie, const QString& searchText) const override;
    [[nodiscard]] bool precedes(const Movies& left, const Movies& right) const override;

private:
    Calendar calendar = Calendar::current();
    DateFormatter monthFormatter;
    DateFormatter yearFormatter;
    // The text of each month met, by year and month: formatting every movie's date would take long.
    QHash<std::pair<int, int>, QString> monthTexts;
};
