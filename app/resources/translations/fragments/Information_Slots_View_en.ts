<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<TS version="2.1" language="en_US" sourcelanguage="en_US">
<context>
    <name>Information_Slots_View</name>
    <message>
        <source>Type:</source>
        <translation>Type: </translation>
    </message>
    <message>
        <source>Size:</source>
        <translation>Size: </translation>
    </message>
    <message>
        <source>Frequency:</source>
        <translation>Frequency: </translation>
    </message>
    <message>
        <source>Temperature:</source>
        <translation>TEMP: </translation>
    </message>
</context>
</TS>
