<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<TS version="2.1" language="ko_KR" sourcelanguage="en_US">
<context>
    <name>Call</name>
    <message>
        <source>Dialing</source>
        <translation>거는 중</translation>
    </message>
    <message>
        <source>Ringing</source>
        <translation>호출 중</translation>
    </message>
    <message>
        <source>Connected</source>
        <translation>통화 중</translation>
    </message>
    <message>
        <source>Busy</source>
        <translation>상대 통화 중</translation>
    </message>
    <message>
        <source>Call</source>
        <translation>전화</translation>
    </message>
    <message>
        <source>End</source>
        <translation>종료</translation>
    </message>
</context>
<context>
    <name>History</name>
    <message>
        <source>No History</source>
        <translation>통화기록 없음</translation>
    </message>
    <message>
        <source>All</source>
        <translation>전체</translation>
    </message>
    <message>
        <source>History</source>
        <translation>통화기록</translation>
    </message>
    <message>
        <source>Call</source>
        <translation>전화</translation>
    </message>
    <message>
        <source>Close</source>
        <translation>닫기</translation>
    </message>
</context>
<context>
    <name>Idle</name>
    <message>
        <source>Contacts</source>
        <translation>연락처</translation>
    </message>
    <message>
        <source>History</source>
        <translation>통화기록</translation>
    </message>
    <message>
        <source>Messages</source>
        <translation>메시지</translation>
    </message>
    <message>
        <source>Keys</source>
        <translation>버튼</translation>
    </message>
    <message>
        <source>Call</source>
        <translation>통화</translation>
    </message>
    <message>
        <source>Home</source>
        <translation>홈</translation>
    </message>
    <message>
        <source>Language</source>
        <translation>언어</translation>
    </message>
    <message>
        <source>Directory</source>
        <translation>디렉터리</translation>
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
        <translation>버튼 모듈</translation>
    </message>
    <message>
        <source>Key Module (%1/%2)</source>
        <translation>버튼 모듈 (%1/%2)</translation>
    </message>
    <message>
        <source>No Keys</source>
        <translation>버튼 없음</translation>
    </message>
    <message>
        <source>Add</source>
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
</context>
<context>
    <name>MessageApp</name>
    <message>
        <source>Messages</source>
        <translation>메시지</translation>
    </message>
    <message>
        <source>Messages | Sent (%1)</source>
        <translation>메시지 | 보낸 메시지 (%1)</translation>
    </message>
    <message>
        <source>No Messages</source>
        <translation>메시지 없음</translation>
    </message>
    <message>
        <source>New</source>
        <translation>작성</translation>
    </message>
    <message>
        <source>Delete</source>
        <translation>삭제</translation>
    </message>
    <message>
        <source>Close</source>
        <translation>닫기</translation>
    </message>
</context>
<context>
    <name>MessageForm</name>
    <message>
        <source>To</source>
        <translation>수신</translation>
    </message>
    <message>
        <source>Text</source>
        <translation>내용</translation>
    </message>
    <message>
        <source>Close</source>
        <translation>닫기</translation>
    </message>
    <message>
        <source>Search</source>
        <translation>검색</translation>
    </message>
    <message>
        <source>Send</source>
        <translation>보내기</translation>
    </message>
    <message>
        <source>Messages | New</source>
        <translation>메시지 | 새 메시지</translation>
    </message>
    <message>
        <source>Sent</source>
        <translation>전송되었습니다</translation>
    </message>
    <message>
        <source>Failed</source>
        <translation>실패했습니다</translation>
    </message>
    <message>
        <source>Enter a number</source>
        <translation>번호를 입력하세요</translation>
    </message>
    <message>
        <source>Enter a text</source>
        <translation>내용을 입력하세요</translation>
    </message>
</context>
</TS>
