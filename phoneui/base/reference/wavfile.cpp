#include "wavfile.h"

#include <QFile>
#include <QFileInfo>
#include <QtEndian>

namespace {

// Beyond the two that count, files carry a few with titles and loops; more than this is no file for a telephone.
constexpr int MostChunks = 64;
constexpr qint64 LongestMs = 24 * 60 * 60 * 1000;

struct Chunk
{
    QByteArray name;
    quint32 size = 0;
};

/// "RIFF", a size, "WAVE"; then chunks of a name, a size and that many bytes, padded to an even number.
class WavReader
{
public:
    explicit WavReader(QIODevice *device) : m_device(device) { }

    bool begin()
    {
        const QByteArray head = m_device->read(12);
        return head.size() == 12 && head.startsWith("RIFF") && head.endsWith("WAVE");
    }

    bool next(Chunk *chunk)
    {
        const QByteArray head = m_device->read(8);
        if (head.size() != 8)
            return false;
        chunk->name = head.left(4);
        chunk->size = qFromLittleEndian<quint32>(head.constData() + 4);
        return true;
    }

    bool skip(quint32 size)
    {
        const qint64 to = m_device->pos() + size + size % 2;
        return to <= m_device->size() && m_device->seek(to);
    }

    /// Bytes a second, from the format chunk that begins here; 0 when it is cut off.
    quint32 byteRate(quint32 size)
    {
        static constexpr int RateAt = 8, FormatSize = 16;
        const QByteArray format = size < FormatSize ? QByteArray() : m_device->read(FormatSize);
        if (format.size() != FormatSize || !skip(size - FormatSize))
            return 0;
        return qFromLittleEndian<quint32>(format.constData() + RateAt);
    }

private:
    QIODevice *m_device;
};

}

int wavDuration(const QString &path)
{
    QFile file(path);
    // A pipe would hold up the phone.
    if (!QFileInfo(path).isFile() || !file.open(QIODevice::ReadOnly))
        return -1;
    WavReader reader(&file);
    if (!reader.begin())
        return -1;
    quint32 byteRate = 0;
    Chunk chunk;
    for (int i = 0; i < MostChunks && reader.next(&chunk); ++i) {
        if (chunk.name == "fmt ") {
            byteRate = reader.byteRate(chunk.size);
            if (byteRate == 0)
                return -1;
        } else if (chunk.name == "data") {
            // Recorders that stream leave the size open.
            const qint64 bytes = qMin<qint64>(chunk.size, file.size() - file.pos());
            return byteRate == 0 ? -1 : static_cast<int>(qMin(bytes * 1000 / byteRate, LongestMs));
        } else if (!reader.skip(chunk.size)) {
            return -1;
        }
    }
    return -1;
}
