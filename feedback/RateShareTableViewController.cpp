#include "feedback/RateShareTableViewController.h"

#include "platform/services/Device.h"
#include "platform/services/MFMessageComposeViewController.h"
#include "platform/toolkit/UIAlertController.h"
#include "platform/toolkit/UITableViewCell.h"

#include <QUrlQuery>

namespace {

constexpr double menuRowHeight = 56;
const QString feedbackRecipient = QStringLiteral("feedback@marrowvale.example");

} // namespace

const std::vector<RateShareTableViewController::Row>& RateShareTableViewController::rows()
{
    using Screen = RateShareTableViewController;
    static const std::vector<Row> table{
        {QStringLiteral("Write a Review"), QStringLiteral("star"), &Screen::writeReview},
        {QStringLiteral("Share the App"), QStringLiteral("square.and.arrow.up"), &Screen::shareApplication},
        {QStringLiteral("Share the Web Page"), QStringLiteral("link"), &Screen::shareWebPage},
        {QStringLiteral("Visit the Web Page"), QStringLiteral("globe"), &Screen::visitWebPage},
        {QStringLiteral("Send Feedback"), QStringLiteral("envelope"), &Screen::sendFeedback},
    };
    return table;
}

void RateShareTableViewController::viewDidLoad()
{
    setTitle(QStringLiteral("Rate/Share"));
    tableView()->reloadData();
}

int RateShareTableViewController::numberOfRowsInSection(int /*section*/)
{
    return static_cast<int>(rows().size());
}

QVariant RateShareTableViewController::cellForRowAt(const NSIndexPath& indexPath)
{
    const Row& row = rows()[static_cast<std::size_t>(indexPath.row)];
    UITableViewCell cell;
    cell.textLabel.text = row.title;
    cell.image = row.symbol;
    return QVariant::fromValue(cell);
}

double RateShareTableViewController::heightForRowAt(const NSIndexPath& /*indexPath*/)
{
    return menuRowHeight;
}

std::optional<LabelContent> RateShareTableViewController::viewForHeaderInSection(int /*section*/)
{
    return std::nullopt;
}

void RateShareTableViewController::didSelectRowAt(const NSIndexPath& indexPath)
{
    const auto row = static_cast<std::size_t>(indexPath.row);
    if (row < rows().size())
        (this->*rows()[row].choose)();
}

void RateShareTableViewController::writeReview()
{
    QUrl address = productURL;
    QUrlQuery query;
    query.addQueryItem(QStringLiteral("action"), QStringLiteral("write-review"));
    address.setQuery(query);
    if (address.isValid())
        Device::current().addressOpener->open(address);
}

void RateShareTableViewController::shareApplication()
{
    share({productURL});
}

void RateShareTableViewController::shareWebPage()
{
    share({instructions, website});
}

void RateShareTableViewController::share(std::vector<ActivityItem> items)
{
    if (MFMessageComposeViewController::canSendText())
        present(std::make_unique<UIActivityViewController>(std::move(items)));
    else
        present(UIAlertController::withOk(QStringLiteral("Can't Send Text Message"),
                                          QStringLiteral("Your Device is not able to send text messages.")));
}

void RateShareTableViewController::visitWebPage()
{
    Device::current().addressOpener->open(QUrl(website));
}

void RateShareTableViewController::sendFeedback()
{
    if (!MFMailComposeViewController::canSendMail()) {
        present(UIAlertController::withOk(QStringLiteral("Can't Send Email"),
                                          QStringLiteral("Your Device is not able to send Email.")));
        return;
    }
    auto composer = std::make_unique<MFMailComposeViewController>();
    composer->setMailComposeDelegate(this);
    composer->setToRecipients({feedbackRecipient});
    composer->setMessageBody(QStringLiteral("<p>Enter your comments about Marrowvale app below: </p>"), true);
    present(std::move(composer));
}

void RateShareTableViewController::mailComposeController(MFMailComposeViewController& /*controller*/,
                                                         MFMailComposeResult /*result*/)
{
    dismiss();
}
