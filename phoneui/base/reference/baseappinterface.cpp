#include "baseappinterface.h"

#include "core.h"

#include <QCoreApplication>
#include <QTranslator>

BaseAppInterface::BaseAppInterface(const QString &name, QObject *parent) : m_name(name)
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
    const QString base = QStringLiteral(":/%1/%1").arg(m_name);
    const QString language = theCore ? theCore->languageName() : QString();
    QScopedPointer<QTranslator> translator(new QTranslator);
    const bool loaded = translator->load(QStringLiteral("%1_%2.qm").arg(base, language))
        || translator->load(base + QStringLiteral(".qm"));
    // Deleting a translator takes it out of the application.
    m_translator.reset(loaded ? translator.take() : nullptr);
    if (m_translator)
        QCoreApplication::installTranslator(m_translator.data());
}
