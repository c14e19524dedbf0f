#pragma once

#include "platform/toolkit/UITableView.h"
#include "platform/toolkit/UIViewController.h"

// A screen whose body is a table that it fills itself.
class UITableViewController : public UIViewController, public UITableViewDataSource
{
    Q_OBJECT
    QML_ELEMENT
    QML_UNCREATABLE("Screens are made by the storyboard")
    Q_PROPERTY(UITableView* tableView READ tableView CONSTANT FINAL)

public:
    explicit UITableViewController(QObject* parent = nullptr);

    [[nodiscard]] UITableView* tableView() { return &table; }

private:
    UITableView table;
};
