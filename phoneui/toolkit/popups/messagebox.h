#ifndef MESSAGEBOX_H
#define MESSAGEBOX_H

#include "messageboxbase.h"

/// The question that a screen asks: make one on the stack with the screen as its parent, give it a title, texts and
/// the names of its buttons, and run `exec()`. A result other than 0 is a yes.
class MessageBox : public MessageBoxBase
{
    Q_OBJECT

public:
    explicit MessageBox(QWidget *parent);
};

#endif
