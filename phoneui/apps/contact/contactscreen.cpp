// Contact: what the screen shows.

#include "contact.h"
#include "thumbnail.h"

#include "contactmanager.h"
#include "core.h"
#include "detailsdial.h"
#include "gridselectview.h"
#include "grouplist.h"
#include "listviewcontactitem.h"
#include "numberedit.h"
#include "rowpainting.h"
#include "screenwatch.h"
#include "searchall.h"
#include "searchdir.h"
#include "status.h"
#include "systemphonebook.h"
#include "systemphonebooklistwidget.h"
#include "tail.h"
#include "wpsmcontactmanager.h"

#include <QDebug>
#include <QFile>
#include <QLabel>

namespace {

constexpr int TWO_COLUMN_LIST_ITEM_COUNT = 6; // three rows in each of two columns
constexpr int GridRows = 3, GridColumns = 2;
constexpr int GridFloatingFocus = 1;
const QRect listGeometry(QPoint(5, 2), QPoint(378, 105));
constexpr QRect NoContactGeometry(0, 40, 384, 24);

enum ChooserRow { PersonalRow = 0, SystemRow = 1 };

}

void Contact::setupStatus()
{
    if (m_listView && m_listView->itemSize() > 0)
        setStatusTitle(m_listView->selectedIdx() + m_listViewPage * TWO_COLUMN_LIST_ITEM_COUNT);
    else
        setStatusTitle(-1);
}

void Contact::setStatusTitle(int idx)
{
    const auto shows = [](const QWidget *child) { return child && child->isVisible(); };
    const bool childHasTitle = shows(m_detailsDial) || shows(m_numberEdit) || shows(m_groupList)
        || shows(m_searchAll) || shows(m_searchDir) || shows(m_systemPhonebookList);
    if (!isVisible() || !status || childHasTitle)
        return;
    const QString title = QString("%1 | %2 (%3/%4)").arg(tr("Contacts"), tr("All")).arg(idx + 1).arg(m_totalCount);
    if (status->title() != title)
        status->setTitle(title);
    if (m_step == SelectStep)
        status->setTitle(tr("Contacts"));
}

void Contact::setupListView()
{
    m_listView = new GridSelectView(GridRows, GridColumns, this);
    m_listView->setObjectName("Settings::m_listView");
    m_listView->setUseTopLine(false);
    m_listView->setUseBottomLine(false);
    m_listView->setUseSideLine(false);
    m_listView->setUseDivideLines(false);
    m_listView->setUseDotLines(true);
    m_listView->setFocusType(GridFloatingFocus);
    m_listView->setShowEmptyString(true);
    connect(m_listView, &ListView::clicked, this, &Contact::clickedListViewItem);
    connect(m_listView, &GridSelectView::pageMoved, this, &Contact::updateTail);
    connect(m_listView, &ListView::focusChanged, this, &Contact::focusChangedListViewItem);
    m_listView->setLineColor(Qt::black);
    m_listView->setGeometry(listGeometry);
    m_noContactLabel = new QLabel(this);
}

void Contact::setupContactListView()
{
    m_selectListView = new ListView(this);
    connect(m_selectListView, &ListView::clicked, this, &Contact::clickedContactListViewItem);
    connect(m_selectListView, &ListView::focusChanged, this, &Contact::focusChangedContactListViewItem);
    m_selectListView->setLineColor(Qt::black);
    m_selectListView->setGeometry(listGeometry);
    m_selectListView->setVisible(true);
    setupChooserRows();
}

void Contact::setupChooserRows()
{
    m_selectListView->itemClear();
    m_selectListView->addItem(new ListViewItem(tr("Personal Phonebook"), QPixmap(), QPixmap()));
    m_selectListView->addItem(new ListViewItem(tr("System Phonebook"), QPixmap(), QPixmap()));
    m_selectListView->setSelectedIdx(PersonalRow);
}

void Contact::setupNoContact()
{
    m_noContactLabel->setText(tr("No Contacts"));
    QPalette palette = m_noContactLabel->palette();
    palette.setColor(QPalette::Active, QPalette::WindowText, Qt::black);
    palette.setColor(QPalette::Inactive, QPalette::WindowText, Qt::black);
    m_noContactLabel->setPalette(palette);
    m_noContactLabel->setGeometry(NoContactGeometry);
    m_noContactLabel->setAlignment(Qt::AlignCenter);
}

void Contact::setupTail()
{
    if (!m_listView)
        return;
    const QString none;
    QStringList labels;
    if (m_step == ListStep) {
        const bool hasPages = m_totalCount > TWO_COLUMN_LIST_ITEM_COUNT;
        labels = QStringList{tr("Groups"), tr("Search"), tr("Edit Mode"), hasPages ? ">" : none};
    } else if (m_step == ManagingStep) {
        const bool hasCells = m_listView->itemSize() > 0;
        const bool isLocal = hasCells && getContactTypeOfselectItem() == ContactData::LocalContact;
        const bool hasLocals = hasCells && theCore->contactManager()->getCountOfContact() != 0;
        labels = QStringList{isLocal ? tr("Edit") : none, tr("Add Contact"), isLocal ? tr("Delete") : none,
                             hasLocals ? tr("Delete All") : none};
    } else if (m_step == SelectStep) {
        labels = QStringList{none, none, none, none};
    }
    for (int i = 0; i < labels.size(); ++i)
        tail->setFuncButtonText(i, labels.at(i));
}

