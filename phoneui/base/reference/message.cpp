#include "message.h"

#include <QList>
#include <QtEndian>

#include <cstdarg>
#include <cstring>

namespace {

const QByteArray IntKind = QByteArrayLiteral("int");
const QByteArray StrKind = QByteArrayLiteral("str");
constexpr int LongestText = 0xffff;

MessageObserver &observer()
{
    static MessageObserver theObserver;
    return theObserver;
}

template <typename Number> void appendNumber(QByteArray &out, Number number)
{
    char bytes[sizeof(Number)];
    qToBigEndian<Number>(number, bytes);
    out.append(bytes, sizeof(Number));
}

bool appendArgument(QByteArray &out, const QByteArray &kind, const QVariant &value)
{
    if (kind == IntKind) {
        if (value.userType() != QMetaType::Int)
            return false;
        appendNumber<quint32>(out, static_cast<quint32>(value.toInt()));
        return true;
    }
    if (value.userType() != QMetaType::QByteArray)
        return false;
    const QByteArray text = value.toByteArray();
    if (text.size() > LongestText || text.contains('\0'))
        return false;
    appendNumber<quint16>(out, static_cast<quint16>(text.size()));
    out += text;
    return true;
}

/// The arguments of message_Make as values; false when a text is null.
bool takeArguments(const QList<QByteArray> &kinds, QVariantList *values, va_list arguments)
{
    for (const QByteArray &kind : kinds) {
        if (kind == IntKind) {
            values->append(va_arg(arguments, int));
            continue;
        }
        const char *text = va_arg(arguments, const char *);
        if (!text)
            return false;
        values->append(QByteArray(text));
    }
    return true;
}

/// Takes pieces off the front of a message; a piece that is not there whole fails.
class Reader
{
public:
    Reader(const char *data, int size) : m_at(data), m_end(data + size) { }

    bool takeTerminated(QByteArray *text)
    {
        const void *nul = std::memchr(m_at, '\0', static_cast<std::size_t>(left()));
        if (!nul)
            return false;
        const char *end = static_cast<const char *>(nul);
        *text = QByteArray(m_at, static_cast<int>(end - m_at));
        m_at = end + 1;
        return true;
    }

    bool takeArgument(const QByteArray &kind, QVariant *value)
    {
        if (kind == IntKind) {
            quint32 number = 0;
            if (!takeNumber(&number))
                return false;
            *value = static_cast<int>(number);
            return true;
        }
        quint16 size = 0;
        if (!takeNumber(&size) || left() < size || std::memchr(m_at, '\0', size))
            return false;
        *value = QByteArray(m_at, size);
        m_at += size;
        return true;
    }

    int left() const { return static_cast<int>(m_end - m_at); }

private:
    template <typename Number> bool takeNumber(Number *number)
    {
        if (left() < static_cast<int>(sizeof(Number)))
            return false;
        *number = qFromBigEndian<Number>(m_at);
        m_at += sizeof(Number);
        return true;
    }

    const char *m_at;
    const char *m_end;
};

}

bool message_ArgumentKinds(const QByteArray &signature, QList<QByteArray> *kinds)
{
    kinds->clear();
    const int open = signature.indexOf('(');
    if (open < 0)
        return !signature.isEmpty() && !signature.contains(')');
    if (open == 0 || signature.indexOf(')') != signature.size() - 1)
        return false;
    const QByteArray inner = signature.mid(open + 1, signature.size() - open - 2);
    if (inner.isEmpty())
        return true;
    const QList<QByteArray> list = inner.split(',');
    for (const QByteArray &kind : list) {
        if (kind != IntKind && kind != StrKind)
            return false;
    }
    *kinds = list;
    return true;
}

QByteArray message_MakeFromValues(const Message &message)
{
    QList<QByteArray> kinds;
    if (message.address.contains('\0') || message.signature.contains('\0')
        || !message_ArgumentKinds(message.signature, &kinds) || kinds.size() != message.arguments.size())
        return QByteArray();
    QByteArray out = message.address + '\0' + message.signature + '\0';
    for (int i = 0; i < kinds.size(); ++i) {
        if (!appendArgument(out, kinds.at(i), message.arguments.at(i)))
            return QByteArray();
    }
    return out;
}

int message_Make(char *buffer, int bufferSize, const char *address, const char *signature, ...)
{
    if (!buffer || !address || !signature)
        return 0;
    Message message{address, signature, {}};
    QList<QByteArray> kinds;
    if (!message_ArgumentKinds(message.signature, &kinds))
        return 0;

    va_list arguments;
    va_start(arguments, signature);
    const bool complete = takeArguments(kinds, &message.arguments, arguments);
    va_end(arguments);

    const QByteArray out = complete ? message_MakeFromValues(message) : QByteArray();
    if (out.isEmpty() || out.size() > bufferSize)
        return 0;
    std::memcpy(buffer, out.constData(), static_cast<std::size_t>(out.size()));
    if (observer())
        observer()(message);
    return out.size();
}

bool message_Parse(const char *buffer, int size, Message *message)
{
    if (!buffer || size <= 0)
        return false;
    Reader reader(buffer, size);
    Message read;
    QList<QByteArray> kinds;
    if (!reader.takeTerminated(&read.address) || !reader.takeTerminated(&read.signature)
        || !message_ArgumentKinds(read.signature, &kinds))
        return false;
    for (const QByteArray &kind : qAsConst(kinds)) {
        QVariant value;
        if (!reader.takeArgument(kind, &value))
            return false;
        read.arguments.append(value);
    }
    if (reader.left() != 0)
        return false;
    *message = read;
    return true;
}

void message_SetObserver(const MessageObserver &newObserver)
{
    observer() = newObserver;
}
