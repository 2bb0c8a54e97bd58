#include "systemphonebookdatalabel.h"

SystemPhonebookDataLabel::SystemPhonebookDataLabel(const QString &text, QWidget *parent) : QLabel(text, parent)
{
    setTextFormat(Qt::PlainText); // what the file says is never markup
}
