#include "phonescript.h"

#include "phonekey.h"
#include "toast.h"

#include <QApplication>
#include <QElapsedTimer>
#include <QEventLoop>
#include <QTest>
#include <QTimer>
#include <QWidget>

PhoneScript &PhoneScript::keys(const QList<int> &codes)
{
    for (const int code : codes)
        call([code] {
            PhoneKey::post(code, true);
            PhoneKey::post(code, false);
        });
    return *this;
}

PhoneScript &PhoneScript::text(const QString &words)
{
    return call([words] { PhoneKey::postText(words); });
}

PhoneScript &PhoneScript::call(const std::function<void()> &action)
{
    m_steps.append({action, {}, {}});
    return *this;
}

PhoneScript &PhoneScript::until(const QString &what, const std::function<bool()> &condition)
{
    m_steps.append({{}, condition, what});
    return *this;
}

PhoneScript &PhoneScript::untilActive(const QByteArray &className)
{
    return until(className + " to be active", [className] {
        const QWidget *window = QApplication::activeWindow();
        return window && window->inherits(className.constData());
    });
}

static bool focusIsIn(const QByteArray &className)
{
    const QWidget *widget = QApplication::focusWidget();
    return widget && widget->inherits(className.constData());
}

PhoneScript &PhoneScript::untilFocus(const QByteArray &className)
{
    return until("the focus in " + className, [className] { return focusIsIn(className); });
}

PhoneScript &PhoneScript::dismissToast(QString *message)
{
    const auto read = [message] {
        for (QObject *widget = QApplication::focusWidget(); widget && message; widget = widget->parent()) {
            if (widget->inherits("Toast"))
                *message = static_cast<Toast *>(widget)->message();
        }
    };
    return untilFocus("Toast").call(read).keys({Qt::Key_Return}).until("the toast to go", [] {
        return !focusIsIn("Toast");
    });
}

static QString className(const QObject *object)
{
    return object ? object->metaObject()->className() : "nothing";
}

static void closeAll()
{
    const QWidgetList windows = QApplication::topLevelWidgets();
    for (QWidget *window : windows) {
        if (window->isVisible() && window->inherits("QDialog"))
            window->close();
    }
}

QString PhoneScript::run(int pace)
{
    static constexpr int Limit = 3000; // ms for one expectation
    QString fault;
    QElapsedTimer waiting;
    waiting.start();
    QTimer timer;
    QObject::connect(&timer, &QTimer::timeout, &timer, [&] {
        if (m_steps.isEmpty() || !fault.isEmpty())
            return;
        if (m_steps.first().condition && !m_steps.first().condition()) {
            if (waiting.elapsed() > Limit) {
                fault = QString("still waiting for %1, %2 has the focus")
                            .arg(m_steps.first().what, className(QApplication::focusWidget()));
                closeAll(); // or the loops that run would never end
            }
            return;
        }
        waiting.restart();
        const Step step = m_steps.takeFirst(); // the action may run an event loop in which the next step comes
        if (step.action)
            step.action();
    });
    timer.start(pace);
    if (!QTest::qWaitFor([&] { return m_steps.isEmpty() || !fault.isEmpty(); }, 60000) && fault.isEmpty())
        fault = "the script never ended";
    QTest::qWait(5 * pace);
    return fault;
}
