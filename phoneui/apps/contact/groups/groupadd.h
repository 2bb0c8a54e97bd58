#ifndef GROUPADD_H
#define GROUPADD_H

#include "basewidget.h"

#include <QFileInfo>
#include <QList>

class ListView;
class ListViewLineEditItem;
class ListViewSelectItem;
class QTimer;

/// The form that makes a group or edits one: its name and its ring tone, which is previewed while it is chosen.
class GroupAdd : public BaseWidget
{
    Q_OBJECT

public:
    /// -1 makes a new group.
    GroupAdd(QWidget *parent, int groupId);

    bool start(QWidget *parent, void *data);
    void saveGroup();
    void setupCurrentInfo(int groupId);
    void initInputText();
    QString readBasicRingToneName();
    void readRingToneList();

    void setupStatus() override;
    void setupTail();
    void setupListView();

signals:
    void keyPressed(int key);
    void focusChangedItem(int idx);
    void newGroupAdded(QString name);

public slots:
    void tailFuncButtonClicked(int idx);
    void tailFuncButtonLongPressed(int idx);
    void clickedListViewItem(int idx);
    void focusChangedListViewItem(int idx);
    void changeLineEditTextListViewItem(int idx, QString text);
    void focusChangedRingSelectPopup(int idx);
    void focusChangeTimeout();

protected:
    void retranslate() override;
    void hideEvent(QHideEvent *event) override;

private:
    void chooseInputMode();
    void listRingNames();
    void play(const QString &path);
    void stopPlaying();
    void takeBell(const QString &name);
    void refuse(const QString &text);

    ListView *m_listView = nullptr;
    ListViewLineEditItem *m_nameItem = nullptr;
    ListViewSelectItem *m_bellItem = nullptr;
    int m_groupId;
    bool m_editMode = false;
    QTimer *m_previewTimer = nullptr;
    QString m_previewPath;
    QList<QFileInfo> m_ringFiles; ///< the first stands for no bell and is no file
    QList<QString> m_ringSorted; ///< names as shown, sorted behind the first
    QList<QString> m_ringOrdered; ///< the same names in the order of the files
    QString m_bell; ///< what is stored
    bool m_isBellPlay = false;
    QString m_currentName; ///< the group's own name when the form was opened
};

#endif
