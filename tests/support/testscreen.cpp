#include "testscreen.h"

#include <QDir>
#include <QTest>

TestScreen *TestScreen::s_instance = nullptr;

TestScreen::TestScreen() : m_display(&m_windows)
{
    s_instance = this;
}

TestScreen::~TestScreen()
{
    s_instance = nullptr;
}

WindowStack &TestScreen::windows()
{
    return s_instance->m_windows;
}

QImage TestScreen::picture()
{
    return s_instance->m_display.picture();
}

void TestScreen::shot(const QString &name)
{
    save(picture(), name);
}

void TestScreen::save(const QImage &image, const QString &name)
{
    const QString folder = qEnvironmentVariable("PHONE_PICTURES");
    if (folder.isEmpty())
        return;
    QDir().mkpath(folder);
    QVERIFY(image.save(folder + '/' + name + ".png"));
}
