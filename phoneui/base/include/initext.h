#ifndef INITEXT_H
#define INITEXT_H

#include <QByteArray>
#include <QMap>
#include <QString>

#include <functional>

/// INI text. Keys and values come out as QSettings would give them, with three
/// differences that make it safe and sure on a file that anyone may have written:
///
/// - every value is one text: a comma makes no list, and "@Variant(...)" and its like make no object;
/// - quotes end with their line, so one that is never closed costs no more than that line;
/// - nothing is kept between two readings.
///
/// Bytes are widened to one character each, so a text in any charset comes through undecoded; a byte order mark of
/// UTF-8 is passed over.
namespace IniText {

/// Called with each key, as in "Info/Count", in the order of the text. Of equal keys the last one counts.
using Visitor = std::function<void(const QString &key, const QString &value)>;

void read(const QByteArray &text, const Visitor &visit);

/// The text from which `read` gets these values back, whatever they hold; QSettings does as well.
QByteArray write(const QMap<QString, QString> &values);

}

#endif
