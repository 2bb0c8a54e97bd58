#include "gridmoves.h"

#include <Qt>

#include <algorithm>

namespace GridMoves {

/// One step back along the indices, with the page before when it leaves the page.
static Move stepBack(const Grid &grid, int index)
{
    if (index < 1)
        return {grid.size - 1, Page::Last};
    return {index - 1, index % grid.perPage() == 0 ? Page::Previous : Page::Same};
}

static Move stepOn(const Grid &grid, int index)
{
    const int next = index + 1;
    if (next >= grid.size)
        return {0, Page::First};
    return {next, next % grid.perPage() == 0 ? Page::Next : Page::Same};
}

static Move columnLeft(const Grid &grid, int index)
{
    const int line = index % grid.rows;
    if (index >= grid.rows)
        return {index - grid.rows, index % grid.perPage() >= grid.rows ? Page::Same : Page::Previous};

    int target = (grid.size - 1) / grid.rows * grid.rows + line;
    if (grid.pages() <= 1)
        target = index == 0 ? grid.size - 1 : grid.perPage() - grid.rows + line - 1;
    return {std::min(target, grid.size - 1), Page::Last};
}

static Move columnRightOnOnePage(const Grid &grid, int index)
{
    if (index == grid.size - 1)
        return {0, Page::Same};
    const bool lastColumn = index >= grid.perPage() - grid.rows;
    return {lastColumn ? index % grid.rows + 1 : index + grid.rows, Page::Same};
}

static Move columnRight(const Grid &grid, int index)
{
    if (grid.pages() <= 1)
        return columnRightOnOnePage(grid, index);

    const int target = index + grid.rows;
    const bool leavesPage = index % grid.perPage() + grid.rows >= grid.perPage();
    const bool onLastPage = index / grid.perPage() + 1 >= grid.pages();
    if (!onLastPage)
        return {std::min(target, grid.size - 1), leavesPage ? Page::Next : Page::Same};
    if (leavesPage)
        return {index % grid.rows, Page::Same};
    if (target >= grid.size)
        return {index % grid.rows, Page::First};
    return {target, Page::Same};
}

Move downColumns(const Grid &grid, int index, int key)
{
    switch (key) {
    case Qt::Key_Up: return stepBack(grid, index);
    case Qt::Key_Down: return stepOn(grid, index);
    case Qt::Key_Left: return columnLeft(grid, index);
    default: return columnRight(grid, index);
    }
}

static Move rowUp(const Grid &grid, int index)
{
    if (index >= grid.columns)
        return {index - grid.columns, index % grid.perPage() >= grid.columns ? Page::Same : Page::Previous};
    while (index + grid.columns < grid.size)
        index += grid.columns;
    return {index, Page::Last};
}

static Move rowDown(const Grid &grid, int index)
{
    const int target = index + grid.columns;
    if (target >= grid.size)
        return {index % grid.columns, Page::First};
    return {target, index % grid.perPage() + grid.columns < grid.perPage() ? Page::Same : Page::Next};
}

Move alongRows(const Grid &grid, int index, int key)
{
    switch (key) {
    case Qt::Key_Left: return stepBack(grid, index);
    case Qt::Key_Right: return stepOn(grid, index);
    case Qt::Key_Up: return rowUp(grid, index);
    default: return rowDown(grid, index);
    }
}

int hotKeyCell(const Grid &grid, int digitKey)
{
    enum Column { First, Middle, Last };
    static constexpr struct
    {
        int key;
        Column column;
        int line;
        int rowsAbove; ///< the key acts in a grid with more rows than this
    } hotKeys[] = {
        {Qt::Key_1, First, 0, 0},  {Qt::Key_4, First, 1, 1},  {Qt::Key_7, First, 2, 2},
        {Qt::Key_2, Middle, 0, 1}, {Qt::Key_5, Middle, 1, 2}, {Qt::Key_8, Middle, 2, 0},
        {Qt::Key_3, Last, 0, 0},   {Qt::Key_6, Last, 1, 1},   {Qt::Key_9, Last, 2, 2},
    };
    const int columnStart[] = {0, grid.rows, grid.perPage() - grid.rows};

    for (const auto &hotKey : hotKeys) {
        if (hotKey.key != digitKey)
            continue;
        const bool acts = grid.rows > hotKey.rowsAbove && (hotKey.column != Middle || grid.columns == 3);
        return acts ? columnStart[hotKey.column] + hotKey.line : -1;
    }
    return -1;
}

}
