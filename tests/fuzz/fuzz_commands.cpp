// Any commands with any payloads, one behind the other, open and close screens of the contacts on a real store;
// when they are told to go, all screens go. A message is a line with the command, and its payload up to a byte
// 0x1e; the payload of "answer" is a document that a directory server sends.

#include "contact.h"
#include "displaysetup.h"
#include "fuzztarget.h"
#include "testphone.h"
#include "testscreen.h"

#include <QApplication>
#include <QElapsedTimer>
#include <QRegularExpression>
#include <QThread>
#include <QTimer>

#include <cstdio>

extern "C" int system(const char *)
{
    return 0; // the caches can do without, and a process for each would be all that is tried here
}

namespace {

/// Qt's own warnings tell of misuse.
void handleMessage(QtMsgType type, const QMessageLogContext &, const QString &text)
{
    static const QRegularExpression ofQt("^Q[A-Z]\\w+(::|:| )");
    if (type == QtDebugMsg || type == QtInfoMsg || !ofQt.match(text).hasMatch())
        return;
    std::fprintf(stderr, "%s\n", qPrintable(text));
    std::abort();
}

/// Made once, and never deleted: what Qt keeps goes before it could.
struct Phone
{
    Phone()
    {
        phone.addContacts(8);
        phone.connectMobile({"Ann", "Bob"});
        contacts = new Contact;
        std::atexit([] { it().phone.folder.remove(); });
    }
    static Phone &it()
    {
        static int count = 1;
        static char name[] = "fuzz", *names[] = {name, nullptr};
        DisplaySetup::prepareEnvironment();
        static auto *const app = new QApplication(count, names);
        static Phone *const theOne = (DisplaySetup::prepareApplication(), new Phone);
        return app ? *theOne : *theOne;
    }
    void post(const QByteArray &message)
    {
        const int lineEnd = message.indexOf('\n');
        const QByteArray command = message.left(lineEnd), payload = lineEnd < 0 ? "" : message.mid(lineEnd + 1);
        const QString answer = "run/directory-answer.xml";
        if (command == "answer") {
            phone.writeFile(answer, payload);
            phone.send("contact", "http2ui_directory_service_response(str,int)", {phone.home.path(answer), 200});
        } else {
            phone.core.postAppMsg("contact", QString::fromLatin1(command), payload);
        }
    }

    TestScreen screen;
    TestPhone phone;
    Contact *contacts;
};

}

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t *data, std::size_t size)
{
    static constexpr int Settling = 3; // ms in which a screen does what it put off
    static Phone &phone = Phone::it();
    qInstallMessageHandler(handleMessage);
    QList<QByteArray> messages = QByteArray(reinterpret_cast<const char *>(data), int(size)).split('\x1e');
    phone.contacts->start(nullptr, nullptr);
    // Each step comes from the event loop that runs then, which may be that of a screen.
    QTimer timer;
    QElapsedTimer settled;
    QObject::connect(&timer, &QTimer::timeout, &timer, [&] {
        if (!messages.isEmpty()) {
            phone.post(messages.takeFirst());
            settled.start();
        } else if (settled.elapsed() > Settling) {
            if (QThread::currentThread()->loopLevel() == 1 && TestScreen::windows().windows().size() <= 1)
                QCoreApplication::quit();
            else
                phone.contacts->end();
        }
    });
    timer.start(0);
    QApplication::exec();
    return 0;
}
