#include "searchdirresult.h"

#include "directorysearchdetail.h"
#include "directorysettings.h"
#include "directorytransport.h"
#include "directoryurl.h"
#include "listview.h"
#include "listviewdirectoryitem.h"
#include "neighbours.h"
#include "noresultlabel.h"
#include "screenwatch.h"
#include "status.h"
#include "tail.h"
#include "textlimits.h"

#include <QDebug>
#include <QKeyEvent>
#include <QLabel>

namespace {

constexpr QRect ListGeometry(5, 2, 378, 105);
constexpr int RowsPerPage = 3;
constexpr int ServerPage = 20; // results; every request asks for as many
constexpr int LongestName = 13, KeptOfName = 10; // characters

enum SoftKey { CallKey = 0, MessageKey = 1, BackKey = 2, NextKey = 3 };

/// An answer may also hold results without a single field.
bool hasData(const QList<QList<DirectoryData>> &results)
{
    return !results.isEmpty() && !results.first().isEmpty();
}

ListViewDirectoryItem *makeRow(const QList<DirectoryData> &fields)
{
    QString name, number, type;
    for (const DirectoryData &field : fields) {
        const QString key = field.getType();
        if (key == "name")
            name = cutWithDots(field.getValue(), LongestName, KeptOfName);
        else if (key == "number")
            number = field.getValue();
        else if (key == "type")
            type = field.getValue();
    }
    return new ListViewDirectoryItem(name, number, type);
}

}

SearchDirResult::SearchDirResult(QWidget *parent, QList<QList<DirectoryData>> results, int totalCount)
    : BaseWidget(parent)
{
    setObjectName("SearchDirResult");
    setFocusPolicy(Qt::StrongFocus);
    setupNoSearchResult();
    setupListView();
    setupResultData(results, totalCount);
    connect(tail, &Tail::clicked, this, &SearchDirResult::tailFuncButtonClicked);
}

SearchDirResult::~SearchDirResult() = default;

void SearchDirResult::setupNoSearchResult()
{
    m_noResultLabel = makeNoResultLabel(tr("No Result"), ListGeometry, this);
}

void SearchDirResult::setupListView()
{
    m_listView = new ListView(this);
    m_listView->setObjectName("SearchDirResult::m_listView");
    m_listView->setGeometry(ListGeometry);
    m_listView->setPageCount(RowsPerPage);
    m_listView->setLineColor(Qt::black);
    m_listView->setStartFuncKey(Qt::Key_F1);
    connect(m_listView, &ListView::clicked, this, &SearchDirResult::clickedListViewItem);
    connect(m_listView, &ListView::clicked, this, &SearchDirResult::selectedItem);
}

void SearchDirResult::setupResultData(QList<QList<DirectoryData>> results, int totalCount)
{
    m_results = results;
    m_totalCount = totalCount;
    m_currentPageCount = DirectorySettings::page();
    SearchDirResult::setupStatus();
    setupTail();
    m_noResultLabel->hide();
    m_listView->show();
    m_listView->setFocus(Qt::OtherFocusReason);
    setupListViewItems(results);
    update();
}

void SearchDirResult::setupStatus()
{
    m_totalPageCount = m_totalCount <= 1 ? 1 : (m_totalCount - 1) / ServerPage + 1;
    QString title = tr("Directory Service");
    if (m_totalCount != 0) {
        title += QString(" | %1/%2").arg(m_currentPageCount).arg(m_totalPageCount) + tr("page");
    } else {
        m_currentPageCount = m_totalPageCount;
        if (DirectorySettings::page() != m_currentPageCount)
            DirectorySettings::setPage(m_currentPageCount);
    }
    // A screen that lies over this one has the title until it goes.
    const bool isCovered = isVisible() && !isActiveWindow();
    if (status && !isCovered)
        status->setTitle(title);
}

void SearchDirResult::setupTail()
{
    setupActionKeys();
    setupPageKeys();
}

void SearchDirResult::setupActionKeys()
{
    const bool offered = m_totalCount > 0 && m_mode != MessageMode && hasData(m_results);
    tail->setFuncButtonText(CallKey, offered ? tr("Call") : QString());
    tail->setFuncButtonText(MessageKey, offered ? tr("Message") : QString());
}

void SearchDirResult::setupPageKeys()
{
    const bool hasPages = m_totalPageCount > 1;
    if (hasPages && m_currentPageCount > m_totalPageCount)
        return;
    tail->setFuncButtonText(BackKey, hasPages && m_currentPageCount > 1 ? tr("<") : QString());
    tail->setFuncButtonText(NextKey, hasPages && m_currentPageCount < m_totalPageCount ? tr(">") : QString());
}

