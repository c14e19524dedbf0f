#pragma once

#include "model/AppDelegate.h"
#include "platform/foundation/UserDefaults.h"
#include "platform/toolkit/UIButton.h"
#include "platform/toolkit/UIViewController.h"

#include <QStringList>

// The home menu, the first screen: a control button that folds out the entries leading to all other screens.
// On the very first launch it fills the reference lists with starter values.
class ViewController : public UIViewController
{
    Q_OBJECT
    QML_ELEMENT
    QML_UNCREATABLE("Screens are made by the storyboard")
    Q_PROPERTY(UIButton* ControlButton MEMBER ControlButton CONSTANT FINAL)
    Q_PROPERTY(UIButton* MovieListButton MEMBER MovieListButton CONSTANT FINAL)
    Q_PROPERTY(UIButton* AddMovieButton MEMBER AddMovieButton CONSTANT FINAL)
    Q_PROPERTY(UIButton* GroupbyButton MEMBER GroupbyButton CONSTANT FINAL)
    Q_PROPERTY(UIButton* DefaultsButton MEMBER DefaultsButton CONSTANT FINAL)
    Q_PROPERTY(UIButton* PrintButton MEMBER PrintButton CONSTANT FINAL)
    Q_PROPERTY(UIButton* ReferenceListButton MEMBER ReferenceListButton CONSTANT FINAL)
    Q_PROPERTY(UIButton* ImportExportButton MEMBER ImportExportButton CONSTANT FINAL)
    Q_PROPERTY(UIButton* RateShareButton MEMBER RateShareButton CONSTANT FINAL)
    Q_PROPERTY(UIView* ContentView MEMBER ContentView CONSTANT FINAL)

public:
    using UIViewController::UIViewController;

    void viewDidLoad() override;
    void viewWillAppear(bool animated) override;
    void prepareForSegue(const UIStoryboardSegue& segue) override;

    // Folds the entries out, or in again.
    Q_INVOKABLE void HandleSelection();
    Q_INVOKABLE void unwindToMenuWithSegue(const UIStoryboardSegue& segue);

    UIButton* const ControlButton = new UIButton(this);
    UIButton* const MovieListButton = new UIButton(this);
    UIButton* const AddMovieButton = new UIButton(this);
    UIButton* const GroupbyButton = new UIButton(this);
    UIButton* const DefaultsButton = new UIButton(this);
    UIButton* const PrintButton = new UIButton(this);
    UIButton* const ReferenceListButton = new UIButton(this);
    UIButton* const ImportExportButton = new UIButton(this);
    UIButton* const RateShareButton = new UIButton(this);
    UIView* const ContentView = new UIView(this);
    // The entries, in the order in which they fold out.
    const std::vector<UIButton*> MenuButton{MovieListButton,    AddMovieButton, GroupbyButton,
                                            DefaultsButton,     PrintButton,    ReferenceListButton,
                                            ImportExportButton, RateShareButton};

    const QStringList ListOfGenre = {QStringLiteral("Action"),
                                     QStringLiteral("Thriller"),
                                     QStringLiteral("Drama"),
                                     QStringLiteral("Epic"),
                                     QStringLiteral("Horror"),
                                     QStringLiteral("Adventure"),
                                     QStringLiteral("Animation"),
                                     QStringLiteral("Comedy"),
                                     QStringLiteral("Crime"),
                                     QStringLiteral("Documentary"),
                                     QStringLiteral("Biography"),
                                     QStringLiteral("Family"),
                                     QStringLiteral("Fantasy"),
                                     QStringLiteral("Film-Noir"),
                                     QStringLiteral("History"),
                                     QStringLiteral("Musical"),
                                     QStringLiteral("Mystery"),
                                     QStringLiteral("Romance"),
                                     QStringLiteral("Science Fiction"),
                                     QStringLiteral("Sport"),
                                     QStringLiteral("War"),
                                     QStringLiteral("Western")};
    const QStringList ListOfRating = {QStringLiteral("G"), QStringLiteral("PG"), QStringLiteral("PG-13"),
                                      QStringLiteral("R")};
    const QStringList ListOfProviders = {QStringLiteral("Netflix"),     QStringLiteral("Hulu"),
                                         QStringLiteral("Prime Video"), QStringLiteral("HBO"),
                                         QStringLiteral("You Tube"),    QStringLiteral("Peacock")};

private:
    void styleButtons();
    void checkFirstLaunch();
    void seed();

    NSManagedObjectContext& context = AppDelegate::shared().persistentContainer().viewContext();
    UserDefaults userDefaults = UserDefaults::standard();
    const QString AboutHasBeenLaunchedBeforeFlag = QStringLiteral("AboutHasBeenLaunchedBeforeFlag");
};