/// The contact's place among all, or -1.
int Contact::findContact(int contactId) const
{
    const int end = qMin(m_totalCount, m_allContactList.size());
    for (int i = 0; i < end; ++i) {
        if (m_allContactList.at(i).id == contactId)
            return i;
    }
    return -1;
}

/// Settles which page shows and how many contacts stand on it. The total counts what the stores hold now, the list
/// what they held when it was read: where the list is too short, the page of the contact that is sought shows.
void Contact::computePage(int found, int *cell, int *count)
{
    const int perPage = TWO_COLUMN_LIST_ITEM_COUNT;
    m_lastPage = (m_totalCount - 1) / perPage;
    const int fullPages = m_totalCount / perPage;
    *count = fullPages > 0 && m_listViewPage != fullPages ? perPage : m_totalCount % perPage;
    if (*count == 0 && m_listViewPage > 0) {
        // The page was left past the end, as after deleting the last page's only cell.
        --m_listViewPage;
        *count = perPage;
    }
    if (*count + m_listViewPage * perPage > m_allContactList.size()) {
        m_listViewPage = found / perPage;
        *cell = found % perPage;
    }
}

QPixmap Contact::rowPicture(const ContactData &contact) const
{
    const bool hasPhoto
        = contact.type == ContactData::LocalContact && !contact.picture.isEmpty() && QFile::exists(contact.picture);
    return hasPhoto ? Thumbnail::load(contact.picture)
                    : RowPainting::picture(":/contact/images/number_img_default.png");
}

ListViewItem *Contact::makeCell(const ContactData &contact) const
{
    auto *cell = new ListViewContactGridItem(contact.name, contact.id, contact.type);
    cell->setPixmap(rowPicture(contact), QPixmap());
    return cell;
}

/// The grid comes to the front, but for a refresh that comes while the chooser stands in its place.
void Contact::showGrid()
{
    if (m_step == SelectStep)
        return;
    m_listView->show();
    m_listView->setFocus(Qt::OtherFocusReason);
}

void Contact::setupListViewItems(bool keepSelection, int contactId, int selectIdx, bool)
{
    const int saved = keepSelection ? m_listView->selectedIdx() : 0;
    m_listView->itemClear();
    if (m_totalCount > 0) {
        int cell = -1;
        const int found = keepSelection && contactId >= 0 ? findContact(contactId) : -1;
        if (found >= 0) {
            m_listViewPage = found / TWO_COLUMN_LIST_ITEM_COUNT;
            cell = found > 0 ? found % TWO_COLUMN_LIST_ITEM_COUNT : -1;
        }
        int count = 0;
        computePage(found, &cell, &count);

        const int first = m_listViewPage * TWO_COLUMN_LIST_ITEM_COUNT;
        for (int i = first; i < first + count && i < m_allContactList.size(); ++i) {
            if (!m_allContactList.at(i).name.isNull())
                m_listView->addItem(makeCell(m_allContactList.at(i)));
        }

        if (!keepSelection)
            m_listView->setSelectedIdx(0);
        else if (contactId >= 0)
            m_listView->setSelectedIdx(qMax(0, cell));
        else if (selectIdx >= 0)
            m_listView->setSelectedIdx(selectIdx < m_listView->itemSize() ? selectIdx : 0);
    }
    showGrid();

    // The title tells the cell just chosen; then the cell that the user had comes back.
    setupStatus();
    if (keepSelection)
        m_listView->setSelectedIdx(saved);
    m_listView->update();
}

bool Contact::isLastPage() const
{
    return m_listViewPage == m_lastPage;
}

void Contact::setListViewPage(bool next)
{
    const int total
        = theCore->wpsmContactManager()->getCountOfContact() + theCore->contactManager()->getCountOfContact();
    m_listView->setFocus(Qt::OtherFocusReason);
    if (next) {
        const int last = (total - 1) / TWO_COLUMN_LIST_ITEM_COUNT;
        if (last != m_listViewPage)
            ++m_listViewPage;
        else if (last == m_lastPage && last != 0)
            m_listViewPage = 0;
    } else if (m_listViewPage == 0 && m_lastPage != 0) {
        m_listViewPage = m_lastPage;
    } else if (total > TWO_COLUMN_LIST_ITEM_COUNT && m_listViewPage != 0) {
        --m_listViewPage;
    }
    setupListViewItems(false, -1, 0, true);
    setupTail();
}

void Contact::focusChangedListViewItem(int idx)
{
    if (isVisible())
        setStatusTitle(idx + m_listViewPage * TWO_COLUMN_LIST_ITEM_COUNT);
    setupTail();
}

void Contact::focusChangedContactListViewItem(int idx)
{
    qDebug() << "Contact::focusChangedContactListViewItem" << idx;
}

void Contact::updateTail() { }

void Contact::openPersonalPhonebook()
{
    theCore->wpsmContactManager()->readWpsmConfigFile();
    m_listViewPage = 0;
    setupListViewItems(false, -1, 0, true);
}

void Contact::openSystemPhonebook()
{
    runScreen(
        m_systemPhonebookList, this,
        [this] { return new SystemPhonebookListWidget(SystemPhonebook::allKey(), this, Qt::WindowFlags()); },
        [](SystemPhonebookListWidget *) {});
}

void Contact::clickedContactListViewItem(int idx)
{
    if (idx == SystemRow)
        openSystemPhonebook();
    if (idx != PersonalRow)
        return;
    m_selectListView->hide();
    m_step = ListStep;
    openPersonalPhonebook();
    setupTail();
}
