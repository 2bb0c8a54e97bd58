#include "directorysearchdetail.h"

#include "core.h"
#include "imagebutton.h"
#include "listview.h"
#include "listviewinfoitem.h"
#include "messagebox.h"
#include "neighbours.h"
#include "numberedit.h"
#include "screenwatch.h"
#include "searchall.h"
#include "status.h"
#include "tail.h"
#include "textlimits.h"

namespace {

constexpr QRect ListGeometry(5, 2, 378, 105);
constexpr int LongestNumber = 20, KeptOfNumber = 18; // characters
constexpr int NewContact = -1, NoGroup = -1;

enum SoftKey { SaveKey = 0, CallKey = 1, MessageKey = 2 };
enum Answer { NoAnswer = 0, NewAnswer = 1, ExistingAnswer = 2 };

QString shownNumber(const QString &number)
{
    return cutWithDots(number, LongestNumber, KeptOfNumber);
}

}

DirectorySearchDetail::DirectorySearchDetail(QWidget *parent, QList<DirectoryData> fields) : BaseWidget(parent)
{
    setObjectName("DirectorySearchDetail");
    DirectorySearchDetail::setupStatus();
    setupTail();
    connect(tail, &Tail::clicked, this, &DirectorySearchDetail::tailFuncButtonClicked);
    setupListView();
    setupListViewItems(fields);
}

DirectorySearchDetail::~DirectorySearchDetail() = default;

void DirectorySearchDetail::setupStatus()
{
    if (status)
        status->setTitle(tr("Directory Service"));
}

void DirectorySearchDetail::setupTail()
{
    tail->setFuncButtonText(SaveKey, tr("Save"));
    tail->setFuncButtonText(CallKey, tr("Call"));
    tail->setFuncButtonText(MessageKey, tr("Message"));
    tail->setFuncButtonText(3, QString());
}

void DirectorySearchDetail::setupListView()
{
    m_listView = new ListView(this);
    m_listView->setObjectName("DirectorySearchDetail::m_listView");
    m_listView->setGeometry(ListGeometry);
    m_listView->setLineColor(Qt::black);
    connect(m_listView, &ListView::clicked, this, &DirectorySearchDetail::clickedListViewItem);
    connect(m_listView, &ListView::focusChanged, this, &DirectorySearchDetail::focusChangedListViewItem);
    m_listView->setFocus(Qt::OtherFocusReason);
}

std::array<QString, DirectorySearchDetail::RowCount> DirectorySearchDetail::titles()
{
    return {tr("Name"), tr("Number"), tr("Type"), tr("Position"), tr("Department"), tr("Mobile")};
}

void DirectorySearchDetail::retranslate()
{
    for (int row = 0; row < RowCount; ++row)
        m_rows[row]->setText(titles().at(row));
    setupTail();
    focusChangedListViewItem(m_focusedRow);
    m_listView->update();
}

void DirectorySearchDetail::setupListViewItems(QList<DirectoryData> fields)
{
    m_listView->itemClear();
    for (int row = 0; row < RowCount; ++row) {
        m_rows[row] = new ListViewInfoItem(titles().at(row), QString());
        m_listView->addItem(m_rows[row]);
    }
    for (const DirectoryData &field : qAsConst(fields))
        fillRow(field);
    m_listView->update();
}

/// Puts the value into the row that its type belongs to. Servers have several words for a mobile number.
void DirectorySearchDetail::fillRow(const DirectoryData &field)
{
    const QString type = field.getType(), value = field.getValue();
    if (type == "name") {
        m_name = value;
        m_rows[NameRow]->setInfoText(value);
    } else if (type == "number") {
        m_number = value;
        m_rows[NumberRow]->setInfoText(shownNumber(value));
    } else if (type == "type") {
        m_rows[TypeRow]->setInfoText(value);
    } else if (type == "position") {
        m_rows[PositionRow]->setInfoText(value);
    } else if (type == "department") {
        m_rows[DepartmentRow]->setInfoText(value);
    } else if (field.getIsPhone()) {
        m_mobileNumber = value;
        m_rows[MobileRow]->setInfoText(shownNumber(value));
    }
}

void DirectorySearchDetail::focusChangedListViewItem(int row)
{
    m_focusedRow = row;
    const bool isNumber = row == NumberRow || row == MobileRow;
    const bool offered = isNumber && !m_rows[row]->infoText().isEmpty();
    tail->setFuncButtonText(CallKey, offered ? tr("Call") : QString());
    tail->setFuncButtonText(MessageKey, offered ? tr("Message") : QString());
}

void DirectorySearchDetail::tailFuncButtonClicked(int idx)
{
    const QString label = tail->funcButtonText(idx);
    if (idx == SaveKey)
        saveContact();
    else if (idx == CallKey && label == tr("Call"))
        callByNumber();
    else if (idx == MessageKey && label == tr("Message"))
        sendMesssageByNumber();
}

void DirectorySearchDetail::clickedListViewItem(int idx)
{
    if (idx == NumberRow)
        callByNumber();
}

/// Where a call or a message goes: to the number of the focused row, else to the first one as it shows.
QString DirectorySearchDetail::focusedNumber() const
{
    switch (m_focusedRow) {
    case NumberRow: return m_number;
    case MobileRow: return m_mobileNumber;
    default: return m_rows[NumberRow]->infoText();
    }
}

void DirectorySearchDetail::callByNumber()
{
    Neighbours::leaveAndDial(this, focusedNumber(), m_name);
}

void DirectorySearchDetail::sendMesssageByNumber()
{
    if (m_listView->itemSize() > 0)
        Neighbours::writeMessage(focusedNumber());
}

void DirectorySearchDetail::askWhereToSave()
{
    if (!m_messageBox)
        m_messageBox = new MessageBox(this);
    m_messageBox->setTitle(tr("Save contact"));
    m_messageBox->setMessage(tr("Do you want to save number?"));
    m_messageBox->displayAdditionalButton(true);
    m_messageBox->additionalButton()->setText(tr("New"));
    m_messageBox->okButton()->setText(tr("Existing"));
    m_messageBox->cancelButton()->setText(tr("Cancel"));
    m_messageBox->setExtraResult(NoAnswer); // the box keeps the last one
    m_messageBox->exec();
}

void DirectorySearchDetail::saveContact()
{
    const ScreenWatch watch(this);
    askWhereToSave();
    if (watch.closed())
        return;
    const QString number = m_rows[NumberRow]->infoText();
    if (m_messageBox->extraResult() == NewAnswer)
        openNewContact(number);
    else if (m_messageBox->extraResult() == ExistingAnswer)
        openSearch(number);
}

void DirectorySearchDetail::openNewContact(const QString &number)
{
    retireScreen(m_numberEdit);
    m_numberEdit = new NumberEdit(this, NewContact, number, NoGroup);
    m_numberEdit->setModal(true);
    m_numberEdit->show();
}

void DirectorySearchDetail::openSearch(const QString &number)
{
    retireScreen(m_searchAll);
    m_Directory = 1;
    m_searchAll = new SearchAll(this, SearchAll::AddNumberMode, number);
    m_searchAll->setModal(true);
    m_searchAll->show();
}
