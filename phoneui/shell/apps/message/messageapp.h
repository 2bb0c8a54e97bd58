#ifndef MESSAGEAPP_H
#define MESSAGEAPP_H

#include "appscreen.h"
#include "sentmessages.h"

class MessageForm;

/// Short messages: those that were sent, and the form for a new one. Other applications open the form with
/// "newMessage(str)", a number; when it closes they are in front again.
class MessageApp : public AppScreen
{
    Q_OBJECT

public:
    MessageApp();

    void end() override;
    void receiveMsg(const QString &command, const QByteArray &payload) override;

protected:
    QString title() const override;
    void comeToFront() override;
    void showEvent(QShowEvent *event) override;

private:
    enum SoftKey { NewKey = 0, DeleteKey = 2, CloseKey = 3 };

    void changedLanguage();
    void softKeyClicked(int key);
    void setReceiver(const QString &number);
    void openForm(const QString &number, const QString &text, bool forAnother);
    void formClosed();
    void send(const QString &number, const QString &text);
    void openSelected(int idx);
    void deleteSelected();
    void refresh();

    SentMessages m_store;
    QList<SentMessage> m_messages; ///< as the rows show them
    ListView *m_list;
    MessageForm *m_form;
    bool m_openedByAnother = false; ///< the form is, and goes together with the application
};

#endif
