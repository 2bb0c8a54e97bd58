// NumberEdit: the rows of the form, adding and removing them, and what is chosen in popups.

#include "numberedit.h"

#include "contactmanager.h"
#include "core.h"
#include "grouplist_at_contact.h"
#include "groupnames.h"
#include "imagebutton.h"
#include "listview.h"
#include "listviewradioitem.h"
#include "messagebox.h"
#include "notices.h"
#include "numberedititems.h"
#include "numbertypes.h"
#include "ringtones.h"
#include "screenwatch.h"
#include "selectpopup.h"
#include "selectpopuplistview.h"
#include "soundselectpopup.h"

#include <QDebug>

namespace {

constexpr int NameRow = 0, GroupRow = 1, FirstFieldRow = 2;
constexpr int NameLength = 30, NumberLength = 32, LongLength = 60;
constexpr int MostNumbersToAdd = 8, MostEmailsToAdd = 2; // beyond these the field is no longer offered
constexpr int PopupType = 0;

}

NumberEdit::Field NumberEdit::fieldOf(int idx) const
{
    ListViewItem *row = m_listView->item(idx);
    if (idx <= NameRow || !row)
        return NameField;
    if (idx == GroupRow)
        return GroupField;
    if (isNumberLabel(row->text()))
        return NumberField;
    if (row->text() == tr("Email"))
        return EmailField;
    return row->type() == 0x11 ? MemoField : BellField;
}

QString NumberEdit::textOf(int idx) const
{
    auto *row = dynamic_cast<NumberEditLineEditItem *>(m_listView->item(idx));
    return row ? row->editText() : QString();
}

/// The last row of that field, -1 without any.
int NumberEdit::lastRowOf(Field field) const
{
    for (int i = m_listView->itemSize() - 1; i >= 0; --i) {
        if (fieldOf(i) == field)
            return i;
    }
    return -1;
}

int NumberEdit::countOf(Field field) const
{
    int count = 0;
    for (int i = 0; i < m_listView->itemSize(); ++i)
        count += fieldOf(i) == field ? 1 : 0;
    return count;
}

void NumberEdit::countRows()
{
    m_numberCount = countOf(NumberField);
    m_emailCount = countOf(EmailField);
    m_bellDisabled = lastRowOf(BellField) >= 0;
    m_memoDisabled = lastRowOf(MemoField) >= 0;
}

NumberEditLineEditItem *NumberEdit::makeLineRow(const QString &label, const QString &text, int maxLength) const
{
    auto *row = new NumberEditLineEditItem(label, text);
    row->setMaxLength(maxLength);
    return row;
}

ListViewItem *NumberEdit::makeNumberRow(int kind, const QString &number) const
{
    return makeLineRow(getNumberTypeStr(kind), number, NumberLength);
}

NumberEditSelectItem *NumberEdit::makeBellRow() const
{
    return new NumberEditSelectItem(tr("Bell"), bellName());
}

QString NumberEdit::bellName() const
{
    return m_bell.isEmpty() ? tr("Undesignated") : RingTones::baseName(m_bell);
}

void NumberEdit::showGroups()
{
    m_groupItem->setSelectedText(groupNames(m_groupIds, tr("Unassigned")));
}

/// What the rows are called.
QStringList NumberEdit::words() const
{
    QStringList words{tr("Name"), tr("Group"), tr("Email"), tr("Bell"), tr("Memo")};
    for (int kind = ContactData::Company; kind <= ContactData::Etc; ++kind)
        words.append(getNumberTypeStr(kind));
    return words;
}

void NumberEdit::setupCurrentInfo(int id)
{
    ContactData contact;
    if (id != -1) {
        contact = theCore->contactManager()->getSpecificContactDetail(id);
        m_groupIds = theCore->contactManager()->getGroupIdsOfMember(id);
    }
    m_bell = contact.bell;

    m_nameItem = makeLineRow(tr("Name"), contact.name, NameLength);
    m_groupItem = new NumberEditSelectItem(tr("Group"), groupNames(m_groupIds, tr("Unassigned")));
    m_listView->addItem(m_nameItem);
    m_listView->addItem(m_groupItem);
    for (int slot = 0; slot < ContactData::NumberCount; ++slot) {
        if (!contact.number(slot).isEmpty())
            m_listView->addItem(makeNumberRow(contact.numberType(slot), contact.number(slot)));
    }
    if (m_listView->itemSize() == FirstFieldRow)
        m_listView->addItem(makeNumberRow(ContactData::Company, QString()));
    for (int slot = 0; slot < ContactData::EmailCount; ++slot) {
        if (!contact.email(slot).isEmpty())
            m_listView->addItem(makeLineRow(tr("Email"), contact.email(slot), LongLength));
    }
    if (id != -1) {
        m_listView->addItem(makeBellRow());
        m_listView->addItem(makeLineRow(tr("Memo"), contact.memo, LongLength));
    }
    countRows();
    m_listView->setSelectedIdx(NameRow);
}

