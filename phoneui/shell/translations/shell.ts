<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<TS version="2.1" language="en_US" sourcelanguage="en_US">
<context>
    <name>Call</name>
    <message>
        <source>Dialing</source>
        <translation>Dialing</translation>
    </message>
    <message>
        <source>Ringing</source>
        <translation>Ringing</translation>
    </message>
    <message>
        <source>Connected</source>
        <translation>Connected</translation>
    </message>
    <message>
        <source>Busy</source>
        <translation>Busy</translation>
    </message>
    <message>
        <source>Call</source>
        <translation>Call</translation>
    </message>
    <message>
        <source>End</source>
        <translation>End</translation>
    </message>
</context>
<context>
    <name>History</name>
    <message>
        <source>No History</source>
        <translation>No History</translation>
    </message>
    <message>
        <source>All</source>
        <translation>All</translation>
    </message>
    <message>
        <source>History</source>
        <translation>History</translation>
    </message>
    <message>
        <source>Call</source>
        <translation>Call</translation>
    </message>
    <message>
        <source>Close</source>
        <translation>Close</translation>
    </message>
</context>
<context>
    <name>Idle</name>
    <message>
        <source>Contacts</source>
        <translation>Contacts</translation>
    </message>
    <message>
        <source>History</source>
        <translation>History</translation>
    </message>
    <message>
        <source>Messages</source>
        <translation>Messages</translation>
    </message>
    <message>
        <source>Keys</source>
        <translation>Keys</translation>
    </message>
    <message>
        <source>Call</source>
        <translation>Call</translation>
    </message>
    <message>
        <source>Home</source>
        <translation>Home</translation>
    </message>
    <message>
        <source>Language</source>
        <translation>Language</translation>
    </message>
    <message>
        <source>Directory</source>
        <translation>Directory</translation>
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
        <translation>Key Module</translation>
    </message>
    <message>
        <source>Key Module (%1/%2)</source>
        <translation>Key Module (%1/%2)</translation>
    </message>
    <message>
        <source>No Keys</source>
        <translation>No Keys</translation>
    </message>
    <message>
        <source>Add</source>
        <translation>Add</translation>
    </message>
    <message>
        <source>Delete</source>
        <translation>Delete</translation>
    </message>
    <message>
        <source>Close</source>
        <translation>Close</translation>
    </message>
</context>
<context>
    <name>MessageApp</name>
    <message>
        <source>Messages</source>
        <translation>Messages</translation>
    </message>
    <message>
        <source>Messages | Sent (%1)</source>
        <translation>Messages | Sent (%1)</translation>
    </message>
    <message>
        <source>No Messages</source>
        <translation>No Messages</translation>
    </message>
    <message>
        <source>New</source>
        <translation>New</translation>
    </message>
    <message>
        <source>Delete</source>
        <translation>Delete</translation>
    </message>
    <message>
        <source>Close</source>
        <translation>Close</translation>
    </message>
</context>
<context>
    <name>MessageForm</name>
    <message>
        <source>To</source>
        <translation>To</translation>
    </message>
    <message>
        <source>Text</source>
        <translation>Text</translation>
    </message>
    <message>
        <source>Close</source>
        <translation>Close</translation>
    </message>
    <message>
        <source>Search</source>
        <translation>Search</translation>
    </message>
    <message>
        <source>Send</source>
        <translation>Send</translation>
    </message>
    <message>
        <source>Messages | New</source>
        <translation>Messages | New</translation>
    </message>
    <message>
        <source>Sent</source>
        <translation>Sent</translation>
    </message>
    <message>
        <source>Failed</source>
        <translation>Failed</translation>
    </message>
    <message>
        <source>Enter a number</source>
        <translation>Enter a number</translation>
    </message>
    <message>
        <source>Enter a text</source>
        <translation>Enter a text</translation>
    </message>
</context>
</TS>
