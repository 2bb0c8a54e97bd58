#include "catalogue.h"

#include "core.h"

#include <QCoreApplication>
#include <QTranslator>

Catalogue::Catalogue(const QString &name) : m_name(name) { }

Catalogue::~Catalogue() = default;

void Catalogue::load()
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
