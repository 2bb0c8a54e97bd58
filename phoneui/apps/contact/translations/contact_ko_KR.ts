<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<TS version="2.1" language="ko_KR" sourcelanguage="en_US">
<context>
    <name>Contact</name>
    <message>
        <source>Groups</source>
        <translation>그룹</translation>
    </message>
    <message>
        <source>Edit</source>
        <translation>편집</translation>
    </message>
    <message>
        <source>Add Contact</source>
        <translation>추가</translation>
    </message>
    <message>
        <source>Delete</source>
        <translation>삭제</translation>
    </message>
    <message>
        <source>Close</source>
        <translation>닫기</translation>
    </message>
    <message>
        <source>Edit Mode</source>
        <translation>편집 모드</translation>
    </message>
    <message>
        <source>Delete All</source>
        <translation>모두 삭제</translation>
    </message>
    <message>
        <source>Deleted</source>
        <translation>삭제되었습니다</translation>
    </message>
    <message>
        <source>Delete the contact</source>
        <translation>연락처 삭제</translation>
    </message>
    <message>
        <source>Do you want to delete the contact?</source>
        <translation>연락처를 삭제할까요?</translation>
    </message>
    <message>
        <source>No</source>
        <translation>아니요</translation>
    </message>
    <message>
        <source>Failed</source>
        <translation>실패했습니다</translation>
    </message>
    <message>
        <source>Do you want to delete all of contacts?</source>
        <translation>모든 연락처를 삭제할까요?</translation>
    </message>
    <message>
        <source>Mobile Contacts will not be deleted.</source>
        <translation>휴대폰 연락처는 삭제되지 않습니다.</translation>
    </message>
    <message>
        <source>Delete All Contacts</source>
        <translation>모든 연락처 삭제</translation>
    </message>
    <message>
        <source>Contacts</source>
        <translation>연락처</translation>
    </message>
    <message>
        <source>All</source>
        <translation>전체</translation>
    </message>
    <message>
        <source>Personal Phonebook</source>
        <translation>개인 전화번호부</translation>
    </message>
    <message>
        <source>System Phonebook</source>
        <translation>시스템 전화번호부</translation>
    </message>
    <message>
        <source>No Contacts</source>
        <translation>연락처 없음</translation>
    </message>
    <message>
        <source>Search</source>
        <translation>검색</translation>
    </message>
</context>
<context>
    <name>DetailsDial</name>
    <message>
        <source>Contacts | </source>
        <translation>연락처 | </translation>
    </message>
    <message>
        <source>Details</source>
        <translation>상세정보</translation>
    </message>
    <message>
        <source>Name</source>
        <translation>이름</translation>
    </message>
    <message>
        <source>Group</source>
        <translation>그룹</translation>
    </message>
    <message>
        <source>Unassigned</source>
        <translation>미지정</translation>
    </message>
    <message>
        <source>Email</source>
        <translation>이메일</translation>
    </message>
    <message>
        <source>Bell</source>
        <translation>벨소리</translation>
    </message>
    <message>
        <source>Memo</source>
        <translation>메모</translation>
    </message>
    <message>
        <source>Call</source>
        <translation>전화</translation>
    </message>
    <message>
        <source>Message</source>
        <translation>메시지</translation>
    </message>
    <message>
        <source>Delete</source>
        <translation>삭제</translation>
    </message>
    <message>
        <source>Edit</source>
        <translation>편집</translation>
    </message>
    <message>
        <source>Logout status</source>
        <translation>로그아웃 상태</translation>
    </message>
    <message>
        <source>No History</source>
        <translation>통화기록 없음</translation>
    </message>
    <message>
        <source>Delete the contact</source>
        <translation>연락처 삭제</translation>
    </message>
    <message>
        <source>Do you want to delete the contact?</source>
        <translation>연락처를 삭제할까요?</translation>
    </message>
    <message>
        <source>No</source>
        <translation>아니요</translation>
    </message>
    <message>
        <source>Deleted</source>
        <translation>삭제되었습니다</translation>
    </message>
    <message>
        <source>Failed</source>
        <translation>실패했습니다</translation>
    </message>
