<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<TS version="2.1" language="es_ES" sourcelanguage="en_US">
<context>
    <name>Contact</name>
    <message>
        <source>Edit Mode</source>
        <translation>Gestionar</translation>
    </message>
    <message>
        <source>Contacts</source>
        <translation>Contactos</translation>
    </message>
    <message>
        <source>All</source>
        <translation>Todos</translation>
    </message>
    <message>
        <source>Personal Phonebook</source>
        <translation>Agenda personal</translation>
    </message>
    <message>
        <source>System Phonebook</source>
        <translation>Agenda del sistema</translation>
    </message>
    <message>
        <source>No Contacts</source>
        <translation>Sin contactos</translation>
    </message>
    <message>
        <source>Groups</source>
        <translation>Grupos</translation>
    </message>
    <message>
        <source>Search</source>
        <translation>Buscar</translation>
    </message>
    <message>
        <source>Edit</source>
        <translation>Editar</translation>
    </message>
    <message>
        <source>Add Contact</source>
        <translation>Añadir</translation>
    </message>
    <message>
        <source>Delete</source>
        <translation>Borrar</translation>
    </message>
    <message>
        <source>Delete All</source>
        <translation>Vaciar</translation>
    </message>
    <message>
        <source>Close</source>
        <translation>Cerrar</translation>
    </message>
    <message>
        <source>Deleted</source>
        <translation>Borrado</translation>
    </message>
    <message>
        <source>Delete the contact</source>
        <translation>Borrar contacto</translation>
    </message>
    <message>
        <source>Do you want to delete the contact?</source>
        <translation>¿Borrar el contacto?</translation>
    </message>
    <message>
        <source>No</source>
        <translation>No</translation>
    </message>
    <message>
        <source>Failed</source>
        <translation>No se pudo</translation>
    </message>
    <message>
        <source>Do you want to delete all of contacts?</source>
        <translation>¿Borrar todos los contactos?</translation>
    </message>
    <message>
        <source>Mobile Contacts will not be deleted.</source>
        <translation>Los contactos del móvil se conservan.</translation>
    </message>
    <message>
        <source>Delete All Contacts</source>
        <translation>Borrar todos los contactos</translation>
    </message>
</context>
<context>
    <name>DetailsDial</name>
    <message>
        <source>Contacts | </source>
        <translation>Contactos | </translation>
    </message>
    <message>
        <source>Details</source>
        <translation>Detalles</translation>
    </message>
    <message>
        <source>Name</source>
        <translation>Nombre</translation>
    </message>
    <message>
        <source>Group</source>
        <translation>Grupo</translation>
    </message>
    <message>
        <source>Unassigned</source>
        <translation>Sin grupo</translation>
    </message>
    <message>
        <source>Email</source>
        <translation>Correo</translation>
    </message>
    <message>
        <source>Bell</source>
        <translation>Timbre</translation>
    </message>
    <message>
        <source>Memo</source>
        <translation>Nota</translation>
    </message>
    <message>
        <source>Call</source>
        <translation>Llamar</translation>
    </message>
    <message>
        <source>Message</source>
        <translation>Mensaje</translation>
    </message>
    <message>
        <source>Delete</source>
        <translation>Borrar</translation>
    </message>
    <message>
        <source>Edit</source>
        <translation>Editar</translation>
    </message>
    <message>
        <source>Logout status</source>
        <translation>Sesión cerrada</translation>
    </message>
    <message>
        <source>No History</source>
        <translation>Sin llamadas</translation>
    </message>
    <message>
        <source>Delete the contact</source>
        <translation>Borrar contacto</translation>
    </message>
    <message>
        <source>Do you want to delete the contact?</source>
        <translation>¿Borrar el contacto?</translation>
    </message>
    <message>
        <source>No</source>
        <translation>No</translation>
    </message>
    <message>
        <source>Deleted</source>
        <translation>Borrado</translation>
    </message>
    <message>
        <source>Failed</source>
        <translation>No se pudo</translation>
    </message>
