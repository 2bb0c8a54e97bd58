#ifndef NORESULTLABEL_H
#define NORESULTLABEL_H

#include <QString>

class QLabel;
class QRect;
class QWidget;

/// What stands in the place of a search's list when there is nothing to list; hidden at first.
QLabel *makeNoResultLabel(const QString &text, const QRect &place, QWidget *screen);

#endif
