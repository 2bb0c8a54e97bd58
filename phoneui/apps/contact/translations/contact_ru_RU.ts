<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<TS version="2.1" language="ru_RU" sourcelanguage="en_US">
<context>
    <name>Contact</name>
    <message>
        <source>Edit Mode</source>
        <translation>Правка</translation>
    </message>
    <message>
        <source>Contacts</source>
        <translation>Контакты</translation>
    </message>
    <message>
        <source>All</source>
        <translation>Все</translation>
    </message>
    <message>
        <source>Personal Phonebook</source>
        <translation>Личная книга</translation>
    </message>
    <message>
        <source>System Phonebook</source>
        <translation>Системная книга</translation>
    </message>
    <message>
        <source>No Contacts</source>
        <translation>Нет контактов</translation>
    </message>
    <message>
        <source>Groups</source>
        <translation>Группы</translation>
    </message>
    <message>
        <source>Search</source>
        <translation>Поиск</translation>
    </message>
    <message>
        <source>Edit</source>
        <translation>Изменить</translation>
    </message>
    <message>
        <source>Add Contact</source>
        <translation>Добавить</translation>
    </message>
    <message>
        <source>Delete</source>
        <translation>Удалить</translation>
    </message>
    <message>
        <source>Delete All</source>
        <translation>Очистить</translation>
    </message>
    <message>
        <source>Close</source>
        <translation>Закрыть</translation>
    </message>
    <message>
        <source>Deleted</source>
        <translation>Удалено</translation>
    </message>
    <message>
        <source>Delete the contact</source>
        <translation>Удалить контакт</translation>
    </message>
    <message>
        <source>Do you want to delete the contact?</source>
        <translation>Удалить контакт?</translation>
    </message>
    <message>
        <source>No</source>
        <translation>Нет</translation>
    </message>
    <message>
        <source>Failed</source>
        <translation>Не удалось</translation>
    </message>
    <message>
        <source>Do you want to delete all of contacts?</source>
        <translation>Удалить все контакты?</translation>
    </message>
    <message>
        <source>Mobile Contacts will not be deleted.</source>
        <translation>Контакты мобильного останутся.</translation>
    </message>
    <message>
        <source>Delete All Contacts</source>
        <translation>Удалить все контакты</translation>
    </message>
</context>
<context>
    <name>DetailsDial</name>
    <message>
        <source>Contacts | </source>
        <translation>Контакты | </translation>
    </message>
    <message>
        <source>Details</source>
        <translation>Сведения</translation>
    </message>
    <message>
        <source>Name</source>
        <translation>Имя</translation>
    </message>
    <message>
        <source>Group</source>
        <translation>Группа</translation>
    </message>
    <message>
        <source>Unassigned</source>
        <translation>Без группы</translation>
    </message>
    <message>
        <source>Email</source>
        <translation>Эл. почта</translation>
    </message>
    <message>
        <source>Bell</source>
        <translation>Мелодия</translation>
    </message>
    <message>
        <source>Memo</source>
        <translation>Заметка</translation>
    </message>
    <message>
        <source>Call</source>
        <translation>Вызов</translation>
    </message>
    <message>
        <source>Message</source>
        <translation>Написать</translation>
    </message>
    <message>
        <source>Delete</source>
        <translation>Удалить</translation>
    </message>
    <message>
        <source>Edit</source>
        <translation>Изменить</translation>
    </message>
    <message>
        <source>Logout status</source>
        <translation>Вход не выполнен</translation>
    </message>
    <message>
        <source>No History</source>
        <translation>Нет звонков</translation>
    </message>
    <message>
        <source>Delete the contact</source>
        <translation>Удалить контакт</translation>
    </message>
    <message>
        <source>Do you want to delete the contact?</source>
        <translation>Удалить контакт?</translation>
    </message>
    <message>
        <source>No</source>
        <translation>Нет</translation>
    </message>
    <message>
        <source>Deleted</source>
        <translation>Удалено</translation>
    </message>
    <message>
        <source>Failed</source>
        <translation>Не удалось</translation>
    </message>