</context>
<context>
    <name>DirectorySearchDetail</name>
    <message>
        <source>Directory Service</source>
        <translation>Directorio</translation>
    </message>
    <message>
        <source>Save</source>
        <translation>Guardar</translation>
    </message>
    <message>
        <source>Call</source>
        <translation>Llamar</translation>
    </message>
    <message>
        <source>Message</source>
        <translation>Mensaje</translation>
    </message>
    <message>
        <source>Name</source>
        <translation>Nombre</translation>
    </message>
    <message>
        <source>Number</source>
        <translation>Número</translation>
    </message>
    <message>
        <source>Type</source>
        <translation>Tipo</translation>
    </message>
    <message>
        <source>Position</source>
        <translation>Cargo</translation>
    </message>
    <message>
        <source>Department</source>
        <translation>Departamento</translation>
    </message>
    <message>
        <source>Mobile</source>
        <translation>Móvil</translation>
    </message>
    <message>
        <source>Save contact</source>
        <translation>Guardar contacto</translation>
    </message>
    <message>
        <source>Do you want to save number?</source>
        <translation>¿Guardar el número?</translation>
    </message>
    <message>
        <source>New</source>
        <translation>Nuevo</translation>
    </message>
    <message>
        <source>Existing</source>
        <translation>Existente</translation>
    </message>
    <message>
        <source>Cancel</source>
        <translation>Cancelar</translation>
    </message>
</context>
<context>
    <name>GroupAdd</name>
    <message>
        <source>Contacts | Create Group </source>
        <translation>Contactos | Crear grupo </translation>
    </message>
    <message>
        <source>Contacts | Edit Group</source>
        <translation>Contactos | Editar grupo</translation>
    </message>
    <message>
        <source>Save</source>
        <translation>Guardar</translation>
    </message>
    <message>
        <source>Group Name</source>
        <translation>Nombre</translation>
    </message>
    <message>
        <source>Group Bell</source>
        <translation>Timbre</translation>
    </message>
    <message>
        <source>Unassigned.wav</source>
        <translation>Ninguno.wav</translation>
    </message>
    <message>
        <source>Unassigned</source>
        <translation>Ninguno</translation>
    </message>
    <message>
        <source>Cancel</source>
        <translation>Cancelar</translation>
    </message>
    <message>
        <source>Enter group name</source>
        <translation>Escriba el nombre del grupo</translation>
    </message>
    <message>
        <source>Group name already exists</source>
        <translation>Ese grupo ya existe</translation>
    </message>
    <message>
        <source>Saved</source>
        <translation>Guardado</translation>
    </message>
    <message>
        <source>Failed</source>
        <translation>No se pudo</translation>
    </message>
    <message>
        <source>Office</source>
        <translation>Oficina</translation>
    </message>
</context>
<context>
    <name>GroupDetail</name>
    <message>
        <source>No contacts</source>
        <translation>Sin contactos</translation>
    </message>
    <message>
        <source>Contacts | </source>
        <translation>Contactos | </translation>
    </message>
    <message>
        <source>Unassigned</source>
        <translation>Sin grupo</translation>
    </message>
    <message>
        <source>Detail</source>
        <translation>Detalles</translation>
    </message>
    <message>
        <source>Add Contact</source>
        <translation>Añadir</translation>
    </message>
    <message>
        <source>Delete</source>
        <translation>Borrar</translation>
    </message>
    <message>
        <source>Delete All</source>
        <translation>Vaciar</translation>
    </message>
    <message>
        <source>Deleted</source>
        <translation>Borrado</translation>
    </message>
    <message>
        <source>Failed</source>
        <translation>No se pudo</translation>
    </message>
    <message>
        <source>Do you want to delete the %1 in this group?</source>
        <translation>¿Quitar a %1 del grupo?</translation>
    </message>
    <message>
        <source>Delete Contact</source>
        <translation>Quitar contacto</translation>
    </message>
    <message>
        <source>No</source>
        <translation>No</translation>
    </message>
    <message>
        <source>Delete All Contacts</source>
        <translation>Quitar todos los contactos</translation>
    </message>
    <message>
        <source>Do you want to delete all of contacts in this group?</source>
        <translation>¿Quitar todos los contactos del grupo?</translation>
    </message>
