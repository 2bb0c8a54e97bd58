#include "messageform.h"

#include "appscreen.h"
#include "contactmanager.h"
#include "core.h"
#include "listview.h"
#include "listviewinfoitem.h"
#include "listviewlineedititem.h"
#include "status.h"
#include "tail.h"
#include "toast.h"

#include <QLineEdit>

namespace {

constexpr int LongestNumber = 32;
// Short titles leave the fields more room than a form's usual half of the row.
constexpr int FieldShift = -125;
constexpr int DetailsRightMargin = 8;
constexpr int ToastTime = 2000; // ms

}

MessageForm::MessageForm(QWidget *parent) : BaseWidget(parent), m_list(AppScreen::addList(this))
{
    setObjectName("MessageForm");
    setModal(true);

    m_receiver = new ListViewLineEditItem(QString(), QString());
    m_receiver->setMaxLength(LongestNumber);
    m_text = new ListViewLineEditItem(QString(), QString());
    m_text->setMaxLength(MostCharacters);
    for (ListViewLineEditItem *row : {m_receiver, m_text}) {
        row->setEditTextLeftMargin(FieldShift);
        m_list->addItem(row);
    }
    m_details = new ListViewInfoItem(QString(), QString());
    m_details->setItemSelectEnable(false);
    m_details->setInfoRightMargin(DetailsRightMargin);
    m_list->addItem(m_details);
    connect(m_list, &ListView::focusChanged, this, &MessageForm::chooseInput);
    connect(m_list, &ListView::changeLineEditText, this, &MessageForm::showDetails);

    setupTexts();
    connect(tail, &Tail::clicked, this, &MessageForm::softKeyClicked);
    connect(tail, &Tail::longPress, this, &MessageForm::softKeyHeld);
}

void MessageForm::setupTexts()
{
    m_receiver->setText(tr("To"));
    m_text->setText(tr("Text"));
    tail->setFuncButtonText(CloseKey, tr("Close"));
    tail->setFuncButtonText(SearchKey, tr("Search"));
    tail->setFuncButtonText(EraseKey, QString());
    tail->setFuncButtonText(SendKey, tr("Send"));
    m_list->update();
    if (isActiveWindow())
        setupStatus();
}

void MessageForm::setupStatus()
{
    theCore->setCurrentActivateApp("message");
    if (status)
        status->setTitle(tr("Messages | New"));
}

void MessageForm::open(const QString &number, const QString &text)
{
    dropToast();
    m_text->setEditText(text);
    setReceiver(number);
    bringUp();
}

void MessageForm::setReceiver(const QString &number)
{
    m_receiver->setEditText(ContactData::bareNumber(number));
    showDetails();
    edit(m_receiver->editText().isEmpty() ? ReceiverRow : TextRow);
}

void MessageForm::edit(Row row)
{
    m_list->setSelectedIdx(row);
    chooseInput(row);
    if (isVisible())
        m_list->checkFocus();
}

void MessageForm::chooseInput(int row)
{
    if (row == ReceiverRow)
        theCore->setIMEStatus(IMENumeric, true);
    else if (row == TextRow)
        theCore->setIMEStatus(theCore->getLanguage() == Korean ? IMEFirst : IMESmall, true);
}

void MessageForm::showDetails()
{
    const QString number = ContactData::bareNumber(m_receiver->editText());
    m_details->setText(number.isEmpty() ? QString()
                                        : theCore->contactManager()->getContactByUsingNumber(number).name);
    m_details->setInfoText(QString("%1/%2").arg(m_text->editText().size()).arg(MostCharacters));
    m_list->update();
}

void MessageForm::showToast(const QString &text, const char *icon, const std::function<void()> &then)
{
    dropToast();
    m_toast = new Toast(text, ToastTime, this);
    m_toast->setIcon(QPixmap(QStringLiteral(":ui/images/widget/%1.png").arg(QLatin1String(icon))));
    connect(m_toast, &Toast::toastTimeout, this, [this, then] {
        dropToast();
        then();
    });
    m_toast->show();
}

void MessageForm::dropToast()
{
    if (!m_toast)
        return;
    // It may be in the middle of its end.
    m_toast->disconnect(this);
    m_toast->deleteLater();
    m_toast->hide();
    m_toast = nullptr;
}

void MessageForm::showSent()
{
    // Not to be sent again, should something bring the form up before the toast has gone.
    m_text->setEditText(QString());
    showToast(tr("Sent"), "confirm", [this] { close(); });
}

void MessageForm::showFailed()
{
    showToast(tr("Failed"), "error_emoti", [this] { edit(TextRow); });
}

void MessageForm::softKeyClicked(int key)
{
    switch (key) {
    case CloseKey: close(); break;
    case SearchKey: emit receiverWanted(); break;
    case SendKey: send(); break;
    default: break;
    }
}

void MessageForm::softKeyHeld(int key)
{
    // Every change of the field goes on to the row.
    if (key == EraseKey && m_list->lineEdit() && m_list->lineEdit()->hasFocus())
        m_list->lineEdit()->clear();
}

void MessageForm::send()
{
    const QString number = ContactData::bareNumber(m_receiver->editText());
    if (number.isEmpty()) {
        showToast(tr("Enter a number"), "error_emoti", [this] { edit(ReceiverRow); });
    } else if (m_text->editText().trimmed().isEmpty()) {
        showToast(tr("Enter a text"), "error_emoti", [this] { edit(TextRow); });
    } else {
        emit sendRequested(number, m_text->editText());
    }
}

void MessageForm::closeEvent(QCloseEvent *event)
{
    BaseWidget::closeEvent(event);
    emit closed();
}

void MessageForm::hideEvent(QHideEvent *event)
{
    dropToast();
    BaseWidget::hideEvent(event);
}
