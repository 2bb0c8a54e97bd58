#include "groupadd.h"

#include "callmanager.h"
#include "contactmanager.h"
#include "core.h"
#include "imagebutton.h"
#include "listview.h"
#include "listviewlineedititem.h"
#include "listviewradioitem.h"
#include "listviewselectitem.h"
#include "notices.h"
#include "ringtones.h"
#include "screenwatch.h"
#include "selectpopuplistview.h"
#include "soundselectpopup.h"
#include "status.h"
#include "tail.h"

#include <QDebug>
#include <QFontMetrics>
#include <QLineEdit>
#include <QTextCodec>
#include <QTimer>

#include <algorithm>

namespace {

const QRect listGeometry(QPoint(5, 2), QPoint(378, 105));
constexpr int NameLength = 30;
constexpr int LastUnit = 29; // the name is full when more units than these are taken
constexpr int WidestName = 220; // pixels of a tone's name
constexpr int PopupType = 5;
constexpr int NoBell = 0; // the first of the tones
const char storedNoBell[] = "Unassigned";

enum Row { NameRow = 0, BellRow = 1 };
enum SoftKey { ClearKey = 2, SaveKey = 3 };

/// The beginning of a name that fits into 30 units, a character from 256 on taking two.
QString fittingName(const QString &text)
{
    int units = 0;
    for (int i = 0; i < text.size(); ++i) {
        const int width = text.at(i).unicode() < 256 ? 1 : 2;
        if (width == 2 && units + width > LastUnit + 1)
            return text.left(i);
        units += width;
        if (units > LastUnit)
            return text.left(i + 1);
    }
    return text;
}

QString shortened(const QString &name)
{
    return QFontMetrics(QFont()).elidedText(name, Qt::ElideRight, WidestName);
}

QString fromUtf8Bytes(const QString &text)
{
    return QTextCodec::codecForName("utf-8")->toUnicode(text.toUtf8());
}

}

GroupAdd::GroupAdd(QWidget *parent, int groupId) : BaseWidget(parent), m_groupId(groupId)
{
    setObjectName("GroupAdd");
    readRingToneList();
    m_previewTimer = new QTimer(this);
    m_previewTimer->setSingleShot(true);
    m_previewTimer->setInterval(1);
    connect(m_previewTimer, &QTimer::timeout, this, &GroupAdd::focusChangeTimeout);
    setupTail();
    connect(tail, &Tail::clicked, this, &GroupAdd::tailFuncButtonClicked);
    connect(tail, &Tail::longPress, this, &GroupAdd::tailFuncButtonLongPressed);
    setupListView();
    if (m_groupId != -1)
        setupCurrentInfo(m_groupId);
    GroupAdd::setupStatus();
    setFocusPolicy(Qt::StrongFocus);
}

bool GroupAdd::start(QWidget *, void *)
{
    m_isBellPlay = false;
    return true;
}

void GroupAdd::setupStatus()
{
    // The two titles stand this way round on the phone, and people know them so.
    if (status)
        status->setTitle(m_editMode ? tr("Contacts | Create Group ") : tr("Contacts | Edit Group"));
}

void GroupAdd::setupTail()
{
    for (int i = 0; i < SaveKey; ++i)
        tail->setFuncButtonText(i, QString());
    tail->setFuncButtonText(SaveKey, tr("Save"));
}

void GroupAdd::retranslate()
{
    setupTail();
    m_nameItem->setText(tr("Group Name"));
    m_bellItem->setText(tr("Group Bell"));
    const bool hasNoBell = m_bellItem->selectedText() == m_ringFiles.first().baseName();
    readRingToneList();
    if (hasNoBell)
        m_bellItem->setSelectedText(m_ringFiles.first().baseName());
    m_listView->update();
}

