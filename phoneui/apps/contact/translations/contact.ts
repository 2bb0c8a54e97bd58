<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<TS version="2.1" language="en_US" sourcelanguage="en_US">
<context>
    <name>Contact</name>
    <message>
        <source>Edit Mode</source>
        <translation>Edit Mode</translation>
    </message>
    <message>
        <source>Contacts</source>
        <translation>Contacts</translation>
    </message>
    <message>
        <source>All</source>
        <translation>All</translation>
    </message>
    <message>
        <source>Personal Phonebook</source>
        <translation>Personal Phonebook</translation>
    </message>
    <message>
        <source>System Phonebook</source>
        <translation>System Phonebook</translation>
    </message>
    <message>
        <source>No Contacts</source>
        <translation>No Contacts</translation>
    </message>
    <message>
        <source>Groups</source>
        <translation>Groups</translation>
    </message>
    <message>
        <source>Search</source>
        <translation>Search</translation>
    </message>
    <message>
        <source>Edit</source>
        <translation>Edit</translation>
    </message>
    <message>
        <source>Add Contact</source>
        <translation>Add Contact</translation>
    </message>
    <message>
        <source>Delete</source>
        <translation>Delete</translation>
    </message>
    <message>
        <source>Delete All</source>
        <translation>Delete All</translation>
    </message>
    <message>
        <source>Close</source>
        <translation>Close</translation>
    </message>
    <message>
        <source>Deleted</source>
        <translation>Deleted</translation>
    </message>
    <message>
        <source>Delete the contact</source>
        <translation>Delete the contact</translation>
    </message>
    <message>
        <source>Do you want to delete the contact?</source>
        <translation>Do you want to delete the contact?</translation>
    </message>
    <message>
        <source>No</source>
        <translation>No</translation>
    </message>
    <message>
        <source>Failed</source>
        <translation>Failed</translation>
    </message>
    <message>
        <source>Do you want to delete all of contacts?</source>
        <translation>Do you want to delete all of contacts?</translation>
    </message>
    <message>
        <source>Mobile Contacts will not be deleted.</source>
        <translation>Mobile Contacts will not be deleted.</translation>
    </message>
    <message>
        <source>Delete All Contacts</source>
        <translation>Delete All Contacts</translation>
    </message>
</context>
<context>
    <name>DetailsDial</name>
    <message>
        <source>Contacts | </source>
        <translation>Contacts | </translation>
    </message>
    <message>
        <source>Details</source>
        <translation>Details</translation>
    </message>
    <message>
        <source>Name</source>
        <translation>Name</translation>
    </message>
    <message>
        <source>Group</source>
        <translation>Group</translation>
    </message>
    <message>
        <source>Unassigned</source>
        <translation>Unassigned</translation>
    </message>
    <message>
        <source>Email</source>
        <translation>Email</translation>
    </message>
    <message>
        <source>Bell</source>
        <translation>Bell</translation>
    </message>
    <message>
        <source>Memo</source>
        <translation>Memo</translation>
    </message>
    <message>
        <source>Call</source>
        <translation>Call</translation>
    </message>
    <message>
        <source>Message</source>
        <translation>Message</translation>
    </message>
    <message>
        <source>Delete</source>
        <translation>Delete</translation>
    </message>
    <message>
        <source>Edit</source>
        <translation>Edit</translation>
    </message>
    <message>
        <source>Logout status</source>
        <translation>Logout status</translation>
    </message>
    <message>
        <source>No History</source>
        <translation>No History</translation>
    </message>
    <message>
        <source>Delete the contact</source>
        <translation>Delete the contact</translation>
    </message>
    <message>
        <source>Do you want to delete the contact?</source>
        <translation>Do you want to delete the contact?</translation>
    </message>
    <message>
        <source>No</source>
        <translation>No</translation>
    </message>
    <message>
        <source>Deleted</source>
        <translation>Deleted</translation>
    </message>
    <message>
        <source>Failed</source>
        <translation>Failed</translation>
    </message>
