#ifndef SYSTEMPHONEBOOKDATALABEL_H
#define SYSTEMPHONEBOOKDATALABEL_H

#include <QLabel>

/// One text of a system phonebook entry.
class SystemPhonebookDataLabel : public QLabel
{
    Q_OBJECT

public:
    SystemPhonebookDataLabel(const QString &text, QWidget *parent);
};

#endif
