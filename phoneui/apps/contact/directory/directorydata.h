#ifndef DIRECTORYDATA_H
#define DIRECTORYDATA_H

#include <QString>

/// One field of one result of a directory search. A result is a list of these, a page of results a list of results.
class DirectoryData
{
public:
    DirectoryData() = default;
    /// `index` counts from 0 within the result. `type` is the key that the screens look for, such as "name" or
    /// "number"; `label` is the server's text for it.
    DirectoryData(int index, const QString &type, const QString &label, const QString &value, bool isPhone)
        : m_index(index), m_type(type), m_label(label), m_value(value), m_isPhone(isPhone)
    {
    }

    int getIndex() const { return m_index; }
    QString getType() const { return m_type; }
    QString getLabel() const { return m_label; }
    QString getValue() const { return m_value; }
    bool getIsPhone() const { return m_isPhone; }

private:
    int m_index = 0;
    QString m_type;
    QString m_label;
    QString m_value;
    bool m_isPhone = false;
};

#endif