void GroupAdd::setupListView()
{
    m_listView = new ListView(this);
    m_listView->setObjectName("GroupAdd::m_listView");
    m_listView->setGeometry(listGeometry);
    m_listView->setLineColor(Qt::black);
    connect(m_listView, &ListView::clicked, this, &GroupAdd::clickedListViewItem);
    connect(m_listView, &ListView::focusChanged, this, &GroupAdd::focusChangedListViewItem);
    connect(m_listView, &ListView::changeLineEditText, this, &GroupAdd::changeLineEditTextListViewItem);

    m_nameItem = new ListViewLineEditItem(tr("Group Name"), QString());
    m_nameItem->setMaxLength(NameLength);
    m_listView->addItem(m_nameItem);
    chooseInputMode();
    m_bellItem = new ListViewSelectItem(tr("Group Bell"), readBasicRingToneName());
    m_listView->addItem(m_bellItem);
    m_listView->setFocus(Qt::OtherFocusReason);
}

void GroupAdd::chooseInputMode()
{
    theCore->setIMEStatus(theCore->getLanguage() != 0 ? IMESmall : IMEFirst, true);
}

void GroupAdd::readRingToneList()
{
    m_ringFiles = {QFileInfo(tr("Unassigned.wav"))};
    m_ringFiles += RingTones::files();
}

QString GroupAdd::readBasicRingToneName()
{
    if (m_ringFiles.isEmpty()) {
        m_bell.clear();
        return QString();
    }
    const QString name = m_ringFiles.first().baseName();
    m_bell = name == tr("Unassigned") ? QString(storedNoBell) : RingTones::basicPath(name);
    return name;
}

void GroupAdd::setupCurrentInfo(int groupId)
{
    m_editMode = true;
    m_groupId = groupId;
    const GroupData group = theCore->contactManager()->getGroupDetail(groupId);
    m_currentName = group.name;
    m_nameItem->setEditText(group.name);
    m_bell = group.bell.section('/', -1); // the bare name, until another tone is chosen
    const QString name = m_bell.section('.', 0, 0);
    m_bellItem->setSelectedText(name.isEmpty() || name == storedNoBell ? tr("Unassigned") : shortened(name));
}

void GroupAdd::focusChangedListViewItem(int idx)
{
    emit focusChangedItem(idx);
    if (idx == NameRow)
        chooseInputMode();
}

void GroupAdd::changeLineEditTextListViewItem(int, QString)
{
    if (!m_listView) {
        qDebug() << "GroupAdd::changeLineEditTextListViewItem Invaild List View";
        return;
    }
    const QString text = m_nameItem->editText();
    const QString fitting = fittingName(text);
    if (fitting == text)
        return;
    m_nameItem->setEditText(fitting);
    if (m_listView->lineEdit())
        m_listView->lineEdit()->setText(fitting);
    m_listView->update();
}

void GroupAdd::tailFuncButtonClicked(int idx)
{
    if (idx == SaveKey)
        saveGroup();
}

void GroupAdd::tailFuncButtonLongPressed(int idx)
{
    ListViewItem *row = m_listView->item(m_listView->selectedIdx());
    if (idx != ClearKey || row != m_nameItem)
        return;
    m_nameItem->setEditText("");
    if (m_listView->lineEdit())
        m_listView->lineEdit()->setText("");
    m_listView->update();
}

void GroupAdd::play(const QString &path)
{
    m_isBellPlay = RingTones::preview(path);
}

void GroupAdd::stopPlaying()
{
    if (m_isBellPlay)
        RingTones::stopPreview();
    m_isBellPlay = false;
}

void GroupAdd::listRingNames()
{
    m_ringSorted.clear();
    m_ringOrdered.clear();
    for (const QFileInfo &file : qAsConst(m_ringFiles)) {
        const bool isFile = !m_ringOrdered.isEmpty();
        m_ringOrdered.append(isFile ? shortened(fromUtf8Bytes(file.baseName())) : file.baseName());
    }
    m_ringSorted = m_ringOrdered;
    if (m_ringSorted.size() > 1)
        std::sort(m_ringSorted.begin() + 1, m_ringSorted.end(), [](const QString &a, const QString &b) {
            return QString::compare(a, b, Qt::CaseInsensitive) < 0;
        });
}

