#ifndef TEXTBUTTON_H
#define TEXTBUTTON_H

#include <QPushButton>

/// A push button with a text and the look of a soft key.
class TextButton : public QPushButton
{
    Q_OBJECT

public:
    explicit TextButton(QWidget *parent);

protected:
    void paintEvent(QPaintEvent *event) override;
};

#endif