</context>
<context>
    <name>DirectorySearchDetail</name>
    <message>
        <source>Directory Service</source>
        <translation>디렉터리 서비스</translation>
    </message>
    <message>
        <source>Save</source>
        <translation>저장</translation>
    </message>
    <message>
        <source>Call</source>
        <translation>전화</translation>
    </message>
    <message>
        <source>Message</source>
        <translation>메시지</translation>
    </message>
    <message>
        <source>Name</source>
        <translation>이름</translation>
    </message>
    <message>
        <source>Number</source>
        <translation>번호</translation>
    </message>
    <message>
        <source>Type</source>
        <translation>종류</translation>
    </message>
    <message>
        <source>Position</source>
        <translation>직위</translation>
    </message>
    <message>
        <source>Department</source>
        <translation>부서</translation>
    </message>
    <message>
        <source>Mobile</source>
        <translation>휴대폰</translation>
    </message>
    <message>
        <source>Save contact</source>
        <translation>연락처 저장</translation>
    </message>
    <message>
        <source>Do you want to save number?</source>
        <translation>번호를 저장할까요?</translation>
    </message>
    <message>
        <source>New</source>
        <translation>새 연락처</translation>
    </message>
    <message>
        <source>Existing</source>
        <translation>기존</translation>
    </message>
    <message>
        <source>Cancel</source>
        <translation>취소</translation>
    </message>
</context>
<context>
    <name>GroupAdd</name>
    <message>
        <source>Contacts | Create Group </source>
        <translation>연락처 | 그룹 추가 </translation>
    </message>
    <message>
        <source>Contacts | Edit Group</source>
        <translation>연락처 | 그룹 편집</translation>
    </message>
    <message>
        <source>Save</source>
        <translation>저장</translation>
    </message>
    <message>
        <source>Group Name</source>
        <translation>그룹 이름</translation>
    </message>
    <message>
        <source>Group Bell</source>
        <translation>그룹 벨소리</translation>
    </message>
    <message>
        <source>Unassigned.wav</source>
        <translation>지정 안 함.wav</translation>
    </message>
    <message>
        <source>Unassigned</source>
        <translation>지정 안 함</translation>
    </message>
    <message>
        <source>Cancel</source>
        <translation>취소</translation>
    </message>
    <message>
        <source>Enter group name</source>
        <translation>그룹 이름을 입력하세요</translation>
    </message>
    <message>
        <source>Group name already exists</source>
        <translation>이미 있는 그룹 이름입니다</translation>
    </message>
    <message>
        <source>Saved</source>
        <translation>저장되었습니다</translation>
    </message>
    <message>
        <source>Failed</source>
        <translation>실패했습니다</translation>
    </message>
    <message>
        <source>Office</source>
        <translation>회사</translation>
    </message>
</context>
<context>
    <name>GroupDetail</name>
    <message>
        <source>No contacts</source>
        <translation>연락처 없음</translation>
    </message>
    <message>
        <source>Contacts | </source>
        <translation>연락처 | </translation>
    </message>
    <message>
        <source>Unassigned</source>
        <translation>미지정</translation>
    </message>
    <message>
        <source>Detail</source>
        <translation>상세</translation>
    </message>
    <message>
        <source>Add Contact</source>
        <translation>추가</translation>
    </message>
    <message>
        <source>Delete</source>
        <translation>삭제</translation>
    </message>
    <message>
        <source>Delete All</source>
        <translation>모두 삭제</translation>
    </message>
    <message>
        <source>Deleted</source>
        <translation>삭제되었습니다</translation>
    </message>
    <message>
        <source>Failed</source>
        <translation>실패했습니다</translation>
    </message>
    <message>
        <source>Do you want to delete the %1 in this group?</source>
        <translation>그룹에서 %1 연락처를 뺄까요?</translation>
    </message>
    <message>
        <source>Delete Contact</source>
        <translation>그룹에서 빼기</translation>
    </message>
    <message>
        <source>No</source>
        <translation>아니요</translation>
    </message>
    <message>
        <source>Delete All Contacts</source>
        <translation>모두 빼기</translation>
    </message>
    <message>
        <source>Do you want to delete all of contacts in this group?</source>
        <translation>이 그룹의 연락처를 모두 뺄까요?</translation>
    </message>
