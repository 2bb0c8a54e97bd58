#include "vcardreport.h"

#include <QTextStream>

#include <cstdio>
#include <unistd.h>

namespace {

constexpr int ProgressStep = 500;

bool onTerminal()
{
    static const bool terminal = isatty(fileno(stderr)) == 1;
    return terminal;
}

}

void VCardReport::progress(const char *what, int count)
{
    if (count % ProgressStep != 0)
        return;
    std::fprintf(stderr, "%s%s %d%s", onTerminal() ? "\r" : "", what, count, onTerminal() ? "" : "\n");
    std::fflush(stderr);
}

void VCardReport::endProgress()
{
    if (onTerminal())
        std::fputs("\r\x1b[K", stderr);
}

void VCardReport::complain(const QString &text)
{
    QTextStream(stderr) << text << '\n';
}

void VCardReport::skipped(const VCardFile &file, const QString &fileName)
{
    for (const VCardFile::Skipped &card : file.skipped)
        complain(QStringLiteral("%1:%2: skipped: %3").arg(fileName).arg(card.line).arg(card.reason));
    if (file.leftOut > 0)
        complain(QStringLiteral("%1: left out %2 numbers and addresses beyond what a contact holds")
                     .arg(fileName)
                     .arg(file.leftOut));
}

void VCardReport::counts(const VCardFile &file, int added)
{
    QTextStream out(stdout);
    out << "read " << file.cardsRead() << ", added " << added << ", skipped " << file.skipped.size() << '\n';
    const QMap<QString, int> reasons = file.skippedByReason();
    for (auto reason = reasons.begin(); reason != reasons.end(); ++reason)
        out << "  " << reason.key() << ": " << reason.value() << '\n';
}
