#include "editing/ReferenceListTableViewController.h"

#include "editing/ReferenceListTableViewCell.h"
#include "platform/services/UITraitCollection.h"

namespace {

constexpr double referenceRowHeight = 44;

} // namespace

ReferenceListTableViewController::ReferenceListTableViewController(const ReferenceKind& listKind)
    : kind(listKind)
{
}

void ReferenceListTableViewController::viewDidLoad()
{
    setTitle(kind.pluralName);
    DarkMode = currentUserInterfaceStyle() == UIUserInterfaceStyle::Dark;
    loadList();
}

void ReferenceListTableViewController::loadList()
{
    NSFetchRequest request(kind.entityName);
    request.sortDescriptors = {{kind.attribute, true}};
    listOfValues = fetchedReferences(context, request);
    tableView()->reloadData();
}

int ReferenceListTableViewController::numberOfRowsInSection(int /*section*/)
{
    return static_cast<int>(listOfValues.size());
}

QVariant ReferenceListTableViewController::cellForRowAt(const NSIndexPath& indexPath)
{
    const ReferenceRecord& record = *listOfValues[static_cast<std::size_t>(indexPath.row)];
    ReferenceListTableViewCell cell;
    cell.valueLabel.text = record.value().value_or(QString());
    if (DarkMode)
        cell.valueLabel.textColor = Qt::black;
    return QVariant::fromValue(cell);
}

double ReferenceListTableViewController::heightForRowAt(const NSIndexPath& /*indexPath*/)
{
    return referenceRowHeight;
}

std::optional<LabelContent> ReferenceListTableViewController::viewForHeaderInSection(int /*section*/)
{
    return countHeader(kind.headerPrefix + QString::number(listOfValues.size()));
}

bool ReferenceListTableViewController::canEditRowAt(const NSIndexPath& /*indexPath*/)
{
    return true;
}

std::vector<UIAction>
ReferenceListTableViewController::trailingSwipeActionsConfigurationForRowAt(const NSIndexPath& indexPath)
{
    return {{.title = QStringLiteral("delete"),
             .handler = [this, indexPath] { deleteValue(indexPath); },
             .style = UIAction::Style::Destructive}};
}

void ReferenceListTableViewController::deleteValue(const NSIndexPath& indexPath)
{
    const auto position = listOfValues.begin() + indexPath.row;
    context.deleteObject(*position);
    AppDelegate::shared().saveContext();
    listOfValues.erase(position);
    tableView()->deleteRowAt(indexPath);
}

void ReferenceListTableViewController::commitEditingStyle(UITableView::EditingStyle style,
                                                          const NSIndexPath& indexPath)
{
    if (style == UITableView::EditingStyle::Delete)
        tableView()->deleteRowAt(indexPath);
}

void ReferenceListTableViewController::didSelectRowAt(const NSIndexPath& indexPath)
{
    const ReferenceRecord& record = *listOfValues[static_cast<std::size_t>(indexPath.row)];
    shared().*kind.chosenValue = record.value().value_or(QString());
}
