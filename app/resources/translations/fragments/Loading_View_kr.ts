<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<TS version="2.1" language="ko_KR" sourcelanguage="en_US">
<context>
    <name>Loading_View</name>
    <message>
        <source>Can not Find QX NORVALEX</source>
        <translation>NORVALEX 메모리 모듈을 찾을 수 없습니다</translation>
    </message>
    <message>
        <source>OK</source>
        <translation>확인</translation>
    </message>
</context>
</TS>