void SearchDirResult::showNoResult()
{
    m_noResultLabel->show();
    m_listView->hide();
    tail->setFuncButtonText(CallKey, QString());
    tail->setFuncButtonText(MessageKey, QString());
}

void SearchDirResult::retranslate()
{
    m_noResultLabel->setText(tr("No Result"));
    setupTail();
}

void SearchDirResult::setupListViewItems(QList<QList<DirectoryData>> results)
{
    m_listView->itemClear();
    if (!hasData(results)) {
        qDebug() << "SearchDirResult::setupListViewItems"
                 << (results.isEmpty() ? "no data incomming" : "garbage data incomming");
        showNoResult();
        return;
    }
    qDebug() << "SearchDirResult::setupListViewItems data incomming" << results.size();
    for (const QList<DirectoryData> &fields : qAsConst(results))
        m_listView->addItem(makeRow(fields));
    m_listView->setStartIdx(0);
    m_listView->setSelectedIdx(0);
    update();
}

void SearchDirResult::setListViewPage(bool next)
{
    const int page = DirectorySettings::page() + (next ? 1 : -1);
    const QByteArray url
        = makeDirectoryServicePageURL(page, DirectorySettings::path(), DirectorySettings::timeStamp());
    DirectorySettings::setPage(page);
    sendUI2HTTPDirectorySearchRequest(QString::fromLatin1(url));
}

void SearchDirResult::tailFuncButtonClicked(int idx)
{
    const QString label = tail->funcButtonText(idx);
    if (label.isEmpty())
        return;
    if (label == tr("Call"))
        callByNumber();
    else if (label == tr("Message"))
        sendMesssageByNumber();
    else if (idx == BackKey)
        setListViewPage(false);
    else if (idx == NextKey)
        setListViewPage(true);
}

ListViewDirectoryItem *SearchDirResult::selectedRow() const
{
    return dynamic_cast<ListViewDirectoryItem *>(m_listView->item(m_listView->selectedIdx()));
}

void SearchDirResult::callByNumber()
{
    if (ListViewDirectoryItem *row = selectedRow())
        Neighbours::leaveAndDial(this, row->getMidText(), row->text());
}

void SearchDirResult::sendMesssageByNumber()
{
    if (ListViewDirectoryItem *row = selectedRow())
        Neighbours::writeMessage(row->getMidText());
}

void SearchDirResult::clickedListViewItem(int idx)
{
    ListViewDirectoryItem *row = selectedRow();
    if (!row)
        return;
    if (m_mode == ProgramKeyMode) {
        Neighbours::handOver(row->text(), row->getMidText());
        Neighbours::send("contact", "CloseContact()", {});
        close();
    } else if (m_mode == MessageMode) {
        Neighbours::send("message", "setReceiver(str)", {row->getMidText()});
        Neighbours::send("contact", "closeSearchAll()", {});
        close();
    } else if (idx >= 0 && idx < m_results.size()) {
        openDetail(idx);
    }
}

void SearchDirResult::openDetail(int idx)
{
    runScreen(
        m_detail, this, [this, idx] { return new DirectorySearchDetail(this, m_results.at(idx)); },
        [](DirectorySearchDetail *) {});
}

void SearchDirResult::selectedItem(int idx)
{
    qDebug() << "SearchDirResult::selectedItem" << idx;
}

void SearchDirResult::closeWindows()
{
    closeScreen(m_detail);
}

void SearchDirResult::openByFuncKey(int key)
{
    if (key >= Qt::Key_F1 && key <= Qt::Key_F5)
        clickedListViewItem(key - Qt::Key_F1);
}

void SearchDirResult::keyPressEvent(QKeyEvent *event)
{
    const ScreenWatch watch(this);
    openByFuncKey(event->key());
    if (!watch.closed())
        BaseWidget::keyPressEvent(event);
}

void SearchDirResult::keyReleaseEvent(QKeyEvent *event)
{
    const ScreenWatch watch(this);
    openByFuncKey(event->key());
    if (!watch.closed())
        BaseWidget::keyReleaseEvent(event);
}

void SearchDirResult::showEvent(QShowEvent *event)
{
    qDebug() << "SearchDirResult::show()";
    setupActionKeys();
    BaseWidget::showEvent(event);
}
