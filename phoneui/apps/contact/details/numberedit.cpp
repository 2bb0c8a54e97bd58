// NumberEdit: the form as a screen, its keys and its saving.

#include "numberedit.h"

#include "contactmanager.h"
#include "core.h"
#include "grouplist_at_contact.h"
#include "groupnames.h"
#include "listview.h"
#include "neighbours.h"
#include "notices.h"
#include "numberedititems.h"
#include "numbertypes.h"
#include "ringtones.h"
#include "screenwatch.h"
#include "selectpopup.h"
#include "status.h"
#include "tail.h"
#include "textlimits.h"

#include <QDebug>
#include <QKeyEvent>
#include <QLineEdit>

namespace {

const QRect listGeometry(QPoint(5, 2), QPoint(378, 105));
constexpr int PreviewDelay = 1; // ms, so that a quick run through the tones does not stutter

constexpr int MostContacts = 300;
constexpr int MostNumbersToSave = 9;
constexpr int NameUnits = 30, MemoUnits = 60;

enum SoftKey { AddFieldKey = 0, DeleteFieldKey = 2, SaveKey = 3 };

}

NumberEdit::NumberEdit(QWidget *parent, int id, QString number, int groupId)
    : BaseWidget(parent), m_contactId(id), m_isModify(id != -1)
{
    setObjectName("NumberEdit");
    m_focusTimer.setSingleShot(true);
    m_focusTimer.setInterval(PreviewDelay);
    connect(&m_focusTimer, &QTimer::timeout, this, &NumberEdit::focusChangeTimeout);
    m_words = words();
    readRingToneList();
    if (groupId != -1)
        m_groupIds = {groupId};
    setupTail();
    connect(tail, &Tail::clicked, this, &NumberEdit::tailFuncButtonClicked);
    connect(tail, &Tail::longPress, this, &NumberEdit::tailFuncButtonLongPressed);
    setupListView();
    if (m_isModify) {
        setupCurrentInfo(id);
        if (!number.isEmpty())
            addNumberToCurrentContact(number);
    } else {
        setupCurrentInfo(-1);
        setNumberToNewContact(number);
    }
    NumberEdit::setupStatus();
    setFocusPolicy(Qt::StrongFocus);
    focusChangedListViewItem(m_listView->selectedIdx());
}

NumberEdit::~NumberEdit() = default;

void NumberEdit::setupStatus()
{
    if (status)
        status->setTitle(m_isModify ? tr("Contacts | Edit") : tr("Contacts | Add"));
}

void NumberEdit::setupTail()
{
    tail->setFuncButtonText(AddFieldKey, tr("Add Field"));
    tail->setFuncButtonText(1, QString());
    tail->setFuncButtonText(DeleteFieldKey, QString());
    tail->setFuncButtonText(SaveKey, tr("Save"));
}

void NumberEdit::retranslate()
{
    setupTail();
    const QStringList before = m_words;
    m_words = words();
    for (int i = 0; i < m_listView->itemSize(); ++i) {
        ListViewItem *row = m_listView->item(i);
        row->setText(m_words.value(before.indexOf(row->text()), row->text()));
        if (fieldOf(i) == BellField)
            static_cast<NumberEditSelectItem *>(row)->setSelectedText(bellName());
    }
    showGroups();
    readRingToneList();
    updateFieldKey(m_listView->selectedIdx());
    m_listView->update();
}

void NumberEdit::setupListView()
{
    m_listView = new ListView(this);
    m_listView->setObjectName("NumberEdit::m_listView");
    m_listView->setGeometry(listGeometry);
    m_listView->setLineColor(Qt::black);
    connect(m_listView, &ListView::clicked, this, &NumberEdit::clickedListViewItem);
    connect(m_listView, &ListView::clicked, this, &NumberEdit::selectedItem);
    connect(m_listView, &ListView::focusChanged, this, &NumberEdit::focusChangedListViewItem);
    connect(m_listView, &ListView::focusChanged, this, &NumberEdit::focusChangedItem);
    connect(m_listView, &ListView::keyPressed, this, &NumberEdit::keyPressed);
    connect(m_listView, &ListView::changeLineEditText, this, &NumberEdit::changeLineEditTextListViewItem);
    m_listView->setFocus(Qt::OtherFocusReason);
}

