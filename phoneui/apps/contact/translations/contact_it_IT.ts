<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<TS version="2.1" language="it_IT" sourcelanguage="en_US">
<context>
    <name>Contact</name>
    <message>
        <source>Edit Mode</source>
        <translation>Gestisci</translation>
    </message>
    <message>
        <source>Contacts</source>
        <translation>Contatti</translation>
    </message>
    <message>
        <source>All</source>
        <translation>Tutti</translation>
    </message>
    <message>
        <source>Personal Phonebook</source>
        <translation>Rubrica personale</translation>
    </message>
    <message>
        <source>System Phonebook</source>
        <translation>Rubrica di sistema</translation>
    </message>
    <message>
        <source>No Contacts</source>
        <translation>Nessun contatto</translation>
    </message>
    <message>
        <source>Groups</source>
        <translation>Gruppi</translation>
    </message>
    <message>
        <source>Search</source>
        <translation>Cerca</translation>
    </message>
    <message>
        <source>Edit</source>
        <translation>Modifica</translation>
    </message>
    <message>
        <source>Add Contact</source>
        <translation>Aggiungi</translation>
    </message>
    <message>
        <source>Delete</source>
        <translation>Elimina</translation>
    </message>
    <message>
        <source>Delete All</source>
        <translation>Svuota</translation>
    </message>
    <message>
        <source>Close</source>
        <translation>Chiudi</translation>
    </message>
    <message>
        <source>Deleted</source>
        <translation>Eliminato</translation>
    </message>
    <message>
        <source>Delete the contact</source>
        <translation>Elimina contatto</translation>
    </message>
    <message>
        <source>Do you want to delete the contact?</source>
        <translation>Eliminare il contatto?</translation>
    </message>
    <message>
        <source>No</source>
        <translation>No</translation>
    </message>
    <message>
        <source>Failed</source>
        <translation>Non riuscito</translation>
    </message>
    <message>
        <source>Do you want to delete all of contacts?</source>
        <translation>Eliminare tutti i contatti?</translation>
    </message>
    <message>
        <source>Mobile Contacts will not be deleted.</source>
        <translation>I contatti del cellulare restano.</translation>
    </message>
    <message>
        <source>Delete All Contacts</source>
        <translation>Elimina tutti i contatti</translation>
    </message>
</context>
<context>
    <name>DetailsDial</name>
    <message>
        <source>Contacts | </source>
        <translation>Contatti | </translation>
    </message>
    <message>
        <source>Details</source>
        <translation>Dettagli</translation>
    </message>
    <message>
        <source>Name</source>
        <translation>Nome</translation>
    </message>
    <message>
        <source>Group</source>
        <translation>Gruppo</translation>
    </message>
    <message>
        <source>Unassigned</source>
        <translation>Senza gruppo</translation>
    </message>
    <message>
        <source>Email</source>
        <translation>E-mail</translation>
    </message>
    <message>
        <source>Bell</source>
        <translation>Suoneria</translation>
    </message>
    <message>
        <source>Memo</source>
        <translation>Nota</translation>
    </message>
    <message>
        <source>Call</source>
        <translation>Chiama</translation>
    </message>
    <message>
        <source>Message</source>
        <translation>Scrivi</translation>
    </message>
    <message>
        <source>Delete</source>
        <translation>Elimina</translation>
    </message>
    <message>
        <source>Edit</source>
        <translation>Modifica</translation>
    </message>
    <message>
        <source>Logout status</source>
        <translation>Disconnesso</translation>
    </message>
    <message>
        <source>No History</source>
        <translation>Nessuna chiamata</translation>
    </message>
    <message>
        <source>Delete the contact</source>
        <translation>Elimina contatto</translation>
    </message>
    <message>
        <source>Do you want to delete the contact?</source>
        <translation>Eliminare il contatto?</translation>
    </message>
    <message>
        <source>No</source>
        <translation>No</translation>
    </message>
    <message>
        <source>Deleted</source>
        <translation>Eliminato</translation>
    </message>
    <message>
        <source>Failed</source>
        <translation>Non riuscito</translation>
    </message>