</context>
<context>
    <name>GroupList</name>
    <message>
        <source>Contacts | Groups</source>
        <translation>연락처 | 그룹</translation>
    </message>
    <message>
        <source>All</source>
        <translation>전체</translation>
    </message>
    <message>
        <source>Add Group</source>
        <translation>그룹 추가</translation>
    </message>
    <message>
        <source>Unassigned</source>
        <translation>미지정</translation>
    </message>
    <message>
        <source>Delete</source>
        <translation>삭제</translation>
    </message>
    <message>
        <source>Edit</source>
        <translation>편집</translation>
    </message>
    <message>
        <source>Max limit exceeded</source>
        <translation>그룹은 30개까지입니다</translation>
    </message>
    <message>
        <source>Delete the group?</source>
        <translation>그룹을 삭제할까요?</translation>
    </message>
    <message>
        <source>Group members will move to Unassigned group</source>
        <translation>구성원은 미지정 그룹으로 옮겨집니다.</translation>
    </message>
    <message>
        <source>Delete Group</source>
        <translation>그룹 삭제</translation>
    </message>
    <message>
        <source>No</source>
        <translation>아니요</translation>
    </message>
    <message>
        <source>Deleted</source>
        <translation>삭제되었습니다</translation>
    </message>
    <message>
        <source>Failed</source>
        <translation>실패했습니다</translation>
    </message>
</context>
<context>
    <name>GroupList_At_Contact</name>
    <message>
        <source>Contacts | Groups</source>
        <translation>연락처 | 그룹</translation>
    </message>
    <message>
        <source>Create Group</source>
        <translation>그룹 추가</translation>
    </message>
    <message>
        <source>Done</source>
        <translation>완료</translation>
    </message>
    <message>
        <source>Unassigned</source>
        <translation>미지정</translation>
    </message>
    <message>
        <source>Erase</source>
        <translation>지우기</translation>
    </message>
    <message>
        <source>OK</source>
        <translation>확인</translation>
    </message>
    <message>
        <source>Cancel</source>
        <translation>취소</translation>
    </message>
    <message>
        <source>Enter name</source>
        <translation>이름을 입력하세요</translation>
    </message>
    <message>
        <source>Input name max 30 byte</source>
        <translation>이름은 30바이트까지입니다</translation>
    </message>
    <message>
        <source>Group name already exists</source>
        <translation>이미 있는 그룹 이름입니다</translation>
    </message>
    <message>
        <source>Max limit exceeded</source>
        <translation>그룹은 10개까지입니다</translation>
    </message>
    <message>
        <source>Contacts | Create Group</source>
        <translation>연락처 | 그룹 추가</translation>
    </message>
    <message>
        <source>Created</source>
        <translation>생성되었습니다</translation>
    </message>
</context>
<context>
    <name>NumberEdit</name>
    <message>
        <source>Contacts | Edit</source>
        <translation>연락처 | 편집</translation>
    </message>
    <message>
        <source>Contacts | Add</source>
        <translation>연락처 | 추가</translation>
    </message>
    <message>
        <source>Add Field</source>
        <translation>항목 추가</translation>
    </message>
    <message>
        <source>Save</source>
        <translation>저장</translation>
    </message>
    <message>
        <source>Unassigned</source>
        <translation>미지정</translation>
    </message>
    <message>
        <source>Delete Field</source>
        <translation>항목 삭제</translation>
    </message>
    <message>
        <source>Saved</source>
        <translation>저장되었습니다</translation>
    </message>
    <message>
        <source>Enter Name</source>
        <translation>이름을 입력하세요</translation>
    </message>
    <message>
        <source>Input Numbers</source>
        <translation>번호를 입력하세요</translation>
    </message>
    <message>
        <source>Reached save limit</source>
        <translation>저장 공간이 가득 찼습니다</translation>
    </message>
    <message>
        <source>Number is full
Delete other Number First</source>
        <translation>번호가 가득 찼습니다.