/// The list adds at its end alone; the row then moves to its place.
void NumberEdit::insertRow(int at, ListViewItem *row)
{
    m_listView->addItem(row);
    m_listView->moveItem(m_listView->itemSize() - 1, at);
    countRows();
}

/// Numbers, then addresses, then the bell, then the memo; a new row goes behind those of its kind.
int NumberEdit::placeFor(Field field) const
{
    int last = GroupRow;
    for (int i = FirstFieldRow; i < m_listView->itemSize(); ++i) {
        if (fieldOf(i) <= field)
            last = i;
    }
    return last + 1;
}

void NumberEdit::addFieldRow(Field field, int kind)
{
    ListViewItem *row = nullptr;
    switch (field) {
    case NumberField: row = makeNumberRow(kind, QString()); break;
    case EmailField: row = makeLineRow(tr("Email"), QString(), LongLength); break;
    case BellField: row = makeBellRow(); break;
    case MemoField: row = makeLineRow(tr("Memo"), QString(), LongLength); break;
    default: return;
    }
    const int at = placeFor(field);
    insertRow(at, row);
    returnToRow(at);
}

/// Lets the user choose in a popup; -1 for none, or when the form was closed meanwhile.
int NumberEdit::choose(const QString &title, const QStringList &labels, const QList<bool> &disabled, int current)
{
    int chosen = -1;
    runScreen(
        m_selectPopup, this,
        [&] {
            auto *popup = new SelectPopup(this, PopupType);
            popup->setContentsTitle(title);
            popup->nextButton()->setText(">>");
            popup->cancelButton()->setText(tr("Cancel"));
            for (int i = 0; i < labels.size(); ++i) {
                // A choice among present values shows the present one.
                ListViewItem *row = current >= 0 ? new ListViewRadioItem(labels.at(i), i == current)
                                                 : new ListViewItem(labels.at(i), QPixmap(), QPixmap());
                row->setItemSelectEnable(!disabled.value(i));
                popup->listView()->addItem(row);
            }
            const int first = current >= 0 ? current : disabled.indexOf(false);
            popup->listView()->setSelectedIdx(first);
            return popup;
        },
        [&](SelectPopup *popup) {
            if (popup->result() == QDialog::Accepted)
                chosen = popup->selectedIdx();
        });
    return chosen;
}

void NumberEdit::addItem()
{
    const ScreenWatch watch(this);
    m_numberDisabled = m_numberCount > MostNumbersToAdd;
    m_emailDisabled = m_emailCount > MostEmailsToAdd;
    if (m_numberDisabled)
        qDebug() << "NumberEdit::addItem itemList disabled 'Number' item";
    if (m_emailDisabled)
        qDebug() << "NumberEdit::addItem itemList disabled 'Email' item";

    static constexpr Field offered[] = {NumberField, EmailField, BellField, MemoField};
    const QList<bool> disabled{m_numberDisabled, m_emailDisabled, m_bellDisabled, m_memoDisabled};
    const int idx = choose(QString(), {QObject::tr("Number"), tr("Email"), tr("Bell"), tr("Memo")}, disabled, -1);
    if (watch.closed())
        return;
    const Field field = idx >= 0 ? offered[idx] : NameField;
    const int kind = field == NumberField ? chooseNumberKind(-1) : -1;
    if (watch.closed())
        return;
    if (field == NameField || (field == NumberField && kind < 0))
        returnToRow(-1);
    else
        addFieldRow(field, kind);
}

int NumberEdit::chooseNumberKind(int current)
{
    QStringList labels;
    QList<bool> disabled;
    for (int kind = ContactData::Company; kind <= ContactData::Etc; ++kind) {
        labels.append(getNumberTypeStr(kind));
        disabled.append(false);
    }
    return choose(QString(), labels, disabled, current);
}

bool NumberEdit::isRemovable(int idx) const
{
    return idx >= FirstFieldRow && idx < m_listView->itemSize();
}

