<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<TS version="2.1" language="ko_KR" sourcelanguage="en_US">
<context>
    <name>Clean_View</name>
    <message>
        <source>Clean</source>
        <translation>정리</translation>
    </message>
</context>
</TS>
