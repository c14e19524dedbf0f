#pragma once

#include "editing/ReferenceAddScreens.h"
#include "editing/ReferenceEditScreens.h"
#include "editing/ReferenceListScreens.h"
#include "editing/ReferenceListTableViewCell.h"
#include "platform/store/Database.h"
#include "platform/toolkit/UIAlertController.h"
#include "tests/support/Catalogue.h"
#include "tests/support/PlainStoryboard.h"

// One of the three lists, as its users know it.
struct ReferenceListMember
{
    const char* entity;
    const char* attribute;
    const char* header;
    const char* emptyMessage;
    const char* singular;
    const char* editAction;
    std::function<std::unique_ptr<ReferenceListTableViewController>()> list;
    std::function<std::unique_ptr<ReferenceAddViewController>()> add;
    std::function<std::unique_ptr<ReferenceEditViewController>()> edit;
};

inline void PrintTo(const ReferenceListMember& member, std::ostream* out)
{
    *out << member.entity;
}

// A list, on top of which the add and edit screens are opened.
class ReferenceListTest : public CatalogueTest, public testing::WithParamInterface<ReferenceListMember>
{
protected:
    void SetUp() override { navigation.push(member.list()); }

    ReferenceListTableViewController& list()
    {
        return static_cast<ReferenceListTableViewController&>(*navigation.rootViewController());
    }

    template <typename Screen>
    Screen& opened(std::unique_ptr<Screen> screen)
    {
        Screen& kept = *screen;
        navigation.push(std::move(screen));
        return kept;
    }

    void given(const QString& value)
    {
        std::static_pointer_cast<ReferenceRecord>(context().insert(member.entity))->setValue(value);
        EXPECT_TRUE(context().save().ok());
    }

    // As the layouts do it.
    static void press(QObject& screen, const QString& action)
    {
        EXPECT_TRUE(QMetaObject::invokeMethod(&screen, action.toLatin1().constData())) << qPrintable(action);
    }

    // Opens the add screen and saves that text. Answers the alert's message, which leaves the screen open;
    // empty: the list is back.
    QString add(const QString& text)
    {
        auto& screen = opened(member.add());
        screen.valueField->setText(text);
        press(screen, screen.saveAction());
        auto* alert = qobject_cast<UIAlertController*>(screen.presentedViewController());
        if (alert == nullptr) {
            EXPECT_EQ(navigation.topViewController(), &list());
            return {};
        }
        EXPECT_EQ(alert->title(), "Record not Saved!");
        EXPECT_EQ(alert->actionTitles(), QStringList("OK"));
        alert->choose(0);
        EXPECT_EQ(screen.valueField->text(), text);
        navigation.pop();
        return alert->message();
    }

    static std::unique_ptr<Database> otherConnection()
    {
        const QString path = qEnvironmentVariable("XDG_DATA_HOME") + "/marrowvale/Marrowvale.sqlite";
        return Database::open(path, Database::Access::ReadWrite).value();
    }

    // What is saved, in the order of insertion.
    [[nodiscard]] QStringList stored() const
    {
        const auto connection = otherConnection();
        Query query = connection->query(
            QString("SELECT %1 FROM %2 ORDER BY id").arg(member.attribute, member.entity).toUtf8());
        QStringList texts;
        EXPECT_TRUE(query.forEachRow([&] { texts.append(QString::fromUtf8(query.text(0))); }).ok());
        return texts;
    }

    const ReferenceListMember& member = GetParam();
    PlainStoryboard storyboard;
    UINavigationController navigation{storyboard};
};
