<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<TS version="2.1" language="de_DE" sourcelanguage="en_US">
<context>
    <name>Call</name>
    <message>
        <source>Dialing</source>
        <translation>Wählt</translation>
    </message>
    <message>
        <source>Ringing</source>
        <translation>Klingelt</translation>
    </message>
    <message>
        <source>Connected</source>
        <translation>Verbunden</translation>
    </message>
    <message>
        <source>Busy</source>
        <translation>Besetzt</translation>
    </message>
    <message>
        <source>Call</source>
        <translation>Anruf</translation>
    </message>
    <message>
        <source>End</source>
        <translation>Auflegen</translation>
    </message>
</context>
<context>
    <name>History</name>
    <message>
        <source>No History</source>
        <translation>Keine Anrufe</translation>
    </message>
    <message>
        <source>All</source>
        <translation>Alle</translation>
    </message>
    <message>
        <source>History</source>
        <translation>Anrufe</translation>
    </message>
    <message>
        <source>Call</source>
        <translation>Anrufen</translation>
    </message>
    <message>
        <source>Close</source>
        <translation>Schließen</translation>
    </message>
</context>
<context>
    <name>Idle</name>
    <message>
        <source>Contacts</source>
        <translation>Kontakte</translation>
    </message>
    <message>
        <source>History</source>
        <translation>Anrufe</translation>
    </message>
    <message>
        <source>Messages</source>
        <translation>Nachrichten</translation>
    </message>
    <message>
        <source>Keys</source>
        <translation>Tasten</translation>
    </message>
    <message>
        <source>Call</source>
        <translation>Anruf</translation>
    </message>
    <message>
        <source>Home</source>
        <translation>Startseite</translation>
    </message>
    <message>
        <source>Language</source>
        <translation>Sprache</translation>
    </message>
    <message>
        <source>Directory</source>
        <translation>Verzeichnis</translation>
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
        <translation>Tastenmodul</translation>
    </message>
    <message>
        <source>Key Module (%1/%2)</source>
        <translation>Tastenmodul (%1/%2)</translation>
    </message>
    <message>
        <source>No Keys</source>
        <translation>Keine Tasten</translation>
    </message>
    <message>
        <source>Add</source>
        <translation>Neu</translation>
    </message>
    <message>
        <source>Delete</source>
        <translation>Löschen</translation>
    </message>
    <message>
        <source>Close</source>
        <translation>Schließen</translation>
    </message>
</context>
<context>
    <name>MessageApp</name>
    <message>
        <source>Messages</source>
        <translation>Nachrichten</translation>
    </message>
    <message>
        <source>Messages | Sent (%1)</source>
        <translation>Nachrichten | Gesendet (%1)</translation>
    </message>
    <message>
        <source>No Messages</source>
        <translation>Keine Nachrichten</translation>
    </message>
    <message>
        <source>New</source>
        <translation>Neu</translation>
    </message>
    <message>
        <source>Delete</source>
        <translation>Löschen</translation>
    </message>
    <message>
        <source>Close</source>
        <translation>Schließen</translation>
    </message>
</context>
<context>
    <name>MessageForm</name>
    <message>
        <source>To</source>
        <translation>An</translation>
    </message>
    <message>
        <source>Text</source>
        <translation>Text</translation>
    </message>
    <message>
        <source>Close</source>
        <translation>Schließen</translation>
    </message>
    <message>
        <source>Search</source>
        <translation>Suchen</translation>
    </message>
    <message>
        <source>Send</source>
        <translation>Senden</translation>
    </message>
    <message>
        <source>Messages | New</source>
        <translation>Nachrichten | Neu</translation>
    </message>
    <message>
        <source>Sent</source>
        <translation>Gesendet</translation>
    </message>
    <message>
        <source>Failed</source>
        <translation>Fehlgeschlagen</translation>
    </message>
    <message>
        <source>Enter a number</source>
        <translation>Nummer eingeben</translation>
    </message>
    <message>
        <source>Enter a text</source>
        <translation>Text eingeben</translation>
    </message>
</context>
</TS>
