<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<TS version="2.1" language="de_DE" sourcelanguage="en_US">
<context>
    <name>Information_Slots_View</name>
    <message>
        <source>Type:</source>
        <translation>Typ: </translation>
    </message>
    <message>
        <source>Size:</source>
        <translation>Größe: </translation>
    </message>
    <message>
        <source>Frequency:</source>
        <translation>Frequenz: </translation>
    </message>
    <message>
        <source>Temperature:</source>
        <translation>Temperatur: </translation>
    </message>
</context>
</TS>
