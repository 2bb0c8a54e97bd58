<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<TS version="2.1" language="tr_TR" sourcelanguage="en_US">
<context>
    <name>Contact</name>
    <message>
        <source>Edit Mode</source>
        <translation>Yönet</translation>
    </message>
    <message>
        <source>Contacts</source>
        <translation>Kişiler</translation>
    </message>
    <message>
        <source>All</source>
        <translation>Tümü</translation>
    </message>
    <message>
        <source>Personal Phonebook</source>
        <translation>Kişisel rehber</translation>
    </message>
    <message>
        <source>System Phonebook</source>
        <translation>Sistem rehberi</translation>
    </message>
    <message>
        <source>No Contacts</source>
        <translation>Kişi yok</translation>
    </message>
    <message>
        <source>Groups</source>
        <translation>Gruplar</translation>
    </message>
    <message>
        <source>Search</source>
        <translation>Bul</translation>
    </message>
    <message>
        <source>Edit</source>
        <translation>Düzenle</translation>
    </message>
    <message>
        <source>Add Contact</source>
        <translation>Ekle</translation>
    </message>
    <message>
        <source>Delete</source>
        <translation>Sil</translation>
    </message>
    <message>
        <source>Delete All</source>
        <translation>Temizle</translation>
    </message>
    <message>
        <source>Close</source>
        <translation>Kapat</translation>
    </message>
    <message>
        <source>Deleted</source>
        <translation>Silindi</translation>
    </message>
    <message>
        <source>Delete the contact</source>
        <translation>Kişiyi sil</translation>
    </message>
    <message>
        <source>Do you want to delete the contact?</source>
        <translation>Kişi silinsin mi?</translation>
    </message>
    <message>
        <source>No</source>
        <translation>Hayır</translation>
    </message>
    <message>
        <source>Failed</source>
        <translation>Başarısız</translation>
    </message>
    <message>
        <source>Do you want to delete all of contacts?</source>
        <translation>Tüm kişiler silinsin mi?</translation>
    </message>
    <message>
        <source>Mobile Contacts will not be deleted.</source>
        <translation>Cep telefonundaki kişiler kalır.</translation>
    </message>
    <message>
        <source>Delete All Contacts</source>
        <translation>Tüm kişileri sil</translation>
    </message>
</context>
<context>
    <name>DetailsDial</name>
    <message>
        <source>Contacts | </source>
        <translation>Kişiler | </translation>
    </message>
    <message>
        <source>Details</source>
        <translation>Ayrıntılar</translation>
    </message>
    <message>
        <source>Name</source>
        <translation>Ad</translation>
    </message>
    <message>
        <source>Group</source>
        <translation>Grup</translation>
    </message>
    <message>
        <source>Unassigned</source>
        <translation>Grup yok</translation>
    </message>
    <message>
        <source>Email</source>
        <translation>E-posta</translation>
    </message>
    <message>
        <source>Bell</source>
        <translation>Zil sesi</translation>
    </message>
    <message>
        <source>Memo</source>
        <translation>Not</translation>
    </message>
    <message>
        <source>Call</source>
        <translation>Ara</translation>
    </message>
    <message>
        <source>Message</source>
        <translation>Mesaj</translation>
    </message>
    <message>
        <source>Delete</source>
        <translation>Sil</translation>
    </message>
    <message>
        <source>Edit</source>
        <translation>Düzenle</translation>
    </message>
    <message>
        <source>Logout status</source>
        <translation>Oturum kapalı</translation>
    </message>
    <message>
        <source>No History</source>
        <translation>Arama yok</translation>
    </message>
    <message>
        <source>Delete the contact</source>
        <translation>Kişiyi sil</translation>
    </message>
    <message>
        <source>Do you want to delete the contact?</source>
        <translation>Kişi silinsin mi?</translation>
    </message>
    <message>
        <source>No</source>
        <translation>Hayır</translation>
    </message>
    <message>
        <source>Deleted</source>
        <translation>Silindi</translation>
    </message>
    <message>
        <source>Failed</source>
        <translation>Başarısız</translation>
    </message>
