#include "browse/PlaceholderViewController.h"

#include "platform/toolkit/UIBarButtonItem.h"

PlaceholderViewController::PlaceholderViewController(const QString& title, const QString& message)
{
    setTitle(title);
    MessageLabel->setText(message);
}
