#ifndef DIRECTORYSEARCHDETAIL_H
#define DIRECTORYSEARCHDETAIL_H

#include "basewidget.h"
#include "directorydata.h"

#include <QList>
#include <QPointer>

#include <array>

class ListView;
class ListViewInfoItem;
class MessageBox;
class NumberEdit;
class SearchAll;

/// One entry of the directory as a form of six rows, from which its numbers can be called, written to and saved.
class DirectorySearchDetail : public BaseWidget
{
    Q_OBJECT

public:
    DirectorySearchDetail(QWidget *parent, QList<DirectoryData> fields);
    ~DirectorySearchDetail() override;

    void setupStatus() override;
    void setupTail();
    void setupListView();
    void setupListViewItems(QList<DirectoryData> fields);

    /// Saves the number, as it shows, as a new contact or into one that there is: asks, and opens the screen for
    /// it.
    void saveContact();
    /// Dials and closes the contacts.
    void callByNumber();
    void sendMesssageByNumber();

public slots:
    void tailFuncButtonClicked(int idx);
    void clickedListViewItem(int idx);
    void focusChangedListViewItem(int row);

protected:
    void retranslate() override;

private:
    enum Row { NameRow, NumberRow, TypeRow, PositionRow, DepartmentRow, MobileRow, RowCount };

    static std::array<QString, RowCount> titles();
    void fillRow(const DirectoryData &field);
    QString focusedNumber() const;
    void askWhereToSave();
    void openNewContact(const QString &number);
    void openSearch(const QString &number);

    ListView *m_listView = nullptr;
    std::array<ListViewInfoItem *, RowCount> m_rows{}; ///< owned by the list
    QPointer<NumberEdit> m_numberEdit;
    QPointer<SearchAll> m_searchAll;
    MessageBox *m_messageBox = nullptr; ///< made on first use and kept
    int m_focusedRow = NameRow;
    QString m_name;
    QString m_number; ///< whole, where its row shows the beginning
    QString m_mobileNumber; ///< whole
};

#endif
