#include "everyapp.h"

#include "contactmanager.h"
#include "qcalllist.h"
#include "ringtones.h"

SpeakingPhone::SpeakingPhone(const QString &language)
{
    installRingTones(home);
    core.setLanguageName(language);
    core.setLauncher([this](const QString &name, void *) {
        if (BaseAppInterface *app = core.getAppMap().value(name))
            app->start(nullptr, nullptr);
    });
    writeFile("config/phone_info.conf", "[Prov_Info]\nLoginMode=1\nId=kim\n");
}

void EveryApp::addPeople()
{
    ContactManager *store = phone.core.contactManager();
    store->saveGroup(GroupData(-1, "Team", ""), false);
    ContactData kim = person("Kim");
    kim.setNumbers({"100", "101", "102", "103", "104"}, {0, 1, 2, 3, 4});
    kim.setEmails({"kim@example.org"});
    kim.memo = "abc";
    kim.bell = phone.core.ringtonePath() + "/basicring/Harp.wav";
    store->saveContact(kim, false);
    QList<int> ids;
    for (const GroupData &group : store->getAllGroups(false))
        ids.append(group.id);
    store->saveGroupMember(store->getIdByUsingNameAndNumber("Kim", "100"), {ids.last()});
    phone.addContacts(7);
    phone.send("contact", "api2ui_noti_contact_changed()", {});
    phone.send("aom", "searchContactResult(str,str)", {"Kim", "100"});
    phone.core.callList()->addCall({"100", "Kim", CallRecord::Outgoing, QDateTime::currentDateTime(), 0});
}

void EveryApp::addGroups(int count)
{
    for (int i = 1; i <= count; ++i)
        phone.core.contactManager()->saveGroup(GroupData(-1, QString("G%1").arg(i), ""), false);
}

void EveryApp::addPhonebook()
{
    QByteArray text = "[Info]\nCount=5\n";
    for (const char *number : {"1", "2", "3", "4", "5"})
        text += QByteArray("[Contact_00") + number + "]\nName=Lee\nNum=20" + number
            + "\nCategory=" + (*number < '3' ? "Lab" : "") + "\nIndex=" + number + '\n';
    phone.writeFile("config/phonebook.conf", text);
}

void EveryApp::addDirectory()
{
    phone.writeFile("config/phone_info.conf", "[Prov_Info]\nLoginMode=1\nId=kim\n[Directory_svc]\nAddr=server\n");
}

void EveryApp::answer(bool found)
{
    const auto field = [](const QByteArray &type, const QByteArray &value) {
        return "<data isphone=\"" + QByteArray(type == "mobile" ? "true" : "false") + "\"><type>" + type
            + "</type><label>" + type + "</label><value>" + value + "</value></data>";
    };
    const QByteArray person = "<item>" + field("name", "Lee") + field("number", "300") + field("type", "A")
        + field("position", "B") + field("department", "C") + field("mobile", "301") + "</item>";
    phone.writeFile("run/directory-AbCdEf.xml",
                    "<directory><display charset=\"UTF-8\" pageinfo=\"1/2\" path=\"/x\" timestamp=\"1\" count=\""
                        + QByteArray(found ? "30" : "0") + "\"/>" + (found ? person : "") + "</directory>");
    phone.send("contact", "http2ui_directory_service_response(str,int)",
               {phone.home.path("run/directory-AbCdEf.xml"), 200});
}

void EveryApp::goHome()
{
    for (BaseAppInterface *app :
         std::initializer_list<BaseAppInterface *>{&contact, &message, &keys, &history, &call})
        app->end();
    idle.start(nullptr, nullptr);
}
