#ifndef SYSTEMPHONEBOOKPAINTING_H
#define SYSTEMPHONEBOOKPAINTING_H

#include <QSize>

class QModelIndex;
class QPainter;
class QRect;
class QStyleOptionViewItem;

/// How the rows of the system phonebook's models look, in a list of the phone and in a view of Qt.
namespace SystemPhonebookPainting {

/// What a delegate asks for.
constexpr QSize ItemSize(374, 41);

/// Draws the texts of an entry (name, number, category) or of a category, with the painter's pen.
void drawTexts(QPainter *painter, const QRect &rect, const QModelIndex &index);

/// The whole of a delegate's paint: ground and texts.
void drawItem(QPainter *painter, const QStyleOptionViewItem &option, const QModelIndex &index);

}

#endif
