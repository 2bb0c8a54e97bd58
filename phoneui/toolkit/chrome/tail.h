#ifndef TAIL_H
#define TAIL_H

#include <QLabel>
#include <QTimer>

#include <array>

class QAbstractButton;
class TailButton;

/// The bar of four soft keys at the bottom of a screen.
///
/// The keys come as Qt::Key_Context1 to Qt::Key_Context4 and drive the buttons 0 to 3. A key without a text does
/// nothing. A hold of 500 ms is a long press, and the release after it clicks as well. While the input method is
/// on, the third key erases.
class Tail : public QLabel
{
    Q_OBJECT

public:
    static constexpr int ButtonCount = 4;

    explicit Tail(QWidget *parent);

    void setFuncButtonText(int idx, QString const &text);
    QString funcButtonText(int idx);
    /// The button, or null for a bad index.
    TailButton *button(int idx);
    void setButtonTextColor(int idx, QColor const &color);
    /// The first button from `from` on (from `to` if that is smaller) whose text contains `text`; -1 if none does.
    int findButtonIndex(QString const &text, int from, int to);
    int buttonWidth(int idx);
    QRect buttonGeometry(int idx);

    /// An erase text of the screen's own instead of the translated "Erase".
    void setUseEraseStr(bool use) { m_useEraseStr = use; }
    bool useEraseStr() const { return m_useEraseStr; }
    void setEraseStr(QString const &text) { m_eraseStr = text; }

    /// The button of a soft key, -1 for any other key.
    static int buttonOfKey(int key);

signals:
    void clicked(int idx);
    void longPress(int idx);
    void pressed(int idx, bool down);

public slots:
    void clickedFunction(QAbstractButton *button);
    void longPressTimeout();
    void changedIMEStatus(int status);

protected:
    bool event(QEvent *event) override;
    void keyPressEvent(QKeyEvent *event) override;
    void keyReleaseEvent(QKeyEvent *event) override;
    void paintEvent(QPaintEvent *event) override;

private:
    void setButtonDown(int idx, bool down);

    std::array<TailButton *, ButtonCount> m_buttons{};
    QString m_thirdText; ///< shown again when the input method goes off
    bool m_pressed = false;
    bool m_longPressed = false;
    int m_pendingKey = -1; ///< the key that is down, until its long press claims it
    QTimer m_longPressTimer;
    bool m_blocked = false; ///< a modal window lies over this bar's
    bool m_useEraseStr = false;
    QString m_eraseStr;
    int m_pressedIdx = -1;
};

#endif