void NumberEdit::setNumberToNewContact(QString number)
{
    if (auto *first = dynamic_cast<NumberEditLineEditItem *>(m_listView->item(lastRowOf(NumberField))))
        first->setEditText(ContactData::bareNumber(number));
}

void NumberEdit::addNumberToCurrentContact(QString number)
{
    const int at = placeFor(NumberField);
    insertRow(at, makeNumberRow(ContactData::Company, ContactData::bareNumber(number)));
    m_listView->setSelectedIdx(at);
    m_listView->setStartIdx(qMax(0, at - 1));
}

void NumberEdit::setGroupList(QList<GroupData> groups)
{
    m_groupIds.clear();
    for (const GroupData &group : qAsConst(groups))
        m_groupIds.append(group.id);
    showGroups();
    m_listView->update();
}

void NumberEdit::closeWindows()
{
    if (m_selectPopup)
        m_selectPopup->close();
    if (m_groupScreen)
        m_groupScreen->close();
}

void NumberEdit::hideEvent(QHideEvent *)
{
    m_focusTimer.stop();
    RingTones::stopPreview();
}

void NumberEdit::keyPressEvent(QKeyEvent *event)
{
    emit baseWidgetKeyPressed(event);
    BaseWidget::keyPressEvent(event);
}

/// The erase key on a field that is empty already deletes the field itself.
bool NumberEdit::eventFilter(QObject *watched, QEvent *event)
{
    if (event->type() == QEvent::KeyPress && static_cast<QKeyEvent *>(event)->key() == Qt::Key_Backspace
        && isEmptyField(m_listView->selectedIdx())) {
        QTimer::singleShot(1, this, &NumberEdit::removeItem);
        return true;
    }
    return BaseWidget::eventFilter(watched, event);
}

void NumberEdit::tailFuncButtonClicked(int idx)
{
    const QString label = tail->funcButtonText(idx);
    if (label == tr("Add Field"))
        addItem();
    else if (label == tr("Delete Field"))
        removeItem();
    else if (label == tr("Save"))
        save();
}

void NumberEdit::tailFuncButtonLongPressed(int idx)
{
    auto *row = dynamic_cast<NumberEditLineEditItem *>(m_listView->item(m_listView->selectedIdx()));
    if (idx != DeleteFieldKey || !row)
        return;
    row->setEditText(QString());
    if (m_listView->lineEdit())
        m_listView->lineEdit()->setText(QString());
    m_listView->update();
}

void NumberEdit::focusChangedListViewItem(int idx)
{
    updateFieldKey(idx);
    chooseInputMode(idx);
    // The line edit exists once the first text row has been reached; a second installing changes nothing.
    if (m_listView->lineEdit())
        m_listView->lineEdit()->installEventFilter(this);
}

/// The third key deletes a field that is empty or chosen; in a field with text it is the input method's to erase.
void NumberEdit::updateFieldKey(int idx)
{
    const bool deletes = isRemovable(idx) && (fieldOf(idx) == BellField || isEmptyField(idx));
    tail->setFuncButtonText(DeleteFieldKey, deletes ? tr("Delete Field") : QString());
    if (!deletes && theCore->getIMEStatus() != IMEOff)
        tail->changedIMEStatus(theCore->getIMEStatus());
}

void NumberEdit::chooseInputMode(int idx)
{
    switch (fieldOf(idx)) {
    case NumberField: theCore->setIMEStatus(IMENumeric, true); break;
    case EmailField: theCore->setIMEStatus(IMESmall, true); break;
    case NameField:
    case MemoField: theCore->setIMEStatus(theCore->getLanguage() == Korean ? IMEFirst : IMESmall, true); break;
    case GroupField:
    case BellField: break;
    }
}

