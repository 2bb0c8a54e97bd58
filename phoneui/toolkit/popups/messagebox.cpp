#include "messagebox.h"

MessageBox::MessageBox(QWidget *parent) : MessageBoxBase(parent) { }
