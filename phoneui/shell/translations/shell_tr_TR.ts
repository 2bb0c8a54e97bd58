<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<TS version="2.1" language="tr_TR" sourcelanguage="en_US">
<context>
    <name>Call</name>
    <message>
        <source>Dialing</source>
        <translation>Aranıyor</translation>
    </message>
    <message>
        <source>Ringing</source>
        <translation>Çalıyor</translation>
    </message>
    <message>
        <source>Connected</source>
        <translation>Bağlandı</translation>
    </message>
    <message>
        <source>Busy</source>
        <translation>Meşgul</translation>
    </message>
    <message>
        <source>Call</source>
        <translation>Arama</translation>
    </message>
    <message>
        <source>End</source>
        <translation>Bitir</translation>
    </message>
</context>
<context>
    <name>History</name>
    <message>
        <source>No History</source>
        <translation>Arama yok</translation>
    </message>
    <message>
        <source>All</source>
        <translation>Tümü</translation>
    </message>
    <message>
        <source>History</source>
        <translation>Aramalar</translation>
    </message>
    <message>
        <source>Call</source>
        <translation>Ara</translation>
    </message>
    <message>
        <source>Close</source>
        <translation>Kapat</translation>
    </message>
</context>
<context>
    <name>Idle</name>
    <message>
        <source>Contacts</source>
        <translation>Kişiler</translation>
    </message>
    <message>
        <source>History</source>
        <translation>Aramalar</translation>
    </message>
    <message>
        <source>Messages</source>
        <translation>Mesajlar</translation>
    </message>
    <message>
        <source>Keys</source>
        <translation>Tuşlar</translation>
    </message>
    <message>
        <source>Call</source>
        <translation>Arama</translation>
    </message>
    <message>
        <source>Home</source>
        <translation>Ana ekran</translation>
    </message>
    <message>
        <source>Language</source>
        <translation>Dil</translation>
    </message>
    <message>
        <source>Directory</source>
        <translation>Dizin</translation>
    </message>
    <message>
        <source>&gt;</source>
        <translation>&gt;</translation>
    </message>
</context>
<context>
    <name>KeyModule</name>
    <message>
        <source>Key Module</source>
        <translation>Tuş modülü</translation>
    </message>
    <message>
        <source>Key Module (%1/%2)</source>
        <translation>Tuş modülü (%1/%2)</translation>
    </message>
    <message>
        <source>No Keys</source>
        <translation>Tuş yok</translation>
    </message>
    <message>
        <source>Add</source>
        <translation>Ekle</translation>
    </message>
    <message>
        <source>Delete</source>
        <translation>Sil</translation>
    </message>
    <message>
        <source>Close</source>
        <translation>Kapat</translation>
    </message>
</context>
<context>
    <name>MessageApp</name>
    <message>
        <source>Messages</source>
        <translation>Mesajlar</translation>
    </message>
    <message>
        <source>Messages | Sent (%1)</source>
        <translation>Mesajlar | Giden (%1)</translation>
    </message>
    <message>
        <source>No Messages</source>
        <translation>Mesaj yok</translation>
    </message>
    <message>
        <source>New</source>
        <translation>Yeni</translation>
    </message>
    <message>
        <source>Delete</source>
        <translation>Sil</translation>
    </message>
    <message>
        <source>Close</source>
        <translation>Kapat</translation>
    </message>
</context>
<context>
    <name>MessageForm</name>
    <message>
        <source>To</source>
        <translation>Kime</translation>
    </message>
    <message>
        <source>Text</source>
        <translation>Metin</translation>
    </message>
    <message>
        <source>Close</source>
        <translation>Kapat</translation>
    </message>
    <message>
        <source>Search</source>
        <translation>Bul</translation>
    </message>
    <message>
        <source>Send</source>
        <translation>Gönder</translation>
    </message>
    <message>
        <source>Messages | New</source>
        <translation>Mesajlar | Yeni</translation>
    </message>
    <message>
        <source>Sent</source>
        <translation>Gönderildi</translation>
    </message>
    <message>
        <source>Failed</source>
        <translation>Başarısız</translation>
    </message>
    <message>
        <source>Enter a number</source>
        <translation>Numara girin</translation>
    </message>
    <message>
        <source>Enter a text</source>
        <translation>Metin girin</translation>
    </message>
</context>
</TS>
