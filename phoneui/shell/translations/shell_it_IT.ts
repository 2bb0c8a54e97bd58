<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<TS version="2.1" language="it_IT" sourcelanguage="en_US">
<context>
    <name>Call</name>
    <message>
        <source>Dialing</source>
        <translation>Composizione</translation>
    </message>
    <message>
        <source>Ringing</source>
        <translation>Squilla</translation>
    </message>
    <message>
        <source>Connected</source>
        <translation>Connesso</translation>
    </message>
    <message>
        <source>Busy</source>
        <translation>Occupato</translation>
    </message>
    <message>
        <source>Call</source>
        <translation>Chiamata</translation>
    </message>
    <message>
        <source>End</source>
        <translation>Termina</translation>
    </message>
</context>
<context>
    <name>History</name>
    <message>
        <source>No History</source>
        <translation>Nessuna chiamata</translation>
    </message>
    <message>
        <source>All</source>
        <translation>Tutti</translation>
    </message>
    <message>
        <source>History</source>
        <translation>Chiamate</translation>
    </message>
    <message>
        <source>Call</source>
        <translation>Chiama</translation>
    </message>
    <message>
        <source>Close</source>
        <translation>Chiudi</translation>
    </message>
</context>
<context>
    <name>Idle</name>
    <message>
        <source>Contacts</source>
        <translation>Contatti</translation>
    </message>
    <message>
        <source>History</source>
        <translation>Chiamate</translation>
    </message>
    <message>
        <source>Messages</source>
        <translation>Messaggi</translation>
    </message>
    <message>
        <source>Keys</source>
        <translation>Tasti</translation>
    </message>
    <message>
        <source>Call</source>
        <translation>Chiamata</translation>
    </message>
    <message>
        <source>Home</source>
        <translation>Home</translation>
    </message>
    <message>
        <source>Language</source>
        <translation>Lingua</translation>
    </message>
    <message>
        <source>Directory</source>
        <translation>Elenco</translation>
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
        <translation>Modulo tasti</translation>
    </message>
    <message>
        <source>Key Module (%1/%2)</source>
        <translation>Modulo tasti (%1/%2)</translation>
    </message>
    <message>
        <source>No Keys</source>
        <translation>Nessun tasto</translation>
    </message>
    <message>
        <source>Add</source>
        <translation>Aggiungi</translation>
    </message>
    <message>
        <source>Delete</source>
        <translation>Elimina</translation>
    </message>
    <message>
        <source>Close</source>
        <translation>Chiudi</translation>
    </message>
</context>
<context>
    <name>MessageApp</name>
    <message>
        <source>Messages</source>
        <translation>Messaggi</translation>
    </message>
    <message>
        <source>Messages | Sent (%1)</source>
        <translation>Messaggi | Inviati (%1)</translation>
    </message>
    <message>
        <source>No Messages</source>
        <translation>Nessun messaggio</translation>
    </message>
    <message>
        <source>New</source>
        <translation>Nuovo</translation>
    </message>
    <message>
        <source>Delete</source>
        <translation>Elimina</translation>
    </message>
    <message>
        <source>Close</source>
        <translation>Chiudi</translation>
    </message>
</context>
<context>
    <name>MessageForm</name>
    <message>
        <source>To</source>
        <translation>A</translation>
    </message>
    <message>
        <source>Text</source>
        <translation>Testo</translation>
    </message>
    <message>
        <source>Close</source>
        <translation>Chiudi</translation>
    </message>
    <message>
        <source>Search</source>
        <translation>Cerca</translation>
    </message>
    <message>
        <source>Send</source>
        <translation>Invia</translation>
    </message>
    <message>
        <source>Messages | New</source>
        <translation>Messaggi | Nuovo</translation>
    </message>
    <message>
        <source>Sent</source>
        <translation>Inviato</translation>
    </message>
    <message>
        <source>Failed</source>
        <translation>Non riuscito</translation>
    </message>
    <message>
        <source>Enter a number</source>
        <translation>Inserire un numero</translation>
    </message>
    <message>
        <source>Enter a text</source>
        <translation>Inserire un testo</translation>
    </message>
</context>
</TS>
