#ifndef DISPLAY_H
#define DISPLAY_H

#include <QImage>
#include <QObject>
#include <QTimer>

class WindowStack;

/// What the display shows: the visible windows, translucent ones included, composed in their order into one picture
/// of 384 by 160 pixels.
class Display : public QObject
{
    Q_OBJECT

public:
    explicit Display(WindowStack *windows, QObject *parent = nullptr);

    /// The picture as it is now. Not to be called while a widget paints.
    QImage picture();

    /// While watched, `changed` follows each change of the picture. Calls nest.
    void watch();
    void unwatch();

    bool eventFilter(QObject *watched, QEvent *event) override;

signals:
    void changed();

private:
    WindowStack *m_windows;
    QTimer m_changeTimer;
    int m_watchers = 0;
    bool m_composing = false;
};

#endif
