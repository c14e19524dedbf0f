#pragma once

#include "platform/toolkit/UIStoryboard.h"
#include "platform/toolkit/UIView.h"

class UIBarButtonItem;
class UINavigationController;
class UITabBarController;

// A screen, or something shown on top of one. Its life: made -> viewDidLoad (once) -> viewWillAppear (at
// every showing)
// -> prepareForSegue (before another screen is shown by a segue) -> viewDidDisappear -> destroyed when popped
// or dismissed. Outlets are CONSTANT properties; actions are invokables.
class UIViewController : public QObject
{
    Q_OBJECT
    QML_ELEMENT
    QML_UNCREATABLE("Screens are made by the storyboard")
    Q_PROPERTY(QString title READ title NOTIFY changed FINAL)
    Q_PROPERTY(UIBarButtonItem* rightBarButtonItem READ rightBarButtonItem NOTIFY changed FINAL)
    Q_PROPERTY(
        UIViewController* presentedViewController READ presentedViewController NOTIFY presentedChanged FINAL)
    Q_PROPERTY(double viewWidth MEMBER viewWidth FINAL)

public:
    explicit UIViewController(QObject* parent = nullptr);
    ~UIViewController() override;

    virtual void viewDidLoad() {}
    virtual void viewWillAppear(bool animated);
    virtual void viewDidDisappear(bool animated);
    virtual void prepareForSegue(const UIStoryboardSegue& segue);

    [[nodiscard]] QString title() const { return titleText; }
    void setTitle(const QString& value);

    // The rightmost button of the navigation bar; null: none. The screen takes ownership.
    [[nodiscard]] UIBarButtonItem* rightBarButtonItem() const { return rightItem.get(); }
    void setRightBarButtonItem(std::unique_ptr<UIBarButtonItem> item);

    // Follows the segue: asks prepareForSegue, then shows the destination or unwinds. An identifier that the
    // storyboard doesn't know for this screen is a programming error and ends the program.
    Q_INVOKABLE void performSegue(const QString& identifier);

    // Shows `controller` on top of this screen (on top of what is already presented, if anything).
    void present(std::unique_ptr<UIViewController> controller);
    // Takes away what this screen presents; nothing presented: does nothing.
    void dismiss();
    [[nodiscard]] UIViewController* presentedViewController() const { return presented; }
    // Whether the presenting screen can't be used until this is dismissed. False for what another program of
    // the device takes over.
    [[nodiscard]] virtual bool isModal() const { return true; }
    // Null unless this is presented by another.
    [[nodiscard]] UIViewController* presentingViewController() const { return presenting; }

    // Points. The layout keeps it up to date; without one it is that of a phone.
    double viewWidth = 390;

    // Ends editing in every field of the screen.
    Q_INVOKABLE void endEditing();

    // The container that this screen stands in; null outside one.
    [[nodiscard]] UINavigationController* navigationController() const { return navigation; }
    void setNavigationController(UINavigationController* controller);
    // The tab bar among whose tabs this screen stands; null: none.
    [[nodiscard]] UITabBarController* tabBarController() const;

    // Whether the user works with this screen: it is the top of its stack, as is every screen around that
    // stack, and nothing modal lies above it.
    [[nodiscard]] bool isFrontmost() const;

    // Whether another screen of the container lies below this one.
    [[nodiscard]] bool canGoBack() const;
    // What the back button does; nothing where there is no way back.
    Q_INVOKABLE void goBack();

    // Loads the view if that hasn't happened yet: layout first, then viewDidLoad.
    void loadViewIfNeeded(UIStoryboard* storyboard);

Q_SIGNALS:
    void changed();
    void presentedChanged();

private:
    QString titleText;
    std::unique_ptr<UIBarButtonItem> rightItem;
    UIViewController* presented = nullptr;
    UIViewController* presenting = nullptr;
    UINavigationController* navigation = nullptr;
    bool loaded = false;
};
