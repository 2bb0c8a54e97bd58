#include "listviewprogressitem.h"

#include <QDebug>
#include <QPainter>

ListViewProgressItem::ListViewProgressItem(QString const &title, int maxValue)
    : m_normalPixmap(QStringLiteral(":/ui/images/setting_volume_normal.png")),
      m_pressPixmap(QStringLiteral(":/ui/images/setting_volume_press.png")),
      m_pressFocusPixmap(QStringLiteral(":/ui/images/setting_volume_press_focus.png")), m_maxValue(maxValue)
{
    setText(title);
}

ListViewProgressItem::~ListViewProgressItem() = default;

int ListViewProgressItem::type()
{
    return 1;
}

void ListViewProgressItem::setValue(int value)
{
    m_value = qMax(m_minValue, qMin(value, m_maxValue));
}

void ListViewProgressItem::setMinValue(int value)
{
    m_minValue = qMin(value, m_maxValue);
}

void ListViewProgressItem::setMaxValue(int value)
{
    static constexpr int MostCells = 15;
    if (value > MostCells) {
        qDebug() << "ListViewProgressItem::setMaxValue maxValue is over! check code! value:" << value;
        return;
    }
    m_maxValue = value;
}

void ListViewProgressItem::paint(QPainter *painter, QRect &rect)
{
    static constexpr int TitleLeft = 10;
    static constexpr double TitleShare = 0.4;
    // Cells stand from the row's right end to the left, so that the first is the leftmost whatever the maximum.
    static constexpr int LastCellFromRight = 14, CellPitch = 13;
    static constexpr int CellTop = 5, CellWidth = 9, CellHeight = 21;
    static const QColor cellColor(0x22, 0x22, 0x22);

    painter->save();
    paintGround(painter, rect);
    painter->drawText(QRect(rect.left() + TitleLeft, rect.top(), int(TitleShare * rect.width()), rect.height()),
                      alignment(), text());
    if (!m_useSlider) {
        const QColor color = selected() && focusType() != ListViewFocusFloating ? QColor(Qt::white) : cellColor;
        const int last = rect.right() - rect.left() - LastCellFromRight;
        const auto cell = [&](int fromLast) {
            return QRect(last - CellPitch * fromLast, rect.top() + CellTop, CellWidth, CellHeight);
        };
        painter->setPen(color);
        for (int i = 0; i < m_maxValue; ++i)
            painter->drawRect(cell(i).adjusted(0, 0, -1, -1)); // the pen adds a pixel at the right and the bottom
        for (int i = 0; i < m_value; ++i)
            painter->fillRect(cell(m_maxValue - m_value + i), color);
    }
    painter->restore();
}
