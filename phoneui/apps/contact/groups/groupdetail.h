#ifndef GROUPDETAIL_H
#define GROUPDETAIL_H

#include "basewidget.h"
#include "buddyidstatustype.h"
#include "contactdata.h"

#include <QPointer>

class DetailsDial;
class ListView;
class NumberEdit;
class QLabel;

/// The members of one group by name. They are opened, added to and taken out of the group here; taking a member out
/// never deletes the contact.
class GroupDetail : public BaseWidget
{
    Q_OBJECT

public:
    GroupDetail(QWidget *parent, int groupId);

    int getCurrentGroupId() const { return m_groupId; }
    void closeWindows();
    void deleteContactInGroup();
    void deleteAllContactInGroup();
    /// The presence of a member's row; both values are -1 for one without any.
    buddyIdStatusType currItemPresenceStatus(int row);

    void setupStatus() override;
    void setupTail();
    void setupListView();
    void setupListViewItems(int groupId);

signals:
    void keyPressed(int key);
    void selectedItem(int idx);

public slots:
    void tailFuncButtonClicked(int idx);
    void clickedListViewItem(int idx);

protected:
    void retranslate() override;
    void showEvent(QShowEvent *event) override;
    void hideEvent(QHideEvent *event) override;

private:
    QList<ContactData> members(int groupId) const;
    void refresh();
    int addContact();
    void showOutcome(bool removed);

    ListView *m_listView = nullptr;
    int m_groupId;
    QPointer<DetailsDial> m_detailsDial;
    QPointer<NumberEdit> m_numberEdit;
    QLabel *m_noContactsLabel = nullptr; ///< the notice of an empty group, on the list
};

#endif
