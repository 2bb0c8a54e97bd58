#ifndef MESSAGEFORM_H
#define MESSAGEFORM_H

#include "basewidget.h"

#include <functional>

class ListView;
class ListViewInfoItem;
class ListViewLineEditItem;
class Toast;

/// The form of one message: to whom, the text, and below them the receiver's name and how much of the room is used.
///
/// It is made once, with its application, and shown without a loop of its own; what it was opened for goes out by
/// its signals.
class MessageForm : public BaseWidget
{
    Q_OBJECT

public:
    static constexpr int MostCharacters = 160;

    explicit MessageForm(QWidget *parent);

    using BaseWidget::bringUp;

    /// Writes the words of the form in the phone's language, at first and after a change.
    void setupTexts();
    /// Shows the form for a new message, whatever it held before.
    void open(const QString &number, const QString &text);
    /// Gives the message that is being written its receiver.
    void setReceiver(const QString &number);
    /// Tells that the message is on its way, then closes.
    void showSent();
    void showFailed();

signals:
    /// The user wants the message sent; number and text are not empty.
    void sendRequested(const QString &number, const QString &text);
    void receiverWanted();
    void closed();

protected:
    void setupStatus() override;
    void closeEvent(QCloseEvent *event) override;
    void hideEvent(QHideEvent *event) override;

private:
    enum Row { ReceiverRow, TextRow };
    enum SoftKey { CloseKey = 0, SearchKey = 1, EraseKey = 2, SendKey = 3 };

    void softKeyClicked(int key);
    void softKeyHeld(int key);
    void send();
    void chooseInput(int row);
    /// Puts the cursor into a row, with the text that the row holds now.
    void edit(Row row);
    void showDetails();
    /// Covers the form for a while, without a loop of its own; `then` runs when that is over.
    void showToast(const QString &text, const char *icon, const std::function<void()> &then);
    void dropToast();

    ListView *m_list;
    ListViewLineEditItem *m_receiver;
    ListViewLineEditItem *m_text;
    ListViewInfoItem *m_details;
    Toast *m_toast = nullptr;
};

#endif
