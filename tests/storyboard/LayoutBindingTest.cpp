#include "storyboard/LayoutBinding.h"
#include "exchange/ImportExportViewController.h"
#include "tests/storyboard/SceneTest.h"

#include <QFile>
#include <QQmlAbstractUrlInterceptor>
#include <QQmlComponent>

namespace {

// Shows one of the screen's two outlets, and asks for an action and a segue that are not there.
constexpr auto faultyLayout = R"(
    import QtQuick
    Item {
        id: root
        required property QtObject screen
        component Control: Item {
            property QtObject outlet
            property string action
            property string segue
            signal triggered
        }
        Control { outlet: root.screen.ExportMoviesButton; segue: "Export" }
        Control { action: "Vanish" }
        Control { Item { Control { segue: "Nowhere" } } }
    }
)";

TEST(LayoutBindingTest, ListsEverythingThatDoesNotFit)
{
    const ManualQueue queue;
    QQmlEngine engine;
    ImportExportViewController screen;
    QQmlComponent component(&engine);
    component.setData(faultyLayout, QUrl());
    const std::unique_ptr<QObject> layout(
        component.createWithInitialProperties({{"screen", QVariant::fromValue<QObject*>(&screen)}}));
    ASSERT_NE(layout, nullptr) << component.errorString().toStdString();
    QStringList missing = bindLayout(*layout, screen, Storyboard());
    missing.sort();
    EXPECT_EQ(missing, QStringList({"action Vanish", "outlet ImportMoviesButton", "segue Nowhere"}));
}

// Puts an empty scene in the place of the way to the exchange file.
class EmptiedLayout : public QQmlAbstractUrlInterceptor
{
public:
    explicit EmptiedLayout(const QString& path)
        : emptied(QUrl::fromLocalFile(path))
    {
        QFile file(path);
        EXPECT_TRUE(file.open(QIODevice::WriteOnly));
        file.write("import Marrowvale.Controls\nScene { required property var screen; controller: screen }");
    }
    QUrl intercept(const QUrl& url, DataType /*type*/) override
    {
        return url.fileName() == "ImportExport.qml" ? emptied : url;
    }

private:
    QUrl emptied;
};

using LayoutDeathTest = SceneTest;

TEST_F(LayoutDeathTest, AMissingOutletEndsTheProgramAndIsNamed)
{
    EmptiedLayout emptied(qEnvironmentVariable("HOME") + "/Emptied.qml");
    window->engine()->addUrlInterceptor(&emptied);
    EXPECT_DEATH(follow("ImportExport"), "Fatal error: The layout of ImportExportViewController lacks: "
                                         "outlet ExportMoviesButton, outlet ImportMoviesButton");
    window->engine()->removeUrlInterceptor(&emptied);
}

} // namespace
