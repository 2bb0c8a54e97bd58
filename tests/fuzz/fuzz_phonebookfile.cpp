// Any bytes give a system phonebook, whose models agree with it.

#include "fuzztarget.h"
#include "phonebookfile.h"
#include "systemphonebook.h"
#include "systemphonebookcategorymodel.h"
#include "systemphonebookdatamodel.h"

#include <QFile>
#include <QSet>
#include <QTemporaryDir>

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t *data, std::size_t size)
{
    qInstallMessageHandler([](QtMsgType, const QMessageLogContext &, const QString &) {});
    static const QTemporaryDir folder;
    const QByteArray text(reinterpret_cast<const char *>(data), int(size));
    QFile list(folder.filePath("list.ini")), file(folder.filePath("book.conf"));
    require(list.open(QIODevice::WriteOnly) && file.open(QIODevice::WriteOnly));
    list.write("[CONFIG]\nPBOOK_CONF=" + QFile::encodeName(file.fileName()) + '\n');
    file.write(text);
    list.close();
    file.close();
    qputenv("CONFIG_LIST", QFile::encodeName(list.fileName()));

    const PhonebookFile book(text);
    require(PhonebookFile::announcedCount(file.fileName()) == book.announcedCount());
    require(book.entries().size() <= qMax(0, book.announcedCount()));
    QSet<int> indexes;
    for (const PhonebookFile::Entry &entry : book.entries()) {
        require(!entry.number.isEmpty());
        if (entry.index >= 0)
            indexes.insert(entry.index);
    }
    const SystemPhonebookDataModel all(SystemPhonebook::allKey(), nullptr);
    require(all.rowCount() == indexes.size());
    const SystemPhonebookCategoryModel categories(nullptr);
    require(categories.rowCount() == 0 || categories.getCategoryCount(0) <= book.entries().size());
    for (int row = 0; row < categories.rowCount(); ++row) {
        const SystemPhonebookDataModel one(categories.getCategoryNameByIndex(row), nullptr);
        require(one.rowCount() <= all.rowCount());
        for (int i = 1; i < one.rowCount(); ++i)
            require(one.getRowByIndex(i - 1) < one.getRowByIndex(i) && !one.getNumber(i).isEmpty());
    }
    return 0;
}
