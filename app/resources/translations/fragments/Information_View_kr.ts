<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<TS version="2.1" language="ko_KR" sourcelanguage="en_US">
<context>
    <name>Information_View</name>
    <message>
        <source>Channel:</source>
        <translation>채널: </translation>
    </message>
    <message>
        <source>CAS# Latency (CL):</source>
        <translation>CAS# 레이턴시 (CL): </translation>
    </message>
    <message>
        <source>RAS# to CAS# Delay (tRCD):</source>
        <translation>RAS#-CAS# 지연 (tRCD): </translation>
    </message>
    <message>
        <source>Frequency:</source>
        <translation>주파수: </translation>
    </message>
    <message>
        <source>Load</source>
        <translation>부하</translation>
    </message>
    <message>
        <source>Low</source>
        <translation>낮음</translation>
    </message>
    <message>
        <source>High</source>
        <translation>높음</translation>
    </message>
</context>
</TS>
