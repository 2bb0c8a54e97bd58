#ifndef KEYMAP_H
#define KEYMAP_H

#include <QHash>
#include <QMap>
#include <QObject>
#include <QString>

class QKeyEvent;

/// Turns the keys of a PC keyboard into those of the phone, by `config/keymap.ini`: a section [Keys] with lines
/// such as `Shift+F1=F1`, a PC key on the left and a phone key on the right. What it does not name is typed as it
/// is.
class KeyMap : public QObject
{
    Q_OBJECT

public:
    /// Reads the file, which is made with the default keys if it is missing. A line with an unknown key is left out
    /// and logged.
    explicit KeyMap(const QString &path, QObject *parent = nullptr);

    /// The names of phone keys by the texts of PC keys.
    QMap<QString, QString> names() const { return m_names; }

    /// Replaces the keys that the window system sends; those that the phone posts are left alone.
    bool eventFilter(QObject *watched, QEvent *event) override;

private:
    void load(const QString &path);
    int phoneKey(const QKeyEvent *event) const;

    QMap<QString, QString> m_names;
    QHash<int, int> m_codes; ///< PC key with modifiers to phone key
    QHash<int, int> m_down; ///< PC key to the phone key that its press became
};

#endif
