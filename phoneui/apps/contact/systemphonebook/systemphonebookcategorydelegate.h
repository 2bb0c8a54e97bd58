#ifndef SYSTEMPHONEBOOKCATEGORYDELEGATE_H
#define SYSTEMPHONEBOOKCATEGORYDELEGATE_H

#include <QItemDelegate>

/// Paints a category of the system phonebook in a view of Qt, as the phone's own list does in a row.
class SystemPhonebookCategoryDelegate : public QItemDelegate
{
    Q_OBJECT

public:
    using QItemDelegate::QItemDelegate;

    void paint(QPainter *painter, const QStyleOptionViewItem &option, const QModelIndex &index) const override;
    QSize sizeHint(const QStyleOptionViewItem &option, const QModelIndex &index) const override;
};

#endif
