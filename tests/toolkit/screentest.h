#ifndef SCREENTEST_H
#define SCREENTEST_H

#include "imagebutton.h"
#include "phonetest.h"
#include "status.h"
#include "tail.h"

#include <QPointer>
#include <QSignalSpy>
#include <QTimer>

/// A screen with four soft keys: its focus lies in a child, as in a list.
class KeyScreen : public BaseWidget
{
public:
    explicit KeyScreen(const QString &title = "Screen")
        : BaseWidget(nullptr), list(new QWidget(this)), m_title(title)
    {
        list->setGeometry(5, 2, 374, 104);
        list->setFocusPolicy(Qt::StrongFocus);
        list->setFocus();
        for (int i = 0; i < Tail::ButtonCount; ++i)
            tail->setFuncButtonText(i, QString("Key %1").arg(i + 1));
    }
    Tail *bar() const { return tail; }

    QWidget *list;

protected:
    void setupStatus() override { status->setTitle(m_title); }

private:
    QString m_title;
};

/// A test on such a screen, or of what opens over it.
class ScreenTest : public PhoneTest
{
protected:
    void setUp() override
    {
        PhoneTest::setUp();
        open(new KeyScreen);
    }
    KeyScreen *screen() const { return static_cast<KeyScreen *>(m_screen.get()); }
    /// Windows come active once the present event is done.
    bool screenHasKeys() const
    {
        return QTest::qWaitFor([this] { return screen()->list->hasFocus(); });
    }
};

constexpr int StillOpen = 99;

/// Runs the dialog with `exec()` and, as soon as it has the keys, `acts` inside its loop. A dialog that is still
/// open then is ended with the result StillOpen.
template <class Dialog, class Acts> int runBox(Dialog &dialog, Acts acts)
{
    QTimer::singleShot(0, &dialog, [&] {
        if (PhoneKeys::waitUntilActive(&dialog))
            acts();
        if (dialog.QWidget::isVisible())
            dialog.done(StillOpen);
    });
    return dialog.exec();
}

/// Keeps how the buttons light up and go out, by their places in the row: "0+0-".
inline void keepLooks(const QList<ImageButton *> &buttons, QString *looks)
{
    for (int i = 0; i < buttons.size(); ++i) {
        QObject::connect(buttons.at(i), &ImageButton::isHover, buttons.at(i),
                         [looks, i](bool on) { *looks += QString::number(i) + (on ? '+' : '-'); });
    }
}

#endif
