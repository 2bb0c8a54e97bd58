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
        <translation>Nuovo</translation>
    </message>
    <message>
        <source>Delete</source>
        <translation>Elimina</translation>
    </message>
    <message>
        <source>Delete All</source>
        <translation>Elimina tutti</translation>
    </message>
</context>
</TS>
