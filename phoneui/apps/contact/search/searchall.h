#ifndef SEARCHALL_H
#define SEARCHALL_H

#include "basewidget.h"
#include "contactdata.h"
#include "directorydata.h"
#include "mergedcontacts.h"

#include <QList>
#include <QPixmap>
#include <QPointer>

#include <array>

class DetailsDial;
class ListView;
class ListViewSearchItem;
class NumberEdit;
class QLabel;
class SearchLineEdit;

/// The search through the phone's own contacts and those of the paired device, which answers while the user types:
/// one row for each number of a contact that fits. What picking a row does depends on who opened the screen.
class SearchAll : public BaseWidget
{
    Q_OBJECT

public:
    enum Mode {
        ViewMode = 0, ///< shows the contact
        AddNumberMode = 1, ///< adds the number given at construction to the contact
        ReceiverMode = 2, ///< hands the number to the message application
        ProgramKeyMode = 3 ///< hands name and first number to the home screen and the key module
    };

    SearchAll(QWidget *parent, int mode, QString number);
    ~SearchAll() override;

    /// Merges what the two stores gave, in the order of the contact list, and returns how many contacts that are.
    int loadContactData(QList<ContactData> local, QList<ContactData> mobile);
    /// Adds the rows of the contacts loaded last, for the word in the search line.
    void addListViewItems();
    /// Shows all contacts.
    void setupListViewItems();
    QString getSearchWord();
    /// The answer to a directory search, dropped: no directory form lies over this screen.
    void showSearchDirResult(QList<QList<DirectoryData>> results, int totalCount);
    void closeWindows();

    void setupStatus() override;
    void setupPixmap();
    void setupTail();
    void setupNoSearchResult();
    void setupListView();
    void setupSearch();

public slots:
    void searchBegin();
    void tailFuncButtonClicked(int idx);
    void tailFuncButtonLongPressed(int idx);
    void clickedListViewItem(int idx);
    void searchLineEditLeaveFocus();
    void listLeaveFocus();
    void keyPressed(int key);
    void selectedItem(int idx);

protected:
    void retranslate() override;
    void keyReleaseEvent(QKeyEvent *event) override;
    void showEvent(QShowEvent *event) override;

private:
    static constexpr int KindCount = 5;

    ListViewSearchItem *row(int idx) const;
    void showResult();
    void focusSearchLine();
    void pick(int idx);
    void showContact(int id, int contactType);
    void searchAgain();
    void addNumberTo(int id);

    int m_mode;
    QString m_number;
    ListView *m_listView = nullptr;
    QLabel *m_noResultLabel = nullptr;
    SearchLineEdit *m_searchLine = nullptr;
    QPointer<DetailsDial> m_detailsDial;
    QPointer<NumberEdit> m_numberEdit;
    MergedContacts m_contacts; ///< found for the word
    std::array<QPixmap, KindCount> m_kindIcons;
};

#endif
