#include "testcase.h"

#include <QFile>
#include <QGuiApplication>
#include <QWindow>

TestCase *TestCase::s_running = nullptr;

void TestCase::expectWarning(const QString &pattern)
{
    m_expected.append(QRegularExpression(pattern));
}

void TestCase::init()
{
    m_expected.clear();
    m_unexpected.clear();
    m_dir.reset(new QTemporaryDir);
    s_running = this;
    m_formerHandler = qInstallMessageHandler(handleMessage);
    setUp();
}

void TestCase::cleanup()
{
    QStringList left;
    tearDown();
    if (qobject_cast<QGuiApplication *>(QCoreApplication::instance())) {
        const QWindowList windows = QGuiApplication::topLevelWindows();
        for (const QWindow *window : windows) {
            if (window->isVisible())
                left.append(window->objectName());
        }
    }
    qInstallMessageHandler(m_formerHandler);
    s_running = nullptr;

    QVERIFY2(m_unexpected.isEmpty(), qPrintable("unexpected warning: " + m_unexpected.join("\n")));
    QVERIFY2(m_expected.isEmpty(),
             qPrintable("warning that did not come: "
                        + (m_expected.isEmpty() ? QString() : m_expected.first().pattern())));
    QVERIFY2(left.isEmpty(), qPrintable("windows left open: " + left.join(", ")));
}

/// What Qt's offscreen platform says at each window.
static bool isPlatformNoise(const QString &text)
{
    return text == "This plugin does not support propagateSizeHints()"
        || text == "This plugin does not support raise()";
}

void TestCase::handleMessage(QtMsgType type, const QMessageLogContext &context, const QString &text)
{
    if (isPlatformNoise(text))
        return;
    if (s_running && type != QtDebugMsg && type != QtInfoMsg) {
        for (int i = 0; i < s_running->m_expected.size(); ++i) {
            if (s_running->m_expected.at(i).match(text).hasMatch()) {
                s_running->m_expected.removeAt(i);
                return;
            }
        }
        s_running->m_unexpected.append(text);
    }
    if (s_running && s_running->m_formerHandler)
        s_running->m_formerHandler(type, context, text);
}

QByteArray readFile(const QString &path)
{
    QFile file(path);
    return file.open(QIODevice::ReadOnly) ? file.readAll() : QByteArray();
}

QString writeFile(const QString &path, const QByteArray &content)
{
    QFile file(path);
    if (!file.open(QIODevice::WriteOnly) || file.write(content) != content.size())
        qWarning("%s cannot be written", qPrintable(path));
    return path;
}
