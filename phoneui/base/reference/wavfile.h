#ifndef WAVFILE_H
#define WAVFILE_H

#include <QString>

/// How long a WAV file sounds, in milliseconds, by its header; -1 for a file that is missing or no WAV.
int wavDuration(const QString &path);

#endif
