#ifndef WINDOWSTACK_H
#define WINDOWSTACK_H

#include <QList>
#include <QObject>
#include <QPointer>

class QWidget;

/// The order of the phone's windows, for platforms that keep none: the window shown or raised last is on top and
/// active, and when it goes, the next below becomes active. Without it, on Qt's offscreen platform, no window would
/// be active after the first close, and titles and focus would never come back.
class WindowStack : public QObject
{
    Q_OBJECT

public:
    explicit WindowStack(QObject *parent = nullptr);

    /// The visible windows from the lowest to the topmost.
    QList<QWidget *> windows() const;
    /// The topmost window that can be active.
    QWidget *top() const;

    bool eventFilter(QObject *watched, QEvent *event) override;

signals:
    /// A window came, went or changed its place.
    void changed();

private:
    void moveToTop(QWidget *window);
    void remove(QWidget *window);
    void activateTop();

    QList<QPointer<QWidget>> m_windows;
};

#endif
