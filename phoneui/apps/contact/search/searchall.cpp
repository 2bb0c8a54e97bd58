#include "searchall.h"

#include "contactmanager.h"
#include "core.h"
#include "detailsdial.h"
#include "listview.h"
#include "listviewsearchitem.h"
#include "neighbours.h"
#include "noresultlabel.h"
#include "numberedit.h"
#include "numbertypes.h"
#include "screenwatch.h"
#include "searchlineedit.h"
#include "searchrows.h"
#include "status.h"
#include "tail.h"
#include "wpsmcontactmanager.h"

#include <QDebug>
#include <QKeyEvent>
#include <QLabel>
#include <QLineEdit>
#include <QTimer>

namespace {

constexpr QRect LineGeometry(5, 2, 374, 33);
constexpr int LineLength = 32; // characters
// The list reaches behind the soft keys: its rows share the height above them, and below it shows nothing.
constexpr QRect ListGeometry(5, 35, 378, 105);
constexpr int BehindSoftKeys = 34;
constexpr QRect VisibleGeometry = ListGeometry.adjusted(0, 0, 0, -BehindSoftKeys);
constexpr int RowsPerPage = 2;
constexpr int KeysPerColumn = 4; // the keys beside the display that pick rows

enum SoftKey { CallKey = 1, EraseKey = 2 };

const char *purpose(int mode)
{
    switch (mode) {
    case SearchAll::AddNumberMode: return "save into current contact";
    case SearchAll::ReceiverMode: return "find Contact for Message";
    case SearchAll::ProgramKeyMode: return "find Contact for Program Key";
    default: return "Search result is shown";
    }
}

/// The row that a function key stands for, counted from the first visible one; -1 for other keys.
int rowOfKey(int key)
{
    if (key >= Qt::Key_F2 && key < Qt::Key_F2 + KeysPerColumn)
        return key - Qt::Key_F2;
    return key >= Qt::Key_F7 && key < Qt::Key_F7 + KeysPerColumn ? key - Qt::Key_F7 : -1;
}

}

SearchAll::SearchAll(QWidget *parent, int mode, QString number)
    : BaseWidget(parent), m_mode(mode), m_number(std::move(number))
{
    qDebug() << "SearchAll::SearchAll" << purpose(mode);
    setObjectName("SearchAll");
    SearchAll::setupStatus();
    setupPixmap();
    setupTail();
    setupNoSearchResult();
    setupListView();
    setupSearch();
    setupListViewItems();
}

SearchAll::~SearchAll() = default;

void SearchAll::setupStatus()
{
    if (status)
        status->setTitle(tr("Contacts | Search"));
}

void SearchAll::setupPixmap()
{
    for (int kind = 0; kind < KindCount; ++kind)
        m_kindIcons[kind] = QPixmap(numberPicture(kind) + ".png");
}

void SearchAll::setupTail()
{
    for (int i = 0; i < Tail::ButtonCount; ++i)
        tail->setFuncButtonText(i, QString());
    connect(tail, &Tail::clicked, this, &SearchAll::tailFuncButtonClicked);
    connect(tail, &Tail::longPress, this, &SearchAll::tailFuncButtonLongPressed);
}

void SearchAll::retranslate()
{
    m_noResultLabel->setText(tr("No Result"));
    tail->setFuncButtonText(CallKey, m_listView->hasFocus() ? tr("Call") : QString());
}

void SearchAll::setupNoSearchResult()
{
    m_noResultLabel = makeNoResultLabel(tr("No Result"), ListGeometry, this);
    m_noResultLabel->setObjectName("SearchAll::m_noResultLabel");
    m_noResultLabel->setContentsMargins(0, 0, 0, BehindSoftKeys);
}

void SearchAll::setupListView()
{
    m_listView = new ListView(this);
    m_listView->setObjectName("SearchAll::m_listView");
    m_listView->setGeometry(ListGeometry);
    m_listView->setListBottomMargin(-BehindSoftKeys);
    m_listView->setScrollBottomMargin(BehindSoftKeys);
    m_listView->setMask(QRect(QPoint(), VisibleGeometry.size()));
    m_listView->setPageCount(RowsPerPage);
    m_listView->setEnableFuncKey(true);
    m_listView->setStartFuncKey(Qt::Key_F2);
    m_listView->setDrawTopBottomLine(false, true);
    m_listView->setActiveLeaveFocusSignal(true);
    connect(m_listView, &ListView::clicked, this, &SearchAll::clickedListViewItem);
    connect(m_listView, &ListView::clicked, this, &SearchAll::selectedItem);
    connect(m_listView, &ListView::keyPressed, this, &SearchAll::keyPressed);
    connect(m_listView, &ListView::leaveFocus, this, &SearchAll::listLeaveFocus);
}

void SearchAll::setupSearch()
{
    m_searchLine = new SearchLineEdit(this);
    m_searchLine->setGeometry(LineGeometry.x(), LineGeometry.y(), LineGeometry.width(), LineGeometry.height());
    m_searchLine->lineEdit()->setMaxLength(LineLength);
    connect(m_searchLine, &SearchLineEdit::textChanged, this, &SearchAll::searchBegin);
    connect(m_searchLine, &SearchLineEdit::leaveFocus, this, &SearchAll::searchLineEditLeaveFocus);
}

QString SearchAll::getSearchWord()
{
    return m_searchLine->text();
}

int SearchAll::loadContactData(QList<ContactData> local, QList<ContactData> mobile)
{
    m_contacts = MergedContacts(local, mobile);
    return m_contacts.size();
}