</context>
<context>
    <name>DirectorySearchDetail</name>
    <message>
        <source>Directory Service</source>
        <translation>Elenco aziendale</translation>
    </message>
    <message>
        <source>Save</source>
        <translation>Salva</translation>
    </message>
    <message>
        <source>Call</source>
        <translation>Chiama</translation>
    </message>
    <message>
        <source>Message</source>
        <translation>Scrivi</translation>
    </message>
    <message>
        <source>Name</source>
        <translation>Nome</translation>
    </message>
    <message>
        <source>Number</source>
        <translation>Numero</translation>
    </message>
    <message>
        <source>Type</source>
        <translation>Tipo</translation>
    </message>
    <message>
        <source>Position</source>
        <translation>Qualifica</translation>
    </message>
    <message>
        <source>Department</source>
        <translation>Reparto</translation>
    </message>
    <message>
        <source>Mobile</source>
        <translation>Cellulare</translation>
    </message>
    <message>
        <source>Save contact</source>
        <translation>Salva contatto</translation>
    </message>
    <message>
        <source>Do you want to save number?</source>
        <translation>Salvare il numero?</translation>
    </message>
    <message>
        <source>New</source>
        <translation>Nuovo</translation>
    </message>
    <message>
        <source>Existing</source>
        <translation>Esistente</translation>
    </message>
    <message>
        <source>Cancel</source>
        <translation>Annulla</translation>
    </message>
</context>
<context>
    <name>GroupAdd</name>
    <message>
        <source>Contacts | Create Group </source>
        <translation>Contatti | Crea gruppo </translation>
    </message>
    <message>
        <source>Contacts | Edit Group</source>
        <translation>Contatti | Modifica gruppo</translation>
    </message>
    <message>
        <source>Save</source>
        <translation>Salva</translation>
    </message>
    <message>
        <source>Group Name</source>
        <translation>Nome gruppo</translation>
    </message>
    <message>
        <source>Group Bell</source>
        <translation>Suoneria</translation>
    </message>
    <message>
        <source>Unassigned.wav</source>
        <translation>Nessuna.wav</translation>
    </message>
    <message>
        <source>Unassigned</source>
        <translation>Nessuna</translation>
    </message>
    <message>
        <source>Cancel</source>
        <translation>Annulla</translation>
    </message>
    <message>
        <source>Enter group name</source>
        <translation>Inserire il nome del gruppo</translation>
    </message>
    <message>
        <source>Group name already exists</source>
        <translation>Il gruppo esiste già</translation>
    </message>
    <message>
        <source>Saved</source>
        <translation>Salvato</translation>
    </message>
    <message>
        <source>Failed</source>
        <translation>Non riuscito</translation>
    </message>
    <message>
        <source>Office</source>
        <translation>Ufficio</translation>
    </message>
</context>
<context>
    <name>GroupDetail</name>
    <message>
        <source>No contacts</source>
        <translation>Nessun contatto</translation>
    </message>
    <message>
        <source>Contacts | </source>
        <translation>Contatti | </translation>
    </message>
    <message>
        <source>Unassigned</source>
        <translation>Senza gruppo</translation>
    </message>
    <message>
        <source>Detail</source>
        <translation>Dettagli</translation>
    </message>
    <message>
        <source>Add Contact</source>
        <translation>Aggiungi</translation>
    </message>
    <message>
        <source>Delete</source>
        <translation>Elimina</translation>
    </message>
    <message>
        <source>Delete All</source>
        <translation>Svuota</translation>
    </message>
    <message>
        <source>Deleted</source>
        <translation>Eliminato</translation>
    </message>
    <message>
        <source>Failed</source>
        <translation>Non riuscito</translation>
    </message>
    <message>
        <source>Do you want to delete the %1 in this group?</source>
        <translation>Togliere %1 dal gruppo?</translation>
    </message>
    <message>
        <source>Delete Contact</source>
        <translation>Rimuovi contatto</translation>
    </message>
    <message>
        <source>No</source>
        <translation>No</translation>
    </message>
    <message>
        <source>Delete All Contacts</source>
        <translation>Rimuovi tutti i contatti</translation>
    </message>
    <message>
        <source>Do you want to delete all of contacts in this group?</source>
        <translation>Togliere tutti i contatti dal gruppo?</translation>
    </message>
