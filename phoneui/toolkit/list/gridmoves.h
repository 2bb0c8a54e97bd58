#ifndef GRIDMOVES_H
#define GRIDMOVES_H

/// Where an arrow leads in a grid, by index; no widget, no painting.
namespace GridMoves {

struct Grid
{
    int rows = 1;
    int columns = 1;
    int size = 0; ///< cells in all

    int perPage() const { return rows * columns; }
    /// Rounded up; an empty grid has none.
    int pages() const { return (size + perPage() - 1) / perPage(); }
};

/// What becomes of the page that is shown.
enum class Page { Same, Next, Previous, First, Last };

struct Move
{
    int index;
    Page page;
};

/// `key` is an arrow, `index` the selected cell. The indices run down the columns.
Move downColumns(const Grid &grid, int index, int key);
/// The indices run along the rows.
Move alongRows(const Grid &grid, int index, int key);

/// The cell of the page that a digit stands for, as the keypad lies over the grid column by column; -1 for none.
int hotKeyCell(const Grid &grid, int digitKey);

}

#endif
