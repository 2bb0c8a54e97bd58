<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<TS version="2.1" language="de_DE" sourcelanguage="en_US">
<context>
    <name>Contact</name>
    <message>
        <source>Edit Mode</source>
        <translation>Verwalten</translation>
    </message>
    <message>
        <source>Contacts</source>
        <translation>Kontakte</translation>
    </message>
    <message>
        <source>All</source>
        <translation>Alle</translation>
    </message>
    <message>
        <source>Personal Phonebook</source>
        <translation>Persönliches Telefonbuch</translation>
    </message>
    <message>
        <source>System Phonebook</source>
        <translation>System-Telefonbuch</translation>
    </message>
    <message>
        <source>No Contacts</source>
        <translation>Keine Kontakte</translation>
    </message>
    <message>
        <source>Groups</source>
        <translation>Gruppen</translation>
    </message>
    <message>
        <source>Search</source>
        <translation>Suchen</translation>
    </message>
    <message>
        <source>Edit</source>
        <translation>Ändern</translation>
    </message>
    <message>
        <source>Add Contact</source>
        <translation>Neu</translation>
    </message>
    <message>
        <source>Delete</source>
        <translation>Löschen</translation>
    </message>
    <message>
        <source>Delete All</source>
        <translation>Leeren</translation>
    </message>
    <message>
        <source>Close</source>
        <translation>Schließen</translation>
    </message>
    <message>
        <source>Deleted</source>
        <translation>Gelöscht</translation>
    </message>
    <message>
        <source>Delete the contact</source>
        <translation>Kontakt löschen</translation>
    </message>
    <message>
        <source>Do you want to delete the contact?</source>
        <translation>Kontakt löschen?</translation>
    </message>
    <message>
        <source>No</source>
        <translation>Nein</translation>
    </message>
    <message>
        <source>Failed</source>
        <translation>Fehlgeschlagen</translation>
    </message>
    <message>
        <source>Do you want to delete all of contacts?</source>
        <translation>Alle Kontakte löschen?</translation>
    </message>
    <message>
        <source>Mobile Contacts will not be deleted.</source>
        <translation>Kontakte des Handys bleiben.</translation>
    </message>
    <message>
        <source>Delete All Contacts</source>
        <translation>Alle Kontakte löschen</translation>
    </message>
</context>
<context>
    <name>DetailsDial</name>
    <message>
        <source>Contacts | </source>
        <translation>Kontakte | </translation>
    </message>
    <message>
        <source>Details</source>
        <translation>Details</translation>
    </message>
    <message>
        <source>Name</source>
        <translation>Name</translation>
    </message>
    <message>
        <source>Group</source>
        <translation>Gruppe</translation>
    </message>
    <message>
        <source>Unassigned</source>
        <translation>Ohne Gruppe</translation>
    </message>
    <message>
        <source>Email</source>
        <translation>E-Mail</translation>
    </message>
    <message>
        <source>Bell</source>
        <translation>Klingelton</translation>
    </message>
    <message>
        <source>Memo</source>
        <translation>Notiz</translation>
    </message>
    <message>
        <source>Call</source>
        <translation>Anrufen</translation>
    </message>
    <message>
        <source>Message</source>
        <translation>Nachricht</translation>
    </message>
    <message>
        <source>Delete</source>
        <translation>Löschen</translation>
    </message>
    <message>
        <source>Edit</source>
        <translation>Ändern</translation>
    </message>
    <message>
        <source>Logout status</source>
        <translation>Abgemeldet</translation>
    </message>
    <message>
        <source>No History</source>
        <translation>Keine Anrufe</translation>
    </message>
    <message>
        <source>Delete the contact</source>
        <translation>Kontakt löschen</translation>
    </message>
    <message>
        <source>Do you want to delete the contact?</source>
        <translation>Kontakt löschen?</translation>
    </message>
    <message>
        <source>No</source>
        <translation>Nein</translation>
    </message>
    <message>
        <source>Deleted</source>
        <translation>Gelöscht</translation>
    </message>
    <message>
        <source>Failed</source>
        <translation>Fehlgeschlagen</translation>
    </message>
