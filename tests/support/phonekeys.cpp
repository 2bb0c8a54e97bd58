#include "phonekeys.h"

#include <QApplication>
#include <QTest>
#include <QWindow>

namespace PhoneKeys {

static void send(Qt::Key key, bool down, bool repeated)
{
    QWindow *window = QGuiApplication::focusWindow();
    QVERIFY2(window, "no window has the focus");
    QTest::simulateEvent(window, down, key, Qt::NoModifier, QString(), repeated);
    QCoreApplication::processEvents();
}

void press(Qt::Key key)
{
    send(key, true, false);
}

void release(Qt::Key key)
{
    send(key, false, false);
}

void click(Qt::Key key)
{
    press(key);
    release(key);
}

void clickAll(const QList<int> &keys)
{
    for (const int key : keys)
        click(Qt::Key(key));
}

void repeat(Qt::Key key)
{
    send(key, true, true);
}

bool showAndActivate(QWidget *window)
{
    window->show();
    window->activateWindow();
    return waitUntilActive(window);
}

bool waitUntilActive(QWidget *window)
{
    // Qt's own wait takes a dialog for active while its parent is.
    return QTest::qWaitFor([window] { return QApplication::activeWindow() == window; });
}

}
