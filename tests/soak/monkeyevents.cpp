#include "monkeyevents.h"

#include "phonekey.h"

#include <QDataStream>

template <typename List> static auto pick(const List &list, int index)
{
    return list[index % (sizeof list / sizeof list[0])];
}

MonkeyEvent MonkeyEvents::next()
{
    if (m_left-- <= 0) {
        m_spell = below(SpellCount);
        m_left = 20 + below(150);
    }
    static constexpr int KeysOfHundred[SpellCount] = {98, 85, 40, 92};
    if (below(100) >= KeysOfHundred[m_spell])
        return below(4) ? command() : outside();
    return below(100) < (m_spell == Typing ? 40 : 4) ? text() : key();
}

MonkeyEvent MonkeyEvents::key()
{
    // What leads on comes more often than what leads out.
    static constexpr int keys[]
        = {Qt::Key_Up,        Qt::Key_Up,        Qt::Key_Down,     Qt::Key_Down,       Qt::Key_Down,
           Qt::Key_Left,      Qt::Key_Right,     Qt::Key_Return,   Qt::Key_Return,     Qt::Key_Return,
           Qt::Key_Return,    Qt::Key_Context1,  Qt::Key_Context2, Qt::Key_Context3,   Qt::Key_Context4,
           Qt::Key_Context1,  Qt::Key_Context2,  Qt::Key_Context3, Qt::Key_Context4,   Qt::Key_Escape,
           Qt::Key_F1,        Qt::Key_F2,        Qt::Key_F7,       Qt::Key_F8,         Qt::Key_F10,
           Qt::Key_0,         Qt::Key_1,         Qt::Key_2,        Qt::Key_9,          Qt::Key_Asterisk,
           PhoneKey::Hash,    Qt::Key_Backspace, Qt::Key_VolumeUp, Qt::Key_VolumeMute, Qt::Key_F13,
           Qt::Key_VolumeDown};
    // Half a key, a held one and several before any timer can come are as likely on a worn keypad.
    static constexpr const char *ways[] = {"tap", "tap", "tap", "tap", "tap", "tap", "press", "release", "hold"};
    const int code = pick(keys, below(1000));
    if (below(25) == 0)
        return "burst " + QByteArray::number(code) + ' ' + QByteArray::number(pick(keys, below(1000))) + ' '
            + QByteArray::number(pick(keys, below(1000)));
    return pick(ways, below(1000)) + (' ' + QByteArray::number(code));
}

QByteArray MonkeyEvents::word()
{
    static constexpr const char *words[]
        = {"", "1001", "100", "Name 001", "a", "Zoë", "김철수", "0701234567", "x@y", "  ", "\"%1\"", "AB", "+*#"};
    const QByteArray word = pick(words, below(1000));
    return below(30) ? word : word.repeated(40);
}

MonkeyEvent MonkeyEvents::text()
{
    return "text " + word();
}

/// What the sender of this command would write, what a broken one would, or noise.
QByteArray MonkeyEvents::payload(const QByteArray &command)
{
    QByteArray bytes;
    QDataStream stream(&bytes, QIODevice::WriteOnly);
    for (int i = command.indexOf('('); i >= 0; i = command.indexOf(',', i + 1)) {
        if (command.mid(i + 1, 3) == "str")
            stream << QString::fromUtf8(word());
        else if (command.mid(i + 1, 3) == "int")
            stream << qint32(below(4) - 1);
    }
    switch (below(6)) {
    case 0: return bytes.left(below(bytes.size() + 1));
    case 1:
        for (int i = below(40); i > 0; --i)
            bytes.append(char(below(256)));
        return bytes.mid(below(bytes.size() + 1));
    default: return bytes;
    }
}

MonkeyEvent MonkeyEvents::command()
{
    static constexpr const char *commands[] = {"newContact(str)",
                                               "viewContactSearchAll(str)",
                                               "viewContactSearchDir(str)",
                                               "viewContact(str)",
                                               "showSearchAllToFindReceiver()",
                                               "searchContact()",
                                               "http2ui_directory_service_response(str,int)",
                                               "changedLanguage()",
                                               "noti_phoneInit()",
                                               "api2ui_noti_contact_changed()",
                                               "wpsm2ui _noti_contact_changed(int)",
                                               "wpsm2ui_contact_picture_ack(str,int,str)",
                                               "wpsm2ui_noti_device_connected(int)",
                                               "wpsm2ui_noti_device_disconnected(int)",
                                               "BuddyStatusChanged()",
                                               "LogOutResponse(int)",
                                               "closeSearchAll()",
                                               "nobody knows this()"};
    const int kind = below(24);
    if (kind == 0)
        return "close";
    if (kind == 1)
        return "leave";
    if (kind < 5)
        return answer();
    const QByteArray command = pick(commands, below(1000));
    return "send " + command + '|' + payload(command).toHex();
}

MonkeyEvent MonkeyEvents::answer()
{
    static constexpr const char *item = "<item><data><type>name</type><value>Kim</value></data><data><type>number"
                                        "</type><label>Office</label><value>12</value></data></item>";
    switch (below(6)) {
    case 0: return "answer <a><display count=\"3\"/><item><data><type>name";
    case 1: return "answer <a><display count=\"-7\"/></a>";
    case 2: return "answer";
    default:
        return "answer <a><display count=\"" + QByteArray::number(below(70)) + "\"/>"
            + QByteArray(item).repeated(below(21)) + "</a>";
    }
}

MonkeyEvent MonkeyEvents::outside()
{
    static constexpr const char *languages[] = {"ko_KR", "en_US", "de_DE", "ru_RU", "tr_TR", "xx"};
    static constexpr const char *broadcasts[] = {"closeSelectPopup()", "closePopup()", ""};
    static constexpr const char *calls[] = {"IDLE", "IDLE", "CONNECT", "DIALING"};
    const QByteArray number = QByteArray::number(below(40));
    switch (below(14)) {
    case 0: return "start";
    case 1: return QByteArray("language ") + pick(languages, below(1000));
    case 2: return QByteArray("broadcast ") + pick(broadcasts, below(1000));
    case 3: return "device " + QByteArray::number(below(30) - 5);
    case 4: return "fault " + number + ' ' + QByteArray::number(below(4));
    case 5: return "phonebook " + QByteArray::number(below(3) - 1);
    case 6: return QByteArray("call ") + pick(calls, below(1000));
    case 7: return "wait " + QByteArray::number(below(20) ? below(8) : 1100);
    case 8: return "remove " + number;
    case 9: return "group " + number;
    case 10: return "count";
    default: return "add " + word() + number;
    }
}
