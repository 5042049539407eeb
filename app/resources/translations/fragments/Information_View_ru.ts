<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<TS version="2.1" language="ru_RU" sourcelanguage="en_US">
<context>
    <name>Information_View</name>
    <message>
        <source>Channel:</source>
        <translation>Канал: </translation>
    </message>
    <message>
        <source>CAS# Latency (CL):</source>
        <translation>Задержка CAS# (CL): </translation>
    </message>
    <message>
        <source>RAS# to CAS# Delay (tRCD):</source>
        <translation>Задержка RAS#–CAS# (tRCD): </translation>
    </message>
    <message>
        <source>Frequency:</source>
        <translation>Частота: </translation>
    </message>
    <message>
        <source>Load</source>
        <translation>Нагрузка</translation>
    </message>
    <message>
        <source>Low</source>
        <translation>Мин.</translation>
    </message>
    <message>
        <source>High</source>
        <translation>Макс.</translation>
    </message>
</context>
</TS>
