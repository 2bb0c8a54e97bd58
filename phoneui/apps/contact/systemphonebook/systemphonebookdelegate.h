#ifndef SYSTEMPHONEBOOKDELEGATE_H
#define SYSTEMPHONEBOOKDELEGATE_H

#include <QItemDelegate>

/// Paints an entry of the system phonebook in a view of Qt, as the phone's own list does in a row.
class SystemPhonebookDelegate : public QItemDelegate
{
    Q_OBJECT

public:
    using QItemDelegate::QItemDelegate;

    void paint(QPainter *painter, const QStyleOptionViewItem &option, const QModelIndex &index) const override;
    QSize sizeHint(const QStyleOptionViewItem &option, const QModelIndex &index) const override;
};

#endif
