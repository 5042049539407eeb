<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<TS version="2.1" language="ko_KR" sourcelanguage="en_US">
<context>
    <name>Main_View</name>
    <message>
        <source>Information</source>
        <translation>정보</translation>
    </message>
    <message>
        <source>Lighting</source>
        <translation>조명</translation>
    </message>
    <message>
        <source>Notification</source>
        <translation>알림</translation>
    </message>
    <message>
        <source>Settings</source>
        <translation>설정</translation>
    </message>
</context>
</TS>
