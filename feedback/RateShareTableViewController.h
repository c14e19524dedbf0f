#pragma once

#include "platform/services/MFMailComposeViewController.h"
#include "platform/services/UIActivityViewController.h"
#include "platform/toolkit/UITableViewController.h"

// Five rows: review, share the program, share its page, visit its page, write to its makers.
class RateShareTableViewController : public UITableViewController, public MFMailComposeViewControllerDelegate
{
    Q_OBJECT

public:
    using UITableViewController::UITableViewController;

    void viewDidLoad() override;

    [[nodiscard]] int numberOfRowsInSection(int section) override;
    [[nodiscard]] QVariant cellForRowAt(const NSIndexPath& indexPath) override;
    [[nodiscard]] double heightForRowAt(const NSIndexPath& indexPath) override;
    [[nodiscard]] std::optional<LabelContent> viewForHeaderInSection(int section) override;
    void didSelectRowAt(const NSIndexPath& indexPath) override;

    void mailComposeController(MFMailComposeViewController& controller, MFMailComposeResult result) override;

    const QUrl productURL{QStringLiteral("https://marrowvale.example/app")};
    const QString instructions =
        QStringLiteral("Click the following link to visit the My Marrowvale App website");
    const QString website = QStringLiteral("https://marrowvale.example/");

private:
    void writeReview();
    void shareApplication();
    void shareWebPage();
    void visitWebPage();
    void sendFeedback();
    void share(std::vector<ActivityItem> items);

    struct Row
    {
        QString title;
        QString symbol;
        void (RateShareTableViewController::*choose)();
    };
    [[nodiscard]] static const std::vector<Row>& rows();
};
