#ifndef SEARCHDIR_H
#define SEARCHDIR_H

#include "basewidget.h"
#include "directorydata.h"

#include <QList>
#include <QPointer>

class ListView;
class ListViewSelectItem;
class SearchDirResult;
class SearchLineEdit;
class SelectPopup;

/// The form that starts a search in the remote directory: a keyword, and whether it is a name or a number. It waits
/// for nothing: the answer comes when it comes, and opens the screen of the results or renews it.
class SearchDir : public BaseWidget
{
    Q_OBJECT

public:
    /// What the keyword is.
    enum Method { NameMethod = 0, NumberMethod = 1 };

    SearchDir(QWidget *parent, QString word);
    ~SearchDir() override;

    int start(QWidget *parent, void *data);
    void setSearchWord(QString word);
    QString getSearchWord();
    int getSearchMethod();
    void searchBegin(QString word, int method);
    void showSearchDirResult(QList<QList<DirectoryData>> results, int totalCount);
    void closeWindows();

    void setupStatus() override;
    void setupTail();
    void setupListView();
    void setupSearchLine();

public slots:
    void tailFuncButtonClicked(int idx);
    void tailFuncButtonLongPressed(int idx);
    void clickedListViewItem(int idx);
    void searchLineEditLeaveFocus();
    void listLeaveFocus();
    void changeIMEStatus();
    void keyPressed(int key);
    void selectedItem(int idx);

protected:
    void retranslate() override;
    bool event(QEvent *event) override;
    void keyPressEvent(QKeyEvent *event) override;
    void keyReleaseEvent(QKeyEvent *event) override;
    void showEvent(QShowEvent *event) override;
    void hideEvent(QHideEvent *event) override;

private:
    bool isLongEnough(const QString &word, int method);
    void focusSearchLine();
    void fillPopup();
    void setMethod(int method);

    ListView *m_listView = nullptr;
    SearchLineEdit *m_searchLineEdit = nullptr;
    ListViewSelectItem *m_methodItem = nullptr; ///< owned by the list
    SearchDirResult *m_result = nullptr; ///< made at the first answer and kept
    int m_method = NameMethod;
    int m_mode = 0; ///< of the result screen
    SelectPopup *m_popup = nullptr; ///< made on first use and kept
    bool m_enterPressed = false;
};

#endif
