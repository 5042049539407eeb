<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<TS version="2.1" language="en_US" sourcelanguage="en_US">
<context>
    <name>Noti_View</name>
    <message>
        <source>Setting Notification</source>
        <translation>Set Notifications</translation>
    </message>
    <message>
        <source>Loading</source>
        <translation>Load</translation>
    </message>
    <message>
        <source>Trigger all LED </source>
        <translation>switches all LEDs to</translation>
    </message>
    <message>
        <source>Memory</source>
        <translation>Memory</translation>
    </message>
    <message>
        <source>CPU</source>
        <translation>CPU</translation>
    </message>
    <message>
        <source>Shutdown PC</source>
        <translation>prompts the user to shut down the PC to avoid damage</translation>
    </message>
    <message>
        <source>Set all fans to 100%</source>
        <translation>sets all fans to full speed</translation>
    </message>
</context>
</TS>
