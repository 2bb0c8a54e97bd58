#ifndef CATALOGUE_H
#define CATALOGUE_H

#include <QScopedPointer>
#include <QString>

class QTranslator;

/// The texts of one application or library in one language at a time.
class Catalogue
{
public:
    /// `name` says where the texts lie: ":/NAME/NAME_de_DE.qm", and ":/NAME/NAME.qm" for a language without its
    /// own.
    explicit Catalogue(const QString &name);
    ~Catalogue();

    /// Puts the texts of the phone's language in the place of those before.
    void load();

private:
    Q_DISABLE_COPY(Catalogue)

    const QString m_name;
    QScopedPointer<QTranslator> m_translator;
};

#endif
