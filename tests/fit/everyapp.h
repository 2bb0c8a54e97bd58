#ifndef EVERYAPP_H
#define EVERYAPP_H

#include "phonetexts.h"
#include "testphone.h"

#include "apps/aom/keymodule.h"
#include "apps/call/call.h"
#include "apps/history/history.h"
#include "apps/idle/idle.h"
#include "apps/message/messageapp.h"
#include "contact.h"

/// A phone in one language whose applications start each other.
class SpeakingPhone : public TestPhone
{
public:
    explicit SpeakingPhone(const QString &language);
};

/// A phone in one language with all its applications.
class EveryApp
{
public:
    explicit EveryApp(const QString &language) : phone(language) { }

    /// People with all fields, a group, a call, a message, a program key. All names are short.
    void addPeople();
    void addGroups(int count);
    /// A phonebook of the system's own, with two categories.
    void addPhonebook();
    void addDirectory();
    /// What a directory server of two pages says, or of none.
    void answer(bool found);
    /// Closes everything above the home screen.
    void goHome();

    SpeakingPhone phone;
    PhoneTexts texts;
    Idle idle;
    Call call;
    History history;
    MessageApp message;
    KeyModule keys;
    Contact contact;
};

#endif
