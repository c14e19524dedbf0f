#pragma once

#include <QString>
#include <map>
#include <optional>
#include <vector>

enum class Unit { Milliseconds, Mebibytes };

// How ours may compare with the reference: so many times as much, or so much more.
enum class Comparison { Times, More };

// A line of the table. To add one: a row here, and two measurements of its name, "name/ours" and
// "name/reference".
struct Row
{
    QString name;
    // %1 is the number of things, which is that of the catalogue's movies divided by `divisor`.
    QString title;
    int divisor = 1;
    Unit unit = Unit::Milliseconds;
    Comparison comparison = Comparison::Times;
    double bar = 1;

    [[nodiscard]] int thingCount(int movieCount) const { return movieCount / divisor; }
};

[[nodiscard]] const std::vector<Row>& rows();
// The row of that name, which there is.
[[nodiscard]] const Row& rowNamed(const QString& name);

// The two figures of a row, as far as they were measured, in the row's unit.
struct Figures
{
    std::optional<double> ours;
    std::optional<double> reference;
};
using FiguresByRow = std::map<QString, Figures>;

// Prints the rows that have both figures.
void printTable(const FiguresByRow& figures, int movieCount);
