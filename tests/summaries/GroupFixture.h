#pragma once

#include "summaries/GroupScreens.h"
#include "summaries/GroupTabBarController.h"
#include "summaries/GroupTableViewCell.h"
#include "tests/support/Catalogue.h"
#include "tests/support/PlainStoryboard.h"

// A catalogue seen through the tabs of its groups.
class GroupTest : public CatalogueTest
{
protected:
    enum Tab { Genre, Released, Watched, Rating, Provider };

    static std::shared_ptr<Movies> shownBy(const std::optional<QString>& provider, const QString& name = "m")
    {
        const auto movie = given({.name = name});
        movie->setProvider(provider);
        EXPECT_TRUE(context().save().ok());
        return movie;
    }

    static QDateTime noon(int year, int month, int day)
    {
        return QDateTime(QDate(year, month, day), QTime(12, 0));
    }

    // The groups must be there before.
    template <typename Screen = GroupTableViewController>
    Screen& opened(Tab tab)
    {
        if (tabs == nullptr) {
            auto bar = std::make_unique<GroupTabBarController>();
            tabs = bar.get();
            navigation.push(std::make_unique<UIViewController>());
            navigation.push(std::move(bar));
        }
        tabs->setSelectedIndex(tab);
        return static_cast<Screen&>(*tabs->stack(tab)->topViewController());
    }

    // "label count" for each row.
    static QStringList rows(GroupTableViewController& screen)
    {
        QStringList texts;
        for (int row = 0; row < screen.tableView()->rowCount(); ++row) {
            const auto cell = screen.cellForRowAt({row}).value<GroupTableViewCell>();
            texts.append(cell.MovieNameLabel.text + " " + cell.CountLabel.text);
        }
        return texts;
    }

    static void search(GroupTableViewController& screen, const QString& text)
    {
        screen.searchController->searchBar()->setText(text);
    }

    static QString header(GroupTableViewController& screen) { return screen.viewForHeaderInSection(0)->text; }

    PlainStoryboard storyboard;
    UINavigationController navigation{storyboard};
    UITabBarController* tabs = nullptr;
};
