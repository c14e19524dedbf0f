#include "platform/services/PortalInterfaceStyle.h"
#include "tests/services/PrivateBus.h"
#include "tests/services/StandInPortal.h"

#include <QGuiApplication>
#include <QPalette>
#include <gtest/gtest.h>

namespace {

class InterfaceStyleTest : public PrivateBusTest<StandInPortal>
{
protected:
    void TearDown() override
    {
        PrivateBusTest::TearDown();
        setDesktopDark(false);
    }

    static void setDesktopDark(bool dark)
    {
        QPalette palette;
        palette.setColor(QPalette::Window, dark ? Qt::black : Qt::white);
        palette.setColor(QPalette::WindowText, dark ? Qt::white : Qt::black);
        QGuiApplication::setPalette(palette);
    }
};

TEST_F(InterfaceStyleTest, ThePortalOverrulesThePalette)
{
    enum Scheme : uint { NoPreference, Dark, Light, Unknown };
    struct Case
    {
        uint scheme;
        bool desktopDark;
        bool expected;
    };
    for (const Case& each :
         {Case{Dark, false, true}, Case{Light, true, false}, Case{NoPreference, true, true},
          Case{NoPreference, false, false}, Case{Unknown, true, true}}) {
        SCOPED_TRACE(each.scheme);
        setDesktopDark(each.desktopDark);
        portal->scheme = each.scheme;
        portal->asked = 0;
        PortalInterfaceStyle style(connection("program"));
        int changes = 0;
        QObject::connect(&style, &InterfaceStyle::changed, [&changes] { ++changes; });
        EXPECT_EQ(style.isDark(), each.desktopDark) << "before the answer";
        const auto settled = [&] { return portal->asked > 0 && style.findChildren<QObject*>().isEmpty(); };
        ASSERT_TRUE(comesTrue(settled)) << "the call is destroyed once it is answered";
        EXPECT_EQ(style.isDark(), each.expected);
        EXPECT_EQ(changes, each.expected == each.desktopDark ? 0 : 1);
    }
}

TEST_F(InterfaceStyleTest, FollowsThePortalsSettingAndNoOther)
{
    enum Scheme : uint { Dark = 1, Light = 2 };
    portal->scheme = Light;
    const PortalInterfaceStyle style(connection("program"));
    std::vector<bool> told;
    QObject::connect(&style, &InterfaceStyle::changed, [&] { told.push_back(style.isDark()); });
    const auto set = [this](const QString& group, const QString& key, uint value) {
        portal->tellChange(group, key, value);
    };
    ASSERT_TRUE(comesTrue([&] { return portal->asked > 0 && style.findChildren<QObject*>().isEmpty(); }))
        << "a connection that is still being made loses signals";
    set("org.freedesktop.appearance", "color-scheme", Dark);
    set("org.freedesktop.appearance", "contrast", Light);
    set("org.example.appearance", "color-scheme", Light);
    set("org.freedesktop.appearance", "color-scheme", Light);
    EXPECT_TRUE(comesTrue([&] { return told.size() >= 2; }));
    EXPECT_EQ(told, std::vector<bool>({true, false}));
}

} // namespace
