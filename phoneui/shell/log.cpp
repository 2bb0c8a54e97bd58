#include "log.h"

#include <QByteArray>
#include <QTime>

#include <cstdio>

namespace Log {

static const char *gravity(QtMsgType type)
{
    switch (type) {
    case QtDebugMsg: return "debug";
    case QtInfoMsg: return "info";
    case QtWarningMsg: return "warning";
    default: return "error";
    }
}

static void write(QtMsgType type, const QMessageLogContext &, const QString &text)
{
    // Qt's offscreen platform says at each window what it cannot do, and a display without a window manager need
    // not.
    if (text == "This plugin does not support propagateSizeHints()"
        || text == "This plugin does not support raise()")
        return;
    const QByteArray time = QTime::currentTime().toString("hh:mm:ss.zzz").toLatin1();
    std::fprintf(stderr, "%s %s: %s\n", time.constData(), gravity(type), text.toUtf8().constData());
}

void install()
{
    qInstallMessageHandler(write);
}

}
