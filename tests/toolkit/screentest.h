#ifndef SCREENTEST_H
#define SCREENTEST_H

#include "basewidget.h"
#include "phonekeys.h"
#include "status.h"
#include "tail.h"
#include "testcase.h"
#include "testmain.h"
#include "testphone.h"

#include <QPointer>
#include <QSignalSpy>
#include <QTimer>

#include <memory>

/// A test on a phone that is new for each of its functions.
class PhoneTest : public TestCase
{
protected:
    void setUp() override { m_phone.reset(new TestPhone); }
    void tearDown() override { m_phone.reset(); }

    std::unique_ptr<TestPhone> m_phone;
};

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
        m_screen.reset(new KeyScreen);
        QVERIFY(PhoneKeys::showAndActivate(m_screen.get()));
    }
    void tearDown() override
    {
        m_screen.reset();
        PhoneTest::tearDown();
    }

    std::unique_ptr<KeyScreen> m_screen;
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

#endif