</context>
<context>
    <name>DirectorySearchDetail</name>
    <message>
        <source>Directory Service</source>
        <translation>Dizin</translation>
    </message>
    <message>
        <source>Save</source>
        <translation>Kaydet</translation>
    </message>
    <message>
        <source>Call</source>
        <translation>Ara</translation>
    </message>
    <message>
        <source>Message</source>
        <translation>Mesaj</translation>
    </message>
    <message>
        <source>Name</source>
        <translation>Ad</translation>
    </message>
    <message>
        <source>Number</source>
        <translation>Numara</translation>
    </message>
    <message>
        <source>Type</source>
        <translation>Tür</translation>
    </message>
    <message>
        <source>Position</source>
        <translation>Görev</translation>
    </message>
    <message>
        <source>Department</source>
        <translation>Bölüm</translation>
    </message>
    <message>
        <source>Mobile</source>
        <translation>Cep</translation>
    </message>
    <message>
        <source>Save contact</source>
        <translation>Kişiyi kaydet</translation>
    </message>
    <message>
        <source>Do you want to save number?</source>
        <translation>Numara kaydedilsin mi?</translation>
    </message>
    <message>
        <source>New</source>
        <translation>Yeni</translation>
    </message>
    <message>
        <source>Existing</source>
        <translation>Mevcut</translation>
    </message>
    <message>
        <source>Cancel</source>
        <translation>İptal</translation>
    </message>
</context>
<context>
    <name>GroupAdd</name>
    <message>
        <source>Contacts | Create Group </source>
        <translation>Kişiler | Yeni grup </translation>
    </message>
    <message>
        <source>Contacts | Edit Group</source>
        <translation>Kişiler | Grubu düzenle</translation>
    </message>
    <message>
        <source>Save</source>
        <translation>Kaydet</translation>
    </message>
    <message>
        <source>Group Name</source>
        <translation>Grup adı</translation>
    </message>
    <message>
        <source>Group Bell</source>
        <translation>Zil sesi</translation>
    </message>
    <message>
        <source>Unassigned.wav</source>
        <translation>Yok.wav</translation>
    </message>
    <message>
        <source>Unassigned</source>
        <translation>Yok</translation>
    </message>
    <message>
        <source>Cancel</source>
        <translation>İptal</translation>
    </message>
    <message>
        <source>Enter group name</source>
        <translation>Grup adını girin</translation>
    </message>
    <message>
        <source>Group name already exists</source>
        <translation>Bu grup zaten var</translation>
    </message>
    <message>
        <source>Saved</source>
        <translation>Kaydedildi</translation>
    </message>
    <message>
        <source>Failed</source>
        <translation>Başarısız</translation>
    </message>
    <message>
        <source>Office</source>
        <translation>Ofis</translation>
    </message>
</context>
<context>
    <name>GroupDetail</name>
    <message>
        <source>No contacts</source>
        <translation>Kişi yok</translation>
    </message>
    <message>
        <source>Contacts | </source>
        <translation>Kişiler | </translation>
    </message>
    <message>
        <source>Unassigned</source>
        <translation>Grup yok</translation>
    </message>
    <message>
        <source>Detail</source>
        <translation>Ayrıntı</translation>
    </message>
    <message>
        <source>Add Contact</source>
        <translation>Ekle</translation>
    </message>
    <message>
        <source>Delete</source>
        <translation>Sil</translation>
    </message>
    <message>
        <source>Delete All</source>
        <translation>Temizle</translation>
    </message>
    <message>
        <source>Deleted</source>
        <translation>Silindi</translation>
    </message>
    <message>
        <source>Failed</source>
        <translation>Başarısız</translation>
    </message>
    <message>
        <source>Do you want to delete the %1 in this group?</source>
        <translation>%1 gruptan çıkarılsın mı?</translation>
    </message>
    <message>
        <source>Delete Contact</source>
        <translation>Kişiyi çıkar</translation>
    </message>
    <message>
        <source>No</source>
        <translation>Hayır</translation>
    </message>
    <message>
        <source>Delete All Contacts</source>
        <translation>Tüm kişileri çıkar</translation>
    </message>
    <message>
        <source>Do you want to delete all of contacts in this group?</source>
        <translation>Gruptaki tüm kişiler çıkarılsın mı?</translation>
    </message>
