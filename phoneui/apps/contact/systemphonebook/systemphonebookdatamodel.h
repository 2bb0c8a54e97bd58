#ifndef SYSTEMPHONEBOOKDATAMODEL_H
#define SYSTEMPHONEBOOKDATAMODEL_H

#include <QAbstractListModel>
#include <QHash>
#include <QVector>

/// The entries of one category of the system phonebook, in the order of their index: what the file held when the
/// model was made, or at the last `reset` or `setCategory`. No change is signalled.
class SystemPhonebookDataModel : public QAbstractListModel
{
    Q_OBJECT

public:
    struct SystemPhonebookData
    {
        int index = -1;
        QString category;
        QString name;
        QString number;
        QString lineNumber;
    };

    /// `category` is as it stands in the file, undecoded, or one of the two reserved keys.
    SystemPhonebookDataModel(const QString &category, QObject *parent);
    ~SystemPhonebookDataModel() override;

    /// Adds the entries of a category. False when there is no phonebook.
    bool load(const QString &category);
    /// Shows another category until the next `reset`.
    void setCategory(const QString &category);
    /// Reads the file anew, with the category given at construction.
    void reset();
    void clear();

    int rowCount(const QModelIndex &parent = QModelIndex()) const override;
    QVariant data(const QModelIndex &index, int role) const override;

    /// The index of the entry in a row; 0 for a row that is not there.
    int getRowByIndex(int row) const;
    // Null without an entry.
    QString getName(int row) const;
    QString getNumber(int row) const;
    QString getCategory(int row) const;
    QString getLineNumber(int row) const;

private:
    SystemPhonebookData entry(int row) const;
    void sortRows();

    const QString m_category;
    QHash<int, SystemPhonebookData *> m_entries; ///< by index
    QVector<int> m_rows; ///< the indexes in ascending order
};

#endif
