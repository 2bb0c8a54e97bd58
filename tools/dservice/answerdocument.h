#ifndef ANSWERDOCUMENT_H
#define ANSWERDOCUMENT_H

#include <QByteArray>
#include <QString>

class Company;
struct Answer;

/// One page of an answer as the XML document that phones read, the same for a search and for a page fetched later.
/// `path` is the folder of the pages; pages count from 1.
QByteArray answerDocument(const Company &company, const Answer &answer, const QString &path, int page);

#endif
