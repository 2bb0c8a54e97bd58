#ifndef LISTVIEWITEM_H
#define LISTVIEWITEM_H

#include <QColor>
#include <QPixmap>
#include <QRect>
#include <QScopedPointer>
#include <QString>

class QPainter;

/// How the selected row shows that it is selected. List and row each carry one; either can ask for floating.
enum eListViewItemFocusType {
    ListViewFocusBar = 0, ///< a solid bar, white on black
    ListViewFocusFloating = 1, ///< black on transparent inside a frame of corner images
    ListViewFocusFlat = 2 ///< the floating colours without a frame
};

/// A row of a ListView: neither widget nor QObject, owned by its list and painted by it.
///
/// `type()` is the contract with the list: it decides which keys act on the row and whether a line edit floats
/// over it. While a row is in a list, the list writes its geometry, focus, selection, pressed look, scroll bar
/// and colours anew at each paint; of the colours set by a caller only the base text colour survives.
class ListViewItem
{
public:
    enum UnderLine { UnderLineSolid = 0, UnderLineDotted = 1 };
    /// The size class of the floating box of a grid cell.
    enum FloatingFocusBoxSize { FloatingFocusBoxCell = 0, FloatingFocusBoxNormal = 1, FloatingFocusBoxWide = 2 };

    ListViewItem();
    /// Copies each icon that is not null.
    ListViewItem(QString const &text, QPixmap const &normal, QPixmap const &selected);

    virtual ~ListViewItem();
    /// The row's type code; 0 is a plain click row.
    virtual int type();
    /// Draws the row into the rectangle, in the list's coordinates.
    virtual void paint(QPainter *painter, QRect &rect);
    /// The space, in pixels, to the left of the row's edit field; rows without one have none to set.
    virtual int editTextLeftMargin();
    virtual void setEditTextLeftMargin(int margin);

    /// A null `selected` stands for `normal`; a null `normal` leaves the normal icon as it is.
    void setPixmap(QPixmap const &normal, QPixmap const &selected);
    /// 0 is the normal icon, 1 the selected one; null where there is none.
    QPixmap *pixmap(int index);

    QString &text() { return m_text; }
    void setText(QString const &text) { m_text = text; }
    int alignment() { return m_alignment; }
    void setAlignment(int flags) { m_alignment = flags; }

    bool hasFocus() { return m_hasFocus; }
    void setFocus(bool focus) { m_hasFocus = focus; }
    /// A floating row counts as selected while it is pressed, whatever was set.
    bool selected();
    void setSelected(bool selected) { m_selected = selected; }
    bool isVisible() { return m_visible; }
    void setVisible(bool visible) { m_visible = visible; }
    bool isTwoColumn() { return m_twoColumn; }
    void setTwoColumn(bool twoColumn) { m_twoColumn = twoColumn; }

    QColor baseTextColor() const { return m_baseTextColor; }
    /// The one colour that a row in a list keeps: its text colour while it is not selected.
    void setBaseTextColor(QColor const &color) { m_baseTextColor = color; }
    QColor textColor() { return m_textColor; }
    void setTextColor(QColor const &color) { m_textColor = color; }
    QColor textSelectColor() { return m_textSelectColor; }
    void setTextSelectColor(QColor const &color) { m_textSelectColor = color; }
    QColor textNoFocusSelectColor() const { return m_textNoFocusSelectColor; }
    void setTextNoFocusSelectColor(QColor const &color) { m_textNoFocusSelectColor = color; }
    QColor backGroundColor() const { return m_backGroundColor; }
    void setBackGroundColor(QColor const &color) { m_backGroundColor = color; }
    QColor backGroundSelectColor() { return m_backGroundSelectColor; }
    void setBackGroundSelectColor(QColor const &color) { m_backGroundSelectColor = color; }
    QColor backGroundNoFocusSelectColor() { return m_backGroundNoFocusSelectColor; }
    void setBackGroundNoFocusSelectColor(QColor const &color) { m_backGroundNoFocusSelectColor = color; }
    /// The text colour of a disabled row, which while selected is the selected one.
    QColor textDisableColor();
    void setTextDisableColor(QColor const &color) { m_textDisableColor = color; }

    /// The row's rectangle in the list; the floating line edit is placed from it.
    QRect geometry() { return m_geometry; }
    void setGeometry(QRect const &rect) { m_geometry = rect; }
    /// The rectangle of the latest paint, which the focus frame of a grid follows.
    QRect itemRect() const { return m_itemRect; }
    void setItemRect(QRect const &rect) { m_itemRect = rect; }

    /// The application's own pointer, never freed here.
    void *data() { return m_data; }
    void setData(void *data) { m_data = data; }

    bool hasScrollBar() const { return m_hasScrollBar; }
    void setHasScrollBar(bool has) { m_hasScrollBar = has; }
    /// The width set, and the 3 pixels that keep text off the bar.
    int scrollBarAreaWidth() const { return m_scrollBarAreaWidth + 3; }
    void setScrollBarAreaWidth(int width) { m_scrollBarAreaWidth = width; }

    bool useShadow() const { return m_useShadow; }
    void setUseShadow(bool use) { m_useShadow = use; }
    eListViewItemFocusType focusType() const { return m_focusType; }
    void setFocusType(eListViewItemFocusType const &type) { m_focusType = type; }
    bool isPressed() const { return m_isPressed; }
    void setIsPressed(bool pressed) { m_isPressed = pressed; }
    ListViewItem::UnderLine underLineType() const { return m_underLineType; }
    void setUnderLineType(ListViewItem::UnderLine const &type) { m_underLineType = type; }
    ListViewItem::FloatingFocusBoxSize floatingFocusBoxSize() const { return m_floatingFocusBoxSize; }
    void setFloatingFocusBoxSize(ListViewItem::FloatingFocusBoxSize const &size) { m_floatingFocusBoxSize = size; }
    /// A disabled row is skipped by the keys and never selected.
    void setItemSelectEnable(bool enable) { m_itemSelectEnable = enable; }

protected:
    /// How every row begins to paint: remembers the rectangle, fills it and sets the pen by the row's state.
    void paintGround(QPainter *painter, QRect const &rect);

    bool isSelectEnabled() const { return m_itemSelectEnable; }

private:
    friend class ListView; // skips disabled rows

    Q_DISABLE_COPY(ListViewItem)

    QScopedPointer<QPixmap> m_pixmaps[2];
    QString m_text;
    int m_alignment = Qt::AlignVCenter;
    bool m_hasFocus = true;
    bool m_selected = false;
    bool m_visible = true;
    bool m_twoColumn = false;
    QColor m_baseTextColor = Qt::black;
    QColor m_textColor = Qt::black;
    QColor m_textSelectColor = Qt::white;
    QColor m_textNoFocusSelectColor = Qt::white;
    QColor m_backGroundColor = Qt::white;
    QColor m_backGroundSelectColor = Qt::black;
    QColor m_backGroundNoFocusSelectColor = Qt::black;
    QColor m_textDisableColor = Qt::black;
    QRect m_geometry;
    void *m_data = nullptr;
    bool m_hasScrollBar = false;
    int m_scrollBarAreaWidth = 6;
    QRect m_itemRect;
    bool m_useShadow = false;
    eListViewItemFocusType m_focusType = ListViewFocusFloating;
    bool m_isPressed = false;
    ListViewItem::UnderLine m_underLineType = UnderLineDotted;
    ListViewItem::FloatingFocusBoxSize m_floatingFocusBoxSize = FloatingFocusBoxNormal;
    bool m_itemSelectEnable = true;
};

#endif
