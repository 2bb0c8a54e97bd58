#include "phonebookfile.h"

#include "conffile.h"
#include "initext.h"
#include "textcodec.h"

#include <QDebug>
#include <QFile>
#include <QMap>
#include <QTextCodec>

#include <algorithm>
#include <limits>

namespace {

const QLatin1String countKey("Info/Count");
const QLatin1String charsetKey("Info/Charset");

/// Of a larger file only the beginning is read, so that it cannot take the phone's memory.
constexpr qint64 MostBytes = qint64(16) * 1024 * 1024;

QByteArray bytesOf(const QString &path)
{
    QFile file(path);
    if (!file.exists())
        return QByteArray();
    if (!file.open(QIODevice::ReadOnly)) {
        qDebug() << "PhonebookFile: cannot read" << path << file.errorString();
        return QByteArray();
    }
    return file.read(qMin(file.size(), MostBytes));
}

/// A text that is no number counts as 0, one that is too large as the largest.
int toNumber(const QString &text)
{
    bool fits = false;
    const qlonglong number = text.toLongLong(&fits);
    if (fits)
        return static_cast<int>(
            qBound<qlonglong>(std::numeric_limits<int>::min(), number, std::numeric_limits<int>::max()));
    const double size = text.toDouble();
    const bool isHuge = size > std::numeric_limits<int>::max() || size < std::numeric_limits<int>::min();
    return !isHuge ? 0 : size > 0 ? std::numeric_limits<int>::max() : std::numeric_limits<int>::min();
}

/// The number in "001", written with three digits at least and no more zeros than that takes; 0 for another text.
int toOrdinal(const QStringRef &digits)
{
    static constexpr int LeastDigits = 3;
    const bool padded = digits.size() > LeastDigits && digits.startsWith('0');
    const bool allDigits
        = std::all_of(digits.begin(), digits.end(), [](QChar ch) { return ch >= '0' && ch <= '9'; });
    return digits.size() < LeastDigits || padded || !allDigits ? 0 : digits.toInt();
}

/// A file may say in which charset its texts are; without a word it is the phone's own. Null when unknown.
const QTextCodec *codecFor(const QString &charset)
{
    const QString name = charset.isEmpty() ? getTextCodecType(QString()) : charset;
    return QTextCodec::codecForName(name.toLatin1());
}

/// The bytes up to the first NUL.
QString decoded(const QString &text, const QTextCodec *codec)
{
    const QByteArray bytes = text.toLatin1();
    return codec ? codec->toUnicode(bytes.constData()) : QString::fromLatin1(bytes.constData());
}

/// Puts a value into the entry; names it does not know are for others.
void setField(PhonebookFile::Entry *entry, const QStringRef &field, const QString &value)
{
    if (field == QLatin1String("Name"))
        entry->name = value;
    else if (field == QLatin1String("Num"))
        entry->number = value;
    else if (field == QLatin1String("Category"))
        entry->categoryBytes = value;
    else if (field == QLatin1String("Index"))
        entry->index = toNumber(value);
    else if (field == QLatin1String("LineNumber"))
        entry->lineNumber = value;
}

}

PhonebookFile::PhonebookFile(const QByteArray &text)
{
    static const QLatin1String groupStart("Contact_");

    QMap<int, Entry> found; // by the number of the group
    QString charset;
    IniText::read(text, [&](const QString &key, const QString &value) {
        if (key.startsWith(groupStart)) {
            const int slash = key.indexOf('/');
            const int ordinal = slash < 0 ? 0 : toOrdinal(key.midRef(groupStart.size(), slash - groupStart.size()));
            if (ordinal > 0)
                setField(&found[ordinal], key.midRef(slash + 1), value);
        } else if (key == countKey) {
            m_announcedCount = toNumber(value);
        } else if (key == charsetKey) {
            charset = value;
        }
    });

    const QTextCodec *codec = codecFor(charset);
    for (auto it = found.begin(); it != found.end() && it.key() <= m_announcedCount; ++it) {
        Entry &entry = it.value();
        if (entry.name.isEmpty() || entry.number.isEmpty())
            continue;
        entry.name = decoded(entry.name, codec);
        entry.category = decoded(entry.categoryBytes, codec);
        m_entries.append(entry);
    }
}

QString PhonebookFile::path()
{
    return getConfFilePath(QStringLiteral("CONFIG"), QStringLiteral("PBOOK_CONF"));
}

PhonebookFile PhonebookFile::read(const char *reader)
{
    const QString file = path();
    if (file.isEmpty()) {
        qDebug("%s: empty config file path:", reader);
        return PhonebookFile();
    }
    const PhonebookFile phonebook(bytesOf(file));
    if (phonebook.announcedCount() == 0)
        qDebug("Can't load System Phonebook");
    return phonebook;
}

int PhonebookFile::announcedCount(const QString &path)
{
    int count = 0;
    IniText::read(bytesOf(path), [&count](const QString &key, const QString &value) {
        if (key == countKey)
            count = toNumber(value);
    });
    return count;
}
