#ifndef PHONETEXTS_H
#define PHONETEXTS_H

#include "catalogue.h"

#include <QObject>

/// The texts that no plug-in brings: those of the toolkit and those of the shell's own applications. They follow
/// the phone's language from construction on, and a change of it before any application hears of that.
class PhoneTexts : public QObject
{
    Q_OBJECT

public:
    explicit PhoneTexts(QObject *parent = nullptr);

private:
    void load();

    Catalogue m_toolkit;
    Catalogue m_shell;
};

#endif
