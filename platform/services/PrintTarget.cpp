#include "platform/services/PrintTarget.h"

#include <QPrintEngine>
#include <QPrinter>

namespace {

// Where Qt's print dialog leaves what the queue itself is to heed, names and values by turns: PPK_CupsOptions
// of its private headers.
constexpr auto queueOptions = QPrintEngine::PrintEnginePropertyKey(0xfe00);

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

// The spooler parts options at spaces and reads quotation marks.
QString escaped(const QString& value)
{
    QString escaped;
    for (const QChar character : value) {
        if (character.isSpace() || QStringLiteral("\"'\\{}").contains(character))
            escaped += QLatin1Char('\\');
        escaped += character;
    }
    return escaped;
}

QStringList pairedOptions(const QStringList& namesAndValues)
{
    QStringList options;
    for (qsizetype name = 0; name + 1 < namesAndValues.size(); name += 2)
        options.append(namesAndValues[name] + QLatin1Char('=') + escaped(namesAndValues[name + 1]));
    return options;
}

} // namespace

PrintTarget PrintTarget::of(const QPrinter& printer)
{
    const QStringList chosen = printer.printEngine()->property(queueOptions).toStringList();
    const bool queueChoosesPages = chosen.contains(QStringLiteral("page-ranges"));
    PrintTarget target{.file = printer.outputFileName(),
                       .queue = printer.printerName(),
                       .pages = {.layout = printer.pageLayout(),
                                 .wanted = queueChoosesPages ? QPageRanges() : printer.pageRanges()},
                       .copies = std::max(printer.copyCount(), 1),
                       .options = sidesOption(printer.duplex())};
    if (target.pages.layout.pageSize().id() != QPageSize::Custom)
        target.options.append(QStringLiteral("media=") + target.pages.layout.pageSize().key());
    if (printer.colorMode() == QPrinter::GrayScale)
        target.options.append(QStringLiteral("print-color-mode=monochrome"));
    if (printer.collateCopies())
        target.options.append(QStringLiteral("collate=true"));
    if (printer.pageOrder() == QPrinter::LastPageFirst)
        target.options.append(QStringLiteral("outputorder=reverse"));
    target.options.append(pairedOptions(chosen));
    return target;
}
