#ifndef ROWDELEGATES_H
#define ROWDELEGATES_H

#include "editfieldgeometry.h"
#include "focusframe.h"
#include "formpainting.h"
#include "listgeometry.h"
#include "listpainting.h"
#include "listviewcontactitem.h"
#include "numberedititems.h"
#include "rowpainting.h"

#include <QApplication>
#include <QImage>
#include <QLineEdit>
#include <QPainter>
#include <QStyledItemDelegate>
#include <QVector>

#include <algorithm>

/// Paints the phone's rows in a list of Qt's own, the selected one on its frame.
class RowDelegate : public QStyledItemDelegate
{
public:
    static constexpr int RowHeight = 34, CellWidth = 187;

    explicit RowDelegate(const QVector<ListViewItem *> &rows) : m_rows(rows) { }

    void paint(QPainter *painter, const QStyleOptionViewItem &option, const QModelIndex &index) const override
    {
        paintRow(painter, option.rect, m_rows.at(index.row()), option.state & QStyle::State_Selected);
    }
    QSize sizeHint(const QStyleOptionViewItem &option, const QModelIndex &) const override
    {
        return QSize(option.rect.width(), RowHeight);
    }
    QWidget *createEditor(QWidget *parent, const QStyleOptionViewItem &, const QModelIndex &) const override
    {
        return new QLineEdit(parent);
    }
    void setEditorData(QWidget *editor, const QModelIndex &index) const override
    {
        static_cast<QLineEdit *>(editor)->setText(index.data().toString());
    }
    void setModelData(QWidget *, QAbstractItemModel *, const QModelIndex &) const override { }
    void updateEditorGeometry(QWidget *editor, const QStyleOptionViewItem &option,
                              const QModelIndex &) const override
    {
        editor->setGeometry(option.rect.adjusted(option.rect.width() / 2, 2, -5, -2));
    }

    /// Whether both paint the same pictures of every row.
    bool paintsAs(const RowDelegate &other) const
    {
        return std::all_of(m_rows.begin(), m_rows.end(), [&](ListViewItem *row) {
            return picture(row, false) == other.picture(row, false)
                && picture(row, true) == other.picture(row, true);
        });
    }

protected:
    virtual void paintRow(QPainter *painter, const QRect &rect, ListViewItem *row, bool selected) const = 0;

    static void drawSeparator(QPainter *painter, const QRect &rect)
    {
        ListPainting::drawDottedLine(painter, QLine(rect.bottomLeft(), rect.bottomRight()), Qt::white);
    }
    static QRect frameOf(const QRect &row) { return ListGeometry::focusFrame(row, false, true); }

private:
    QImage picture(ListViewItem *row, bool selected) const
    {
        static constexpr int Above = 5;
        QImage picture(2 * CellWidth, RowHeight + 2 * Above, QImage::Format_RGB32);
        picture.fill(Qt::white);
        QPainter painter(&picture);
        painter.setFont(QApplication::font("QListView"));
        paintRow(&painter, QRect(0, Above, picture.width(), RowHeight), row, selected);
        return picture;
    }

    const QVector<ListViewItem *> m_rows;
};

/// By the rows themselves, which keep their texts as they were shaped.
class PhoneDelegate : public RowDelegate
{
public:
    using RowDelegate::RowDelegate;

protected:
    void paintRow(QPainter *painter, const QRect &rect, ListViewItem *row, bool selected) const override
    {
        QRect place = rect;
        ListPainting::setColors(row, ListPainting::role(selected, ListViewFocusFloating, row));
        row->paint(painter, place);
        drawSeparator(painter, rect);
        if (selected)
            ListPainting::drawFocused(painter, row, rect, frameOf(rect), false, row->baseTextColor());
    }
};

/// With texts that the painter cuts and draws, and each row once.
class PlainDelegate : public RowDelegate
{
public:
    using RowDelegate::RowDelegate;

protected:
    void paintRow(QPainter *painter, const QRect &rect, ListViewItem *row, bool selected) const override
    {
        painter->save();
        painter->fillRect(rect, Qt::white);
        drawSeparator(painter, rect);
        if (selected)
            FocusFrame(FocusFrame::Plain).draw(painter, frameOf(rect));
        painter->setPen(row->baseTextColor());
        if (auto *field = dynamic_cast<NumberEditLineEditItem *>(row))
            drawField(painter, rect, field);
        else if (auto *choice = dynamic_cast<NumberEditSelectItem *>(row))
            drawChoice(painter, rect, choice);
        else
            drawName(painter, rect, row);
        painter->restore();
    }

private:
    static void drawText(QPainter *painter, const QRect &rect, int flags, const QString &text)
    {
        painter->drawText(rect, flags, painter->fontMetrics().elidedText(text, Qt::ElideRight, rect.width()));
    }

    static void drawName(QPainter *painter, const QRect &rect, ListViewItem *row)
    {
        static constexpr int Left = 10, CellLeft = 11, CellRight = 14;
        QRect place = rect.adjusted(Left, 0, 0, 0);
        if (dynamic_cast<ListViewContactGridItem *>(row)) {
            const QPixmap icon = RowPainting::picture(":/contact/images/menu_icon_mobile.png");
            place
                = QRect(rect.left() + CellLeft, rect.top(), rect.width() - CellRight - icon.width(), rect.height());
        }
        drawText(painter, place, row->alignment(), row->text());
    }

    static void drawTitle(QPainter *painter, const QRect &rect, const QRect &field, ListViewItem *row)
    {
        static constexpr int Gap = 4;
        const QColor ink = painter->pen().color();
        painter->setPen(ListPainting::DarkGrey);
        const QRect place(rect.left() + FormPainting::TitleLeft, rect.top(),
                          field.left() - Gap - rect.left() - FormPainting::TitleLeft, rect.height());
        drawText(painter, place, row->alignment(), row->text());
        painter->setPen(ink);
    }

    static void drawField(QPainter *painter, const QRect &rect, NumberEditLineEditItem *row)
    {
        const QRect edit = EditFieldGeometry::numberEdit(rect, row->editTextLeftMargin());
        const QRect field = FormPainting::fieldRect(edit);
        drawTitle(painter, rect, field, row);
        RowPainting::drawSlices(painter, field, ":/ui/images/widget/inputbox", "_sel");
        RowPainting::setPointSize(painter, FormPainting::FieldPoints);
        drawText(painter, EditFieldGeometry::textOf(edit, painter->fontMetrics().height()),
                 Qt::AlignTop | Qt::AlignLeft, row->editText());
    }

    static void drawChoice(QPainter *painter, const QRect &rect, NumberEditSelectItem *row)
    {
        static constexpr int ArrowWidth = 16, Points = 19;
        const QRect field = FormPainting::fieldRect(EditFieldGeometry::numberEdit(rect, 0));
        const QRect plate = FormPainting::plateRect(rect, field.left());
        drawTitle(painter, rect, field, row);
        RowPainting::drawSlices(painter, plate, ":/ui/images/widget/list_focus.png", ArrowWidth);
        RowPainting::setPointSize(painter, Points);
        drawText(painter, plate.adjusted(ArrowWidth, 0, -ArrowWidth, 0), Qt::AlignVCenter | Qt::AlignRight,
                 row->selectedText());
    }
};

#endif
