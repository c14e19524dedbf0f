#include "tests/walk/RowActs.h"

bool RowActs::canDeleteRows()
{
    const ModelScene* list = state.list();
    return list != nullptr && (list->kind->content == ModelListKind::Content::Movies ||
                               list->kind->content == ModelListKind::Content::Values);
}

void RowActs::uncovered(const Seen& row)
{
    if (canDeleteRows())
        state.uncoveredRow() = row.name;
}

QString RowActs::perform(const Step& step)
{
    const int screen = state.screens.topNumber();
    const QString done = draw(step);
    if (state.screens.topNumber() != screen)
        throw WalkFailure("It opens " + state.screens.topClass() + ": " + done);
    return done;
}

QString RowActs::draw(const Step& step)
{
    using Kind = Step::Kind;
    const std::vector<Seen> rows = state.hand.rowsInSight();
    if (rows.empty() || state.list() == nullptr)
        return {};
    const Seen& row = chosen(rows, step.first);
    if (step.kind == Kind::SecondFinger)
        return tapWhileDrawing(row, chosen(rows, step.second));
    if (step.kind == Kind::DrawRowAway && state.uncoveredRow() != row.name)
        return drawRow(row, 0.8, "away");
    if (step.kind == Kind::DrawRowBack)
        return drawRow(row, 0.05, "a little");
    if (step.kind == Kind::UncoverRow)
        return drawRow(row, 0.3, "aside");
    const bool holds = step.kind == Kind::HoldRow;
    holds ? state.hand.longPress(row.part.center()) : state.hand.rightClick(row.part.center());
    uncovered(row);
    state.conclude({});
    return (holds ? "hold " : "right-click ") + row.shortName();
}

QString RowActs::drawRow(const Seen& row, double part, const QString& name)
{
    const QPoint from(row.part.right() - 100, row.part.center().y());
    const int width = std::min(row.part.width(), row.part.right());
    Consequence consequence;
    if (canDeleteRows() && part > 0.6)
        consequence = consequences.deleting(*consequences.positionOf(row));
    else if (part > 0.2)
        consequence = [this, row] { uncovered(row); };
    state.hand.drag(from, from - QPoint(std::max(30, static_cast<int>(width * part)), 0), 200);
    state.conclude(consequence);
    return QString("draw %1 %2").arg(row.shortName(), name);
}

QString RowActs::tapWhileDrawing(const Seen& row, const Seen& other)
{
    const QPoint from(row.part.right() - 100, row.part.center().y());
    state.hand.dragWhileTapping(from, from - QPoint(row.part.width() / 3, 0), other.part.center());
    uncovered(row);
    state.conclude({});
    return QString("draw %1 aside while a finger taps %2").arg(row.shortName(), other.shortName());
}