</context>
<context>
    <name>DirectorySearchDetail</name>
    <message>
        <source>Directory Service</source>
        <translation>Verzeichnis</translation>
    </message>
    <message>
        <source>Save</source>
        <translation>Speichern</translation>
    </message>
    <message>
        <source>Call</source>
        <translation>Anrufen</translation>
    </message>
    <message>
        <source>Message</source>
        <translation>Nachricht</translation>
    </message>
    <message>
        <source>Name</source>
        <translation>Name</translation>
    </message>
    <message>
        <source>Number</source>
        <translation>Nummer</translation>
    </message>
    <message>
        <source>Type</source>
        <translation>Art</translation>
    </message>
    <message>
        <source>Position</source>
        <translation>Funktion</translation>
    </message>
    <message>
        <source>Department</source>
        <translation>Abteilung</translation>
    </message>
    <message>
        <source>Mobile</source>
        <translation>Mobil</translation>
    </message>
    <message>
        <source>Save contact</source>
        <translation>Kontakt speichern</translation>
    </message>
    <message>
        <source>Do you want to save number?</source>
        <translation>Nummer speichern?</translation>
    </message>
    <message>
        <source>New</source>
        <translation>Neu</translation>
    </message>
    <message>
        <source>Existing</source>
        <translation>Vorhanden</translation>
    </message>
    <message>
        <source>Cancel</source>
        <translation>Abbruch</translation>
    </message>
</context>
<context>
    <name>GroupAdd</name>
    <message>
        <source>Contacts | Create Group </source>
        <translation>Kontakte | Neue Gruppe </translation>
    </message>
    <message>
        <source>Contacts | Edit Group</source>
        <translation>Kontakte | Gruppe ändern</translation>
    </message>
    <message>
        <source>Save</source>
        <translation>Speichern</translation>
    </message>
    <message>
        <source>Group Name</source>
        <translation>Gruppenname</translation>
    </message>
    <message>
        <source>Group Bell</source>
        <translation>Klingelton</translation>
    </message>
    <message>
        <source>Unassigned.wav</source>
        <translation>Ohne.wav</translation>
    </message>
    <message>
        <source>Unassigned</source>
        <translation>Ohne</translation>
    </message>
    <message>
        <source>Cancel</source>
        <translation>Abbruch</translation>
    </message>
    <message>
        <source>Enter group name</source>
        <translation>Gruppennamen eingeben</translation>
    </message>
    <message>
        <source>Group name already exists</source>
        <translation>Diese Gruppe gibt es schon</translation>
    </message>
    <message>
        <source>Saved</source>
        <translation>Gespeichert</translation>
    </message>
    <message>
        <source>Failed</source>
        <translation>Fehlgeschlagen</translation>
    </message>
    <message>
        <source>Office</source>
        <translation>Büro</translation>
    </message>
</context>
<context>
    <name>GroupDetail</name>
    <message>
        <source>No contacts</source>
        <translation>Keine Kontakte</translation>
    </message>
    <message>
        <source>Contacts | </source>
        <translation>Kontakte | </translation>
    </message>
    <message>
        <source>Unassigned</source>
        <translation>Ohne Gruppe</translation>
    </message>
    <message>
        <source>Detail</source>
        <translation>Details</translation>
    </message>
    <message>
        <source>Add Contact</source>
        <translation>Neu</translation>
    </message>
    <message>
        <source>Delete</source>
        <translation>Löschen</translation>
    </message>
    <message>
        <source>Delete All</source>
        <translation>Leeren</translation>
    </message>
    <message>
        <source>Deleted</source>
        <translation>Gelöscht</translation>
    </message>
    <message>
        <source>Failed</source>
        <translation>Fehlgeschlagen</translation>
    </message>
    <message>
        <source>Do you want to delete the %1 in this group?</source>
        <translation>%1 aus der Gruppe entfernen?</translation>
    </message>
    <message>
        <source>Delete Contact</source>
        <translation>Kontakt entfernen</translation>
    </message>
    <message>
        <source>No</source>
        <translation>Nein</translation>
    </message>
    <message>
        <source>Delete All Contacts</source>
        <translation>Alle entfernen</translation>
    </message>
    <message>
        <source>Do you want to delete all of contacts in this group?</source>
        <translation>Alle Kontakte aus der Gruppe entfernen?</translation>
    </message>
