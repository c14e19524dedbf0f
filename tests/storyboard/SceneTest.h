#pragma once

#include "model/SharedValues.h"
#include "storyboard/MainWindow.h"
#include "storyboard/SceneStage.h"
#include "storyboard/SceneTable.h"
#include "tests/storyboard/Warnings.h"
#include "tests/support/Catalogue.h"
#include "tour/AccessibleListener.h"
#include "tour/AccessibleTree.h"

#include <QQuickItem>
#include <QtTest>

// The program's window at the home menu, with a catalogue of one movie, and an assistive technology that
// listens. A warning of a layout fails the test.
class SceneTest : public CatalogueTest
{
protected:
    void SetUp() override
    {
        AccessibleListener::start();
        given({.name = "Zoolander", .genre = "Comedy", .rating = "PG-13", .year = 2001});
        shared().SelectedYear = 2001;
        shared().SelectedMonth = 1;
        window = std::make_unique<MainWindow>();
        window->show();
        ASSERT_TRUE(QTest::qWaitForWindowActive(window.get()));
        ASSERT_GT(AccessibleListener::eventCount(), 0) << "nobody listens";
    }

    void TearDown() override
    {
        window.reset();
        EXPECT_TRUE(warnings.texts().isEmpty()) << qPrintable(warnings.texts().join("\n"));
    }

    UINavigationController& navigation() { return *window->stage().navigation(); }

    // The screen that the segue of the screen on top leads to, with its layout in place.
    void follow(const QString& segue)
    {
        navigation().topViewController()->performSegue(segue);
        waitUntilStill();
    }

    // Layouts have come in and gone.
    void waitUntilStill()
    {
        EXPECT_TRUE(QTest::qWaitFor([&] { return !isBusy(*window->rootObject()); }));
    }

    static bool isBusy(const QQuickItem& item)
    {
        const auto children = item.childItems();
        return item.property("busy").toBool() ||
               std::any_of(children.begin(), children.end(),
                           [](const auto* child) { return isBusy(*child); });
    }

    QAccessibleInterface* visible(QAccessible::Role role, const QString& name)
    {
        QAccessibleInterface* found = nullptr;
        forEachAccessible(*window, [&](QAccessibleInterface& seen) {
            if (seen.role() == role && seen.text(QAccessible::Name) == name && !seen.state().invisible)
                found = &seen;
        });
        return found;
    }

    void press(Qt::Key key, Qt::KeyboardModifiers modifiers = Qt::NoModifier)
    {
        QTest::keyClick(window.get(), key, modifiers);
    }

    void type(const QByteArray& text)
    {
        for (const char character : text)
            QTest::keyClick(window.get(), character);
    }

    Warnings warnings;
    std::unique_ptr<MainWindow> window;
};
