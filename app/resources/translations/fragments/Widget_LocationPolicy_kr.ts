<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<TS version="2.1" language="ko_KR" sourcelanguage="en_US">
<context>
    <name>Widget_LocationPolicy</name>
    <message>
        <source>NORVALEX Privacy Policy</source>
        <translation>개인정보 처리방침</translation>
    </message>
    <message>
        <source>Location_Warning_Title</source>
        <translation>개인정보 처리방침</translation>
    </message>
    <message>
        <source>Location_Warning_Content</source>
        <translation>Prismveil - NORVALEX에서 시간과 날씨 정보를 가져오기 위해 현재 위치를 사용하려고 합니다.</translation>
    </message>
    <message>
        <source>Location_Not_Remind</source>
        <translation>허용</translation>
    </message>
    <message>
        <source>OK</source>
        <translation>확인</translation>
    </message>
</context>
</TS>
