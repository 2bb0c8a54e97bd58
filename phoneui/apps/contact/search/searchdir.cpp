#include "searchdir.h"

#include "core.h"
#include "directorysettings.h"
#include "directorytransport.h"
#include "directoryurl.h"
#include "imagebutton.h"
#include "listview.h"
#include "listviewradioitem.h"
#include "listviewselectitem.h"
#include "notices.h"
#include "screenwatch.h"
#include "searchdirresult.h"
#include "searchlineedit.h"
#include "selectpopup.h"
#include "status.h"
#include "tail.h"

#include <QDebug>
#include <QKeyEvent>
#include <QLineEdit>
#include <QTimer>

namespace {

constexpr QRect LineGeometry(5, 2, 374, 34), ListGeometry(5, 35, 378, 103);
// The list reaches behind the soft keys, which lie over it; its rows share the height above them.
constexpr int AboveSoftKeys = 71, BehindSoftKeys = ListGeometry.height() - AboveSoftKeys;
constexpr int RowsPerPage = 2;
constexpr int LongestWord = 64; // characters
constexpr int ShortestName = 2, ShortestNumber = 3; // characters, blanks around the word included
constexpr int FirstPage = 1;
constexpr int MethodRow = 0;
constexpr int MethodFuncKey = Qt::Key_F7; // stands beside the row
enum PopupRow { NumberRow = 0, NameRow = 1 };
constexpr int MethodPopup = 2; // the form's mark for its popup
constexpr int SettleTime = 100, RepaintTime = 150; // ms from when the form shows

enum SoftKey { EraseKey = 2, SearchKey = 3 };

bool isEnter(int key)
{
    return key == Qt::Key_Enter || key == Qt::Key_Return;
}

}

SearchDir::SearchDir(QWidget *parent, QString word) : BaseWidget(parent)
{
    setObjectName("SearchDir");
    setFont(QFont("1V_02_GO_UI", 20));
    SearchDir::setupStatus();
    setupTail();
    connect(tail, &Tail::clicked, this, &SearchDir::tailFuncButtonClicked);
    connect(tail, &Tail::longPress, this, &SearchDir::tailFuncButtonLongPressed);
    setupListView();
    setupSearchLine();
    setSearchWord(word);
}

SearchDir::~SearchDir() = default;

int SearchDir::start(QWidget *, void *)
{
    m_mode = 0;
    return 1;
}

void SearchDir::setupStatus()
{
    if (status)
        status->setTitle(tr("Directory Service"));
}

void SearchDir::setupTail()
{
    for (int key = 0; key < SearchKey; ++key)
        tail->setFuncButtonText(key, QString());
    tail->setFuncButtonText(SearchKey, tr("Search"));
}

void SearchDir::retranslate()
{
    setupTail();
    m_methodItem->setText(tr("Search Type"));
    setMethod(m_method);
}

void SearchDir::setupListView()
{
    m_listView = new ListView(this);
    m_listView->setObjectName("SearchDir::m_listView");
    m_listView->setGeometry(ListGeometry);
    m_listView->setListBottomMargin(-BehindSoftKeys);
    tail->raise();
    m_listView->setPageCount(RowsPerPage);
    m_listView->setLineColor(Qt::black);
    m_listView->setStartFuncKey(MethodFuncKey);
    m_listView->setEndFuncKey(MethodFuncKey);
    m_listView->setActiveLeaveFocusSignal(true);
    connect(m_listView, &ListView::clicked, this, &SearchDir::clickedListViewItem);
    connect(m_listView, &ListView::clicked, this, &SearchDir::selectedItem);
    connect(m_listView, &ListView::keyPressed, this, &SearchDir::keyPressed);
    connect(m_listView, &ListView::leaveFocus, this, &SearchDir::listLeaveFocus);
    m_methodItem = new ListViewSelectItem(tr("Search Type"), tr("Name"));
    m_listView->addItem(m_methodItem);
    m_listView->setSelectedIdx(-1);
}

void SearchDir::setupSearchLine()
{
    m_searchLineEdit = new SearchLineEdit(this);
    m_searchLineEdit->setGeometry(LineGeometry.x(), LineGeometry.y(), LineGeometry.width(), LineGeometry.height());
    m_searchLineEdit->lineEdit()->setMaxLength(LongestWord);
    connect(m_searchLineEdit, &SearchLineEdit::enterFocus, this, &SearchDir::changeIMEStatus);
    connect(m_searchLineEdit, &SearchLineEdit::leaveFocus, this, &SearchDir::searchLineEditLeaveFocus);
    focusSearchLine();
}

void SearchDir::focusSearchLine()
{
    m_searchLineEdit->setFocus(Qt::OtherFocusReason);
}

void SearchDir::setSearchWord(QString word)
{
    m_searchLineEdit->setText(word);
}

QString SearchDir::getSearchWord()
{
    return m_searchLineEdit->text();
}

int SearchDir::getSearchMethod()
{
    return m_method;
}

void SearchDir::setMethod(int method)
{
    m_method = method;
    m_methodItem->setSelectedText(method == NameMethod ? tr("Name") : tr("Number"));
    m_listView->update();
}

