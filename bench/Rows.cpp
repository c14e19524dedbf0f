#include "bench/Rows.h"

#include "bench/BenchError.h"

#include <QLocale>
#include <cstdio>

namespace {

void printCells(const QStringList& cells)
{
    const auto line = QStringLiteral("%1 | %2 | %3 | %4 | %5 | %6\n")
                          .arg(cells[0], -52)
                          .arg(cells[1], 11)
                          .arg(cells[2], 11)
                          .arg(cells[3], 8)
                          .arg(cells[4], 7)
                          .arg(cells[5]);
    std::fputs(line.toUtf8().constData(), stdout);
}

QString titleOf(const Row& row, int movieCount)
{
    return row.title.arg(QLocale(QLocale::English).toString(row.thingCount(movieCount)));
}

QString figureText(double figure, Unit unit)
{
    constexpr double small = 1;
    return QString::number(figure, 'f', figure < small ? 3 : 1) +
           (unit == Unit::Milliseconds ? QStringLiteral(" ms") : QStringLiteral(" MiB"));
}

QString comparisonText(double compared, Comparison comparison, int decimals)
{
    const auto number = QString::number(compared, 'f', decimals);
    return comparison == Comparison::Times ? number : QStringLiteral("+ ") + number;
}

void printRow(const Row& row, double ours, double reference, int movieCount)
{
    const auto compared = row.comparison == Comparison::Times ? ours / reference : ours - reference;
    printCells({titleOf(row, movieCount), figureText(ours, row.unit), figureText(reference, row.unit),
                comparisonText(compared, row.comparison, 2), comparisonText(row.bar, row.comparison, 1),
                compared <= row.bar ? QStringLiteral("ok") : QStringLiteral("short")});
}

} // namespace

const std::vector<Row>& rows()
{
    static const std::vector<Row> table{
        {.name = QStringLiteral("fetch"),
         .title = QStringLiteral("first fetch of %1 movies, sorted"),
         .bar = 1.5},
        {.name = QStringLiteral("sort"), .title = QStringLiteral("re-sort of %1 held movies"), .bar = 4},
        {.name = QStringLiteral("search"),
         .title = QStringLiteral("a search keystroke over %1 movies"),
         .bar = 2.5},
        {.name = QStringLiteral("summary"),
         .title = QStringLiteral("drawing one summary row of %1 movies"),
         .bar = 3},
        {.name = QStringLiteral("import"),
         .title = QStringLiteral("import of %1 lines"),
         .divisor = 5,
         .bar = 2},
        {.name = QStringLiteral("export"),
         .title = QStringLiteral("export of %1 covers"),
         .divisor = 20,
         .bar = 1.2},
        {.name = QStringLiteral("report"),
         .title = QStringLiteral("report of %1 movies with covers"),
         .divisor = 20,
         .bar = 1.3},
        {.name = QStringLiteral("start"),
         .title = QStringLiteral("start to first frame, %1 movies"),
         .divisor = 10,
         .bar = 1.3},
        {.name = QStringLiteral("memory"),
         .title = QStringLiteral("memory with %1 movies listed"),
         .unit = Unit::Mebibytes,
         .comparison = Comparison::More,
         .bar = 120},
    };
    return table;
}

const Row& rowNamed(const QString& name)
{
    for (const auto& row : rows()) {
        if (row.name == name)
            return row;
    }
    throw BenchError(QStringLiteral("There is no row called \"%1\"").arg(name));
}

void printTable(const FiguresByRow& figures, int movieCount)
{
    printCells({QStringLiteral("what"), QStringLiteral("ours"), QStringLiteral("reference"),
                QStringLiteral("ratio"), QStringLiteral("bar"), QString()});
    for (const auto& row : rows()) {
        const auto found = figures.find(row.name);
        if (found != figures.end() && found->second.ours && found->second.reference)
            printRow(row, *found->second.ours, *found->second.reference, movieCount);
    }
}
