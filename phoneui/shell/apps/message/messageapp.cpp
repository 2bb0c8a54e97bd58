#include "messageapp.h"

#include "messageform.h"

#include "contactmanager.h"
#include "control/apppayload.h"
#include "core.h"
#include "listview.h"
#include "listviewsubtitleitem.h"
#include "status.h"
#include "tail.h"

#include <QLocale>

namespace {

/// A row of the list: the receiver's name, the text's beginning, and the time or, of an older message, the day.
ListViewItem *makeRow(const SentMessage &message)
{
    static constexpr int NameWidth = 118, TextLeft = 134, TextWidth = 154, TimeLeft = 294, TimeWidth = 74;
    static constexpr int Points = 18;
    static const QColor grey(85, 85, 85);

    const QString name = theCore->contactManager()->getContactByUsingNumber(message.number).name;
    auto *row = new ListViewSubTitleItem(name.isEmpty() ? message.number : name);
    row->setTextWidth(NameWidth);

    const QString clock = theCore->use24HourTime() ? "hh:mm" : "h:mm AP";
    const bool isOfToday = message.sentAt.date() == QDate::currentDate();
    const QString time = isOfToday ? message.sentAt.toString(clock)
                                   : QLocale(theCore->languageName()).toString(message.sentAt.date(), "d MMM");
    row->addSubTitle(message.text, TextLeft, TextWidth, grey, Qt::white);
    row->addSubTitle(time, TimeLeft, TimeWidth, grey, Qt::white);
    row->subTitle(0)->setTextPt(Points);
    row->subTitle(1)->setTextPt(Points);
    row->subTitle(1)->setAlignment(Qt::AlignVCenter | Qt::AlignRight);
    return row;
}

}

MessageApp::MessageApp()
    : AppScreen("message"), m_store(theCore->home().path("data/messages.db")), m_list(addList(this)),
      m_form(new MessageForm(this))
{
    m_list->setShowEmptyString(true);
    connect(m_list, &ListView::clicked, this, &MessageApp::openSelected);
    connect(tail, &Tail::clicked, this, &MessageApp::softKeyClicked);
    connect(m_form, &MessageForm::sendRequested, this, &MessageApp::send);
    connect(m_form, &MessageForm::closed, this, &MessageApp::formClosed);
    connect(m_form, &MessageForm::receiverWanted, this,
            [] { theCore->sendAppMsg("contact", "showSearchAllToFindReceiver()", QByteArray("")); });
    refresh();
}

void MessageApp::end()
{
    if (m_form->isVisible())
        m_form->close();
    AppScreen::end();
}

void MessageApp::comeToFront()
{
    // A message that is being written lies over the list, or is there alone.
    if (m_form->isVisible())
        m_form->bringUp();
    else
        AppScreen::comeToFront();
}

void MessageApp::receiveMsg(const QString &command, const QByteArray &payload)
{
    const QVariantList items = AppPayload::decode(command, payload);
    if (command == "newMessage(str)")
        openForm(items.value(0).toString(), QString(), true);
    else if (command == "setReceiver(str)")
        setReceiver(items.value(0).toString());
    else if (command == "changedLanguage()")
        changedLanguage();
}

void MessageApp::changedLanguage()
{
    m_form->setupTexts();
    refresh();
}

QString MessageApp::title() const
{
    return m_messages.isEmpty() ? tr("Messages") : tr("Messages | Sent (%1)").arg(m_messages.size());
}

void MessageApp::showEvent(QShowEvent *event)
{
    refresh();
    AppScreen::showEvent(event);
}

void MessageApp::refresh()
{
    m_messages = m_store.all();
    m_list->setEmptyString(tr("No Messages"));
    m_list->itemClear();
    for (const SentMessage &message : qAsConst(m_messages))
        m_list->addItem(makeRow(message));
    const int last = m_messages.size() - 1;
    m_list->setSelectedIdx(qBound(qMin(last, 0), m_list->selectedIdx(), last));
    m_list->setStartIdx(qBound(0, m_list->startIdx(), qMax(0, last + 1 - m_list->pageCount())));
    m_list->update();
    setSoftKeys({tr("New"), QString(), m_messages.isEmpty() ? QString() : tr("Delete"), tr("Close")});
    if (isActiveWindow())
        setupStatus();
}

void MessageApp::softKeyClicked(int key)
{
    switch (key) {
    case NewKey: openForm(QString(), QString(), false); break;
    case DeleteKey: deleteSelected(); break;
    case CloseKey: end(); break;
    default: break;
    }
}

void MessageApp::setReceiver(const QString &number)
{
    if (ContactData::bareNumber(number).isEmpty())
        return;
    // The form may have been closed while the receiver was looked for.
    if (m_form->isVisible())
        m_form->setReceiver(number);
    else
        openForm(number, QString(), true);
}

void MessageApp::openForm(const QString &number, const QString &text, bool forAnother)
{
    m_openedByAnother = forAnother;
    m_form->open(number, text);
}

void MessageApp::formClosed()
{
    if (m_openedByAnother)
        end();
}

void MessageApp::send(const QString &number, const QString &text)
{
    if (!m_store.add(number, text, QDateTime::currentDateTime())) {
        m_form->showFailed();
        return;
    }
    m_list->setSelectedIdx(0);
    m_list->setStartIdx(0);
    refresh();
    m_form->showSent();
}

void MessageApp::openSelected(int idx)
{
    if (idx >= 0 && idx < m_messages.size())
        openForm(m_messages.at(idx).number, m_messages.at(idx).text, false);
}

void MessageApp::deleteSelected()
{
    const int idx = m_list->selectedIdx();
    if (idx >= 0 && idx < m_messages.size() && m_store.remove(m_messages.at(idx).id))
        refresh();
}
