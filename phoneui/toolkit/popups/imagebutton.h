#ifndef IMAGEBUTTON_H
#define IMAGEBUTTON_H

#include <QColor>
#include <QPixmap>
#include <QString>
#include <QWidget>

/// A button of a box or popup, with the look of a soft key: two icons, a text or both. Enter clicks it while it has
/// the focus; more often the box around it has the keys and drives the button's look by `setHover`.
class ImageButton : public QWidget
{
    Q_OBJECT

public:
    explicit ImageButton(QWidget *parent);

    void setIcon(QPixmap const &icon);
    /// The icon of the pressed look; without one the other is shown.
    void setPressIcon(QPixmap const &icon);
    QString text() { return m_text; }
    void setText(QString const &text);
    /// The pressed look.
    void setHover(bool hover);

    // The free pixels beside the text; the left gap also stands before an icon.
    int leftGap() const { return m_leftGap; }
    void setLeftGap(int gap);
    int rightGap() const { return m_rightGap; }
    void setRightGap(int gap);

    /// The button's ground when it is up; an invalid colour, which it has at first, means that of a soft key.
    QColor bgColor() const { return m_bgColor; }
    void setBgColor(QColor const &color);

signals:
    void clicked();
    void isHover(bool hover);

protected:
    void keyPressEvent(QKeyEvent *event) override;
    void keyReleaseEvent(QKeyEvent *event) override;
    void mouseReleaseEvent(QMouseEvent *event) override;
    void paintEvent(QPaintEvent *event) override;

private:
    QColor textColor(bool dark) const;

    QPixmap m_icon;
    QPixmap m_pressIcon;
    QString m_text;
    QColor m_bgColor;
    bool m_hover = false;
    int m_leftGap = 3;
    int m_rightGap = 3;
};

#endif
