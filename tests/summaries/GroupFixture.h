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

    // The groups must be there before.
    GroupTableViewController& opened(Tab tab)
    {
        if (tabs == nullptr) {
            auto bar = std::make_unique<GroupTabBarController>();
            tabs = bar.get();
            navigation.push(std::make_unique<UIViewController>());
            navigation.push(std::move(bar));
        }
        tabs->setSelectedIndex(tab);
        return static_cast<GroupTableViewController&>(*tabs->stack(tab)->topViewController());
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

    PlainStoryboard storyboard;
    UINavigationController navigation{storyboard};
    UITabBarController* tabs = nullptr;
};
