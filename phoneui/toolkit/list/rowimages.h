#ifndef ROWIMAGES_H
#define ROWIMAGES_H

#include <QPixmap>

/// The pictures of a row for its two looks, for rows that keep them beside the icons of the base.
class RowImages
{
public:
    /// A null `selected` stands for `normal`; unlike the icons of the base, both are taken anew.
    void set(const QPixmap &normal, const QPixmap &selected)
    {
        m_normal = normal;
        m_selected = selected.isNull() ? normal : selected;
    }
    void setNormal(const QPixmap &normal) { m_normal = normal; }

    const QPixmap &normal() const { return m_normal; }
    const QPixmap &selected() const { return m_selected; }

private:
    QPixmap m_normal;
    QPixmap m_selected;
};

#endif
