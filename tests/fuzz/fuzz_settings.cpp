// What is read from any bytes as settings, written and read again is the same.

#include "fuzztarget.h"
#include "initext.h"

static QMap<QString, QString> read(const QByteArray &text)
{
    QMap<QString, QString> values;
    IniText::read(text, [&values](const QString &key, const QString &value) { values[key] = value; });
    return values;
}

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t *data, std::size_t size)
{
    const QMap<QString, QString> values = read({reinterpret_cast<const char *>(data), int(size)});
    require(read(IniText::write(values)) == values);
    return 0;
}