</context>
<context>
    <name>DirectorySearchDetail</name>
    <message>
        <source>Directory Service</source>
        <translation>Directory Service</translation>
    </message>
    <message>
        <source>Save</source>
        <translation>Save</translation>
    </message>
    <message>
        <source>Call</source>
        <translation>Call</translation>
    </message>
    <message>
        <source>Message</source>
        <translation>Message</translation>
    </message>
    <message>
        <source>Name</source>
        <translation>Name</translation>
    </message>
    <message>
        <source>Number</source>
        <translation>Number</translation>
    </message>
    <message>
        <source>Type</source>
        <translation>Type</translation>
    </message>
    <message>
        <source>Position</source>
        <translation>Position</translation>
    </message>
    <message>
        <source>Department</source>
        <translation>Department</translation>
    </message>
    <message>
        <source>Mobile</source>
        <translation>Mobile</translation>
    </message>
    <message>
        <source>Save contact</source>
        <translation>Save contact</translation>
    </message>
    <message>
        <source>Do you want to save number?</source>
        <translation>Do you want to save number?</translation>
    </message>
    <message>
        <source>New</source>
        <translation>New</translation>
    </message>
    <message>
        <source>Existing</source>
        <translation>Existing</translation>
    </message>
    <message>
        <source>Cancel</source>
        <translation>Cancel</translation>
    </message>
</context>
<context>
    <name>GroupAdd</name>
    <message>
        <source>Contacts | Create Group </source>
        <translation>Contacts | Create Group </translation>
    </message>
    <message>
        <source>Contacts | Edit Group</source>
        <translation>Contacts | Edit Group</translation>
    </message>
    <message>
        <source>Save</source>
        <translation>Save</translation>
    </message>
    <message>
        <source>Group Name</source>
        <translation>Group Name</translation>
    </message>
    <message>
        <source>Group Bell</source>
        <translation>Group Bell</translation>
    </message>
    <message>
        <source>Unassigned.wav</source>
        <translation>Unassigned.wav</translation>
    </message>
    <message>
        <source>Unassigned</source>
        <translation>Unassigned</translation>
    </message>
    <message>
        <source>Cancel</source>
        <translation>Cancel</translation>
    </message>
    <message>
        <source>Enter group name</source>
        <translation>Enter group name</translation>
    </message>
    <message>
        <source>Group name already exists</source>
        <translation>Group name already exists</translation>
    </message>
    <message>
        <source>Saved</source>
        <translation>Saved</translation>
    </message>
    <message>
        <source>Failed</source>
        <translation>Failed</translation>
    </message>
    <message>
        <source>Office</source>
        <translation>Office</translation>
    </message>
</context>
<context>
    <name>GroupDetail</name>
    <message>
        <source>No contacts</source>
        <translation>No contacts</translation>
    </message>
    <message>
        <source>Contacts | </source>
        <translation>Contacts | </translation>
    </message>
    <message>
        <source>Unassigned</source>
        <translation>Unassigned</translation>
    </message>
    <message>
        <source>Detail</source>
        <translation>Detail</translation>
    </message>
    <message>
        <source>Add Contact</source>
        <translation>Add Contact</translation>
    </message>
    <message>
        <source>Delete</source>
        <translation>Delete</translation>
    </message>
    <message>
        <source>Delete All</source>
        <translation>Delete All</translation>
    </message>
    <message>
        <source>Deleted</source>
        <translation>Deleted</translation>
    </message>
    <message>
        <source>Failed</source>
        <translation>Failed</translation>
    </message>
    <message>
        <source>Do you want to delete the %1 in this group?</source>
        <translation>Do you want to delete the %1 in this group?</translation>
    </message>
    <message>
        <source>Delete Contact</source>
        <translation>Delete Contact</translation>
    </message>
    <message>
        <source>No</source>
        <translation>No</translation>
    </message>
    <message>
        <source>Delete All Contacts</source>
        <translation>Delete All Contacts</translation>
    </message>
    <message>
        <source>Do you want to delete all of contacts in this group?</source>
        <translation>Do you want to delete all of contacts in this group?</translation>
    </message>
