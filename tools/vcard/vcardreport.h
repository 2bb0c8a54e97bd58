#ifndef VCARDREPORT_H
#define VCARDREPORT_H

#include "vcardfile.h"

/// What the tools tell of a vCard file while they read it and afterwards.
namespace VCardReport {

/// How far the work has come, on the standard error: every so often, and on one line where that is a terminal.
void progress(const char *what, int count);
void endProgress();

/// The cards left out, each with its line, on the standard error.
void skipped(const VCardFile &file, const QString &fileName);
/// The counts, on the standard output.
void counts(const VCardFile &file, int added);

/// One line on the standard error.
void complain(const QString &text);

}

#endif
