#ifndef TIMELABEL_H
#define TIMELABEL_H

#include <QLabel>

/// The clock on the status bar. The colon blinks: it is drawn on every other second.
class TimeLabel : public QLabel
{
    Q_OBJECT

public:
    explicit TimeLabel(QWidget *parent = nullptr);

    bool time24Hour() const { return m_time24Hour; }
    void setTime24Hour(bool use);
    void changeTimeBlinkFlag();

    QSize sizeHint() const override;

protected:
    void paintEvent(QPaintEvent *event) override;

private:
    QString format() const;
    QFont clockFont() const;

    bool m_time24Hour = false;
    bool m_blink = false;
};

#endif
