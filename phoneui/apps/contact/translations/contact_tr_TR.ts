<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<TS version="2.1" language="tr_TR" sourcelanguage="en_US">
<context>
    <name>Contact</name>
    <message>
        <source>Edit Mode</source>
        <translation>Düzenle</translation>
    </message>
    <message>
        <source>Contacts</source>
        <translation>Kişiler</translation>
    </message>
    <message>
        <source>All</source>
        <translation>Tümü</translation>
    </message>
    <message>
        <source>Personal Phonebook</source>
        <translation>Kişisel rehber</translation>
    </message>
    <message>
        <source>System Phonebook</source>
        <translation>Sistem rehberi</translation>
    </message>
    <message>
        <source>No Contacts</source>
        <translation>Kişi yok</translation>
    </message>
    <message>
        <source>Groups</source>
        <translation>Gruplar</translation>
    </message>
    <message>
        <source>Search</source>
        <translation>Ara</translation>
    </message>
    <message>
        <source>Edit</source>
        <translation>Değiştir</translation>
    </message>
    <message>
        <source>Add Contact</source>
        <translation>Yeni</translation>
    </message>
    <message>
        <source>Delete</source>
        <translation>Sil</translation>
    </message>
    <message>
        <source>Delete All</source>
        <translation>Tümünü sil</translation>
    </message>
</context>
</TS>
