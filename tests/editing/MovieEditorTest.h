#pragma once

#include "model/SharedValues.h"
#include "platform/toolkit/UIAlertController.h"
#include "platform/toolkit/UINavigationController.h"
#include "platform/toolkit/UITextInput.h"
#include "tests/support/Catalogue.h"

// Writes down the segues taken, none of which leads away.
class RecordingStoryboard : public UIStoryboard
{
public:
    [[nodiscard]] std::optional<SegueTarget> segue(const UIViewController& /*source*/,
                                                   const QString& identifier) const override
    {
        taken.append(identifier);
        return SegueTarget{nullptr, "unwindToNowhere"};
    }

    void loadView(UIViewController& /*controller*/) override {}

    mutable QStringList taken;
};

// What the tests of both movie editors share.
class MovieEditorTest : public CatalogueTest
{
protected:
    template <typename Screen>
    Screen& pushed()
    {
        navigation.push(std::make_unique<Screen>());
        return static_cast<Screen&>(*navigation.topViewController());
    }

    static void type(UITextInput& input, const QString& text)
    {
        EXPECT_TRUE(input.edit(text)) << qPrintable(text);
    }

    // The only movie there is, as the store has it.
    static std::shared_ptr<Movies> storedMovie()
    {
        EXPECT_FALSE(context().hasChanges());
        const auto movies = storedMovies();
        EXPECT_EQ(movies.size(), 1U);
        return movies.empty() ? nullptr : movies.front();
    }

    // "title: message" of the alert shown, which is closed; empty: none is.
    static QString closedAlert(UIViewController& screen)
    {
        auto* alert = qobject_cast<UIAlertController*>(screen.presentedViewController());
        if (alert == nullptr)
            return {};
        EXPECT_EQ(alert->actionTitles(), QStringList("OK"));
        alert->choose(0);
        return alert->title() + ": " + alert->message();
    }

    RecordingStoryboard storyboard;
    UINavigationController navigation{storyboard};
};
