#ifndef NUMBEREDIT_H
#define NUMBEREDIT_H

#include "basewidget.h"
#include "contactdata.h"
#include "groupdata.h"

#include <QFileInfo>
#include <QPointer>
#include <QTimer>

class GroupList_At_Contact;
class ListView;
class ListViewItem;
class NumberEditLineEditItem;
class NumberEditSelectItem;
class SelectPopup;

/// The form for a contact: its fields as rows, which soft keys add and remove. A row's label says what field it is;
/// the label of a number is the only place where its kind is kept.
class NumberEdit : public BaseWidget
{
    Q_OBJECT

public:
    /// What became of a save; the numbers decide the notice.
    enum SaveResult {
        Saved = 0,
        NameMissing = 1,
        NumberMissing = 2,
        TooManyContacts = 3,
        TooManyNumbers = 4,
        Failed = 5
    };

    /// With `id` not -1 that contact is edited and `number`, if given, added to it. With `id` -1 it is a new
    /// contact with `number` as its first, in the group `groupId` unless that is -1.
    NumberEdit(QWidget *parent, int id, QString number, int groupId);
    ~NumberEdit() override;

    int saveContact();
    /// The id of the contact that was saved as a new one, else -1.
    int getSavedId() const { return m_savedId; }
    void closeWindows();

    void setNumberToNewContact(QString number);
    void addNumberToCurrentContact(QString number);
    void setGroupList(QList<GroupData> groups);

    void setupStatus() override;
    void setupTail();
    void setupListView();
    void setupCurrentInfo(int id);

signals:
    void keyPressed(int key);
    void baseWidgetKeyPressed(QKeyEvent *event);
    void selectedItem(int idx);
    void focusChangedItem(int idx);

public slots:
    void tailFuncButtonClicked(int idx);
    void tailFuncButtonLongPressed(int idx);
    void clickedListViewItem(int idx);
    void focusChangedListViewItem(int idx);
    void focusChangedRingSelectPopup(int idx);
    void changeLineEditTextListViewItem(int idx, QString text);
    void focusChangeTimeout();

protected:
    void retranslate() override;
    void keyPressEvent(QKeyEvent *event) override;
    void hideEvent(QHideEvent *event) override;
    bool eventFilter(QObject *watched, QEvent *event) override;

private:
    enum Field { NameField, GroupField, NumberField, EmailField, BellField, MemoField };

    // Rows: numbereditrows.cpp.
    Field fieldOf(int idx) const;
    QString textOf(int idx) const;
    int lastRowOf(Field field) const;
    int countOf(Field field) const;
    void insertRow(int at, ListViewItem *row);
    NumberEditLineEditItem *makeLineRow(const QString &label, const QString &text, int maxLength) const;
    ListViewItem *makeNumberRow(int kind, const QString &number) const;
    NumberEditSelectItem *makeBellRow() const;
    void addFieldRow(Field field, int kind);
    int placeFor(Field field) const;
    void addItem();
    void removeItem();
    void countRows();
    int choose(const QString &title, const QStringList &labels, const QList<bool> &disabled, int current);
    int chooseNumberKind(int current);
    bool isRemovable(int idx) const;
    bool isEmptyField(int idx) const;

    QString bellName() const;
    QStringList words() const;
    void showGroups();

    void chooseGroups();
    void chooseKindOfRow(int idx);
    void chooseBell(int idx);
    void readRingToneList();
    QString bellPath(const QString &name) const;

    void save();
    bool returnToRow(int idx);
    bool hasNumber() const;
    ContactData collect() const;
    void chooseInputMode(int idx);
    void updateFieldKey(int idx);

    QList<int> m_groupIds;
    ListView *m_listView = nullptr;
    NumberEditLineEditItem *m_nameItem = nullptr;
    NumberEditSelectItem *m_groupItem = nullptr;
    QPointer<SelectPopup> m_selectPopup;
    QPointer<GroupList_At_Contact> m_groupScreen;
    int m_contactId;
    int m_savedId = -1;
    int m_numberCount = 0;
    int m_emailCount = 0;
    bool m_isModify;
    bool m_numberDisabled = false;
    bool m_emailDisabled = false;
    bool m_bellDisabled = false;
    bool m_memoDisabled = false;
    QString m_bell; ///< path of the chosen ring tone
    QList<QFileInfo> m_ringFiles;
    QStringList m_ringNames; ///< as shown, the entry for no bell first
    QStringList m_words; ///< those of the rows, in the language in which they show
    QString m_previewPath;
    QTimer m_focusTimer;
};

#endif