bool NumberEdit::isEmptyField(int idx) const
{
    return isRemovable(idx) && m_listView->item(idx)->type() == 0x11 && textOf(idx).isEmpty();
}

void NumberEdit::removeItem()
{
    const int idx = m_listView->selectedIdx();
    // In the millisecond since the erase key a command may have closed the form.
    if (!isVisible() || !isRemovable(idx))
        return;
    const ListViewItem *row = m_listView->item(idx);
    const ScreenWatch watch(this);
    MessageBox box(this);
    const bool wanted = Notices::ask(this, box, tr("Delete Field"), tr("Do you want to delete this Field?"),
                                     tr("Delete"), tr("No"));
    if (watch.closed())
        return;
    if (wanted && isRemovable(idx) && m_listView->item(idx) == row) {
        if (fieldOf(idx) == BellField)
            m_bell.clear();
        m_listView->removeItem(idx);
        countRows();
        m_listView->update();
    }
    returnToRow(m_listView->selectedIdx());
    focusChangedListViewItem(m_listView->selectedIdx());
}

void NumberEdit::clickedListViewItem(int idx)
{
    switch (fieldOf(idx)) {
    case GroupField: chooseGroups(); break;
    case NumberField: chooseKindOfRow(idx); break;
    case BellField: chooseBell(idx); break;
    default: break;
    }
}

void NumberEdit::chooseGroups()
{
    const ScreenWatch watch(this);
    runScreen(
        m_groupScreen, this, [this] { return new GroupList_At_Contact(this, m_groupIds); },
        [this](GroupList_At_Contact *screen) { setGroupList(screen->getGroupSelection()); });
    if (!watch.closed())
        returnToRow(-1);
}

void NumberEdit::chooseKindOfRow(int idx)
{
    const ScreenWatch watch(this);
    ListViewItem *row = m_listView->item(idx);
    const int kind = chooseNumberKind(getNumberType(row->text()));
    if (watch.closed())
        return;
    // Keys pressed faster than the popup came may have deleted the row below it.
    if (kind >= 0 && m_listView->item(idx) == row)
        row->setText(getNumberTypeStr(kind));
    returnToRow(-1);
    m_listView->update();
}

void NumberEdit::readRingToneList()
{
    m_ringFiles = RingTones::files();
    m_ringNames = QStringList(tr("Undesignated"));
    for (const QFileInfo &file : qAsConst(m_ringFiles))
        m_ringNames.append(RingTones::baseName(file.filePath()));
}

/// The file of a tone by the name that is shown, empty for no bell.
QString NumberEdit::bellPath(const QString &name) const
{
    const int idx = m_ringNames.indexOf(name);
    return idx > 0 ? m_ringFiles.at(idx - 1).filePath() : QString();
}

void NumberEdit::chooseBell(int idx)
{
    const ScreenWatch watch(this);
    auto *row = dynamic_cast<NumberEditSelectItem *>(m_listView->item(idx));
    if (!row)
        return;
    QString chosen;
    {
        SoundSelectPopup popup(this, PopupType);
        popup.setContentsTitle(tr("Bell"));
        popup.cancelButton()->setText(tr("Cancel"));
        for (const QString &name : qAsConst(m_ringNames))
            popup.listView()->addItem(new ListViewRadioItem(name, name == row->selectedText()));
        popup.listView()->setSelectedIdx(qMax(0, m_ringNames.indexOf(row->selectedText())));
        connect(popup.listView(), &ListView::focusChanged, this, &NumberEdit::focusChangedRingSelectPopup);
        if (popup.exec() == QDialog::Accepted)
            chosen = m_ringNames.value(popup.selectedIdx());
        m_focusTimer.stop();
        RingTones::stopPreview();
    }
    if (watch.closed())
        return;
    if (!chosen.isEmpty() && m_listView->item(idx) == row) {
        m_bell = bellPath(chosen);
        row->setSelectedText(chosen);
    }
    returnToRow(-1);
    m_listView->update();
}

void NumberEdit::focusChangedRingSelectPopup(int idx)
{
    m_previewPath = bellPath(m_ringNames.value(idx));
    m_focusTimer.stop();
    RingTones::stopPreview();
    if (!m_previewPath.isEmpty())
        m_focusTimer.start();
}

void NumberEdit::focusChangeTimeout()
{
    RingTones::preview(m_previewPath);
}