</context>
<context>
    <name>DirectorySearchDetail</name>
    <message>
        <source>Directory Service</source>
        <translation>Справочник</translation>
    </message>
    <message>
        <source>Save</source>
        <translation>Записать</translation>
    </message>
    <message>
        <source>Call</source>
        <translation>Вызов</translation>
    </message>
    <message>
        <source>Message</source>
        <translation>Написать</translation>
    </message>
    <message>
        <source>Name</source>
        <translation>Имя</translation>
    </message>
    <message>
        <source>Number</source>
        <translation>Номер</translation>
    </message>
    <message>
        <source>Type</source>
        <translation>Тип</translation>
    </message>
    <message>
        <source>Position</source>
        <translation>Должность</translation>
    </message>
    <message>
        <source>Department</source>
        <translation>Отдел</translation>
    </message>
    <message>
        <source>Mobile</source>
        <translation>Мобильный</translation>
    </message>
    <message>
        <source>Save contact</source>
        <translation>Сохранить контакт</translation>
    </message>
    <message>
        <source>Do you want to save number?</source>
        <translation>Сохранить номер?</translation>
    </message>
    <message>
        <source>New</source>
        <translation>Новый</translation>
    </message>
    <message>
        <source>Existing</source>
        <translation>Имеющийся</translation>
    </message>
    <message>
        <source>Cancel</source>
        <translation>Отмена</translation>
    </message>
</context>
<context>
    <name>GroupAdd</name>
    <message>
        <source>Contacts | Create Group </source>
        <translation>Контакты | Новая группа </translation>
    </message>
    <message>
        <source>Contacts | Edit Group</source>
        <translation>Контакты | Изменить группу</translation>
    </message>
    <message>
        <source>Save</source>
        <translation>Записать</translation>
    </message>
    <message>
        <source>Group Name</source>
        <translation>Имя группы</translation>
    </message>
    <message>
        <source>Group Bell</source>
        <translation>Мелодия</translation>
    </message>
    <message>
        <source>Unassigned.wav</source>
        <translation>Не задана.wav</translation>
    </message>
    <message>
        <source>Unassigned</source>
        <translation>Не задана</translation>
    </message>
    <message>
        <source>Cancel</source>
        <translation>Отмена</translation>
    </message>
    <message>
        <source>Enter group name</source>
        <translation>Введите имя группы</translation>
    </message>
    <message>
        <source>Group name already exists</source>
        <translation>Такая группа уже есть</translation>
    </message>
    <message>
        <source>Saved</source>
        <translation>Сохранено</translation>
    </message>
    <message>
        <source>Failed</source>
        <translation>Не удалось</translation>
    </message>
    <message>
        <source>Office</source>
        <translation>Офис</translation>
    </message>
</context>
<context>
    <name>GroupDetail</name>
    <message>
        <source>No contacts</source>
        <translation>Нет контактов</translation>
    </message>
    <message>
        <source>Contacts | </source>
        <translation>Контакты | </translation>
    </message>
    <message>
        <source>Unassigned</source>
        <translation>Без группы</translation>
    </message>
    <message>
        <source>Detail</source>
        <translation>Сведения</translation>
    </message>
    <message>
        <source>Add Contact</source>
        <translation>Добавить</translation>
    </message>
    <message>
        <source>Delete</source>
        <translation>Удалить</translation>
    </message>
    <message>
        <source>Delete All</source>
        <translation>Очистить</translation>
    </message>
    <message>
        <source>Deleted</source>
        <translation>Удалено</translation>
    </message>
    <message>
        <source>Failed</source>
        <translation>Не удалось</translation>
    </message>
    <message>
        <source>Do you want to delete the %1 in this group?</source>
        <translation>Убрать %1 из группы?</translation>
    </message>
    <message>
        <source>Delete Contact</source>
        <translation>Убрать контакт</translation>
    </message>
    <message>
        <source>No</source>
        <translation>Нет</translation>
    </message>
    <message>
        <source>Delete All Contacts</source>
        <translation>Убрать все контакты</translation>
    </message>
    <message>
        <source>Do you want to delete all of contacts in this group?</source>
        <translation>Убрать все контакты из группы?</translation>
    </message>