</context>
<context>
    <name>GroupList</name>
    <message>
        <source>Contacts | Groups</source>
        <translation>Contactos | Grupos</translation>
    </message>
    <message>
        <source>All</source>
        <translation>Todos</translation>
    </message>
    <message>
        <source>Add Group</source>
        <translation>Nuevo</translation>
    </message>
    <message>
        <source>Unassigned</source>
        <translation>Sin grupo</translation>
    </message>
    <message>
        <source>Delete</source>
        <translation>Borrar</translation>
    </message>
    <message>
        <source>Edit</source>
        <translation>Editar</translation>
    </message>
    <message>
        <source>Max limit exceeded</source>
        <translation>Máximo 30 grupos</translation>
    </message>
    <message>
        <source>Delete the group?</source>
        <translation>¿Borrar el grupo?</translation>
    </message>
    <message>
        <source>Group members will move to Unassigned group</source>
        <translation>Sus contactos quedarán sin grupo.</translation>
    </message>
    <message>
        <source>Delete Group</source>
        <translation>Borrar grupo</translation>
    </message>
    <message>
        <source>No</source>
        <translation>No</translation>
    </message>
    <message>
        <source>Deleted</source>
        <translation>Borrado</translation>
    </message>
    <message>
        <source>Failed</source>
        <translation>No se pudo</translation>
    </message>
</context>
<context>
    <name>GroupList_At_Contact</name>
    <message>
        <source>Contacts | Groups</source>
        <translation>Contactos | Grupos</translation>
    </message>
    <message>
        <source>Create Group</source>
        <translation>Crear grupo</translation>
    </message>
    <message>
        <source>Done</source>
        <translation>Listo</translation>
    </message>
    <message>
        <source>Unassigned</source>
        <translation>Sin grupo</translation>
    </message>
    <message>
        <source>Erase</source>
        <translation>Borrar</translation>
    </message>
    <message>
        <source>OK</source>
        <translation>Aceptar</translation>
    </message>
    <message>
        <source>Cancel</source>
        <translation>Cancelar</translation>
    </message>
    <message>
        <source>Enter name</source>
        <translation>Escriba un nombre</translation>
    </message>
    <message>
        <source>Input name max 30 byte</source>
        <translation>Nombre: máximo 30 bytes</translation>
    </message>
    <message>
        <source>Group name already exists</source>
        <translation>Ese grupo ya existe</translation>
    </message>
    <message>
        <source>Max limit exceeded</source>
        <translation>Máximo 10 grupos</translation>
    </message>
    <message>
        <source>Contacts | Create Group</source>
        <translation>Contactos | Crear grupo</translation>
    </message>
    <message>
        <source>Created</source>
        <translation>Creado</translation>
    </message>
</context>
<context>
    <name>NumberEdit</name>
    <message>
        <source>Contacts | Edit</source>
        <translation>Contactos | Editar</translation>
    </message>
    <message>
        <source>Contacts | Add</source>
        <translation>Contactos | Añadir</translation>
    </message>
    <message>
        <source>Add Field</source>
        <translation>Añadir</translation>
    </message>
    <message>
        <source>Save</source>
        <translation>Guardar</translation>
    </message>
    <message>
        <source>Unassigned</source>
        <translation>Sin grupo</translation>
    </message>
    <message>
        <source>Delete Field</source>
        <translation>Quitar</translation>
    </message>
    <message>
        <source>Saved</source>
        <translation>Guardado</translation>
    </message>
    <message>
        <source>Enter Name</source>
        <translation>Escriba un nombre</translation>
    </message>
    <message>
        <source>Input Numbers</source>
        <translation>Escriba un número</translation>
    </message>
    <message>
        <source>Reached save limit</source>
        <translation>Memoria llena</translation>
    </message>
    <message>
        <source>Number is full
Delete other Number First</source>
        <translation>No caben más números.