void SearchAll::addListViewItems()
{
    const SearchRows rows(m_contacts, getSearchWord());
    m_listView->addItems(rows.size(), [rows, icons = m_kindIcons](int i) {
        const ContactData &contact = rows.contact(i);
        const int slot = rows.slot(i), kind = contact.numberType(slot);
        auto *row
            = new ListViewSearchItem(contact.name, contact.id, contact.type, kind, contact.number(slot), slot + 1);
        row->setPixmap(icons[kind], QPixmap());
        return row;
    });
}

void SearchAll::setupListViewItems()
{
    m_listView->itemClear();
    loadContactData(theCore->contactManager()->getAllContacts(), theCore->wpsmContactManager()->getAllContacts());
    addListViewItems();
    showResult();
}

void SearchAll::searchBegin()
{
    // To give back what was found before takes as long as to find it: that can wait until the rows are painted.
    QTimer::singleShot(0, this, [former = m_contacts] {});

    const QString word = getSearchWord();
    m_listView->itemClear();
    loadContactData(theCore->contactManager()->getContactSearchResults(word),
                    theCore->wpsmContactManager()->getContactSearchResults(word));
    m_listView->setStartIdx(0);
    addListViewItems();
    showResult();
    update(VisibleGeometry);
}

/// The list, or the word that it would be empty.
void SearchAll::showResult()
{
    const bool hasRows = m_listView->itemSize() > 0;
    m_noResultLabel->setVisible(!hasRows);
    m_listView->setVisible(hasRows);
}

void SearchAll::showSearchDirResult(QList<QList<DirectoryData>>, int) { }

void SearchAll::closeWindows()
{
    closeScreen(m_detailsDial);
    closeScreen(m_numberEdit);
}

void SearchAll::showEvent(QShowEvent *)
{
    showResult();
    focusSearchLine();
}

void SearchAll::focusSearchLine()
{
    // The line edit inside would lose its input mode on the way.
    if (!m_searchLine->lineEdit()->hasFocus())
        m_searchLine->setFocus(Qt::OtherFocusReason);
    m_listView->setSelectedIdx(-1);
    tail->setFuncButtonText(CallKey, QString());
}

void SearchAll::searchLineEditLeaveFocus()
{
    if (m_listView->itemSize() == 0) {
        focusSearchLine();
        return;
    }
    if (m_listView->selectedIdx() < 0)
        m_listView->setSelectedIdx(m_listView->startIdx());
    m_listView->setFocus(Qt::OtherFocusReason);
    tail->setFuncButtonText(CallKey, tr("Call"));
}

void SearchAll::listLeaveFocus()
{
    focusSearchLine();
}

void SearchAll::keyPressed(int key)
{
    qDebug() << "SearchAll::keyPressed" << key;
}

void SearchAll::selectedItem(int idx)
{
    qDebug() << "SearchAll::selectedItem" << idx;
}

void SearchAll::keyReleaseEvent(QKeyEvent *event)
{
    const int row = rowOfKey(event->key());
    if (row >= 0) {
        if (row < m_listView->itemSize())
            clickedListViewItem(m_listView->startIdx() + row);
    } else if (event->key() == Qt::Key_F1 || event->key() == Qt::Key_F6) {
        focusSearchLine();
    } else {
        BaseWidget::keyReleaseEvent(event);
    }
}

ListViewSearchItem *SearchAll::row(int idx) const
{
    return dynamic_cast<ListViewSearchItem *>(m_listView->item(idx));
}

void SearchAll::clickedListViewItem(int idx)
{
    const int start = m_listView->startIdx();
    if (idx < start || idx >= start + KeysPerColumn)
        focusSearchLine();
    else if (row(idx))
        pick(idx);
}

void SearchAll::pick(int idx)
{
    const int id = row(idx)->getId();
    switch (m_mode) {
    case ViewMode: showContact(id, row(idx)->getContactType()); break;
    case AddNumberMode: addNumberTo(id); break;
    case ReceiverMode:
        Neighbours::send("message", "setReceiver(str)", {row(idx)->getTelnumval()});
        close();
        break;
    case ProgramKeyMode: {
        const ContactManager *store = theCore->contactManager();
        Neighbours::handOver(store->getContactName(id), store->getTelnum1_valByUsingId(id));
        close();
        break;
    }
    default: focusSearchLine();
    }
}

void SearchAll::showContact(int id, int contactType)
{
    runScreen(
        m_detailsDial, this, [this, id, contactType] { return new DetailsDial(this, id, contactType); },
        [this](DetailsDial *) {
            setupStatus();
            searchAgain();
        });
}

/// The contact may have been edited or deleted meanwhile; the selection stays where it was.
void SearchAll::searchAgain()
{
    const int selected = m_listView->selectedIdx(), start = m_listView->startIdx();
    searchBegin();
    const int last = m_listView->itemSize() - 1;
    if (selected < 0 || last < 0) {
        focusSearchLine();
        return;
    }
    m_listView->setSelectedIdx(qMin(selected, last));
    m_listView->setStartIdx(qBound(0, start, qMax(0, last + 1 - RowsPerPage)));
}

void SearchAll::addNumberTo(int id)
{
    runScreen(
        m_numberEdit, this, [this, id] { return new NumberEdit(this, id, m_number, -1); },
        [this](NumberEdit *) {
            setupStatus();
            setupListViewItems();
            close();
        });
}

void SearchAll::tailFuncButtonClicked(int idx)
{
    ListViewSearchItem *selected = row(m_listView->selectedIdx());
    if (idx == CallKey && selected)
        Neighbours::dial(selected->getTelnumval().trimmed(), selected->text().trimmed());
}

void SearchAll::tailFuncButtonLongPressed(int idx)
{
    if (idx != EraseKey)
        return;
    m_searchLine->setText(QString());
    update();
}
