#ifndef BOXRUN_H
#define BOXRUN_H

#include "basewidget.h"
#include "phonekeys.h"
#include "tail.h"
#include "testcase.h"
#include "testphone.h"

#include <QDialog>
#include <QTimer>

#include <memory>

/// A screen that asks questions: its focus lies in a child, as in a list.
class AskingScreen : public BaseWidget
{
public:
    AskingScreen() : BaseWidget(nullptr), list(new QWidget(this))
    {
        list->setGeometry(5, 2, 374, 104);
        list->setFocusPolicy(Qt::StrongFocus);
        list->setFocus();
        for (int i = 0; i < Tail::ButtonCount; ++i)
            tail->setFuncButtonText(i, QString("Key %1").arg(i + 1));
    }

    QWidget *list;
};

constexpr int StillOpen = 99;

/// A test of what opens over a screen: a phone with such a screen, new for each test function.
class OverScreenTest : public TestCase
{
protected:
    void setUp() override
    {
        m_phone.reset(new TestPhone);
        m_screen.reset(new AskingScreen);
        QVERIFY(PhoneKeys::showAndActivate(m_screen.get()));
    }

    void tearDown() override
    {
        m_screen.reset();
        m_phone.reset();
    }

    std::unique_ptr<TestPhone> m_phone;
    std::unique_ptr<AskingScreen> m_screen;
};

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
