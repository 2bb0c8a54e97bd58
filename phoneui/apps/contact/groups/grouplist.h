#ifndef GROUPLIST_H
#define GROUPLIST_H

#include "basewidget.h"

#include <QPointer>

class GroupAdd;
class GroupDetail;
class ListView;

/// All groups with the number of their members, the built-in one first. Groups are opened, added, edited and
/// deleted from here; a group that is deleted loses none of its members.
class GroupList : public BaseWidget
{
    Q_OBJECT

public:
    explicit GroupList(QWidget *parent);

    /// The group of the selected row.
    int getGroupId();
    void closeWindows();
    void deleteGroup();

    void setupStatus() override;
    void setupTail();
    void setupListView();
    void setupListViewItems();

signals:
    void keyPressed(int key);
    void selectedItem(int idx);

public slots:
    void tailFuncButtonClicked(int idx);
    void clickedListViewItem(int idx);
    void focusChangedListViewItem(int idx);
    /// Remembers the name of the group on which the selection is to land.
    void moveListItemByStr(QString name);

protected:
    void retranslate() override;
    void showEvent(QShowEvent *event) override;
    void hideEvent(QHideEvent *event) override;

private:
    void addRow(const QString &name, int id);
    int groupIdOf(int idx) const;
    void addGroup();
    void editGroup();
    void selectRow(const QString &name);
    bool moveMembersOff(int groupId) const;

    ListView *m_listView = nullptr;
    QPointer<GroupAdd> m_groupAdd;
    QPointer<GroupDetail> m_groupDetail;
    QString m_moveItemStr; ///< stays set: a later add without a new name seeks the old one
};

#endif