</context>
<context>
    <name>GroupList</name>
    <message>
        <source>Contacts | Groups</source>
        <translation>Kontakte | Gruppen</translation>
    </message>
    <message>
        <source>All</source>
        <translation>Alle</translation>
    </message>
    <message>
        <source>Add Group</source>
        <translation>Neu</translation>
    </message>
    <message>
        <source>Unassigned</source>
        <translation>Ohne Gruppe</translation>
    </message>
    <message>
        <source>Delete</source>
        <translation>Löschen</translation>
    </message>
    <message>
        <source>Edit</source>
        <translation>Ändern</translation>
    </message>
    <message>
        <source>Max limit exceeded</source>
        <translation>Höchstens 30 Gruppen</translation>
    </message>
    <message>
        <source>Delete the group?</source>
        <translation>Gruppe löschen?</translation>
    </message>
    <message>
        <source>Group members will move to Unassigned group</source>
        <translation>Ihre Kontakte sind dann ohne Gruppe.</translation>
    </message>
    <message>
        <source>Delete Group</source>
        <translation>Gruppe löschen</translation>
    </message>
    <message>
        <source>No</source>
        <translation>Nein</translation>
    </message>
    <message>
        <source>Deleted</source>
        <translation>Gelöscht</translation>
    </message>
    <message>
        <source>Failed</source>
        <translation>Fehlgeschlagen</translation>
    </message>
</context>
<context>
    <name>GroupList_At_Contact</name>
    <message>
        <source>Contacts | Groups</source>
        <translation>Kontakte | Gruppen</translation>
    </message>
    <message>
        <source>Create Group</source>
        <translation>Neue Gruppe</translation>
    </message>
    <message>
        <source>Done</source>
        <translation>Fertig</translation>
    </message>
    <message>
        <source>Unassigned</source>
        <translation>Ohne Gruppe</translation>
    </message>
    <message>
        <source>Erase</source>
        <translation>Löschen</translation>
    </message>
    <message>
        <source>OK</source>
        <translation>OK</translation>
    </message>
    <message>
        <source>Cancel</source>
        <translation>Abbruch</translation>
    </message>
    <message>
        <source>Enter name</source>
        <translation>Namen eingeben</translation>
    </message>
    <message>
        <source>Input name max 30 byte</source>
        <translation>Name höchstens 30 Byte</translation>
    </message>
    <message>
        <source>Group name already exists</source>
        <translation>Diese Gruppe gibt es schon</translation>
    </message>
    <message>
        <source>Max limit exceeded</source>
        <translation>Höchstens 10 Gruppen</translation>
    </message>
    <message>
        <source>Contacts | Create Group</source>
        <translation>Kontakte | Neue Gruppe</translation>
    </message>
    <message>
        <source>Created</source>
        <translation>Angelegt</translation>
    </message>
</context>
<context>
    <name>NumberEdit</name>
    <message>
        <source>Contacts | Edit</source>
        <translation>Kontakte | Ändern</translation>
    </message>
    <message>
        <source>Contacts | Add</source>
        <translation>Kontakte | Neu</translation>
    </message>
    <message>
        <source>Add Field</source>
        <translation>Neu</translation>
    </message>
    <message>
        <source>Save</source>
        <translation>Speichern</translation>
    </message>
    <message>
        <source>Unassigned</source>
        <translation>Ohne Gruppe</translation>
    </message>
    <message>
        <source>Delete Field</source>
        <translation>Entfernen</translation>
    </message>
    <message>
        <source>Saved</source>
        <translation>Gespeichert</translation>
    </message>
    <message>
        <source>Enter Name</source>
        <translation>Namen eingeben</translation>
    </message>
    <message>
        <source>Input Numbers</source>
        <translation>Nummer eingeben</translation>
    </message>
    <message>
        <source>Reached save limit</source>
        <translation>Speicher voll</translation>
    </message>
    <message>
        <source>Number is full
Delete other Number First</source>
        <translation>Alle Nummern sind belegt.
Zuerst eine andere löschen.</translation>
    </message>
    <message>
        <source>Failed</source>
        <translation>Fehlgeschlagen</translation>
    </message>
    <message>
        <source>Email</source>
        <translation>E-Mail</translation>
    </message>
    <message>
        <source>Bell</source>
        <translation>Klingelton</translation>
    </message>
    <message>
        <source>Undesignated</source>
        <translation>Ohne</translation>
    </message>
    <message>
        <source>Name</source>
        <translation>Name</translation>
    </message>
    <message>
        <source>Group</source>
        <translation>Gruppe</translation>
    </message>
    <message>
        <source>Memo</source>
        <translation>Notiz</translation>
    </message>
    <message>
        <source>Cancel</source>
        <translation>Abbruch</translation>
    </message>
    <message>
        <source>Do you want to delete this Field?</source>
        <translation>Feld entfernen?</translation>
    </message>
    <message>
        <source>Delete</source>
        <translation>Löschen</translation>
    </message>
    <message>
        <source>No</source>
        <translation>Nein</translation>
    </message>
