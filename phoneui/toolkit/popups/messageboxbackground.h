#ifndef MESSAGEBOXBACKGROUND_H
#define MESSAGEBOXBACKGROUND_H

#include <QWidget>

/// The panel of a message box: title strip, white ground and frame, under everything that the box shows.
class MessageBoxBackground : public QWidget
{
    Q_OBJECT

public:
    explicit MessageBoxBackground(QWidget *parent);

    int titleHeight() const { return m_titleHeight; }
    void setTitleHeight(int height);

protected:
    void paintEvent(QPaintEvent *event) override;

private:
    int m_titleHeight = 20;
};

#endif
