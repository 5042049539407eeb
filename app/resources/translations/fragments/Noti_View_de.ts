<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<TS version="2.1" language="de_DE" sourcelanguage="en_US">
<context>
    <name>Noti_View</name>
    <message>
        <source>Setting Notification</source>
        <translation>Benachrichtigungen</translation>
    </message>
    <message>
        <source>Loading</source>
        <translation>Last</translation>
    </message>
    <message>
        <source>Trigger all LED </source>
        <translation>schaltet alle LEDs auf</translation>
    </message>
    <message>
        <source>Memory</source>
        <translation>Speicher</translation>
    </message>
    <message>
        <source>CPU</source>
        <translation>CPU</translation>
    </message>
    <message>
        <source>Shutdown PC</source>
        <translation>fordert zum Herunterfahren des PCs auf, um Schäden zu vermeiden</translation>
    </message>
    <message>
        <source>Set all fans to 100%</source>
        <translation>setzt alle Lüfter auf volle Drehzahl</translation>
    </message>
</context>
</TS>
