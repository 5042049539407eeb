<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<TS version="2.1" language="ru_RU" sourcelanguage="en_US">
<context>
    <name>Information_Slots_View</name>
    <message>
        <source>Type:</source>
        <translation>Тип: </translation>
    </message>
    <message>
        <source>Size:</source>
        <translation>Объём: </translation>
    </message>
    <message>
        <source>Frequency:</source>
        <translation>Частота: </translation>
    </message>
    <message>
        <source>Temperature:</source>
        <translation>Температура: </translation>
    </message>
</context>
</TS>