</context>
<context>
    <name>GroupList</name>
    <message>
        <source>Contacts | Groups</source>
        <translation>Contacts | Groups</translation>
    </message>
    <message>
        <source>All</source>
        <translation>All</translation>
    </message>
    <message>
        <source>Add Group</source>
        <translation>Add Group</translation>
    </message>
    <message>
        <source>Unassigned</source>
        <translation>Unassigned</translation>
    </message>
    <message>
        <source>Delete</source>
        <translation>Delete</translation>
    </message>
    <message>
        <source>Edit</source>
        <translation>Edit</translation>
    </message>
    <message>
        <source>Max limit exceeded</source>
        <translation>Max limit 30 exceeded</translation>
    </message>
    <message>
        <source>Delete the group?</source>
        <translation>Delete the group?</translation>
    </message>
    <message>
        <source>Group members will move to Unassigned group</source>
        <translation>Group members will move to Unassigned group</translation>
    </message>
    <message>
        <source>Delete Group</source>
        <translation>Delete Group</translation>
    </message>
    <message>
        <source>No</source>
        <translation>No</translation>
    </message>
    <message>
        <source>Deleted</source>
        <translation>Deleted</translation>
    </message>
    <message>
        <source>Failed</source>
        <translation>Failed</translation>
    </message>
</context>
<context>
    <name>GroupList_At_Contact</name>
    <message>
        <source>Contacts | Groups</source>
        <translation>Contacts | Groups</translation>
    </message>
    <message>
        <source>Create Group</source>
        <translation>Create Group</translation>
    </message>
    <message>
        <source>Done</source>
        <translation>Done</translation>
    </message>
    <message>
        <source>Unassigned</source>
        <translation>Unassigned</translation>
    </message>
    <message>
        <source>Erase</source>
        <translation>Erase</translation>
    </message>
    <message>
        <source>OK</source>
        <translation>OK</translation>
    </message>
    <message>
        <source>Cancel</source>
        <translation>Cancel</translation>
    </message>
    <message>
        <source>Enter name</source>
        <translation>Enter name</translation>
    </message>
    <message>
        <source>Input name max 30 byte</source>
        <translation>Input name max 30 byte</translation>
    </message>
    <message>
        <source>Group name already exists</source>
        <translation>Group name already exists</translation>
    </message>
    <message>
        <source>Max limit exceeded</source>
        <translation>Max limit 10 exceeded</translation>
    </message>
    <message>
        <source>Contacts | Create Group</source>
        <translation>Contacts | Create Group</translation>
    </message>
    <message>
        <source>Created</source>
        <translation>Created</translation>
    </message>
</context>
<context>
    <name>NumberEdit</name>
    <message>
        <source>Contacts | Edit</source>
        <translation>Contacts | Edit</translation>
    </message>
    <message>
        <source>Contacts | Add</source>
        <translation>Contacts | Add</translation>
    </message>
    <message>
        <source>Add Field</source>
        <translation>Add Field</translation>
    </message>
    <message>
        <source>Save</source>
        <translation>Save</translation>
    </message>
    <message>
        <source>Unassigned</source>
        <translation>Unassigned</translation>
    </message>
    <message>
        <source>Delete Field</source>
        <translation>Delete Field</translation>
    </message>
    <message>
        <source>Saved</source>
        <translation>Saved</translation>
    </message>
    <message>
        <source>Enter Name</source>
        <translation>Enter Name</translation>
    </message>
    <message>
        <source>Input Numbers</source>
        <translation>Input Numbers</translation>
    </message>
    <message>
        <source>Reached save limit</source>
        <translation>Reached save limit</translation>
    </message>
    <message>
        <source>Number is full
Delete other Number First</source>
        <translation>Number is full
