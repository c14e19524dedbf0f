#pragma once

#include "editing/ReferenceFetch.h"
#include "editing/ReferenceKind.h"
#include "model/AppDelegate.h"
#include "platform/toolkit/UITableViewController.h"

// The values of one reference list, sorted, under their number. A tap chooses the value that the edit screen
// opened by the layout's segue changes. Movies hold copies of the values: deleting one leaves them as they
// are, and isn't asked about.
class ReferenceListTableViewController : public UITableViewController
{
    Q_OBJECT
    QML_ELEMENT
    QML_UNCREATABLE("Screens are made by the storyboard")
    Q_PROPERTY(QString addTitle READ addTitle CONSTANT FINAL)

public:
    // `listKind` is one of the three, which live as long as the process.
    explicit ReferenceListTableViewController(const ReferenceKind& listKind);

    void viewDidLoad() override;

    // The name of the button that adds a value.
    [[nodiscard]] QString addTitle() const { return kind.addTitle; }

    [[nodiscard]] int numberOfRowsInSection(int section) override;
    [[nodiscard]] QVariant cellForRowAt(const NSIndexPath& indexPath) override;
    [[nodiscard]] double heightForRowAt(const NSIndexPath& indexPath) override;
    [[nodiscard]] std::optional<LabelContent> viewForHeaderInSection(int section) override;
    [[nodiscard]] bool canEditRowAt(const NSIndexPath& indexPath) override;
    [[nodiscard]] std::vector<UIAction>
    trailingSwipeActionsConfigurationForRowAt(const NSIndexPath& indexPath) override;
    void didSelectRowAt(const NSIndexPath& indexPath) override;
    // Takes the row out of the table alone; deleting is the swipe action's work.
    void commitEditingStyle(UITableView::EditingStyle style, const NSIndexPath& indexPath);

    // The rows. Each subclass shows them under a name of its own.
    ReferenceRecords listOfValues;
    bool DarkMode = false;

protected:
    // Reads the list anew and shows it.
    void loadList();

private:
    void deleteValue(const NSIndexPath& indexPath);

    const ReferenceKind& kind;
    NSManagedObjectContext& context = AppDelegate::shared().persistentContainer().viewContext();
};
