#ifndef TEXTLIMITS_H
#define TEXTLIMITS_H

#include <QString>

/// The beginning of the text that fits into `max` units of the database field, where a character up to 0xFF costs
/// one and any other two. A wide character in the last place does not fit.
QString checkMaxString(const QString &text, int max);

/// A text of more than `most` characters as its first `kept` and three dots.
QString cutWithDots(const QString &text, int most, int kept);

#endif