Delete other Number First</translation>
    </message>
    <message>
        <source>Failed</source>
        <translation>Failed</translation>
    </message>
    <message>
        <source>Email</source>
        <translation>Email</translation>
    </message>
    <message>
        <source>Bell</source>
        <translation>Bell</translation>
    </message>
    <message>
        <source>Undesignated</source>
        <translation>Undesignated</translation>
    </message>
    <message>
        <source>Name</source>
        <translation>Name</translation>
    </message>
    <message>
        <source>Group</source>
        <translation>Group</translation>
    </message>
    <message>
        <source>Memo</source>
        <translation>Memo</translation>
    </message>
    <message>
        <source>Cancel</source>
        <translation>Cancel</translation>
    </message>
    <message>
        <source>Do you want to delete this Field?</source>
        <translation>Do you want to delete this Field?</translation>
    </message>
    <message>
        <source>Delete</source>
        <translation>Delete</translation>
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
        <translation>Number</translation>
    </message>
    <message>
        <source>Company</source>
        <translation>Company</translation>
    </message>
    <message>
        <source>Mobile</source>
        <translation>Mobile</translation>
    </message>
    <message>
        <source>Home</source>
        <translation>Home</translation>
    </message>
    <message>
        <source>Fax</source>
        <translation>Fax</translation>
    </message>
    <message>
        <source>Etc</source>
        <translation>Etc</translation>
    </message>
</context>
<context>
    <name>SearchAll</name>
    <message>
        <source>Contacts | Search</source>
        <translation>Contacts | Search</translation>
    </message>
    <message>
        <source>No Result</source>
        <translation>No Result</translation>
    </message>
    <message>
        <source>Call</source>
        <translation>Call</translation>
    </message>
</context>
<context>
    <name>SearchDir</name>
    <message>
        <source>Directory Service</source>
        <translation>Directory Service</translation>
    </message>
    <message>
        <source>Search</source>
        <translation>Search</translation>
    </message>
    <message>
        <source>Search Type</source>
        <translation>Search Type</translation>
    </message>
    <message>
        <source>Name</source>
        <translation>Name</translation>
    </message>
    <message>
        <source>Number</source>
        <translation>Number</translation>
    </message>
    <message>
        <source>The keyword is too short</source>
        <translation>The keyword is too short</translation>
    </message>
    <message>
        <source>Input at least 3 digits</source>
        <translation>Input at least 3 digits</translation>
    </message>
    <message>
        <source>Cancel</source>
        <translation>Cancel</translation>
    </message>
</context>
<context>
    <name>SearchDirResult</name>
    <message>
        <source>No Result</source>
        <translation>No Result</translation>
    </message>
    <message>
        <source>Directory Service</source>
        <translation>Directory Service</translation>
    </message>
    <message>
        <source>page</source>
        <translation>page</translation>
    </message>
    <message>
        <source>Call</source>
        <translation>Call</translation>
    </message>
    <message>
        <source>Message</source>
        <translation>Message</translation>
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
        <translation>All</translation>
    </message>
    <message>
        <source>Unassigned</source>
        <translation>Unassigned</translation>
    </message>
</context>
<context>
    <name>SystemPhonebookCategoryWidget</name>
    <message>
        <source>System Phonebook</source>
        <translation>System Phonebook</translation>
    </message>
    <message>
        <source>Groups</source>
        <translation>Groups</translation>
    </message>
    <message>
        <source>All</source>
        <translation>All</translation>
    </message>
</context>
<context>
    <name>SystemPhonebookListWidget</name>
    <message>
        <source>All</source>
        <translation>All</translation>
    </message>
    <message>
        <source>Unassigned</source>
        <translation>Unassigned</translation>
    </message>
    <message>
        <source>System Phonebook</source>
        <translation>System Phonebook</translation>
    </message>
    <message>
        <source>Groups</source>
        <translation>Groups</translation>
    </message>
    <message>
        <source>Call</source>
        <translation>Call</translation>
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
