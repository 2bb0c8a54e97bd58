#ifndef MESSAGE_H
#define MESSAGE_H

#include <QByteArray>
#include <QVariantList>

#include <functional>

/// The wire between the phone's processes: the address text ("CM/UI": to the call manager, from the user
/// interface), NUL, the signature ("name(int,str)"), NUL, then per argument an `int` as 4 bytes big-endian or a
/// `str` as a 2-byte big-endian length and its bytes, none of them NUL.

/// Writes the message into `buffer` and returns its length in bytes; 0 when it does not fit, when the signature
/// is no signature, or when a text is null. Further arguments by the signature: `int`, or `const char *`.
int message_Make(char *buffer, int bufferSize, const char *address, const char *signature, ...);

struct Message
{
    QByteArray address;
    QByteArray signature;
    QVariantList arguments; ///< per argument an `int` or a `QByteArray`
};

/// Reads a message back; false, with `message` untouched, for anything that message_Make did not write.
bool message_Parse(const char *buffer, int size, Message *message);

/// The argument kinds of a signature, "int" or "str"; false if it is no signature. One without parentheses has
/// no arguments.
bool message_ArgumentKinds(const QByteArray &signature, QList<QByteArray> *kinds);

/// As message_Make, with the arguments as values; an empty array where that returns 0.
QByteArray message_MakeFromValues(const Message &message);

/// Hears every message that this process makes for a peer, before it is sent. One observer, none by default.
using MessageObserver = std::function<void(const Message &)>;
void message_SetObserver(const MessageObserver &observer);

#endif
