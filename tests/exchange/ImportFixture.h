#pragma once

#include "exchange/ImportViewController.h"
#include "platform/toolkit/UIAlertController.h"
#include "platform/toolkit/UINavigationController.h"
#include "tests/support/Catalogue.h"

// The import screen in a navigation stack, its segues noted down.
class ImportTest : public CatalogueTest
{
protected:
    class NotedSegues : public UIStoryboard
    {
    public:
        [[nodiscard]] std::optional<SegueTarget> segue(const UIViewController& /*source*/,
                                                       const QString& identifier) const override
        {
            performed.append(identifier);
            return SegueTarget{[] { return std::make_unique<UIViewController>(); }, {}};
        }
        void loadView(UIViewController& /*controller*/) override {}

        mutable QStringList performed;
    };

    ImportTest()
    {
        auto made = std::make_unique<ImportViewController>();
        screen = made.get();
        navigation.push(std::move(made));
    }

    // One run on a screen that did not run before.
    static void importText(const QString& text)
    {
        ImportViewController importing;
        importing.document = text;
        importing.ImportTextFile();
    }
    static void importLines(const QStringList& linesAfterTheHeader)
    {
        importText((QStringList("[MARROWVALE]") + linesAfterTheHeader).join('\n'));
    }

    // The one film of that name.
    static std::shared_ptr<Movies> film(const QString& name)
    {
        NSFetchRequest request = Movies::fetchRequest();
        request.predicate = NSPredicate("movieName == %@", name);
        const auto found = context().fetch<Movies>(request).value();
        EXPECT_EQ(found.size(), 1U) << qPrintable(name);
        return found.empty() ? nullptr : found.front();
    }

    // Title and message of what the screen shows on top, "" when nothing; then the user closes it.
    QString closedAlert()
    {
        auto* alert = qobject_cast<UIAlertController*>(screen->presentedViewController());
        if (alert == nullptr)
            return {};
        const QString shown =
            alert->title() + ": " + alert->message() + " [" + alert->actionTitles().join(' ') + "]";
        alert->choose(0);
        return shown;
    }

    NotedSegues storyboard;
    UINavigationController navigation{storyboard};
    ImportViewController* screen;
};
