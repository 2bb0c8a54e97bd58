#ifndef LISTVIEW_H
#define LISTVIEW_H

#include "listviewitem.h"

#include <QColor>
#include <QPixmap>
#include <QTimer>
#include <QVector>
#include <QWidget>

#include <functional>

class QLineEdit;
class QPainter;
class QValidator;

/// The list at the centre of every screen: rows by the page, driven by keys alone.
///
/// It owns its rows and decides what a key means from the selected row's type. Rows only paint; text is typed into
/// a line edit that the list floats over the selected row. Any slot may rebuild the list: after each signal the
/// list looks its rows up anew.
class ListView : public QWidget
{
    Q_OBJECT

public:
    enum eListViewScrollBarType {
        ScrollBarThinTrack = 0, ///< a light track
        ScrollBarClearTrack = 1, ///< the thumb alone
        ScrollBarBoxedTrack = 2 ///< a dark outline
    };

    explicit ListView(QWidget *parent = nullptr);
    ~ListView() override;

    // Own virtual operations. The list itself always goes through them.

    /// The selected row, -1 for none.
    virtual int selectedIdx();
    /// Any negative index clears the selection; a disabled row is refused. The window of rows does not follow.
    virtual void setSelectedIdx(int idx);
    /// The row that a function key stands for, possibly past the end; -1 for none.
    virtual int keyToItemIdx(int key);

    // Rows.

    /// Takes the row as the last one; neither repaints nor selects.
    ListViewItem *addItem(ListViewItem *item);
    /// As many rows as `count`, each made by `make` from its place among them when it is first looked at: of a long
    /// list that is rebuilt at every key, a person sees a few.
    void addItems(int count, const std::function<ListViewItem *(int)> &make);
    void removeItem(int idx);
    void moveItem(int from, int to);
    /// Deletes all rows. Selection and window stay as they were, for the caller to set.
    void itemClear();
    int itemSize() const { return m_items.size(); }
    /// The row, or null.
    ListViewItem *item(int idx) const;
    /// The first row with this text; if there is none, the last row.
    ListViewItem *item(QString const &text) const;

    // Paging and selection.

    int page() const { return m_page; }
    void setPage(int page);
    /// Rows shown at once.
    int pageCount() const { return m_pageCount; }
    void setPageCount(int count);
    /// The number of full pages less one, where prevPage() also counts the page that is not full.
    int maxPage() const;
    void nextPage();
    void prevPage();
    /// The first visible row.
    int startIdx() const { return m_startIdx; }
    void setStartIdx(int idx) { m_startIdx = idx; }
    /// The first enabled row from `startIdx` on, itself included. Without one the search forward gives -1, the
    /// search backward `startIdx`.
    int searchNextItemIndex(int startIdx, bool isInverseOrder) const;
    void doClick();

    /// The line edit that floats over text rows; null until the first of them was selected.
    QLineEdit *lineEdit() const { return m_editOverlay; }

    // Geometry and look.

    void setLineColor(QColor color) { m_lineColor = color; }
    QColor lineColor() const { return m_lineColor; }
    void setBackgroundColor(QColor const &color);
    QColor backgroundColor() const { return m_backgroundColor; }
    void setBackgroundPixmap(QPixmap const &pixmap) { m_backgroundPixmap = pixmap; }
    QPixmap backgroundPixmap() const { return m_backgroundPixmap; }
    void setLineLeftMargin(int margin) { m_lineLeftMargin = margin; }
    int lineLeftMargin() const { return m_lineLeftMargin; }
    void setLineRightMargin(int margin) { m_lineRightMargin = margin; }
    int lineRightMargin() const { return m_lineRightMargin; }
    void setScrollTopMargin(int margin) { m_scrollTopMargin = margin; }
    int scrollTopMargin() const { return m_scrollTopMargin; }
    void setScrollBottomMargin(int margin) { m_scrollBottomMargin = margin; }
    int scrollBottomMargin() const { return m_scrollBottomMargin; }
    void setScrollRightMargin(int margin) { m_scrollRightMargin = margin; }
    int scrollRightMargin() const { return m_scrollRightMargin; }
    /// Added to the height before it is divided among the rows.
    void setListBottomMargin(int margin) { m_listBottomMargin = margin; }
    int listBottomMargin() const { return m_listBottomMargin; }
    void setUseDotLine(bool use) { m_useDotLine = use; }
    bool useDotLine() const { return m_useDotLine; }
    void setDrawTopBottomLine(bool top, bool bottom);
    void setScrollbarBorderType(ListView::eListViewScrollBarType const &type) { m_scrollbarBorderType = type; }
    ListView::eListViewScrollBarType scrollbarBorderType() const { return m_scrollbarBorderType; }
    void setFocusType(eListViewItemFocusType const &type) { m_focusType = type; }
    eListViewItemFocusType focusType() const { return m_focusType; }
    /// Whether an empty list shows a picture and the empty string.
    void setShowEmptyString(bool show) { m_showEmptyString = show; }
    bool showEmptyString() const { return m_showEmptyString; }
    void setEmptyString(QString const &text) { m_emptyString = text.isNull() ? QString("") : text; }
    QString emptyString() const { return m_emptyString.isNull() ? tr("No Items") : m_emptyString; }

