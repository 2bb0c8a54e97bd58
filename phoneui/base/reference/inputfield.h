#ifndef INPUTFIELD_H
#define INPUTFIELD_H

#include <QObject>
#include <QPointer>
#include <QString>
#include <QVariant>

/// A line edit as the input method meets it. This library knows no widgets: it tells one by its class name, asks it
/// by queries and writes by events. The line edit may go at any moment.
class InputField
{
public:
    InputField() = default;
    explicit InputField(QObject *edit) : m_edit(edit) { }

    /// Whether the object is a line edit that the user may write into.
    static bool takesText(QObject *object);

    bool is(const QObject *object) const { return m_edit && m_edit == object; }
    bool hasFocus() const;

    /// Where the user writes; it changes when anyone else writes or moves the cursor.
    struct Place
    {
        QString text;
        int cursor = 0;
        int anchor = 0;

        bool operator==(const Place &other) const
        {
            return text == other.text && cursor == other.cursor && anchor == other.anchor;
        }
        bool endsWith(const QString &written) const { return text.left(cursor).endsWith(written); }
    };
    Place place() const;
    /// How many characters can still be written; those of a selection are replaced.
    int room() const;
    /// A field with an input mask, such as a time, is overwritten digit by digit.
    bool isMasked() const;

    /// Writes `finished` in place of the last `replaced` characters and shows `pending` underlined behind it.
    void write(const QString &finished, int replaced, const QString &pending) const;

private:
    QVariant query(Qt::InputMethodQuery query) const;

    QPointer<QObject> m_edit;
};

#endif