</context>
<context>
    <name>GroupList</name>
    <message>
        <source>Contacts | Groups</source>
        <translation>Contatti | Gruppi</translation>
    </message>
    <message>
        <source>All</source>
        <translation>Tutti</translation>
    </message>
    <message>
        <source>Add Group</source>
        <translation>Nuovo</translation>
    </message>
    <message>
        <source>Unassigned</source>
        <translation>Senza gruppo</translation>
    </message>
    <message>
        <source>Delete</source>
        <translation>Elimina</translation>
    </message>
    <message>
        <source>Edit</source>
        <translation>Modifica</translation>
    </message>
    <message>
        <source>Max limit exceeded</source>
        <translation>Massimo 30 gruppi</translation>
    </message>
    <message>
        <source>Delete the group?</source>
        <translation>Eliminare il gruppo?</translation>
    </message>
    <message>
        <source>Group members will move to Unassigned group</source>
        <translation>I contatti resteranno senza gruppo.</translation>
    </message>
    <message>
        <source>Delete Group</source>
        <translation>Elimina gruppo</translation>
    </message>
    <message>
        <source>No</source>
        <translation>No</translation>
    </message>
    <message>
        <source>Deleted</source>
        <translation>Eliminato</translation>
    </message>
    <message>
        <source>Failed</source>
        <translation>Non riuscito</translation>
    </message>
</context>
<context>
    <name>GroupList_At_Contact</name>
    <message>
        <source>Contacts | Groups</source>
        <translation>Contatti | Gruppi</translation>
    </message>
    <message>
        <source>Create Group</source>
        <translation>Crea gruppo</translation>
    </message>
    <message>
        <source>Done</source>
        <translation>Fatto</translation>
    </message>
    <message>
        <source>Unassigned</source>
        <translation>Senza gruppo</translation>
    </message>
    <message>
        <source>Erase</source>
        <translation>Cancella</translation>
    </message>
    <message>
        <source>OK</source>
        <translation>OK</translation>
    </message>
    <message>
        <source>Cancel</source>
        <translation>Annulla</translation>
    </message>
    <message>
        <source>Enter name</source>
        <translation>Inserire il nome</translation>
    </message>
    <message>
        <source>Input name max 30 byte</source>
        <translation>Nome: massimo 30 byte</translation>
    </message>
    <message>
        <source>Group name already exists</source>
        <translation>Il gruppo esiste già</translation>
    </message>
    <message>
        <source>Max limit exceeded</source>
        <translation>Massimo 10 gruppi</translation>
    </message>
    <message>
        <source>Contacts | Create Group</source>
        <translation>Contatti | Crea gruppo</translation>
    </message>
    <message>
        <source>Created</source>
        <translation>Creato</translation>
    </message>
</context>
<context>
    <name>NumberEdit</name>
    <message>
        <source>Contacts | Edit</source>
        <translation>Contatti | Modifica</translation>
    </message>
    <message>
        <source>Contacts | Add</source>
        <translation>Contatti | Aggiungi</translation>
    </message>
    <message>
        <source>Add Field</source>
        <translation>Aggiungi</translation>
    </message>
    <message>
        <source>Save</source>
        <translation>Salva</translation>
    </message>
    <message>
        <source>Unassigned</source>
        <translation>Senza gruppo</translation>
    </message>
    <message>
        <source>Delete Field</source>
        <translation>Rimuovi</translation>
    </message>
    <message>
        <source>Saved</source>
        <translation>Salvato</translation>
    </message>
    <message>
        <source>Enter Name</source>
        <translation>Inserire il nome</translation>
    </message>
    <message>
        <source>Input Numbers</source>
        <translation>Inserire un numero</translation>
    </message>
    <message>
        <source>Reached save limit</source>
        <translation>Memoria piena</translation>
    </message>
    <message>
        <source>Number is full
Delete other Number First</source>
        <translation>Numeri esauriti.
