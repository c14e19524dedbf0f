#include "exchange/ImportExportViewController.h"

#include "exchange/ExchangeButton.h"

void ImportExportViewController::viewDidLoad()
{
    setTitle(QStringLiteral("Import/Export"));
    ExportMoviesButton->setTitle(QStringLiteral("Export Movies"));
    ImportMoviesButton->setTitle(QStringLiteral("Import Movies"));
    styleExchangeButton(*ExportMoviesButton);
    styleExchangeButton(*ImportMoviesButton);
}
