#include "editing/ReferenceListViewController.h"

void ReferenceListViewController::viewDidLoad()
{
    for (UIButton* button : {GenreButton, RatingButton, ProviderButton})
        button->setLayer({.cornerRadius = 10, .borderWidth = 2, .borderColor = Qt::black});
}
