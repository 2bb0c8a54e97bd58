#include "baseappinterface.h"

#include "core.h"

BaseAppInterface::BaseAppInterface(const QString &name, QObject *parent) : m_name(name), m_catalogue(name)
{
    Q_UNUSED(parent)
    if (theCore)
        theCore->addApp(name, this);
}

BaseAppInterface::~BaseAppInterface()
{
    if (theCore)
        theCore->removeApp(this);
}

void BaseAppInterface::reloadLanguage()
{
    m_catalogue.load();
}