</context>
<context>
    <name>GroupList</name>
    <message>
        <source>Contacts | Groups</source>
        <translation>Контакты | Группы</translation>
    </message>
    <message>
        <source>All</source>
        <translation>Все</translation>
    </message>
    <message>
        <source>Add Group</source>
        <translation>Создать</translation>
    </message>
    <message>
        <source>Unassigned</source>
        <translation>Без группы</translation>
    </message>
    <message>
        <source>Delete</source>
        <translation>Удалить</translation>
    </message>
    <message>
        <source>Edit</source>
        <translation>Изменить</translation>
    </message>
    <message>
        <source>Max limit exceeded</source>
        <translation>Не более 30 групп</translation>
    </message>
    <message>
        <source>Delete the group?</source>
        <translation>Удалить группу?</translation>
    </message>
    <message>
        <source>Group members will move to Unassigned group</source>
        <translation>Контакты останутся без группы.</translation>
    </message>
    <message>
        <source>Delete Group</source>
        <translation>Удалить группу</translation>
    </message>
    <message>
        <source>No</source>
        <translation>Нет</translation>
    </message>
    <message>
        <source>Deleted</source>
        <translation>Удалено</translation>
    </message>
    <message>
        <source>Failed</source>
        <translation>Не удалось</translation>
    </message>
</context>
<context>
    <name>GroupList_At_Contact</name>
    <message>
        <source>Contacts | Groups</source>
        <translation>Контакты | Группы</translation>
    </message>
    <message>
        <source>Create Group</source>
        <translation>Создать</translation>
    </message>
    <message>
        <source>Done</source>
        <translation>Готово</translation>
    </message>
    <message>
        <source>Unassigned</source>
        <translation>Без группы</translation>
    </message>
    <message>
        <source>Erase</source>
        <translation>Стереть</translation>
    </message>
    <message>
        <source>OK</source>
        <translation>ОК</translation>
    </message>
    <message>
        <source>Cancel</source>
        <translation>Отмена</translation>
    </message>
    <message>
        <source>Enter name</source>
        <translation>Введите имя</translation>
    </message>
    <message>
        <source>Input name max 30 byte</source>
        <translation>Имя не длиннее 30 байт</translation>
    </message>
    <message>
        <source>Group name already exists</source>
        <translation>Такая группа уже есть</translation>
    </message>
    <message>
        <source>Max limit exceeded</source>
        <translation>Не более 10 групп</translation>
    </message>
    <message>
        <source>Contacts | Create Group</source>
        <translation>Контакты | Новая группа</translation>
    </message>
    <message>
        <source>Created</source>
        <translation>Создано</translation>
    </message>
</context>
<context>
    <name>NumberEdit</name>
    <message>
        <source>Contacts | Edit</source>
        <translation>Контакты | Изменить</translation>
    </message>
    <message>
        <source>Contacts | Add</source>
        <translation>Контакты | Добавить</translation>
    </message>
    <message>
        <source>Add Field</source>
        <translation>Добавить</translation>
    </message>
    <message>
        <source>Save</source>
        <translation>Записать</translation>
    </message>
    <message>
        <source>Unassigned</source>
        <translation>Без группы</translation>
    </message>
    <message>
        <source>Delete Field</source>
        <translation>Убрать</translation>
    </message>
    <message>
        <source>Saved</source>
        <translation>Сохранено</translation>
    </message>
    <message>
        <source>Enter Name</source>
        <translation>Введите имя</translation>
    </message>
    <message>
        <source>Input Numbers</source>
        <translation>Введите номер</translation>
    </message>
    <message>
        <source>Reached save limit</source>
        <translation>Память заполнена</translation>
    </message>
    <message>
        <source>Number is full
Delete other Number First</source>
        <translation>Номеров больше нельзя.
Сначала удалите другой.</translation>
    </message>
    <message>
        <source>Failed</source>
        <translation>Не удалось</translation>
    </message>
    <message>
        <source>Email</source>
        <translation>Эл. почта</translation>
    </message>
    <message>
        <source>Bell</source>
        <translation>Мелодия</translation>
    </message>
    <message>
        <source>Undesignated</source>
        <translation>Не задана</translation>
    </message>
    <message>
        <source>Name</source>
        <translation>Имя</translation>
    </message>
    <message>
        <source>Group</source>
        <translation>Группа</translation>
    </message>
    <message>
        <source>Memo</source>
        <translation>Заметка</translation>
    </message>
    <message>
        <source>Cancel</source>
        <translation>Отмена</translation>
    </message>
    <message>
        <source>Do you want to delete this Field?</source>
        <translation>Убрать это поле?</translation>
    </message>
    <message>
        <source>Delete</source>
        <translation>Удалить</translation>
    </message>
    <message>
        <source>No</source>
        <translation>Нет</translation>
    </message>