    // Behaviour.

    /// Whether a function key that is held for a second emits longPress().
    void setIsEnabledLongPress(bool enable) { m_isEnabledLongPress = enable; }
    bool isEnabledLongPress() const { return m_isEnabledLongPress; }
    void setIsEnabledArrowKeyMove(bool enable) { m_isEnabledArrowKeyMove = enable; }
    bool isEnabledArrowKeyMove() const { return m_isEnabledArrowKeyMove; }
    /// A pressed key whose release is still to come; the release without it does nothing.
    void setKeyPressFlag(bool pressed) { m_keyPressFlag = pressed; }
    bool isKeyPressFlag() const { return m_keyPressFlag; }
    /// Enter is being held: the selected row has its pressed look.
    void setSelectAndPressed(bool pressed) { m_selectAndPressed = pressed; }
    bool selectAndPressed() const { return m_selectAndPressed; }
    /// Whether arrows act on the press, and so repeat, or on the release.
    void setUseDirectMovement(bool use) { m_useDirectMovement = use; }
    bool useDirectMovement() const { return m_useDirectMovement; }
    /// Whether digits jump to cells; heeded by grids.
    void setUseHotKeyMove(bool use) { m_useHotKeyMove = use; }
    bool useHotKeyMove() const { return m_useHotKeyMove; }
    /// Whether Up on the first row leaves the list by leaveFocus().
    void setActiveLeaveFocusSignal(bool active) { m_activeLeaveFocusSignal = active; }
    bool activeLeaveFocusSignal() const { return m_activeLeaveFocusSignal; }
    /// Whether Down past the last row leaves the list by endLeaveFocus().
    void setActiveEndLeaveFocusSignal(bool active) { m_activeEndLeaveFocusSignal = active; }
    bool activeEndLeaveFocusSignal() const { return m_activeEndLeaveFocusSignal; }
    bool getActiveEndLeaveFocusSignal() const { return m_activeEndLeaveFocusSignal; }
    /// Whether a function key selects the row that it clicks, or clears the selection.
    void setIsVisibleSelectBackGround(bool visible) { m_isVisibleSelectBackGround = visible; }
    bool isVisibleSelectBackGround() const { return m_isVisibleSelectBackGround; }
    void setStartFuncKey(int key) { m_startFuncKey = key; }
    void setEndFuncKey(int key) { m_endFuncKey = key; }
    /// Switches the function keys off, whatever it is given; only subclasses have them on.
    void setEnableFuncKey(bool) { m_isEnableFuncKey = false; }
    bool isEnableFuncKey() const { return m_isEnableFuncKey; }

    bool ignoreEnterKey = false; ///< Enter and Return do nothing in the list
    bool wrapAround = true; ///< moves past either end go on at the other
    bool longPressSwallowed = false; ///< the next release is dropped

signals:
    void clicked(int idx);
    void longPress(int idx);
    /// Before the list acts on a released key, whatever the key.
    void keyPressed(int key);
    void focusChanged(int idx);
    void leaveFocus();
    void endLeaveFocus(int key);
    /// A key changed the value of a progress row; a mute tells the value from before it.
    void changeValue(int idx, int value);
    void changeLineEditText(int idx, QString text);
    void clickedFuncKey(int idx);
    /// The text in the floating line edit changed; comes before the row has it.
    void textChanged(QString text);

public slots:
    /// Brings the floating line edits and the keyboard focus in step with the selection.
    void checkFocus();
    void lineEditTextChanged(QString text);
    void longPressTimeout();

protected:
    bool event(QEvent *event) override;
    bool eventFilter(QObject *watched, QEvent *event) override;
    void keyPressEvent(QKeyEvent *event) override;
    void keyReleaseEvent(QKeyEvent *event) override;
    void focusInEvent(QFocusEvent *event) override;
    void paintEvent(QPaintEvent *event) override;
    void showEvent(QShowEvent *event) override;

