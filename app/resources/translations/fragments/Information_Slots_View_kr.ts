<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<TS version="2.1" language="ko_KR" sourcelanguage="en_US">
<context>
    <name>Information_Slots_View</name>
    <message>
        <source>Type:</source>
        <translation>유형: </translation>
    </message>
    <message>
        <source>Size:</source>
        <translation>용량: </translation>
    </message>
    <message>
        <source>Frequency:</source>
        <translation>주파수: </translation>
    </message>
    <message>
        <source>Temperature:</source>
        <translation>온도: </translation>
    </message>
</context>
</TS>
