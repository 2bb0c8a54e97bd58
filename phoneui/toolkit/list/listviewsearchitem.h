#ifndef LISTVIEWSEARCHITEM_H
#define LISTVIEWSEARCHITEM_H

#include "listviewitem.h"
#include "rowimages.h"

/// A hit of a local search: the name, the kind of the number as a picture, and the number.
class ListViewSearchItem : public ListViewItem
{
public:
    ListViewSearchItem(QString const &text, int id, int contactType, int telnumType, QString telnumval,
                       int telIndex);
    ~ListViewSearchItem() override;

    void paint(QPainter *painter, QRect &rect) override;

    /// Takes both pictures anew; a null `selected` stands for `normal`.
    void setPixmap(QPixmap const &normal, QPixmap const &selected) { m_images.set(normal, selected); }
    QPixmap const &normalImage() const { return m_images.normal(); }
    QPixmap const &selectedImage() const { return m_images.selected(); }

    int getId() { return m_id; }
    int getContactType() { return m_contactType; }
    int getTelnumType() { return m_telnumType; }
    QString getTelnumval() { return m_telnumval; }
    /// Which of the contact's numbers was hit.
    int getTelIndex() { return m_telIndex; }

private:
    int m_id;
    int m_contactType;
    int m_telnumType;
    QString m_telnumval;
    int m_telIndex;
    RowImages m_images;
};

#endif