    /// False for a disabled row and for an index without a row.
    bool isRowEnabled(int idx) const;
    // A page of no rows is accepted; sums divide by one row then.
    int rowsPerPage() const { return qMax(1, m_pageCount); }
    /// The room of the scroll bar, 0 while all rows fit.
    int scrollWidth() const;
    /// Where the row stands in the list, also while it is out of the window.
    QRect rowRect(int idx) const;
    /// Draws the scroll bar of a list that has one.
    void paintScrollBar(QPainter *painter, const QColor &thumbColor);
    /// Tells the row, ahead of its paint, where it stands and how the list is.
    void prepareRow(ListViewItem *row, const QRect &rect, int scrollWidth);
    /// Fills the list with its colour and picture.
    void paintGround(QPainter *painter);
    bool showsEmptyLook() const { return m_showEmptyString && m_items.isEmpty(); }
    void paintEmptyLook(QPainter *painter);
    /// Completes the floating row that was painted into `rect`: its frame and itself anew upon it.
    void paintFloating(QPainter *painter, ListViewItem *row, const QRect &rect, const QRect &frame);

    bool m_isEnableFuncKey = false;
    /// What the next change of the selection repaints instead of everything.
    QRegion m_movedPart;

private:
    void showRowOfPage();
    void scheduleCheckFocus();

    void moveSelection(QKeyEvent *event);
    void moveUp(int from);
    void moveDown(int from, int key);
    void moveSideways(QKeyEvent *event);
    bool changeProgress(QKeyEvent *event);
    void muteProgress(QKeyEvent *event);
    void clickSelected(QKeyEvent *event);
    void clickByFuncKey(QKeyEvent *event);

    void paintRows(QPainter *painter, const QRegion &part);
    void paintSeparator(QPainter *painter, const ListViewItem *row, const QRect &rect);
    void paintEdgeLines(QPainter *painter);

    QLineEdit *createOverlay();
    void takeFocus(QWidget *widget);
    void hideOverlay(QLineEdit *overlay);
    void showOverlay(QLineEdit *overlay, const QString &text, const QRect &rect);
    void setEditValidator(QValidator *validator);
    template <class Row> void fillEditOverlay(Row *row, const QRect &rect);
    void setUpLineEdit(ListViewItem *row);
    void setUpCheckLineEdit(ListViewItem *row);
    void setUpTimeEdit(ListViewItem *row);
    void lineEditRowChanged(const QString &text);

    void makeAllItems() const;

    mutable QVector<ListViewItem *> m_items; ///< null where a row is still to be made
    std::function<ListViewItem *(int)> m_makeItem; ///< gets the place in the list
    QColor m_lineColor = Qt::black;
    QPixmap m_backgroundPixmap;
    QColor m_backgroundColor;
    int m_page = 0;
    int m_pageCount = 3;
    int m_selectedIdx = 0;
    int m_startIdx = 0;
    int m_startFuncKey = Qt::Key_F1;
    int m_endFuncKey = Qt::Key_F10;
    int m_lineLeftMargin = 0;
    int m_lineRightMargin = 0;
    int m_scrollTopMargin = 0;
    int m_scrollBottomMargin = 0;
    int m_scrollRightMargin = 0;
    int m_listBottomMargin = 0;
    QLineEdit *m_editOverlay = nullptr;
    QLineEdit *m_timeOverlay = nullptr;
    QValidator *m_editValidator = nullptr;
    QTimer m_longPressTimer;
    QTimer m_checkFocusTimer;
    bool m_isEnabledLongPress = false;
    bool m_isEnabledArrowKeyMove = true;
    bool m_showEmptyString = false;
    QString m_emptyString; ///< null while the list says the words of the current language
    bool m_keyPressFlag = false;
    bool m_activeLeaveFocusSignal = false;
    bool m_activeEndLeaveFocusSignal = false;
    bool m_isVisibleSelectBackGround = true;
    eListViewScrollBarType m_scrollbarBorderType = ScrollBarThinTrack;
    bool m_drawTopLine = false;
    bool m_drawBottomLine = false;
    bool m_useDotLine = true;
    eListViewItemFocusType m_focusType = ListViewFocusFloating;
    bool m_selectAndPressed = false;
    bool m_useDirectMovement = true;
    bool m_useHotKeyMove = false;
};

#endif