</context>
<context>
    <name>QObject</name>
    <message>
        <source>Number</source>
        <translation>Номер</translation>
    </message>
    <message>
        <source>Company</source>
        <translation>Рабочий:</translation>
    </message>
    <message>
        <source>Mobile</source>
        <translation>Сотовый:</translation>
    </message>
    <message>
        <source>Home</source>
        <translation>Домашний:</translation>
    </message>
    <message>
        <source>Fax</source>
        <translation>Факс:</translation>
    </message>
    <message>
        <source>Etc</source>
        <translation>Другой:</translation>
    </message>
</context>
<context>
    <name>SearchAll</name>
    <message>
        <source>Contacts | Search</source>
        <translation>Контакты | Поиск</translation>
    </message>
    <message>
        <source>No Result</source>
        <translation>Ничего не найдено</translation>
    </message>
    <message>
        <source>Call</source>
        <translation>Вызов</translation>
    </message>
</context>
<context>
    <name>SearchDir</name>
    <message>
        <source>Directory Service</source>
        <translation>Справочник</translation>
    </message>
    <message>
        <source>Search</source>
        <translation>Поиск</translation>
    </message>
    <message>
        <source>Search Type</source>
        <translation>Искать по</translation>
    </message>
    <message>
        <source>Name</source>
        <translation>Имя</translation>
    </message>
    <message>
        <source>Number</source>
        <translation>Номер</translation>
    </message>
    <message>
        <source>The keyword is too short</source>
        <translation>Слишком короткое слово</translation>
    </message>
    <message>
        <source>Input at least 3 digits</source>
        <translation>Введите не менее 3 цифр</translation>
    </message>
    <message>
        <source>Cancel</source>
        <translation>Отмена</translation>
    </message>
</context>
<context>
    <name>SearchDirResult</name>
    <message>
        <source>No Result</source>
        <translation>Ничего не найдено</translation>
    </message>
    <message>
        <source>Directory Service</source>
        <translation>Справочник</translation>
    </message>
    <message>
        <source>page</source>
        <translation> стр.</translation>
    </message>
    <message>
        <source>Call</source>
        <translation>Вызов</translation>
    </message>
    <message>
        <source>Message</source>
        <translation>Написать</translation>
    </message>
    <message>
        <source>&lt;</source>
        <translation>&lt;</translation>
    </message>
    <message>
        <source>&gt;</source>
        <translation>&gt;</translation>
    </message>
</context>
<context>
    <name>SystemPhonebookCategoryModel</name>
    <message>
        <source>All</source>
        <translation>Все</translation>
    </message>
    <message>
        <source>Unassigned</source>
        <translation>Без группы</translation>
    </message>
</context>
<context>
    <name>SystemPhonebookCategoryWidget</name>
    <message>
        <source>System Phonebook</source>
        <translation>Системная книга</translation>
    </message>
    <message>
        <source>Groups</source>
        <translation>Группы</translation>
    </message>
    <message>
        <source>All</source>
        <translation>Все</translation>
    </message>
</context>
<context>
    <name>SystemPhonebookListWidget</name>
    <message>
        <source>All</source>
        <translation>Все</translation>
    </message>
    <message>
        <source>Unassigned</source>
        <translation>Без группы</translation>
    </message>
    <message>
        <source>System Phonebook</source>
        <translation>Системная книга</translation>
    </message>
    <message>
        <source>Groups</source>
        <translation>Группы</translation>
    </message>
    <message>
        <source>Call</source>
        <translation>Вызов</translation>
    </message>
</context>
<context>
    <name>SystemPhonebookWidget</name>
    <message>
        <source>&lt;</source>
        <translation>&lt;</translation>
    </message>
    <message>
        <source>&gt;</source>
        <translation>&gt;</translation>
    </message>
</context>
</TS>
