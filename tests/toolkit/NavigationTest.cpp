#include "platform/toolkit/UIAlertController.h"
#include "platform/toolkit/UIBarButtonItem.h"
#include "platform/toolkit/UINavigationController.h"

#include <QCoreApplication>
#include <QPointer>
#include <gmock/gmock.h>
#include <gtest/gtest.h>

namespace {

QStringList journal;

class Page : public UIViewController
{
    Q_OBJECT

public:
    explicit Page(QString name)
        : name(std::move(name))
    {
    }

    void viewDidLoad() override { note(QStringLiteral("load")); }
    void viewWillAppear(bool /*animated*/) override { note(QStringLiteral("appear")); }
    void viewDidDisappear(bool /*animated*/) override { note(QStringLiteral("disappear")); }
    void prepareForSegue(const UIStoryboardSegue& segue) override
    {
        note(QStringLiteral("prepare ") + segue.identifier);
    }

    const QString name;

protected:
    void note(const QString& event) const { journal.append(name + QStringLiteral(" ") + event); }
};

class Hub : public Page
{
    Q_OBJECT

public:
    using Page::Page;

    Q_INVOKABLE void unwindToHubWithSegue(const UIStoryboardSegue& segue)
    {
        note(QStringLiteral("unwound from ") + static_cast<Page*>(segue.source)->name);
    }
};

// Any page leads to "leaf"; "back" unwinds to the nearest hub.
class Pages : public UIStoryboard
{
public:
    [[nodiscard]] std::optional<SegueTarget> segue(const UIViewController& /*source*/,
                                                   const QString& identifier) const override
    {
        if (identifier == QStringLiteral("leaf"))
            return SegueTarget{[] { return std::make_unique<Page>(QStringLiteral("leaf")); }, {}};
        if (identifier == QStringLiteral("back"))
            return SegueTarget{nullptr, QStringLiteral("unwindToHubWithSegue")};
        return std::nullopt;
    }

    void loadView(UIViewController& controller) override
    {
        journal.append(static_cast<Page&>(controller).name + QStringLiteral(" layout"));
    }
};

class NavigationTest : public testing::Test
{
protected:
    NavigationTest()
    {
        journal.clear();
        navigation.push(std::make_unique<Hub>(QStringLiteral("hub")));
    }

    static QStringList takeJournal() { return std::exchange(journal, {}); }

    Pages pages;
    UINavigationController navigation{pages};
};

TEST_F(NavigationTest, ASegueLoadsTheLayoutFirstAndTellsBothScreens)
{
    EXPECT_EQ(takeJournal(), QStringList({"hub layout", "hub load", "hub appear"}));
    navigation.topViewController()->performSegue(QStringLiteral("leaf"));
    EXPECT_EQ(takeJournal(),
              QStringList({"hub prepare leaf", "leaf layout", "leaf load", "leaf appear", "hub disappear"}));
    navigation.pop();
    EXPECT_EQ(takeJournal(), QStringList({"hub appear", "leaf disappear"}));
    navigation.pop();
    EXPECT_EQ(navigation.depth(), 1) << "the root stays";
}

TEST_F(NavigationTest, AnUnwindSkipsScreensWithoutTheActionAndDestroysThem)
{
    navigation.topViewController()->performSegue(QStringLiteral("leaf"));
    const QPointer<UIViewController> first = navigation.topViewController();
    first->performSegue(QStringLiteral("leaf"));
    journal.clear();

    navigation.topViewController()->performSegue(QStringLiteral("back"));

    EXPECT_EQ(takeJournal(), QStringList({"leaf prepare back", "hub unwound from leaf", "hub appear",
                                          "leaf disappear", "leaf disappear"}));
    EXPECT_EQ(navigation.depth(), 1);
    QCoreApplication::sendPostedEvents(nullptr, QEvent::DeferredDelete);
    EXPECT_TRUE(first.isNull());
}

TEST_F(NavigationTest, ASecondTapOnTheSameButtonOpensOneScreen)
{
    UIViewController* hub = navigation.topViewController();
    hub->performSegue(QStringLiteral("leaf"));
    hub->performSegue(QStringLiteral("leaf"));
    EXPECT_EQ(navigation.depth(), 2);
}

TEST_F(NavigationTest, AnUnknownSegueEndsTheProgramNamingIt)
{
    EXPECT_DEATH(navigation.topViewController()->performSegue(QStringLiteral("nowhere")),
                 "Fatal error: Hub has no segue with identifier 'nowhere'");
}

TEST_F(NavigationTest, AnAlertIsAwayBeforeItsActionRuns)
{
    UIViewController& hub = *navigation.topViewController();
    const UIViewController* seen = &hub;
    hub.present(UIAlertController::withOk(QStringLiteral("Title"), QStringLiteral("Message"),
                                          [&] { seen = hub.presentedViewController(); }));
    auto* alert = qobject_cast<UIAlertController*>(hub.presentedViewController());
    ASSERT_NE(alert, nullptr);
    EXPECT_EQ(alert->cancelIndex(), 0);

    alert->choose(0);
    EXPECT_EQ(seen, nullptr);
    alert->choose(0);
    EXPECT_EQ(hub.presentedViewController(), nullptr) << "a second tap on a leaving alert does nothing";
}

TEST_F(NavigationTest, APresentedScreenPresentsTheNextOnTopOfItself)
{
    UIViewController& hub = *navigation.topViewController();
    hub.present(UIAlertController::withOk(QStringLiteral("First"), {}));
    hub.present(UIAlertController::withOk(QStringLiteral("Second"), {}));
    EXPECT_EQ(hub.presentedViewController()->title(), QStringLiteral("First"));
    EXPECT_EQ(hub.presentedViewController()->presentedViewController()->title(), QStringLiteral("Second"));
}

} // namespace

#include "NavigationTest.moc"
