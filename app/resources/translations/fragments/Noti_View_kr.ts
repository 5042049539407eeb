<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<TS version="2.1" language="ko_KR" sourcelanguage="en_US">
<context>
    <name>Noti_View</name>
    <message>
        <source>Setting Notification</source>
        <translation>알림 설정</translation>
    </message>
    <message>
        <source>Loading</source>
        <translation>부하</translation>
    </message>
    <message>
        <source>Trigger all LED </source>
        <translation>모든 LED를 이 색으로</translation>
    </message>
    <message>
        <source>Memory</source>
        <translation>메모리</translation>
    </message>
    <message>
        <source>CPU</source>
        <translation>CPU</translation>
    </message>
    <message>
        <source>Shutdown PC</source>
        <translation>손상을 막기 위해 PC 종료를 안내</translation>
    </message>
    <message>
        <source>Set all fans to 100%</source>
        <translation>모든 팬을 최대 속도로 설정</translation>
    </message>
</context>
</TS>
