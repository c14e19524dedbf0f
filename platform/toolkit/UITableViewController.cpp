#include "platform/toolkit/UITableViewController.h"

#include "platform/toolkit/UIBarButtonItem.h"

UITableViewController::UITableViewController(QObject* parent)
    : UIViewController(parent)
    , table(*this)
{
}