Eliminarne prima un altro.</translation>
    </message>
    <message>
        <source>Failed</source>
        <translation>Non riuscito</translation>
    </message>
    <message>
        <source>Email</source>
        <translation>E-mail</translation>
    </message>
    <message>
        <source>Bell</source>
        <translation>Suoneria</translation>
    </message>
    <message>
        <source>Undesignated</source>
        <translation>Nessuna</translation>
    </message>
    <message>
        <source>Name</source>
        <translation>Nome</translation>
    </message>
    <message>
        <source>Group</source>
        <translation>Gruppo</translation>
    </message>
    <message>
        <source>Memo</source>
        <translation>Nota</translation>
    </message>
    <message>
        <source>Cancel</source>
        <translation>Annulla</translation>
    </message>
    <message>
        <source>Do you want to delete this Field?</source>
        <translation>Rimuovere questo campo?</translation>
    </message>
    <message>
        <source>Delete</source>
        <translation>Elimina</translation>
    </message>
    <message>
        <source>No</source>
        <translation>No</translation>
    </message>
</context>
<context>
    <name>QObject</name>
    <message>
        <source>Number</source>
        <translation>Numero</translation>
    </message>
    <message>
        <source>Company</source>
        <translation>Ufficio:</translation>
    </message>
    <message>
        <source>Mobile</source>
        <translation>Cellulare:</translation>
    </message>
    <message>
        <source>Home</source>
        <translation>Casa:</translation>
    </message>
    <message>
        <source>Fax</source>
        <translation>Fax:</translation>
    </message>
    <message>
        <source>Etc</source>
        <translation>Altro:</translation>
    </message>
</context>
<context>
    <name>SearchAll</name>
    <message>
        <source>Contacts | Search</source>
        <translation>Contatti | Cerca</translation>
    </message>
    <message>
        <source>No Result</source>
        <translation>Nessun risultato</translation>
    </message>
    <message>
        <source>Call</source>
        <translation>Chiama</translation>
    </message>
</context>
<context>
    <name>SearchDir</name>
    <message>
        <source>Directory Service</source>
        <translation>Elenco aziendale</translation>
    </message>
    <message>
        <source>Search</source>
        <translation>Cerca</translation>
    </message>
    <message>
        <source>Search Type</source>
        <translation>Cerca per</translation>
    </message>
    <message>
        <source>Name</source>
        <translation>Nome</translation>
    </message>
    <message>
        <source>Number</source>
        <translation>Numero</translation>
    </message>
    <message>
        <source>The keyword is too short</source>
        <translation>La parola è troppo corta</translation>
    </message>
    <message>
        <source>Input at least 3 digits</source>
        <translation>Inserire almeno 3 cifre</translation>
    </message>
    <message>
        <source>Cancel</source>
        <translation>Annulla</translation>
    </message>
</context>
<context>
    <name>SearchDirResult</name>
    <message>
        <source>No Result</source>
        <translation>Nessun risultato</translation>
    </message>
    <message>
        <source>Directory Service</source>
        <translation>Elenco aziendale</translation>
    </message>
    <message>
        <source>page</source>
        <translation> pag.</translation>
    </message>
    <message>
        <source>Call</source>
        <translation>Chiama</translation>
    </message>
    <message>
        <source>Message</source>
        <translation>Scrivi</translation>
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
        <translation>Tutti</translation>
    </message>
    <message>
        <source>Unassigned</source>
        <translation>Senza gruppo</translation>
    </message>
</context>
<context>
    <name>SystemPhonebookCategoryWidget</name>
    <message>
        <source>System Phonebook</source>
        <translation>Rubrica di sistema</translation>
    </message>
    <message>
        <source>Groups</source>
        <translation>Gruppi</translation>
    </message>
    <message>
        <source>All</source>
        <translation>Tutti</translation>
    </message>
</context>
<context>
    <name>SystemPhonebookListWidget</name>
    <message>
        <source>All</source>
        <translation>Tutti</translation>
    </message>
    <message>
        <source>Unassigned</source>
        <translation>Senza gruppo</translation>
    </message>
    <message>
        <source>System Phonebook</source>
        <translation>Rubrica di sistema</translation>
    </message>
    <message>
        <source>Groups</source>
        <translation>Gruppi</translation>
    </message>
    <message>
        <source>Call</source>
        <translation>Chiama</translation>
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
