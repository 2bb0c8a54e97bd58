#ifndef BASEWIDGET_H
#define BASEWIDGET_H

#include <QColor>
#include <QDialog>
#include <QPointer>

class Status;
class Tail;

/// The base of every full screen: the 384 by 134 pixels below the status bar, with a soft-key bar of its own.
///
/// It hands the soft keys to the bar, closes on the release of Escape, and calls `setupStatus` whenever it becomes
/// the active window, so that the right title is back after a screen on top has gone. When it hides, whatever it
/// has opened above itself goes with it.
class BaseWidget : public QDialog
{
    Q_OBJECT

public:
    explicit BaseWidget(QWidget *parent);

    QColor bgColor() const { return m_bgColor; }
    void setBgColor(QColor const &color);

    /// How often the screen has been closed or hidden; see ScreenWatch.
    int hideCount() const { return m_hideCount; }

    /// Closes a screen that was shown without a loop of its own, for good. It is deleted by the event loop in which
    /// it was made, which it must not outlive: loops inside that one belong to handlers, and they may be its own.
    void retire();

    /// Brings the lock signs and the form of the clock on the status bar up to date with the settings.
    void updateStatus();

protected:
    bool event(QEvent *event) override;
    void keyPressEvent(QKeyEvent *event) override;
    void keyReleaseEvent(QKeyEvent *event) override;
    void paintEvent(QPaintEvent *event) override;
    void closeEvent(QCloseEvent *event) override;
    void hideEvent(QHideEvent *event) override;
    /// Shows the screen over all others, also when it is visible below them. It must be modal to take keys when one
    /// of those is.
    void bringUp();
    /// Puts the screen's title and state on the status bar.
    virtual void setupStatus();
    /// Puts the words of a new language in the place of those that show, the soft keys' above all: their handlers
    /// know them by their words. What a person has typed stays.
    virtual void retranslate();

    QPointer<Status> status; ///< the phone's one status bar, not owned
    Tail *tail = nullptr;

private:
    void closeOwnedWindows();

    QColor m_bgColor;
    int m_hideCount = 0;
    const int m_loopLevel; ///< how many event loops ran when the screen was made
};

#endif
