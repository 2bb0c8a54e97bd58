#include "keymodule.h"

#include "control/apppayload.h"
#include "core.h"
#include "dialer.h"
#include "listview.h"
#include "listviewsubtitleitem.h"
#include "tail.h"

namespace {

/// The key's place on the module, the name, the number.
ListViewItem *makeRow(int place, const ProgramKey &key)
{
    static constexpr int PlaceLeft = 10, PlaceWidth = 34, NameWidth = 180, NumberLeft = 224, NumberWidth = 144;
    static constexpr int Points = 18;
    static const QColor light(136, 136, 136), grey(85, 85, 85);

    auto *row = new ListViewSubTitleItem(key.name.isEmpty() ? key.number : key.name);
    row->setGroupNameItem(true); // leaves room before the name
    row->setTextWidth(NameWidth);
    row->addSubTitle(QString::number(place), PlaceLeft, PlaceWidth, light, Qt::white);
    row->addSubTitle(key.number, NumberLeft, NumberWidth, grey, Qt::white);
    row->subTitle(0)->setTextPt(Points);
    row->subTitle(1)->setTextPt(Points);
    row->subTitle(1)->setAlignment(Qt::AlignVCenter | Qt::AlignRight);
    return row;
}

}

KeyModule::KeyModule() : AppScreen("aom"), m_keys(theCore->home().path("config/aom.ini")), m_list(addList(this))
{
    m_list->setShowEmptyString(true);
    connect(m_list, &ListView::clicked, this, &KeyModule::dialKey);
    connect(tail, &Tail::clicked, this, &KeyModule::softKeyClicked);
    refresh(0);
}

void KeyModule::receiveMsg(const QString &command, const QByteArray &payload)
{
    if (command == "searchContactResult(str,str)") {
        const QVariantList items = AppPayload::decode(command, payload);
        const int idx = m_keys.set(items.value(0).toString(), items.value(1).toString());
        if (idx >= 0)
            refresh(idx);
    } else if (command == "changedLanguage()") {
        refresh(m_list->selectedIdx());
    }
}

QString KeyModule::title() const
{
    const int count = m_keys.keys().size();
    return count == 0 ? tr("Key Module") : tr("Key Module (%1/%2)").arg(count).arg(ProgramKeys::MostKeys);
}

void KeyModule::refresh(int selected)
{
    m_list->setEmptyString(tr("No Keys"));
    m_list->itemClear();
    const QList<ProgramKey> &keys = m_keys.keys();
    for (int i = 0; i < keys.size(); ++i)
        m_list->addItem(makeRow(i + 1, keys.at(i)));
    m_list->setSelectedIdx(selected);
    m_list->setStartIdx(qMax(0, selected / m_list->pageCount() * m_list->pageCount()));
    m_list->update();
    setSoftKeys({m_keys.isFull() ? QString() : tr("Add"), QString(), keys.isEmpty() ? QString() : tr("Delete"),
                 tr("Close")});
    if (isActiveWindow())
        setupStatus();
}

void KeyModule::softKeyClicked(int key)
{
    switch (key) {
    case AddKey:
        if (!m_keys.isFull())
            theCore->sendAppMsg("contact", "searchContact()", QByteArray(""));
        break;
    case DeleteKey: deleteSelected(); break;
    case CloseKey: end(); break;
    default: break;
    }
}

void KeyModule::dialKey(int idx)
{
    if (idx < 0 || idx >= m_keys.keys().size())
        return;
    const ProgramKey key = m_keys.keys().at(idx);
    dial(key.number, key.name);
}

void KeyModule::deleteSelected()
{
    const int idx = m_list->selectedIdx();
    if (idx < 0 || idx >= m_keys.keys().size())
        return;
    m_keys.remove(idx);
    refresh(qMin(idx, m_keys.keys().size() - 1));
}
