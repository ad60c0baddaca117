#include "View/engine/MarkedCells.h"

#include <algorithm>
#include <functional>
#include <optional>

#include <QHeaderView>
#include <QTableWidget>

#include "View/editors/TableMark.h"
#include "View/engine/CellNumber.h"
#include "View/engine/CellText.h"
#include "View/engine/DataTypes.h"

namespace {

const QLatin1String kNothingHere("No marked cell can be changed.");
const QLatin1String kNothingMarked("No cell is marked.");

QString TextOf(const QTableWidget *table, int row, int column)
{
    const QWidget *cell = table->cellWidget(row, column);
    if (!cell)
        return table->model()->index(row, column).data().toString();
    const QString text = CellText(cell);
    if (!text.isEmpty())
        return text;
    const SDataType *type = FindScalarTypeOfWidget(cell);
    return type && type->text ? type->text(cell) : QString();
}

QString HeaderText(const QTableWidget *table, int section, Qt::Orientation orientation)
{
    return table->model()->headerData(section, orientation).toString();
}

// So many sections that are seen, from this one on; fewer when the table ends before.
std::vector<int> SeenFrom(const QHeaderView *header, int first, size_t count)
{
    std::vector<int> sections;
    for (int i = first; i < header->count() && sections.size() < count; ++i) {
        if (!header->isSectionHidden(i))
            sections.push_back(i);
    }
    return sections;
}

// Of each marked cell that can be changed, what the command makes of it; none leaves it out.
SCellPlan PlanEach(const SMarkedCells &cells,
                   const std::function<std::optional<QString>(QWidget *)> &make)
{
    SCellPlan plan;
    for (const int row : cells.rows) {
        for (const int column : cells.columns) {
            QWidget *cell = cells.table->cellWidget(row, column);
            const auto text = IsChangeable(cell) ? make(cell) : std::nullopt;
            if (text)
                plan.entries.push_back({.row = row, .column = column, .text = *text});
        }
    }
    if (plan.entries.empty())
        plan.remark = kNothingHere;
    return plan;
}

void InterpolateRow(const SMarkedCells &cells, int row, CellEntries &entries)
{
    const std::vector<int> &columns = cells.columns;
    const auto first = NumberOf(cells.table->cellWidget(row, columns.front()));
    const auto last = NumberOf(cells.table->cellWidget(row, columns.back()));
    if (!first || !last)
        return;
    const auto steps = static_cast<double>(columns.size() - 1);
    for (size_t i = 1; i + 1 < columns.size(); ++i) {
        const QWidget *cell = cells.table->cellWidget(row, columns[i]);
        if (!IsChangeable(cell) || !NumberOf(cell))
            continue;
        const double number = *first + (*last - *first) * static_cast<double>(i) / steps;
        entries.push_back({.row = row, .column = columns[i], .text = TextOfNumber(cell, number)});
    }
}

}  // namespace

SMarkedCells MarkedCells(const QTableWidget *table)
{
    const CTableMark *mark = CTableMark::Of(table);
    return {.table = table, .rows = mark->Rows(), .columns = mark->Columns()};
}

SMarkedCells AllCells(const QTableWidget *table)
{
    return {.table = table,
            .rows = SeenFrom(table->verticalHeader(), 0, static_cast<size_t>(table->rowCount())),
            .columns =
                SeenFrom(table->horizontalHeader(), 0, static_cast<size_t>(table->columnCount()))};
}

QStringList CaptionsOf(const SMarkedCells &cells)
{
    QStringList line(QString{});
    for (const int column : cells.columns)
        line.append(HeaderText(cells.table, column, Qt::Horizontal));
    return line;
}

QStringList TextsOf(const QTableWidget *table, int row, const std::vector<int> &columns,
                    bool hasCaption)
{
    QStringList line;
    if (hasCaption)
        line.append(HeaderText(table, row, Qt::Vertical));
    for (const int column : columns)
        line.append(TextOf(table, row, column));
    return line;
}

SCellPlan PlanPaste(const SMarkedCells &cells, const CellRows &texts)
{
    const size_t height = texts.size();
    int width = 0;
    for (const QStringList &line : texts)
        width = std::max(width, line.size());
    if (width == 0)
        return {.remark = QStringLiteral("The clipboard has no cells.")};
    if (cells.rows.empty() || cells.columns.empty())
        return {.remark = kNothingMarked};
    SMarkedCells room = cells;
    if (cells.rows.size() == 1 && cells.columns.size() == 1) {
        room.rows = SeenFrom(cells.table->verticalHeader(), cells.rows.front(), height);
        room.columns = SeenFrom(cells.table->horizontalHeader(), cells.columns.front(),
                                static_cast<size_t>(width));
    }
    if (room.rows.size() % height != 0 || room.columns.size() % static_cast<size_t>(width) != 0 ||
        room.rows.empty())
        return {.remark = QStringLiteral("%1 x %2 cells do not fit into %3 x %4.")
                              .arg(height)
                              .arg(width)
                              .arg(room.rows.size())
                              .arg(room.columns.size())};
    SCellPlan plan;
    plan.entries.reserve(room.rows.size() * room.columns.size());
    for (size_t r = 0; r < room.rows.size(); ++r) {
        const QStringList &line = texts[r % height];
        for (size_t c = 0; c < room.columns.size(); ++c)
            plan.entries.push_back({.row = room.rows[r],
                                    .column = room.columns[c],
                                    .text = line.value(static_cast<int>(c) % width)});
    }
    return plan;
}

SCellPlan PlanZero(const SMarkedCells &cells)
{
    return PlanEach(cells, TextNearestToZero);
}

SCellPlan PlanOffset(const SMarkedCells &cells, double offset)
{
    return PlanEach(cells, [offset](QWidget *cell) -> std::optional<QString> {
        const auto number = NumberOf(cell);
        if (!number)
            return {};
        return TextOfNumber(cell, *number + offset);
    });
}

SCellPlan PlanFillRight(const SMarkedCells &cells)
{
    if (cells.columns.size() < 2)
        return {.remark = QStringLiteral("Fill right takes two marked columns at least.")};
    SCellPlan plan;
    for (const int row : cells.rows) {
        const QString text = TextOf(cells.table, row, cells.columns.front());
        for (size_t c = 1; c < cells.columns.size(); ++c) {
            const int column = cells.columns[c];
            if (IsChangeable(cells.table->cellWidget(row, column)))
                plan.entries.push_back({.row = row, .column = column, .text = text});
        }
    }
    if (plan.entries.empty())
        plan.remark = kNothingHere;
    return plan;
}

SCellPlan PlanInterpolate(const SMarkedCells &cells)
{
    if (cells.columns.size() < 3)
        return {.remark = QStringLiteral("Interpolate takes three marked columns at least.")};
    SCellPlan plan;
    for (const int row : cells.rows)
        InterpolateRow(cells, row, plan.entries);
    if (plan.entries.empty())
        plan.remark = kNothingHere;
    return plan;
}
