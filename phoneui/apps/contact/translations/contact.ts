<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<TS version="2.1" language="en_US" sourcelanguage="en_US">
<context>
    <name>Contact</name>
    <message>
        <source>Edit Mode</source>
        <translation>Edit Mode</translation>
    </message>
    <message>
        <source>Contacts</source>
        <translation>Contacts</translation>
    </message>
    <message>
        <source>All</source>
        <translation>All</translation>
    </message>
    <message>
        <source>Personal Phonebook</source>
        <translation>Personal Phonebook</translation>
    </message>
    <message>
        <source>System Phonebook</source>
        <translation>System Phonebook</translation>
    </message>
    <message>
        <source>No Contacts</source>
        <translation>No Contacts</translation>
    </message>
    <message>
        <source>Groups</source>
        <translation>Groups</translation>
    </message>
    <message>
        <source>Search</source>
        <translation>Search</translation>
    </message>
    <message>
        <source>Edit</source>
        <translation>Edit</translation>
    </message>
    <message>
        <source>Add Contact</source>
        <translation>Add Contact</translation>
    </message>
    <message>
        <source>Delete</source>
        <translation>Delete</translation>
    </message>
    <message>
        <source>Delete All</source>
        <translation>Delete All</translation>
    </message>
</context>
</TS>
