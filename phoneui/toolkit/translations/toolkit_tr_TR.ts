<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<TS version="2.1" language="tr_TR" sourcelanguage="en_US">
<context>
    <name>GridSelectPopup</name>
    <message>
        <source>Cancel</source>
        <translation>İptal</translation>
    </message>
</context>
<context>
    <name>ListView</name>
    <message>
        <source>No Items</source>
        <translation>Öğe yok</translation>
    </message>
</context>
<context>
    <name>QObject</name>
    <message>
        <source>Monday</source>
        <translation>Pazartesi</translation>
    </message>
    <message>
        <source>Tuesday</source>
        <translation>Salı</translation>
    </message>
    <message>
        <source>Wednesday</source>
        <translation>Çarşamba</translation>
    </message>
    <message>
        <source>Thursday</source>
        <translation>Perşembe</translation>
    </message>
    <message>
        <source>Friday</source>
        <translation>Cuma</translation>
    </message>
    <message>
        <source>Saturday</source>
        <translation>Cumartesi</translation>
    </message>
    <message>
        <source>Sunday</source>
        <translation>Pazar</translation>
    </message>
</context>
<context>
    <name>SelectPopup</name>
    <message>
        <source>Cancel</source>
        <translation>İptal</translation>
    </message>
</context>
<context>
    <name>Tail</name>
    <message>
        <source>Erase</source>
        <translation>Geri sil</translation>
    </message>
</context>
</TS>
