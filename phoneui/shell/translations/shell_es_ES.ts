<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<TS version="2.1" language="es_ES" sourcelanguage="en_US">
<context>
    <name>Call</name>
    <message>
        <source>Dialing</source>
        <translation>Marcando</translation>
    </message>
    <message>
        <source>Ringing</source>
        <translation>Sonando</translation>
    </message>
    <message>
        <source>Connected</source>
        <translation>Conectado</translation>
    </message>
    <message>
        <source>Busy</source>
        <translation>Ocupado</translation>
    </message>
    <message>
        <source>Call</source>
        <translation>Llamada</translation>
    </message>
    <message>
        <source>End</source>
        <translation>Colgar</translation>
    </message>
</context>
<context>
    <name>History</name>
    <message>
        <source>No History</source>
        <translation>Sin llamadas</translation>
    </message>
    <message>
        <source>All</source>
        <translation>Todos</translation>
    </message>
    <message>
        <source>History</source>
        <translation>Llamadas</translation>
    </message>
    <message>
        <source>Call</source>
        <translation>Llamar</translation>
    </message>
    <message>
        <source>Close</source>
        <translation>Cerrar</translation>
    </message>
</context>
<context>
    <name>Idle</name>
    <message>
        <source>Contacts</source>
        <translation>Contactos</translation>
    </message>
    <message>
        <source>History</source>
        <translation>Llamadas</translation>
    </message>
    <message>
        <source>Messages</source>
        <translation>Mensajes</translation>
    </message>
    <message>
        <source>Keys</source>
        <translation>Teclas</translation>
    </message>
    <message>
        <source>Call</source>
        <translation>Llamada</translation>
    </message>
    <message>
        <source>Home</source>
        <translation>Inicio</translation>
    </message>
    <message>
        <source>Language</source>
        <translation>Idioma</translation>
    </message>
    <message>
        <source>Directory</source>
        <translation>Directorio</translation>
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
        <translation>Módulo de teclas</translation>
    </message>
    <message>
        <source>Key Module (%1/%2)</source>
        <translation>Módulo de teclas (%1/%2)</translation>
    </message>
    <message>
        <source>No Keys</source>
        <translation>Sin teclas</translation>
    </message>
    <message>
        <source>Add</source>
        <translation>Añadir</translation>
    </message>
    <message>
        <source>Delete</source>
        <translation>Borrar</translation>
    </message>
    <message>
        <source>Close</source>
        <translation>Cerrar</translation>
    </message>
</context>
<context>
    <name>MessageApp</name>
    <message>
        <source>Messages</source>
        <translation>Mensajes</translation>
    </message>
    <message>
        <source>Messages | Sent (%1)</source>
        <translation>Mensajes | Enviados (%1)</translation>
    </message>
    <message>
        <source>No Messages</source>
        <translation>Sin mensajes</translation>
    </message>
    <message>
        <source>New</source>
        <translation>Nuevo</translation>
    </message>
    <message>
        <source>Delete</source>
        <translation>Borrar</translation>
    </message>
    <message>
        <source>Close</source>
        <translation>Cerrar</translation>
    </message>
</context>
<context>
    <name>MessageForm</name>
    <message>
        <source>To</source>
        <translation>Para</translation>
    </message>
    <message>
        <source>Text</source>
        <translation>Texto</translation>
    </message>
    <message>
        <source>Close</source>
        <translation>Cerrar</translation>
    </message>
    <message>
        <source>Search</source>
        <translation>Buscar</translation>
    </message>
    <message>
        <source>Send</source>
        <translation>Enviar</translation>
    </message>
    <message>
        <source>Messages | New</source>
        <translation>Mensajes | Nuevo</translation>
    </message>
    <message>
        <source>Sent</source>
        <translation>Enviado</translation>
    </message>
    <message>
        <source>Failed</source>
        <translation>No se pudo</translation>
    </message>
    <message>
        <source>Enter a number</source>
        <translation>Escriba un número</translation>
    </message>
    <message>
        <source>Enter a text</source>
        <translation>Escriba un texto</translation>
    </message>
</context>
</TS>