Borre antes otro número.</translation>
    </message>
    <message>
        <source>Failed</source>
        <translation>No se pudo</translation>
    </message>
    <message>
        <source>Email</source>
        <translation>Correo</translation>
    </message>
    <message>
        <source>Bell</source>
        <translation>Timbre</translation>
    </message>
    <message>
        <source>Undesignated</source>
        <translation>Ninguno</translation>
    </message>
    <message>
        <source>Name</source>
        <translation>Nombre</translation>
    </message>
    <message>
        <source>Group</source>
        <translation>Grupo</translation>
    </message>
    <message>
        <source>Memo</source>
        <translation>Nota</translation>
    </message>
    <message>
        <source>Cancel</source>
        <translation>Cancelar</translation>
    </message>
    <message>
        <source>Do you want to delete this Field?</source>
        <translation>¿Quitar este campo?</translation>
    </message>
    <message>
        <source>Delete</source>
        <translation>Borrar</translation>
    </message>
    <message>
        <source>No</source>
        <translation>No</translation>
    </message>
</context>
<context>
    <name>QObject</name>
    <message>
        <source>Number</source>
        <translation>Número</translation>
    </message>
    <message>
        <source>Company</source>
        <translation>Trabajo:</translation>
    </message>
    <message>
        <source>Mobile</source>
        <translation>Móvil:</translation>
    </message>
    <message>
        <source>Home</source>
        <translation>Casa:</translation>
    </message>
    <message>
        <source>Fax</source>
        <translation>Fax:</translation>
    </message>
    <message>
        <source>Etc</source>
        <translation>Otro:</translation>
    </message>
</context>
<context>
    <name>SearchAll</name>
    <message>
        <source>Contacts | Search</source>
        <translation>Contactos | Buscar</translation>
    </message>
    <message>
        <source>No Result</source>
        <translation>Sin resultados</translation>
    </message>
    <message>
        <source>Call</source>
        <translation>Llamar</translation>
    </message>
</context>
<context>
    <name>SearchDir</name>
    <message>
        <source>Directory Service</source>
        <translation>Directorio</translation>
    </message>
    <message>
        <source>Search</source>
        <translation>Buscar</translation>
    </message>
    <message>
        <source>Search Type</source>
        <translation>Buscar por</translation>
    </message>
    <message>
        <source>Name</source>
        <translation>Nombre</translation>
    </message>
    <message>
        <source>Number</source>
        <translation>Número</translation>
    </message>
    <message>
        <source>The keyword is too short</source>
        <translation>La palabra es muy corta</translation>
    </message>
    <message>
        <source>Input at least 3 digits</source>
        <translation>Escriba al menos 3 cifras</translation>
    </message>
    <message>
        <source>Cancel</source>
        <translation>Cancelar</translation>
    </message>
</context>
<context>
    <name>SearchDirResult</name>
    <message>
        <source>No Result</source>
        <translation>Sin resultados</translation>
    </message>
    <message>
        <source>Directory Service</source>
        <translation>Directorio</translation>
    </message>
    <message>
        <source>page</source>
        <translation> pág.</translation>
    </message>
    <message>
        <source>Call</source>
        <translation>Llamar</translation>
    </message>
    <message>
        <source>Message</source>
        <translation>Mensaje</translation>
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
        <translation>Todos</translation>
    </message>
    <message>
        <source>Unassigned</source>
        <translation>Sin grupo</translation>
    </message>
</context>
<context>
    <name>SystemPhonebookCategoryWidget</name>
    <message>
        <source>System Phonebook</source>
        <translation>Agenda del sistema</translation>
    </message>
    <message>
        <source>Groups</source>
        <translation>Grupos</translation>
    </message>
    <message>
        <source>All</source>
        <translation>Todos</translation>
    </message>
</context>
<context>
    <name>SystemPhonebookListWidget</name>
    <message>
        <source>All</source>
        <translation>Todos</translation>
    </message>
    <message>
        <source>Unassigned</source>
        <translation>Sin grupo</translation>
    </message>
    <message>
        <source>System Phonebook</source>
        <translation>Agenda del sistema</translation>
    </message>
    <message>
        <source>Groups</source>
        <translation>Grupos</translation>
    </message>
    <message>
        <source>Call</source>
        <translation>Llamar</translation>
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
