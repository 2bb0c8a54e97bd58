// Runs a fuzz target over the files that are named, where libFuzzer is not there to do it.

#include "fuzztarget.h"

#include <QFile>

int main(int argc, char **argv)
{
    for (int i = 1; i < argc; ++i) {
        QFile file(QFile::decodeName(argv[i]));
        if (!file.open(QIODevice::ReadOnly))
            return 1;
        const QByteArray content = file.readAll();
        LLVMFuzzerTestOneInput(reinterpret_cast<const std::uint8_t *>(content.constData()),
                               std::size_t(content.size()));
    }
    return argc > 1 ? 0 : 1;
}
