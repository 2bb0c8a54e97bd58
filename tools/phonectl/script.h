#ifndef SCRIPT_H
#define SCRIPT_H

#include <QList>
#include <QString>
#include <QStringList>

/// One command of a script and the line on which it stands, counted from 1.
struct ScriptLine
{
    int number;
    QStringList words;
};

/// A script: one command a line, quoted as in a shell.
namespace Script {

/// Takes a line apart: blanks part words, `'...'` holds everything, `"..."` everything but `\"` and `\\`,
/// `$'...'` knows `\n`, `\t`, `\'` and `\\` for texts of several lines, `\` takes the next character as it is, and
/// `#` at the start of a word begins a comment. Empty when all is well, else what is wrong.
QString split(const QString &line, QStringList *words);

/// The commands of a file. Empty when all is well, else what is wrong and where.
QString read(const QString &fileName, QList<ScriptLine> *lines);

}

#endif
