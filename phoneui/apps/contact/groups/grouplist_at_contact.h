#ifndef GROUPLIST_AT_CONTACT_H
#define GROUPLIST_AT_CONTACT_H

#include "basewidget.h"
#include "groupdata.h"

class ListView;
class ListViewCheckGroupItem;

/// The check list on which a contact is put into its groups. The marks on the rows are the selection. The built-in
/// group excludes all others, and comes back when the last other mark goes.
class GroupList_At_Contact : public BaseWidget
{
    Q_OBJECT

public:
    GroupList_At_Contact(QWidget *parent, QList<int> selectedIds);

    /// The marked groups in the order of the rows.
    QList<GroupData> getGroupSelection();
    void createSimpleGroup(QString name);
    void setSelectedGroups(QList<int> ids);

    void setupStatus() override;
    void setupTail();
    void setupListView();
    void setupListViewItems();

signals:
    void keyPressed(int key);
    void selectedItem(int idx);
    /// Both a signal and the event handler: who connects it hears of the closing.
    void closeEvent(QCloseEvent *event) override;

public slots:
    void tailFuncButtonClicked(int idx);
    void clickedListViewItem(int idx);

protected:
    void retranslate() override;

private:
    ListViewCheckGroupItem *row(int idx) const;
    ListViewCheckGroupItem *rowOfGroup(int id) const;
    ListViewCheckGroupItem *addRow(const QString &name, int id);
    bool isAnyChecked() const;
    void createGroup();
    QString nameFault(const QString &name) const;
    bool askForName(QString *name);

    ListView *m_listView = nullptr;
};

#endif
