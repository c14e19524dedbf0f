#pragma once

#include "editing/ReferenceFetch.h"
#include "editing/ReferenceValueViewController.h"

// The renaming of the value chosen in a reference list: any text will do, an empty one and another record's
// too. Of several records with the chosen text the first is renamed. Movies keep the old text.
class ReferenceEditViewController : public ReferenceValueViewController
{
    Q_OBJECT

public:
    void viewDidLoad() override;

    [[nodiscard]] QString saveAction() const override { return kind.editAction; }

    // What the last save found under the chosen text.
    ReferenceRecords Results;
    int ResultsCount = 0;

protected:
    using ReferenceValueViewController::ReferenceValueViewController;

    // What the save button does.
    void saveValue();
};
