#include "listviewlineedititem.h"

#include "editfieldgeometry.h"
#include "formpainting.h"
#include "rowpainting.h"

#include <QPainter>

namespace {

/// The length of the beginning of a text that fills the limit: a character that begins below the limit still fits,
/// so a wide one in the last place goes one byte beyond.
int lengthWithin(const QString &text, int maxBytes)
{
    int bytes = 0;
    int length = 0;
    while (length < text.size() && bytes < maxBytes) {
        bytes += text.at(length).unicode() < 256 ? 1 : 2;
        ++length;
    }
    return length;
}

}

ListViewLineEditItem::ListViewLineEditItem(QString const &title, QString const &text)
    : m_editText(text), m_labelColor(85, 85, 85)
{
    setText(title);
}

ListViewLineEditItem::~ListViewLineEditItem() = default;

int ListViewLineEditItem::type()
{
    return 5;
}

int ListViewLineEditItem::editTextLeftMargin()
{
    return m_editTextLeftMargin;
}

void ListViewLineEditItem::setEditTextLeftMargin(int margin)
{
    m_editTextLeftMargin = margin;
}

void ListViewLineEditItem::setEditText(QString const &text)
{
    if (m_maxBytes > 0)
        m_editText = text.left(lengthWithin(text, m_maxBytes));
    else if (m_maxLength != 0)
        m_editText = text.left(m_maxLength);
    else
        m_editText = text;
}

void ListViewLineEditItem::setMaxLength(int length)
{
    if (length < 0)
        return;
    m_maxLength = length;
    if (m_maxBytes > 0 && length < m_maxBytes)
        setMaxBytes(length);
    else if (m_maxBytes <= 0 && length == 0)
        return;
    m_editText = m_editText.left(length);
}

void ListViewLineEditItem::setMaxBytes(int bytes)
{
    if (bytes < 0)
        return;
    m_maxBytes = bytes;
    if (bytes > m_maxLength) {
        if (m_maxLength > 0)
            m_maxBytes = m_maxLength;
        else
            m_maxLength = bytes;
    }
    if (m_maxBytes != 0)
        m_editText = m_editText.left(lengthWithin(m_editText, m_maxBytes));
}

QString ListViewLineEditItem::shownText() const
{
    return m_echoPasswordMode ? QString(m_editText.size(), QLatin1Char('*')) : m_editText;
}

void ListViewLineEditItem::paintTitleAndField(QPainter *painter, const QRect &rect, const QRect &edit,
                                              const QColor &titleColor)
{
    static constexpr int Gap = 4;

    painter->save();
    paintGround(painter, rect);
    const QColor ink = painter->pen().color();
    painter->setPen(titleColor.isValid() ? titleColor : ink);
    FormPainting::drawTitle(painter, rect, FormPainting::fieldRect(edit).left() - Gap, alignment(), text());
    painter->setPen(ink);
    RowPainting::setPointSize(painter, FormPainting::FieldPoints);
    FormPainting::drawField(painter, edit, selected(), shownText());
    painter->restore();
}

void ListViewLineEditItem::paint(QPainter *painter, QRect &rect)
{
    const bool plain = !selected() && isSelectEnabled();
    paintTitleAndField(painter, rect, EditFieldGeometry::lineEdit(rect, m_editTextLeftMargin),
                       plain ? m_labelColor : QColor());
}
