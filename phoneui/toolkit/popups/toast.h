#ifndef TOAST_H
#define TOAST_H

#include <QPixmap>
#include <QPointer>
#include <QString>
#include <QWidget>

class QEventLoop;
class QTimer;

/// A short notice, with or without an icon, that covers its screen for a set time and goes by itself or at a key.
///
/// Its time runs from construction. `exec()` keeps the caller waiting until the notice has gone. A toast that is
/// deleted meanwhile, or hidden together with its screen, ends its `exec()` too.
class Toast : public QWidget
{
    Q_OBJECT

public:
    /// Without a positive time the toast stays until a key, `hide()` or `close()`.
    Toast(const QString &message, int timeoutMilliseconds, QWidget *parent);
    ~Toast() override;

    /// 0 once the toast has gone.
    int exec();

    QString message() const { return m_message; }
    /// Begins the time anew.
    void setMessage(const QString &message);
    QPixmap icon() const { return m_icon; }
    void setIcon(const QPixmap &icon);
    /// Begins the time anew; below 1 the toast stays.
    void setTimeout(int milliseconds);
    /// In pixels. A message of several lines takes a size of its own, which then stays.
    int fontSize() const { return m_fontSize; }
    void setFontSize(int pixels);
    /// Whether it looks like a panel across the screen, or like a box around its text.
    bool useFullScreen() const { return m_useFullScreen; }
    void setUseFullScreen(bool use);
    /// Whether the panel is laid out for a screen narrower than the display.
    bool resized() const { return m_resized; }
    void setResized(bool resized);
    /// Whether keys leave the toast up.
    bool ignoreKey() const { return m_ignoreKey; }
    void setIgnoreKey(bool ignore) { m_ignoreKey = ignore; }
    bool useAnimation() const { return m_useAnimation; }
    /// Toasts come and go at once, whatever they are told.
    void setUseAnimation(bool) { }

    // Giving the focus back. A toast takes no widget while it holds none, and it begins without: the focus goes
    // where Qt sends it when the toast closes.

    QWidget *previousActiveWidget() const { return m_previousActiveWidget; }
    void setPreviousActiveWidget(QWidget *widget);
    bool useRollbackFocus() const { return m_useRollbackFocus; }
    void setUseRollbackFocus(bool use);
    void setFocusToPreviousWidget();

signals:
    /// The toast has ended, by its time or by a key.
    void toastTimeout();

public slots:
    void timeout();

protected:
    void keyPressEvent(QKeyEvent *event) override;
    void keyReleaseEvent(QKeyEvent *event) override;
    void paintEvent(QPaintEvent *event) override;
    void closeEvent(QCloseEvent *event) override;
    void showEvent(QShowEvent *event) override;
    void hideEvent(QHideEvent *event) override;

private:
    void startTimer(int milliseconds);
    void exitLoop();

    bool m_ignoreKey = false;
    int m_timeout;
    QString m_message;
    QTimer *m_timer = nullptr;
    QEventLoop *m_eventLoop = nullptr;
    bool m_inExec = false;
    bool m_keyPressed = false;
    QPixmap m_icon;
    bool m_useAnimation = false;
    bool m_useFullScreen = true;
    int m_fontSize = 22;
    bool m_resized = false;
    QPointer<QWidget> m_previousActiveWidget;
    bool m_useRollbackFocus = true;
};

#endif
