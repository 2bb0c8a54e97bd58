#ifndef IMETEST_H
#define IMETEST_H

#include "phonekey.h"
#include "phonekeys.h"
#include "testcase.h"
#include "testmain.h"
#include "testphone.h"

#include <QInputMethodEvent>
#include <QLineEdit>
#include <QSettings>

#include <memory>

/// A line edit that keeps what it was shown as pending.
class Field : public QLineEdit
{
public:
    using QLineEdit::QLineEdit;

    QString pending;

protected:
    void inputMethodEvent(QInputMethodEvent *event) override
    {
        pending = event->preeditString();
        QLineEdit::inputMethodEvent(event);
    }
};

/// A phone with a window of two line edits and something else that takes the focus.
struct ImePhone
{
    TestPhone phone;
    QWidget window;
    Field first{&window}, second{&window};
    KeyCounter other{&window};
};

/// A test of the keypad, which begins in the first field with small letters. A tapped letter waits for the next key
/// for as long as a test may take.
class ImeTest : public TestCase
{
protected:
    void setUp() override
    {
        m_phone.reset(new ImePhone);
        setTapTime(600000);
        m_phone->window.setGeometry(0, 26, 384, 134);
        m_phone->second.move(0, 40);
        m_phone->other.setFocusPolicy(Qt::StrongFocus);
        QVERIFY(PhoneKeys::showAndActivate(&m_phone->window));
        edit().setFocus();
        setMode(IMESmall);
    }
    void tearDown() override { m_phone.reset(); }

    Field &edit() { return m_phone->first; }
    QString shown() { return edit().text() + edit().pending; }
    Core &core() { return m_phone->phone.core; }
    void setMode(int mode) { core().setIMEStatus(static_cast<IMEStatus>(mode), true); }
    void setLanguage(const QString &name) { core().setLanguageName(name); }
    void writeKorean()
    {
        setLanguage("ko_KR");
        setMode(IMEFirst);
    }
    void setTapTime(int ms)
    {
        QSettings(core().configFileName(SystemConfig), QSettings::IniFormat).setValue("Input/MultiTapTime", ms);
    }
    /// Keys of the keypad: digits, '*', '#', '<' for Backspace, '>' and 'v' for arrows, 's' for the third soft key.
    static void type(const QString &keys)
    {
        static const QHash<QChar, int> others{{'#', PhoneKey::Hash},
                                              {'<', Qt::Key_Backspace},
                                              {'>', Qt::Key_Right},
                                              {'v', Qt::Key_Down},
                                              {'s', Qt::Key_Context3}};
        for (const QChar c : keys)
            PhoneKeys::click(Qt::Key(others.value(c, c.unicode())));
    }

    std::unique_ptr<ImePhone> m_phone;
};

#endif