</context>
<context>
    <name>QObject</name>
    <message>
        <source>Number</source>
        <translation>Nummer</translation>
    </message>
    <message>
        <source>Company</source>
        <translation>Firma:</translation>
    </message>
    <message>
        <source>Mobile</source>
        <translation>Mobil:</translation>
    </message>
    <message>
        <source>Home</source>
        <translation>Privat:</translation>
    </message>
    <message>
        <source>Fax</source>
        <translation>Fax:</translation>
    </message>
    <message>
        <source>Etc</source>
        <translation>Andere:</translation>
    </message>
</context>
<context>
    <name>SearchAll</name>
    <message>
        <source>Contacts | Search</source>
        <translation>Kontakte | Suchen</translation>
    </message>
    <message>
        <source>No Result</source>
        <translation>Nichts gefunden</translation>
    </message>
    <message>
        <source>Call</source>
        <translation>Anrufen</translation>
    </message>
</context>
<context>
    <name>SearchDir</name>
    <message>
        <source>Directory Service</source>
        <translation>Verzeichnis</translation>
    </message>
    <message>
        <source>Search</source>
        <translation>Suchen</translation>
    </message>
    <message>
        <source>Search Type</source>
        <translation>Suche nach</translation>
    </message>
    <message>
        <source>Name</source>
        <translation>Name</translation>
    </message>
    <message>
        <source>Number</source>
        <translation>Nummer</translation>
    </message>
    <message>
        <source>The keyword is too short</source>
        <translation>Das Suchwort ist zu kurz</translation>
    </message>
    <message>
        <source>Input at least 3 digits</source>
        <translation>Mindestens 3 Ziffern eingeben</translation>
    </message>
    <message>
        <source>Cancel</source>
        <translation>Abbruch</translation>
    </message>
</context>
<context>
    <name>SearchDirResult</name>
    <message>
        <source>No Result</source>
        <translation>Nichts gefunden</translation>
    </message>
    <message>
        <source>Directory Service</source>
        <translation>Verzeichnis</translation>
    </message>
    <message>
        <source>page</source>
        <translation> S.</translation>
    </message>
    <message>
        <source>Call</source>
        <translation>Anrufen</translation>
    </message>
    <message>
        <source>Message</source>
        <translation>Nachricht</translation>
    </message>
    <message>
        <source>&lt;</source>
        <translation>&lt;</translation>
    </message>
    <message>
        <source>&gt;</source>
        <translation>&gt;</translation>
    </message>
</context>
<context>
    <name>SystemPhonebookCategoryModel</name>
    <message>
        <source>All</source>
        <translation>Alle</translation>
    </message>
    <message>
        <source>Unassigned</source>
        <translation>Ohne Gruppe</translation>
    </message>
</context>
<context>
    <name>SystemPhonebookCategoryWidget</name>
    <message>
        <source>System Phonebook</source>
        <translation>System-Telefonbuch</translation>
    </message>
    <message>
        <source>Groups</source>
        <translation>Gruppen</translation>
    </message>
    <message>
        <source>All</source>
        <translation>Alle</translation>
    </message>
</context>
<context>
    <name>SystemPhonebookListWidget</name>
    <message>
        <source>All</source>
        <translation>Alle</translation>
    </message>
    <message>
        <source>Unassigned</source>
        <translation>Ohne Gruppe</translation>
    </message>
    <message>
        <source>System Phonebook</source>
        <translation>System-Telefonbuch</translation>
    </message>
    <message>
        <source>Groups</source>
        <translation>Gruppen</translation>
    </message>
    <message>
        <source>Call</source>
        <translation>Anrufen</translation>
    </message>
</context>
<context>
    <name>SystemPhonebookWidget</name>
    <message>
        <source>&lt;</source>
        <translation>&lt;</translation>
    </message>
    <message>
        <source>&gt;</source>
        <translation>&gt;</translation>
    </message>
</context>
</TS>
