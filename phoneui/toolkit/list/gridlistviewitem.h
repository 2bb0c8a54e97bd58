#ifndef GRIDLISTVIEWITEM_H
#define GRIDLISTVIEWITEM_H

#include "listviewitem.h"

/// A cell of a menu-like grid: an icon over a caption.
class GridListViewItem : public ListViewItem
{
public:
    GridListViewItem(QString const &text, QPixmap const &normal, QPixmap const &selected);

    void paint(QPainter *painter, QRect &rect) override;
    /// The keypad key that selects and clicks the cell, -1 for none.
    virtual int digitKey() const;
    virtual void setDigitKey(int key);

    /// Whether a long caption breaks into lines, or is cut.
    bool useWordWrap() const { return m_useWordWrap; }
    void setUseWordWrap(bool use) { m_useWordWrap = use; }
    /// The number that the cell shows in its corner, 0 for none.
    int index() const { return m_index; }
    void setIndex(int index) { m_index = index; }
    int leftMargin() const { return m_leftMargin; }
    void setLeftMargin(int margin) { m_leftMargin = margin; }
    int rightMargin() const { return m_rightMargin; }
    void setRightMargin(int margin) { m_rightMargin = margin; }

protected:
    /// The icon for the state of the cell, null if it has none.
    QPixmap icon();
    /// The cell without its margins and its number.
    QRect room(const QRect &rect) const;
    void drawIndex(QPainter *painter, const QRect &rect);
    void drawCaption(QPainter *painter, const QRect &rect, int flags);

private:
    bool m_useWordWrap = false;
    int m_index = 0;
    int m_leftMargin = 0;
    int m_rightMargin = 0;
    int m_digitKey = -1;
};

/// A menu entry: the icon at the left, the caption beside it.
class GridListViewMenuItem : public GridListViewItem
{
public:
    GridListViewMenuItem(QString const &text, QPixmap const &normal, QPixmap const &selected);

    void paint(QPainter *painter, QRect &rect) override;
};

/// A function of the screen, such as "Add": icon and caption together in the middle of a wide focus box.
class GridListViewFunctionItem : public GridListViewItem
{
public:
    GridListViewFunctionItem(QString const &text, QPixmap const &normal, QPixmap const &selected);

    void paint(QPainter *painter, QRect &rect) override;
};

#endif
