#pragma once

#include "platform/toolkit/UIViewController.h"

#include <QImage>
#include <QUrl>
#include <variant>
#include <vector>

struct Activity;

// Something to share: a text, a picture, a file or a web address.
using ActivityItem = std::variant<QString, QImage, QUrl>;

// The share sheet: offers what the device can do with the items, less what is excluded.
class UIActivityViewController : public UIViewController
{
    Q_OBJECT
    QML_ELEMENT
    QML_UNCREATABLE("Presented by screens")
    Q_PROPERTY(QStringList activityTitles READ activityTitles CONSTANT FINAL)
    Q_PROPERTY(QStringList activitySymbols READ activitySymbols CONSTANT FINAL)
    Q_PROPERTY(QString preview READ preview CONSTANT FINAL)

public:
    enum class ActivityType {
        CopyToPasteboard,
        SaveToFiles,
        Mail,
        Message,
        Print,
        OpenWith,
        // Those that this device never offers, for screens that exclude them by name.
        AirDrop,
        AddToReadingList,
        PostToFacebook,
        PostToTwitter,
        MarkupAsPDF
    };

    explicit UIActivityViewController(std::vector<ActivityItem> items,
                                      const std::vector<ActivityType>& excludedActivityTypes = {});
    ~UIActivityViewController() override;

    [[nodiscard]] const std::vector<ActivityItem>& activityItems() const { return items; }
    [[nodiscard]] QStringList activityTitles() const;
    [[nodiscard]] QStringList activitySymbols() const;
    // The first lines of what is shared, for the head of the sheet.
    [[nodiscard]] QString preview() const;

    // The user chose an activity: takes the sheet away and does it.
    Q_INVOKABLE void choose(int index);
    // The user closed the sheet.
    Q_INVOKABLE void cancel();

private:
    std::vector<ActivityItem> items;
    std::vector<const Activity*> offered;
};
