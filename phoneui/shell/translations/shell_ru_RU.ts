<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<TS version="2.1" language="ru_RU" sourcelanguage="en_US">
<context>
    <name>Call</name>
    <message>
        <source>Dialing</source>
        <translation>Набор номера</translation>
    </message>
    <message>
        <source>Ringing</source>
        <translation>Вызов</translation>
    </message>
    <message>
        <source>Connected</source>
        <translation>Разговор</translation>
    </message>
    <message>
        <source>Busy</source>
        <translation>Занято</translation>
    </message>
    <message>
        <source>Call</source>
        <translation>Звонок</translation>
    </message>
    <message>
        <source>End</source>
        <translation>Отбой</translation>
    </message>
</context>
<context>
    <name>History</name>
    <message>
        <source>No History</source>
        <translation>Нет звонков</translation>
    </message>
    <message>
        <source>All</source>
        <translation>Все</translation>
    </message>
    <message>
        <source>History</source>
        <translation>Журнал</translation>
    </message>
    <message>
        <source>Call</source>
        <translation>Вызов</translation>
    </message>
    <message>
        <source>Close</source>
        <translation>Закрыть</translation>
    </message>
</context>
<context>
    <name>Idle</name>
    <message>
        <source>Contacts</source>
        <translation>Контакты</translation>
    </message>
    <message>
        <source>History</source>
        <translation>Журнал</translation>
    </message>
    <message>
        <source>Messages</source>
        <translation>Сообщения</translation>
    </message>
    <message>
        <source>Keys</source>
        <translation>Клавиши</translation>
    </message>
    <message>
        <source>Call</source>
        <translation>Звонок</translation>
    </message>
    <message>
        <source>Home</source>
        <translation>Главный экран</translation>
    </message>
    <message>
        <source>Language</source>
        <translation>Язык</translation>
    </message>
    <message>
        <source>Directory</source>
        <translation>Справочник</translation>
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
        <translation>Модуль клавиш</translation>
    </message>
    <message>
        <source>Key Module (%1/%2)</source>
        <translation>Модуль клавиш (%1/%2)</translation>
    </message>
    <message>
        <source>No Keys</source>
        <translation>Нет клавиш</translation>
    </message>
    <message>
        <source>Add</source>
        <translation>Добавить</translation>
    </message>
    <message>
        <source>Delete</source>
        <translation>Удалить</translation>
    </message>
    <message>
        <source>Close</source>
        <translation>Закрыть</translation>
    </message>
</context>
<context>
    <name>MessageApp</name>
    <message>
        <source>Messages</source>
        <translation>Сообщения</translation>
    </message>
    <message>
        <source>Messages | Sent (%1)</source>
        <translation>Сообщения | Отправленные (%1)</translation>
    </message>
    <message>
        <source>No Messages</source>
        <translation>Нет сообщений</translation>
    </message>
    <message>
        <source>New</source>
        <translation>Новое</translation>
    </message>
    <message>
        <source>Delete</source>
        <translation>Удалить</translation>
    </message>
    <message>
        <source>Close</source>
        <translation>Закрыть</translation>
    </message>
</context>
<context>
    <name>MessageForm</name>
    <message>
        <source>To</source>
        <translation>Кому</translation>
    </message>
    <message>
        <source>Text</source>
        <translation>Текст</translation>
    </message>
    <message>
        <source>Close</source>
        <translation>Закрыть</translation>
    </message>
    <message>
        <source>Search</source>
        <translation>Поиск</translation>
    </message>
    <message>
        <source>Send</source>
        <translation>Послать</translation>
    </message>
    <message>
        <source>Messages | New</source>
        <translation>Сообщения | Новое</translation>
    </message>
    <message>
        <source>Sent</source>
        <translation>Отправлено</translation>
    </message>
    <message>
        <source>Failed</source>
        <translation>Не удалось</translation>
    </message>
    <message>
        <source>Enter a number</source>
        <translation>Введите номер</translation>
    </message>
    <message>
        <source>Enter a text</source>
        <translation>Введите текст</translation>
    </message>
</context>
</TS>