void GroupAdd::clickedListViewItem(int idx)
{
    if (idx != BellRow)
        return;
    const ScreenWatch watch(this);
    listRingNames();
    QString chosen;
    {
        SoundSelectPopup popup(this, PopupType);
        popup.cancelButton()->setText(tr("Cancel"));
        connect(popup.listView(), &ListView::focusChanged, this, &GroupAdd::focusChangedRingSelectPopup);
        for (int i = 0; i < m_ringSorted.size(); ++i) {
            const bool current = m_ringSorted.at(i) == m_bellItem->selectedText();
            auto *row = new ListViewRadioItem(m_ringSorted.at(i), current);
            row->setData(reinterpret_cast<void *>(static_cast<quintptr>(i))); // NOLINT(performance-no-int-to-ptr)
            popup.listView()->addItem(row);
            if (current) {
                popup.listView()->setSelectedIdx(i);
                const int file = m_ringOrdered.indexOf(m_ringSorted.at(i));
                if (file > NoBell)
                    play(m_ringFiles.at(file).filePath());
            }
        }
        popup.listView()->update();
        if (popup.exec() == QDialog::Accepted && !watch.closed())
            chosen = m_ringSorted.value(popup.selectedIdx());
    }
    m_previewTimer->stop();
    stopPlaying();
    if (watch.closed())
        return;
    if (!chosen.isEmpty())
        takeBell(chosen);
    m_listView->setFocus(Qt::OtherFocusReason);
    m_listView->update();
}

void GroupAdd::takeBell(const QString &name)
{
    m_bellItem->setSelectedText(name);
    const int file = m_ringOrdered.indexOf(name);
    m_bell = file == NoBell ? QString(storedNoBell) : fromUtf8Bytes(m_ringFiles.value(file).filePath());
}

void GroupAdd::focusChangedRingSelectPopup(int idx)
{
    const int file = m_ringOrdered.indexOf(m_ringSorted.value(idx));
    if (file < 0)
        return;
    m_previewPath = m_ringFiles.at(file).filePath();
    if (m_previewPath == tr("Unassigned.wav")) {
        m_previewTimer->stop();
        RingTones::stopPreview();
        return;
    }
    m_isBellPlay = false;
    m_previewTimer->stop();
    if (theCore->callManager()->callState() == "IDLE")
        m_previewTimer->start();
}

void GroupAdd::focusChangeTimeout()
{
    play(m_previewPath);
}

void GroupAdd::hideEvent(QHideEvent *)
{
    m_previewTimer->stop();
    stopPlaying();
}

/// Tells why the group is not saved and puts the cursor back into the name.
void GroupAdd::refuse(const QString &text)
{
    if (!Notices::show(this, text, Notices::Icon::Error))
        return;
    m_listView->setFocus(Qt::OtherFocusReason);
    m_listView->setSelectedIdx(BellRow);
    m_listView->setSelectedIdx(NameRow);
}

void GroupAdd::saveGroup()
{
    const QString name = m_nameItem->editText();
    ContactManager *store = theCore->contactManager();
    if (name.isEmpty()) {
        refuse(tr("Enter group name"));
    } else if (store->existGroupName(name) && name != m_currentName) {
        refuse(tr("Group name already exists"));
    } else if (store->saveGroup(GroupData(m_groupId, name, m_bell), m_editMode)) {
        emit newGroupAdded(name);
        if (!Notices::show(this, tr("Saved"), Notices::Icon::Confirm))
            return;
        m_editMode = false;
        initInputText();
        close();
    } else {
        const ScreenWatch watch(this);
        refuse(tr("Failed"));
        if (!watch.closed())
            close();
    }
}

void GroupAdd::initInputText()
{
    m_nameItem->setEditText(QString());
    m_bellItem->setSelectedText(tr("Office"));
}
