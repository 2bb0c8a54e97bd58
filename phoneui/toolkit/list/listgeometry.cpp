#include "listgeometry.h"

namespace ListGeometry {

QRect rowRect(const Frame &frame, int slot)
{
    const int height = (frame.size.height() + frame.bottomMargin) / frame.rowsPerPage;
    const int top = slot * height;
    const int right
        = frame.leftMargin + frame.size.width() - (frame.leftMargin + frame.rightMargin) - frame.scrollWidth;
    return QRect(QPoint(frame.leftMargin, top), QPoint(right, top + height - 1));
}

QRect focusFrame(const QRect &row, bool lastSlot, bool hasScrollBar)
{
    static constexpr int Above = 1, Below = 3, BelowLast = 4, InsideRight = 1;
    return row.adjusted(0, row.top() == 0 ? 0 : -Above, hasScrollBar ? 0 : -InsideRight,
                        lastSlot ? BelowLast : Below);
}

Thumb scrollThumb(const Track &track, int rows, int rowsPerPage, int selected)
{
    static constexpr qreal MinimumHeight = 20, LeastHeight = 1;
    const qreal room = track.height - track.topMargin - track.bottomMargin;
    const qreal hiddenShare = qreal(rows - rowsPerPage) / (rows - 1);
    const qreal end = track.height - track.bottomMargin;

    Thumb thumb;
    thumb.height = qMax(MinimumHeight, room * (1 - hiddenShare));
    thumb.top = qMax(0, selected) * (room / (rows - 1) * hiddenShare) + track.topMargin;
    if (thumb.top + thumb.height >= end)
        thumb.height = end - thumb.top;
    if (thumb.height <= 0)
        thumb.height = LeastHeight;
    return thumb;
}

int lastPage(int rows, int rowsPerPage)
{
    return rows / rowsPerPage + (rows % rowsPerPage ? 1 : 0) - 1;
}

}
