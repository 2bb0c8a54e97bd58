#ifndef VCARDSPLITTER_H
#define VCARDSPLITTER_H

#include <QByteArray>
#include <QString>

#include <string_view>

class QIODevice;

/// One card of a file as it stands there.
struct VCardText
{
    int line = 0; ///< of its first line in the file, from 1
    QByteArray text;
    QString problem; ///< why it cannot be a card; empty when it can
};

/// Takes a file of vCards apart, one card at a time, so that a broken one costs no other.
///
/// On the way it puts into the plain form what phones write and the parser does not take: names of property
/// groups ("item1.TEL"), pictures as data addresses, bytes in EUC-KR that nothing announces.
class VCardSplitter
{
public:
    explicit VCardSplitter(QIODevice *device);

    /// The next card, whole or broken; false at the end of the file. `card` keeps its room from call to call.
    bool next(VCardText *card);

private:
    bool readLine();
    bool readMore();

    QIODevice *const m_device;
    QByteArray m_buffer; ///< what the device gave, from the last line read on
    int m_nextLine = 0; ///< in m_buffer
    std::string_view m_line; ///< the last one read, there as well
    int m_lineNumber = 0;
    bool m_beginRead = false; ///< the last line read began the next card
};

#endif