</context>
<context>
    <name>GroupList</name>
    <message>
        <source>Contacts | Groups</source>
        <translation>Kişiler | Gruplar</translation>
    </message>
    <message>
        <source>All</source>
        <translation>Tümü</translation>
    </message>
    <message>
        <source>Add Group</source>
        <translation>Yeni</translation>
    </message>
    <message>
        <source>Unassigned</source>
        <translation>Grup yok</translation>
    </message>
    <message>
        <source>Delete</source>
        <translation>Sil</translation>
    </message>
    <message>
        <source>Edit</source>
        <translation>Düzenle</translation>
    </message>
    <message>
        <source>Max limit exceeded</source>
        <translation>En çok 30 grup</translation>
    </message>
    <message>
        <source>Delete the group?</source>
        <translation>Grup silinsin mi?</translation>
    </message>
    <message>
        <source>Group members will move to Unassigned group</source>
        <translation>Kişileri grupsuz kalır.</translation>
    </message>
    <message>
        <source>Delete Group</source>
        <translation>Grubu sil</translation>
    </message>
    <message>
        <source>No</source>
        <translation>Hayır</translation>
    </message>
    <message>
        <source>Deleted</source>
        <translation>Silindi</translation>
    </message>
    <message>
        <source>Failed</source>
        <translation>Başarısız</translation>
    </message>
</context>
<context>
    <name>GroupList_At_Contact</name>
    <message>
        <source>Contacts | Groups</source>
        <translation>Kişiler | Gruplar</translation>
    </message>
    <message>
        <source>Create Group</source>
        <translation>Yeni grup</translation>
    </message>
    <message>
        <source>Done</source>
        <translation>Bitti</translation>
    </message>
    <message>
        <source>Unassigned</source>
        <translation>Grup yok</translation>
    </message>
    <message>
        <source>Erase</source>
        <translation>Sil</translation>
    </message>
    <message>
        <source>OK</source>
        <translation>Tamam</translation>
    </message>
    <message>
        <source>Cancel</source>
        <translation>İptal</translation>
    </message>
    <message>
        <source>Enter name</source>
        <translation>Ad girin</translation>
    </message>
    <message>
        <source>Input name max 30 byte</source>
        <translation>Ad en çok 30 bayt</translation>
    </message>
    <message>
        <source>Group name already exists</source>
        <translation>Bu grup zaten var</translation>
    </message>
    <message>
        <source>Max limit exceeded</source>
        <translation>En çok 10 grup</translation>
    </message>
    <message>
        <source>Contacts | Create Group</source>
        <translation>Kişiler | Yeni grup</translation>
    </message>
    <message>
        <source>Created</source>
        <translation>Oluşturuldu</translation>
    </message>
</context>
<context>
    <name>NumberEdit</name>
    <message>
        <source>Contacts | Edit</source>
        <translation>Kişiler | Düzenle</translation>
    </message>
    <message>
        <source>Contacts | Add</source>
        <translation>Kişiler | Ekle</translation>
    </message>
    <message>
        <source>Add Field</source>
        <translation>Alan ekle</translation>
    </message>
    <message>
        <source>Save</source>
        <translation>Kaydet</translation>
    </message>
    <message>
        <source>Unassigned</source>
        <translation>Grup yok</translation>
    </message>
    <message>
        <source>Delete Field</source>
        <translation>Alanı sil</translation>
    </message>
    <message>
        <source>Saved</source>
        <translation>Kaydedildi</translation>
    </message>
    <message>
        <source>Enter Name</source>
        <translation>Ad girin</translation>
    </message>
    <message>
        <source>Input Numbers</source>
        <translation>Numara girin</translation>
    </message>
    <message>
        <source>Reached save limit</source>
        <translation>Bellek dolu</translation>
    </message>
    <message>
        <source>Number is full
Delete other Number First</source>
        <translation>Numara yeri kalmadı.
