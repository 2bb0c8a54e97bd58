#ifndef SYSTEMPHONEBOOKVIEW_H
#define SYSTEMPHONEBOOKVIEW_H

#include "listview.h"

#include <QModelIndex>
#include <QPointer>

class QAbstractItemModel;
class QKeyEvent;

/// A list that fills itself from a model of the system phonebook. Thousands of entries are passed in pages: every
/// arrow turns a page of five rows, around the ends, and the keys beside the display, F1 to F5, click the five rows
/// of the page.
class SystemPhonebookView : public ListView
{
    Q_OBJECT

public:
    explicit SystemPhonebookView(QWidget *parent);

    /// Shows the model's rows, as they are now. The model stays its owner's.
    void setModel(QAbstractItemModel *model);
    QAbstractItemModel *model() const { return m_model; }
    /// The model's index of the selected row; invalid in an empty list.
    QModelIndex currentIndex();
    void setCurrentRow(int row) { setSelectedIdx(row); }
    /// Makes the rows anew. A change of the model does not do that by itself.
    void setupListViewItems();

    void scrollToNext();
    void scrollToPrevious();
    /// True when a subclass has taken the key.
    virtual bool sideKeyEvent(QKeyEvent *event);
    QRect visualRect(const QModelIndex &index) const;

    int keyToItemIdx(int key) override;

public slots:
    void dataChanged(const QModelIndex &topLeft, const QModelIndex &bottomRight);
    void rowsInserted(const QModelIndex &parent, int first, int last);

protected:
    bool eventFilter(QObject *watched, QEvent *event) override;

private:
    int firstOfPage();
    void goToRow(int row);

    QPointer<QAbstractItemModel> m_model;
};

#endif
