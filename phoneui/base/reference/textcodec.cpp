#include "textcodec.h"

#include "core.h"
#include "textfolding.h"

#include <QTextCodec>

static QString phoneCharset()
{
    return theCore ? theCore->charset() : QStringLiteral("utf-8");
}

QString getTextCodecType(const QString &name)
{
    return name.isEmpty() ? phoneCharset() : name;
}

QByteArray getEncodedString(const QString &text)
{
    return QTextCodec::codecForName(phoneCharset().toLatin1())->fromUnicode(text);
}

QByteArray makeBuffEscape(char *text)
{
    return QByteArray(text).toPercentEncoding();
}

bool chosungCompare(const QString &name, const QString &word)
{
    return TextFolding::nameHolds(name, word);
}
