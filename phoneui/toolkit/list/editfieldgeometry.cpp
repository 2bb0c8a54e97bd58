#include "editfieldgeometry.h"

namespace {

// The line edit stands clear of the outline that the row paints around it.
constexpr int EditTop = 6;
constexpr int EditBottom = 27;

// Where values begin, from the row's left edge.
constexpr int ValueColumn = 192;

QRect between(const QRect &row, int left, int right)
{
    return QRect(QPoint(left, row.top() + EditTop), QPoint(right, row.top() + EditBottom));
}

}

namespace EditFieldGeometry {

QRect lineEdit(const QRect &row, int margin)
{
    static constexpr int FromRight = 6;
    return between(row, row.left() + ValueColumn + margin + 1, row.right() - FromRight);
}

QRect numberEdit(const QRect &row, int margin)
{
    static constexpr int NumberColumn = 198, FromRight = 5;
    return between(row, row.left() + NumberColumn + margin, row.right() - FromRight);
}

QRect checkLineEdit(const QRect &row, int margin, bool useTitleText)
{
    static constexpr int FromRight = 15;
    const int shift = useTitleText || margin <= 0 ? margin : 0;
    return between(row, row.left() + ValueColumn + shift + 2, row.right() - FromRight);
}

QRect timeEdit(const QRect &row, bool useAmPm)
{
    static constexpr int PlateWidth = 90, Indent = 96, FromRight = 4;
    const int indent = useAmPm ? 0 : Indent;
    const int plate = useAmPm ? PlateWidth : 0;
    return between(row, row.left() + ValueColumn + indent + 1, row.right() - plate - FromRight);
}

QRect textOf(const QRect &edit, int textHeight)
{
    // QLineEdit leaves that much free beside its text, and gives a spare pixel to the space above it.
    static constexpr int Margin = 2;
    return QRect(edit.left() + Margin, edit.top() + (edit.height() - textHeight + 1) / 2, edit.width() - 2 * Margin,
                 textHeight);
}

}