void NumberEdit::changeLineEditTextListViewItem(int idx, QString text)
{
    QString fitting = text;
    switch (fieldOf(idx)) {
    case NameField: fitting = checkMaxString(text, NameUnits); break;
    case MemoField: fitting = checkMaxString(text, MemoUnits); break;
    case NumberField: fitting = ContactData::bareNumber(text); break;
    default: break;
    }
    QLineEdit *edit = m_listView->lineEdit();
    if (fitting != text && edit) {
        const int cursor = edit->cursorPosition() - (text.size() - fitting.size());
        edit->setText(fitting);
        edit->setCursorPosition(qBound(0, cursor, fitting.size()));
    }
    updateFieldKey(idx);
}

bool NumberEdit::hasNumber() const
{
    for (int i = 0; i < m_listView->itemSize(); ++i) {
        if (fieldOf(i) == NumberField && !textOf(i).isEmpty())
            return true;
    }
    return false;
}

ContactData NumberEdit::collect() const
{
    QStringList numbers, emails;
    QList<int> kinds;
    ContactData contact;
    for (int i = 0; i < m_listView->itemSize(); ++i) {
        const QString text = textOf(i);
        switch (fieldOf(i)) {
        case NameField: contact.name = text; break;
        case NumberField:
            if (!text.isEmpty()) {
                numbers.append(text);
                kinds.append(getNumberType(m_listView->item(i)->text()));
            }
            break;
        case EmailField:
            if (!text.isEmpty())
                emails.append(text);
            break;
        case BellField: contact.bell = m_bell; break;
        case MemoField: contact.memo = text; break;
        case GroupField: break;
        }
    }
    contact.id = m_contactId;
    contact.setNumbers(numbers, kinds);
    contact.setEmails(emails);
    return contact;
}

int NumberEdit::saveContact()
{
    ContactManager *store = theCore->contactManager();
    if (m_numberCount > MostNumbersToSave)
        return TooManyNumbers;
    if (!m_isModify && store->getCountOfContact() >= MostContacts) {
        qDebug() << "NumberEdit::saveContact Over max count";
        return TooManyContacts;
    }
    if (m_nameItem->editText().isEmpty()) {
        qDebug() << "NumberEdit::saveContact essential input fields(Name) are blank";
        return NameMissing;
    }
    if (!hasNumber()) {
        qDebug() << "NumberEdit::saveContact essential input fields(Number1) are blank";
        return NumberMissing;
    }

    const ContactData contact = collect();
    if (!store->saveContact(contact, m_isModify)) {
        qDebug() << "NumberEdit::saveContact Save Contact is failed";
        return Failed;
    }
    if (!m_isModify)
        m_savedId = store->getIdByUsingNameAndNumber(contact.name, contact.telnum1);
    if (!store->saveGroupMember(m_isModify ? m_contactId : m_savedId, m_groupIds)) {
        qDebug() << "NumberEdit::saveContact Save group member is failed";
        return Failed;
    }
    Neighbours::send("idle", "contactUpdatedNumber(str,str)", {contact.telnum1, contact.name});
    return Saved;
}

/// Puts the cursor back into a row, with the row in sight.
bool NumberEdit::returnToRow(int idx)
{
    m_listView->setFocus(Qt::OtherFocusReason);
    if (idx >= 0) {
        m_listView->setSelectedIdx(idx);
        m_listView->setStartIdx(qMax(0, idx - m_listView->pageCount() + 1));
    }
    m_listView->checkFocus();
    return true;
}

void NumberEdit::save()
{
    const int result = saveContact();
    QString text;
    switch (result) {
    case Saved:
        if (Notices::show(this, tr("Saved"), Notices::Icon::Confirm))
            close();
        return;
    case NameMissing: text = tr("Enter Name"); break;
    case NumberMissing: text = tr("Input Numbers"); break;
    case TooManyContacts: text = tr("Reached save limit"); break;
    case TooManyNumbers: text = tr("Number is full\nDelete other Number First"); break;
    default: text = tr("Failed"); break;
    }
    if (!Notices::show(this, text, Notices::Icon::Error))
        return;
    const int firstNumber = lastRowOf(NumberField) - countOf(NumberField) + 1;
    returnToRow(result == NumberMissing ? firstNumber : -1);
}
