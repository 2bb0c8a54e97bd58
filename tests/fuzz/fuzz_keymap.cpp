// Any bytes give a map of keys: each names a key of the phone, and the key of the PC that stands there becomes it.

#include "fuzztarget.h"
#include "keymap.h"
#include "phonekey.h"

#include <QFile>
#include <QGuiApplication>
#include <QKeyEvent>
#include <QKeySequence>
#include <QTemporaryDir>
#include <QTest>
#include <QWindow>

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t *data, std::size_t size)
{
    static int count = 1;
    static char name[] = "fuzz", *names[] = {name, nullptr};
    static const auto *app = new QGuiApplication(count, names); // outlives what Qt keeps
    static const QTemporaryDir folder;
    qInstallMessageHandler([](QtMsgType, const QMessageLogContext &, const QString &) {});
    QFile file(folder.filePath("keymap.ini"));
    require(app && file.open(QIODevice::WriteOnly)
            && file.write(reinterpret_cast<const char *>(data), qint64(size)) == qint64(size));
    file.close();

    KeyMap map(file.fileName());
    static QWindow *const window = new QWindow; // takes the keys of the phone
    window->show();
    window->requestActivate();
    const QMap<QString, QString> keys = map.names();
    for (auto it = keys.begin(); it != keys.end(); ++it) {
        const int pcKey = QKeySequence(it.key(), QKeySequence::PortableText)[0];
        const auto modifiers = Qt::KeyboardModifiers(pcKey & int(Qt::KeyboardModifierMask));
        require(PhoneKey::code(it.value()) != 0);
        for (const QEvent::Type type : {QEvent::KeyPress, QEvent::KeyRelease}) {
            QKeyEvent event(type, pcKey & ~int(Qt::KeyboardModifierMask), modifiers);
            QSpontaneKeyEvent::setSpontaneous(&event);
            require(map.eventFilter(window, &event));
        }
    }
    while (PhoneKey::pending())
        QCoreApplication::processEvents();
    return 0;
}
