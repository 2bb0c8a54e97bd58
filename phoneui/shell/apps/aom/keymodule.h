#ifndef KEYMODULE_H
#define KEYMODULE_H

#include "appscreen.h"
#include "programkeys.h"

/// The key module: program keys, each of which dials one person. A person is chosen in the contacts, which answer
/// with "searchContactResult(str,str)", a name and a number.
class KeyModule : public AppScreen
{
    Q_OBJECT

public:
    KeyModule();

    void receiveMsg(const QString &command, const QByteArray &payload) override;

protected:
    QString title() const override;

private:
    enum SoftKey { AddKey = 0, DeleteKey = 2, CloseKey = 3 };

    void softKeyClicked(int key);
    void dialKey(int idx);
    void deleteSelected();
    void refresh(int selected);

    ProgramKeys m_keys;
    ListView *m_list;
};

#endif
