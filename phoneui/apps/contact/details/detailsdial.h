#ifndef DETAILSDIAL_H
#define DETAILSDIAL_H

#include "basewidget.h"
#include "contactdata.h"

#include <QPointer>

class ListView;
class ListViewContactItem;
class NumberEdit;
class QLabel;
class QTimer;

/// One contact as a list of rows. The rows with numbers can be called, written to and looked up in the history; a
/// text too long for its row flows through it while the row is selected.
class DetailsDial : public BaseWidget
{
    Q_OBJECT

public:
    DetailsDial(QWidget *parent, int id, int contactType);
    ~DetailsDial() override;

    int getCurrentContactId() const { return m_contactId; }
    QString getCurrentContactName() const { return m_contactName; }
    /// The whole text of a row, also while it flows.
    QString getFocusedNumber(int idx);
    int getNumberCountOfCurrentContact() const { return m_numberCount; }
    /// Another application opened the screen: the history then only closes it.
    void setTailClickedClose(bool close) { m_tailClickedClose = close; }
    void closeWindows();

    void setupStatus() override;
    void setupContactTypePixmap(int type);
    void setupListView();
    void setupListViewItems(int id);
    void setupTail();

    void callByNumber();
    void sendMessageByNumber();
    void showHistoryByNumber();
    void deleteContact();

signals:
    void keyPressed(int key);
    void selectedItem(int idx);
    void clickedFuncKey(int idx);

public slots:
    void tailFuncButtonClicked(int idx);
    void clickedListViewItem(int idx);
    void focusChangedListViewItem(int idx);
    void flowString();
    void startTimer();

protected:
    void retranslate() override;
    void showEvent(QShowEvent *event) override;
    void hideEvent(QHideEvent *event) override;

private:
    ListViewContactItem *addRow(const QString &label, const QString &text, const QString &picture);
    bool isNumberRow(int idx) const;
    void callAndLeave(const QString &number, const QString &name);
    void edit();

    void startflowString(int idx);
    void stopTimer();

    int m_contactId;
    int m_contactType;
    int m_numberCount = 0;
    QString m_contactName;
    QLabel *m_typeIconLabel = nullptr;
    QPointer<NumberEdit> m_numberEdit;
    ListView *m_listView = nullptr;
    bool m_tailClickedClose = false;
    QTimer *m_flowDelayTimer;
    QTimer *m_flowTimer = nullptr;
    QString m_flowFullText; ///< of the selected row
    QString m_flowText; ///< what is left of it to flow
    int m_flowItemIdx = -1; ///< the row that flows, -1 for none
};

#endif
