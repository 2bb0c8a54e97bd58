#ifndef GRIDSELECTVIEW_H
#define GRIDSELECTVIEW_H

#include "gridmoves.h"
#include "listview.h"

/// A list laid out as pages of cells, with arrows in both directions and movement by whole pages.
///
/// The rows stay in one flat list; the grid is a way of reading their indices. A grid moves when the key is
/// released.
class GridSelectView : public ListView
{
    Q_OBJECT

public:
    /// How the indices run through a page.
    enum eScrollType {
        ScrollByColumn = 0, ///< down a column, then on to the next
        ScrollByRow = 1 ///< along a row, then on to the next
    };

    explicit GridSelectView(QWidget *parent = nullptr);
    GridSelectView(int row, int col, QWidget *parent = nullptr);

    // Pages, counted from 1.

    int currentPage() const { return m_currentPage; }
    void setCurrentPage(int page) { m_currentPage = page; }
    /// Counts the pages anew.
    int totalPage();
    void setTotalPage(int pages) { m_totalPage = pages; }
    int itemCountPerPage() const { return m_row * m_col; }
    void moveToNextPage();
    void moveToPrevPage();
    /// Selects on the current page the cell in the place of the selected one.
    void repositionSelectedItem();
    /// Selects the cell and shows its page.
    void setCurrentIndex(int idx);
    /// Counts the pages anew and repaints.
    void update();

    int row() const { return m_row; }
    void setRow(int row) { setGridSize(row, m_col); }
    int col() const { return m_col; }
    void setCol(int col) { setGridSize(m_row, col); }
    void setGridSize(int row, int col);
    int rowGap() const { return m_rowGap; }
    void setRowGap(int gap) { m_rowGap = gap; }
    int colGap() const { return m_colGap; }
    void setColGap(int gap) { m_colGap = gap; }

    /// Dotted lines between the cells, with or without useDivideLines.
    bool useDotLines() const { return m_useDotLines; }
    void setUseDotLines(bool use) { m_useDotLines = use; }
    bool useDivideLines() const { return m_useDivideLines; }
    void setUseDivideLines(bool const &use) { m_useDivideLines = use; }
    bool useSideLine() const { return m_useSideLine; }
    void setUseSideLine(bool use) { m_useSideLine = use; }
    bool useBottomLine() const { return m_useBottomLine; }
    void setUseBottomLine(bool use) { m_useBottomLine = use; }
    bool useTopLine() const { return m_useTopLine; }
    void setUseTopLine(bool use) { m_useTopLine = use; }
    /// Whether the bottom line stands inset.
    bool useBottomLineOffset() const { return m_useBottomLineOffset; }
    void setUseBottomLineOffset(bool use) { m_useBottomLineOffset = use; }
    /// Whether cells show their number, counted from 1.
    bool showIndex() const { return m_showIndex; }
    void setShowIndex(bool show) { m_showIndex = show; }
    GridSelectView::eScrollType scrollType() const { return m_scrollType; }
    void setScrollType(GridSelectView::eScrollType type) { m_scrollType = type; }
    /// 1 frames the selected cell; otherwise an eListViewItemFocusType for the cells.
    int focusType() const { return m_focusType; }
    void setFocusType(int type) { m_focusType = type; }
    /// Whether a digit selects and clicks the cell that carries it.
    bool useDigitMap() const { return m_useDigitMap; }
    void setUseDigitMap(bool use) { m_useDigitMap = use; }
    /// Whether Left before the first column and Right behind the last emit reject().
    bool useNaviKeyReject() const { return m_useNaviKeyReject; }
    void setUseNaviKeyReject(bool use) { m_useNaviKeyReject = use; }

signals:
    void pageMoved(int page);
    void reject();

protected:
    void keyPressEvent(QKeyEvent *event) override;
    void keyReleaseEvent(QKeyEvent *event) override;
    void paintEvent(QPaintEvent *event) override;

    /// Whether lines are drawn beside places without a cell too.
    bool m_drawAllLines = false;

private:
    GridMoves::Grid grid() const;
    void showPage(int page);
    bool leadsOut(int key);
    void moveByArrow(int key);
    void apply(const GridMoves::Move &move);
    void selectByDigit(int key);
    void clickByDigit();
    void jumpByHotKey(int key);

    /// Column and line of a place on the page.
    QPoint place(int slot) const;
    QRect cellRect(int slot) const;
    /// All that a cell of this page paints, its focus frame included.
    QRect paintedRect(int idx) const;
    int firstOfPage() const { return (m_currentPage - 1) * itemCountPerPage(); }
    void paintCells(QPainter *painter, const QRegion &part);
    void paintLines(QPainter *painter);
    void paintDivideLines(QPainter *painter);
    void paintOuterLines(QPainter *painter);
    void paintFocus(QPainter *painter);

    int m_row = 4;
    int m_col = 3;
    int m_currentPage = 1;
    int m_totalPage = 1;
    bool m_showIndex = false;
    eScrollType m_scrollType = ScrollByColumn;
    bool m_useTopLine = false;
    bool m_useBottomLine = false;
    bool m_useSideLine = false;
    bool m_useDivideLines = true;
    bool m_useDotLines = false;
    bool m_useBottomLineOffset = true;
    int m_focusType = 0;
    int m_rowGap = 0;
    int m_colGap = 0;
    bool m_useDigitMap = false;
    bool m_useNaviKeyReject = false;
};

#endif