다른 번호를 먼저 삭제하세요.</translation>
    </message>
    <message>
        <source>Failed</source>
        <translation>실패했습니다</translation>
    </message>
    <message>
        <source>Email</source>
        <translation>이메일</translation>
    </message>
    <message>
        <source>Bell</source>
        <translation>벨소리</translation>
    </message>
    <message>
        <source>Undesignated</source>
        <translation>지정 안 함</translation>
    </message>
    <message>
        <source>Name</source>
        <translation>이름</translation>
    </message>
    <message>
        <source>Group</source>
        <translation>그룹</translation>
    </message>
    <message>
        <source>Memo</source>
        <translation>메모</translation>
    </message>
    <message>
        <source>Cancel</source>
        <translation>취소</translation>
    </message>
    <message>
        <source>Do you want to delete this Field?</source>
        <translation>이 항목을 삭제할까요?</translation>
    </message>
    <message>
        <source>Delete</source>
        <translation>삭제</translation>
    </message>
    <message>
        <source>No</source>
        <translation>아니요</translation>
    </message>
</context>
<context>
    <name>QObject</name>
    <message>
        <source>Number</source>
        <translation>번호</translation>
    </message>
    <message>
        <source>Company</source>
        <translation>회사</translation>
    </message>
    <message>
        <source>Mobile</source>
        <translation>휴대폰</translation>
    </message>
    <message>
        <source>Home</source>
        <translation>집</translation>
    </message>
    <message>
        <source>Fax</source>
        <translation>팩스</translation>
    </message>
    <message>
        <source>Etc</source>
        <translation>기타</translation>
    </message>
</context>
<context>
    <name>SearchAll</name>
    <message>
        <source>Contacts | Search</source>
        <translation>연락처 | 검색</translation>
    </message>
    <message>
        <source>No Result</source>
        <translation>검색 결과 없음</translation>
    </message>
    <message>
        <source>Call</source>
        <translation>전화</translation>
    </message>
</context>
<context>
    <name>SearchDir</name>
    <message>
        <source>Directory Service</source>
        <translation>디렉터리 서비스</translation>
    </message>
    <message>
        <source>Search</source>
        <translation>검색</translation>
    </message>
    <message>
        <source>Search Type</source>
        <translation>검색 방법</translation>
    </message>
    <message>
        <source>Name</source>
        <translation>이름</translation>
    </message>
    <message>
        <source>Number</source>
        <translation>번호</translation>
    </message>
    <message>
        <source>The keyword is too short</source>
        <translation>검색어가 너무 짧습니다</translation>
    </message>
    <message>
        <source>Input at least 3 digits</source>
        <translation>숫자를 3자리 이상 입력하세요</translation>
    </message>
    <message>
        <source>Cancel</source>
        <translation>취소</translation>
    </message>
</context>
<context>
    <name>SearchDirResult</name>
    <message>
        <source>No Result</source>
        <translation>검색 결과 없음</translation>
    </message>
    <message>
        <source>Directory Service</source>
        <translation>디렉터리 서비스</translation>
    </message>
    <message>
        <source>page</source>
        <translation>페이지</translation>
    </message>
    <message>
        <source>Call</source>
        <translation>전화</translation>
    </message>
    <message>
        <source>Message</source>
        <translation>메시지</translation>
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
        <translation>전체</translation>
    </message>
    <message>
        <source>Unassigned</source>
        <translation>미지정</translation>
    </message>
</context>
<context>
    <name>SystemPhonebookCategoryWidget</name>
    <message>
        <source>System Phonebook</source>
        <translation>시스템 전화번호부</translation>
    </message>
    <message>
        <source>Groups</source>
        <translation>그룹</translation>
    </message>
    <message>
        <source>All</source>
        <translation>전체</translation>
    </message>
</context>
<context>
    <name>SystemPhonebookListWidget</name>
    <message>
        <source>All</source>
        <translation>전체</translation>
    </message>
    <message>
        <source>Unassigned</source>
        <translation>미지정</translation>
    </message>
    <message>
        <source>System Phonebook</source>
        <translation>시스템 전화번호부</translation>
    </message>
    <message>
        <source>Groups</source>
        <translation>그룹</translation>
    </message>
    <message>
        <source>Call</source>
        <translation>전화</translation>
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
