#include "browse/ViewController.h"

#include "model/ReferenceRecords.h"
#include "model/SharedValues.h"
#include "platform/foundation/Console.h"
#include "platform/toolkit/UIBarButtonItem.h"
#include "platform/toolkit/UINavigationController.h"

namespace {

constexpr double foldingSeconds = 0.3;
const QString mainMenu = QStringLiteral("MainMenu");

Layer buttonLayer(const QColor& border)
{
    return {.cornerRadius = 10, .borderWidth = 2, .borderColor = border};
}

// One record a value, each saved at once; a value that can't be saved doesn't keep the next ones from being
// so.
template <typename Entity>
void insertEach(const QStringList& values, NSManagedObjectContext& context)
{
    for (const QString& value : values) {
        context.insert<Entity>()->setValue(value);
        if (const Status saved = context.save(); !saved)
            console(saved.error().localizedDescription);
    }
}

} // namespace

void ViewController::viewDidLoad()
{
    styleButtons();
    checkFirstLaunch();
    shared().ReturnScreen = mainMenu;
}

void ViewController::viewWillAppear(bool animated)
{
    for (UIButton* button : MenuButton)
        button->setHidden(true);
    if (navigationController() != nullptr)
        navigationController()->setNavigationBarHidden(false, animated);
    shared().ReturnScreen = mainMenu;
}

void ViewController::prepareForSegue(const UIStoryboardSegue& segue)
{
    if (segue.identifier == QStringLiteral("TabBarController") && navigationController() != nullptr)
        navigationController()->setNavigationBarHidden(true, true);
}

void ViewController::HandleSelection()
{
    for (UIButton* button : MenuButton)
        button->setHidden(!button->isHidden(), foldingSeconds);
}

void ViewController::unwindToMenuWithSegue(const UIStoryboardSegue& /*segue*/) {}

void ViewController::styleButtons()
{
    for (UIButton* button : MenuButton)
        button->setLayer(buttonLayer(Qt::black));
    ControlButton->setLayer(buttonLayer(Qt::red));
}

void ViewController::checkFirstLaunch()
{
    if (userDefaults.boolForKey(AboutHasBeenLaunchedBeforeFlag)) {
        console(QStringLiteral("Not First Launch"));
        return;
    }
    // The flag first: an interrupted first launch must not seed twice.
    userDefaults.setBool(true, AboutHasBeenLaunchedBeforeFlag);
    userDefaults.synchronize();
    console(QStringLiteral("First Launch"));
    seed();
}

void ViewController::seed()
{
    insertEach<Genres>(ListOfGenre, context);
    insertEach<Ratings>(ListOfRating, context);
    insertEach<Providers>(ListOfProviders, context);
}
