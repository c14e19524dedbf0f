#include "platform/services/PrintTarget.h"

#include <QPrinter>

namespace {

QStringList sidesOption(QPrinter::DuplexMode duplex)
{
    switch (duplex) {
    case QPrinter::DuplexNone:
        return {QStringLiteral("sides=one-sided")};
    case QPrinter::DuplexLongSide:
        return {QStringLiteral("sides=two-sided-long-edge")};
    case QPrinter::DuplexShortSide:
        return {QStringLiteral("sides=two-sided-short-edge")};
    case QPrinter::DuplexAuto:
        break;
    }
    return {};
}

} // namespace

PrintTarget PrintTarget::of(const QPrinter& printer)
{
    PrintTarget target{.file = printer.outputFileName(),
                       .queue = printer.printerName(),
                       .layout = printer.pageLayout(),
                       .copies = std::max(printer.copyCount(), 1),
                       .options = sidesOption(printer.duplex())};
    if (target.layout.pageSize().id() != QPageSize::Custom)
        target.options.append(QStringLiteral("media=") + target.layout.pageSize().key());
    if (printer.colorMode() == QPrinter::GrayScale)
        target.options.append(QStringLiteral("print-color-mode=monochrome"));
    if (printer.collateCopies())
        target.options.append(QStringLiteral("collate=true"));
    return target;
}
