// Any bytes give a directory record, or rather what they hold of one.

#include "directorydocument.h"
#include "ezxml.h"
#include "fuzztarget.h"

#include <QtGlobal>

#include <vector>

extern "C" int system(const char *)
{
    return 0; // each record ends with a flush of all the machine's disks, which would be all that is tried here
}

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t *data, std::size_t size)
{
    qInstallMessageHandler([](QtMsgType, const QMessageLogContext &, const QString &) {});
    static std::FILE *const sink = stdout = std::fopen("/dev/null", "w");
    std::vector<char> text(data, data + size);
    ezxml *root = ezxml_parse_str(text.data(), text.size());
    xml_directory *directory = loadDirectoryService(root, nullptr);
    ezxml_free(root); // the record must not need the tree

    int items = 0;
    for (const xml_directory_item *item = directory->items; item; item = item->next)
        ++items;
    require(sink && directory_dump(directory) == items && directory->item_count == 0);
    std::free(directory->charset2);
    free_directory_data(directory);
    return 0;
}
