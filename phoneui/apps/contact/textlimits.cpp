#include "textlimits.h"

QString checkMaxString(const QString &text, int max)
{
    int units = 0;
    for (int i = 0; i < text.size(); ++i) {
        units += text.at(i).unicode() <= 0xff ? 1 : 2;
        if (units > max)
            return text.left(i);
    }
    return text;
}

QString cutWithDots(const QString &text, int most, int kept)
{
    return text.size() > most ? text.left(kept) + "..." : text;
}