/// False when the word was too short, which the user has been told.
bool SearchDir::isLongEnough(const QString &word, int method)
{
    const bool isName = method == NameMethod, isNumber = method == NumberMethod;
    const int shortest = isName ? ShortestName : isNumber ? ShortestNumber : 0;
    if (word.size() >= shortest)
        return true;
    const QString fault = isName ? tr("The keyword is too short") : tr("Input at least 3 digits");
    if (Notices::show(this, fault, Notices::Icon::Error)) {
        focusSearchLine();
        if (isNumber)
            theCore->setIMEStatus(IMENumeric, true);
    }
    return false;
}

void SearchDir::searchBegin(QString word, int method)
{
    if (!isLongEnough(word, method))
        return;
    DirectorySettings::setPage(FirstPage);
    const QString keyType = method == NameMethod ? "name" : "number";
    sendUI2HTTPDirectorySearchRequest(QString::fromLatin1(makeDirectoryServiceSearchURL(word, keyType)));
}

void SearchDir::showSearchDirResult(QList<QList<DirectoryData>> results, int totalCount)
{
    const bool wasClosed = hideCount() > 0 && !isVisible();
    if (wasClosed)
        return;
    // It would wait below the results, and come back with their title.
    if (m_popup && m_popup->isVisible())
        m_popup->reject();
    if (m_result)
        m_result->setupResultData(results, totalCount);
    else
        m_result = new SearchDirResult(this, results, totalCount);
    m_result->setMode(m_mode);
    // What lies over results that show already was opened from them, and stays.
    if (m_result->isVisible())
        return;
    m_result->setModal(true);
    m_result->show();
    m_result->raise();
}

void SearchDir::closeWindows()
{
    if (m_result) {
        m_result->closeWindows();
        m_result->close();
    }
    if (m_popup)
        m_popup->close();
}

void SearchDir::tailFuncButtonClicked(int idx)
{
    if (idx == SearchKey)
        searchBegin(getSearchWord(), getSearchMethod());
}

void SearchDir::tailFuncButtonLongPressed(int idx)
{
    if (idx != EraseKey)
        return;
    setSearchWord(QString());
    update();
}

void SearchDir::fillPopup()
{
    if (!m_popup)
        m_popup = new SelectPopup(this, MethodPopup);
    m_popup->cancelButton()->setText(tr("Cancel"));
    SelectPopupListView *list = m_popup->listView();
    list->itemClear();
    list->addItem(new ListViewRadioItem(tr("Number"), m_method == NumberMethod));
    list->addItem(new ListViewRadioItem(tr("Name"), m_method == NameMethod));
    list->setSelectedIdx(m_method == NumberMethod ? NumberRow : NameRow);
}

void SearchDir::clickedListViewItem(int idx)
{
    if (idx != MethodRow || m_listView->itemSize() == 0)
        return;
    const ScreenWatch watch(this);
    fillPopup();
    const bool accepted = m_popup->exec() == QDialog::Accepted;
    if (watch.closed() || !accepted)
        return;
    setMethod(m_popup->selectedIdx() == NumberRow ? NumberMethod : NameMethod);
    changeIMEStatus();
    update();
    m_listView->setSelectedIdx(-1);
    focusSearchLine();
}

void SearchDir::searchLineEditLeaveFocus()
{
    if (m_listView->itemSize() == 0) {
        focusSearchLine();
        return;
    }
    if (m_listView->selectedIdx() < 0)
        m_listView->setSelectedIdx(MethodRow);
    m_listView->setFocus(Qt::OtherFocusReason);
}

void SearchDir::listLeaveFocus()
{
    focusSearchLine();
    m_listView->setSelectedIdx(-1);
}

void SearchDir::changeIMEStatus()
{
    if (getSearchMethod() != NameMethod)
        theCore->setIMEStatus(IMENumeric, true);
    else
        theCore->setIMEStatus(theCore->getLanguage() == Korean ? IMEFirst : IMESmall, true);
}

void SearchDir::keyPressed(int key)
{
    qDebug() << "SearchDir::keyPressed" << key;
}

void SearchDir::selectedItem(int idx)
{
    qDebug() << "SearchDir::selectedItem" << idx;
}

bool SearchDir::event(QEvent *event)
{
    if (event->type() == QEvent::WindowActivate)
        changeIMEStatus();
    return BaseWidget::event(event);
}

void SearchDir::keyPressEvent(QKeyEvent *event)
{
    if (isEnter(event->key())) {
        m_enterPressed = true;
    } else if (event->key() == MethodFuncKey) {
        event->accept();
        clickedListViewItem(MethodRow);
    } else {
        BaseWidget::keyPressEvent(event);
    }
}

void SearchDir::keyReleaseEvent(QKeyEvent *event)
{
    if (isEnter(event->key())) {
        event->accept();
        const bool pressedHere = m_enterPressed;
        m_enterPressed = false;
        if (pressedHere)
            searchBegin(getSearchWord(), getSearchMethod());
    } else if (event->key() == MethodFuncKey) {
        event->accept();
        clickedListViewItem(MethodRow);
    } else {
        BaseWidget::keyReleaseEvent(event);
    }
}

void SearchDir::showEvent(QShowEvent *event)
{
    BaseWidget::showEvent(event);
    update();
    QTimer::singleShot(SettleTime, this, [this] {
        if (isActiveWindow())
            changeIMEStatus();
    });
    QTimer::singleShot(RepaintTime, this, QOverload<>::of(&SearchDir::update));
}

void SearchDir::hideEvent(QHideEvent *event)
{
    m_enterPressed = false;
    closeWindows();
    BaseWidget::hideEvent(event);
}
