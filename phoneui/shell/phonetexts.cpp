#include "phonetexts.h"

#include "core.h"

PhoneTexts::PhoneTexts(QObject *parent) : QObject(parent), m_toolkit("toolkit"), m_shell("shell")
{
    load();
    connect(theCore, &Core::languageChanged, this, &PhoneTexts::load);
}

void PhoneTexts::load()
{
    m_toolkit.load();
    m_shell.load();
}
