#ifndef LISTVIEWCONTACTITEM_H
#define LISTVIEWCONTACTITEM_H

#include "listviewitem.h"
#include "rowimages.h"

/// A labelled value of the details screen. Its pictures are kept for the screen and for derived rows; this row
/// itself draws none.
class ListViewContactItem : public ListViewItem
{
public:
    /// The row mode: mode 1 gives the row a type code of its own.
    enum eItemType { ItemTypeNormal = 0, ItemTypeMarked = 1 };

    ListViewContactItem(QString const &text, QString const &label);
    ~ListViewContactItem() override;

    int type() override;
    void paint(QPainter *painter, QRect &rect) override;

    /// Takes both pictures anew; a null `selected` stands for `normal`.
    void setPixmap(QPixmap const &normal, QPixmap const &selected) { m_images.set(normal, selected); }
    /// Puts the picture that stands for a person without one in the normal place.
    void setupNumberImage();
    QPixmap const &normalImage() const { return m_images.normal(); }
    QPixmap const &selectedImage() const { return m_images.selected(); }

    void setItemType(ListViewContactItem::eItemType type) { m_itemType = type; }
    ListViewContactItem::eItemType getItemType() { return m_itemType; }
    QString label() const { return m_label; }
    void setLabel(QString const &label) { m_label = label; }

private:
    QString m_label;
    RowImages m_images;
    ListViewContactItem::eItemType m_itemType = ItemTypeNormal;
};

/// A contact over the whole width of a list.
class ListViewContactListItem : public ListViewContactItem
{
public:
    ListViewContactListItem(QString const &text, int id, int contactType);
    ~ListViewContactListItem() override;

    void paint(QPainter *painter, QRect &rect) override;

    int getId() { return m_id; }
    /// 1 and 2 are contacts of the mobile device.
    int getContactType() { return m_contactType; }

private:
    int m_id;
    int m_contactType;
};

/// A contact as one cell of the two-column grid.
class ListViewContactGridItem : public ListViewContactItem
{
public:
    ListViewContactGridItem(QString const &text, int id, int contactType);
    ~ListViewContactGridItem() override;

    void paint(QPainter *painter, QRect &rect) override;

    int getId() { return m_id; }
    /// 1 and 2 are contacts of the mobile device.
    int getContactType() { return m_contactType; }

private:
    int m_id;
    int m_contactType;
};

#endif
