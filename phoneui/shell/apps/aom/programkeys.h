#ifndef PROGRAMKEYS_H
#define PROGRAMKEYS_H

#include <QList>
#include <QString>

struct ProgramKey
{
    QString name;
    QString number;
};

/// The keys of the key module in their order, kept in a settings file. Each number has one key.
class ProgramKeys
{
public:
    /// As many as the module has.
    static constexpr int MostKeys = 24;

    explicit ProgramKeys(const QString &path);

    const QList<ProgramKey> &keys() const { return m_keys; }
    bool isFull() const { return m_keys.size() >= MostKeys; }
    /// Gives the next free key to the number, or the key that the number has to the name. Returns the key's place,
    /// -1 when there is no free one or the file cannot be written.
    int set(const QString &name, const QString &number);
    void remove(int idx);

private:
    void load();
    /// False, with the keys as they were, when they cannot be written.
    bool keep(const QList<ProgramKey> &keys);

    const QString m_path;
    QList<ProgramKey> m_keys;
};

#endif
