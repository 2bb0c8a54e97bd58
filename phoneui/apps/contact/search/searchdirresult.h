#ifndef SEARCHDIRRESULT_H
#define SEARCHDIRRESULT_H

#include "basewidget.h"
#include "directorydata.h"

#include <QList>
#include <QPointer>

class DirectorySearchDetail;
class ListView;
class ListViewDirectoryItem;
class QLabel;

/// One page of what the directory has found. A page is turned by a new request; its answer renews the rows here, at
/// any moment, also below a screen that was opened from one of them.
class SearchDirResult : public BaseWidget
{
    Q_OBJECT

public:
    /// What picking a row does; in any other mode it opens the entry.
    enum Mode {
        MessageMode = 2, ///< hands the number to the message application
        ProgramKeyMode = 3 ///< hands name and number to the home screen and the key module
    };

    SearchDirResult(QWidget *parent, QList<QList<DirectoryData>> results, int totalCount);
    ~SearchDirResult() override;

    void setMode(int mode) { m_mode = mode; }

    void setupResultData(QList<QList<DirectoryData>> results, int totalCount);
    void setupListViewItems(QList<QList<DirectoryData>> results);
    /// Asks for the next page or the one before; the soft keys offer only pages that there are.
    void setListViewPage(bool next);
    /// Dials the number of the selected row and closes the contacts.
    void callByNumber();
    void sendMesssageByNumber();
    void closeWindows();

    void setupStatus() override;
    void setupTail();
    void setupListView();
    void setupNoSearchResult();

public slots:
    void tailFuncButtonClicked(int idx);
    void clickedListViewItem(int idx);
    void selectedItem(int idx);

protected:
    void retranslate() override;
    void keyPressEvent(QKeyEvent *event) override;
    void keyReleaseEvent(QKeyEvent *event) override;
    void showEvent(QShowEvent *event) override;

private:
    void setupActionKeys();
    void setupPageKeys();
    void showNoResult();
    void openByFuncKey(int key);
    void openDetail(int idx);
    ListViewDirectoryItem *selectedRow() const;

    ListView *m_listView = nullptr;
    QLabel *m_noResultLabel = nullptr;
    QPointer<DirectorySearchDetail> m_detail;
    QList<QList<DirectoryData>> m_results;
    int m_totalCount = 0; ///< over all pages, as the directory says
    int m_totalPageCount = 0;
    int m_currentPageCount = 0; ///< the page that shows, from 1
    int m_mode = 0;
};

#endif