Önce başka birini silin.</translation>
    </message>
    <message>
        <source>Failed</source>
        <translation>Başarısız</translation>
    </message>
    <message>
        <source>Email</source>
        <translation>E-posta</translation>
    </message>
    <message>
        <source>Bell</source>
        <translation>Zil sesi</translation>
    </message>
    <message>
        <source>Undesignated</source>
        <translation>Yok</translation>
    </message>
    <message>
        <source>Name</source>
        <translation>Ad</translation>
    </message>
    <message>
        <source>Group</source>
        <translation>Grup</translation>
    </message>
    <message>
        <source>Memo</source>
        <translation>Not</translation>
    </message>
    <message>
        <source>Cancel</source>
        <translation>İptal</translation>
    </message>
    <message>
        <source>Do you want to delete this Field?</source>
        <translation>Bu alan silinsin mi?</translation>
    </message>
    <message>
        <source>Delete</source>
        <translation>Sil</translation>
    </message>
    <message>
        <source>No</source>
        <translation>Hayır</translation>
    </message>
</context>
<context>
    <name>QObject</name>
    <message>
        <source>Number</source>
        <translation>Numara</translation>
    </message>
    <message>
        <source>Company</source>
        <translation>İş:</translation>
    </message>
    <message>
        <source>Mobile</source>
        <translation>Cep:</translation>
    </message>
    <message>
        <source>Home</source>
        <translation>Ev:</translation>
    </message>
    <message>
        <source>Fax</source>
        <translation>Faks:</translation>
    </message>
    <message>
        <source>Etc</source>
        <translation>Diğer:</translation>
    </message>
</context>
<context>
    <name>SearchAll</name>
    <message>
        <source>Contacts | Search</source>
        <translation>Kişiler | Bul</translation>
    </message>
    <message>
        <source>No Result</source>
        <translation>Sonuç yok</translation>
    </message>
    <message>
        <source>Call</source>
        <translation>Ara</translation>
    </message>
</context>
<context>
    <name>SearchDir</name>
    <message>
        <source>Directory Service</source>
        <translation>Dizin</translation>
    </message>
    <message>
        <source>Search</source>
        <translation>Bul</translation>
    </message>
    <message>
        <source>Search Type</source>
        <translation>Arama ölçütü</translation>
    </message>
    <message>
        <source>Name</source>
        <translation>Ad</translation>
    </message>
    <message>
        <source>Number</source>
        <translation>Numara</translation>
    </message>
    <message>
        <source>The keyword is too short</source>
        <translation>Sözcük çok kısa</translation>
    </message>
    <message>
        <source>Input at least 3 digits</source>
        <translation>En az 3 rakam girin</translation>
    </message>
    <message>
        <source>Cancel</source>
        <translation>İptal</translation>
    </message>
</context>
<context>
    <name>SearchDirResult</name>
    <message>
        <source>No Result</source>
        <translation>Sonuç yok</translation>
    </message>
    <message>
        <source>Directory Service</source>
        <translation>Dizin</translation>
    </message>
    <message>
        <source>page</source>
        <translation> sayfa</translation>
    </message>
    <message>
        <source>Call</source>
        <translation>Ara</translation>
    </message>
    <message>
        <source>Message</source>
        <translation>Mesaj</translation>
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
        <translation>Tümü</translation>
    </message>
    <message>
        <source>Unassigned</source>
        <translation>Grup yok</translation>
    </message>
</context>
<context>
    <name>SystemPhonebookCategoryWidget</name>
    <message>
        <source>System Phonebook</source>
        <translation>Sistem rehberi</translation>
    </message>
    <message>
        <source>Groups</source>
        <translation>Gruplar</translation>
    </message>
    <message>
        <source>All</source>
        <translation>Tümü</translation>
    </message>
</context>
<context>
    <name>SystemPhonebookListWidget</name>
    <message>
        <source>All</source>
        <translation>Tümü</translation>
    </message>
    <message>
        <source>Unassigned</source>
        <translation>Grup yok</translation>
    </message>
    <message>
        <source>System Phonebook</source>
        <translation>Sistem rehberi</translation>
    </message>
    <message>
        <source>Groups</source>
        <translation>Gruplar</translation>
    </message>
    <message>
        <source>Call</source>
        <translation>Ara</translation>
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
