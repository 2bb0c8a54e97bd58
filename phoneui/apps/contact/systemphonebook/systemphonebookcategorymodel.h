#ifndef SYSTEMPHONEBOOKCATEGORYMODEL_H
#define SYSTEMPHONEBOOKCATEGORYMODEL_H

#include <QAbstractListModel>
#include <QHash>
#include <QList>

class PhonebookFile;

/// The categories of the system phonebook with the number of their entries: all, those without a category if there
/// are any, then the others by name. What the file held when the model was made, or at the last `reset`.
///
/// An entry without an index, which no list shows, is counted; so the numbers can be higher than those of the
/// lists.
class SystemPhonebookCategoryModel : public QAbstractListModel
{
    Q_OBJECT

public:
    struct SystemPhonebookCategory
    {
        QString name; ///< as it was shown when the file was read
        int count = 0;
    };

    explicit SystemPhonebookCategoryModel(QObject *parent);
    ~SystemPhonebookCategoryModel() override;

    /// What a category's key is shown as.
    static QString shownName(const QString &key);

    /// False when there is no phonebook.
    bool load();
    void clear();
    /// Reads the file anew.
    void reset();

    int rowCount(const QModelIndex &parent = QModelIndex()) const override;
    QVariant data(const QModelIndex &index, int role) const override;

    /// The key of a row, decoded; empty for a row that is not there.
    QString getCategoryNameByIndex(int row) const;
    int getCategoryCount(int row) const;
    QString getCategoryName(int row, bool withCount) const;

private:
    SystemPhonebookCategory *category(const QString &key);
    void count(const PhonebookFile &file);
    void sortKeys();

    QHash<QString, SystemPhonebookCategory *> m_categories; ///< by key
    QList<QString> m_keys; ///< in the order of the rows
};

#endif
