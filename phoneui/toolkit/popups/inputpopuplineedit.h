#ifndef INPUTPOPUPLINEEDIT_H
#define INPUTPOPUPLINEEDIT_H

#include <QLineEdit>

/// The text field of an InputPopup, on a drawn input box.
class InputPopupLineEdit : public QLineEdit
{
    Q_OBJECT

public:
    explicit InputPopupLineEdit(QWidget *parent);

protected:
    void paintEvent(QPaintEvent *event) override;
};

#endif
