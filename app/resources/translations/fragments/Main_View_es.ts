<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<TS version="2.1" language="es_ES" sourcelanguage="en_US">
<context>
    <name>Main_View</name>
    <message>
        <source>Information</source>
        <translation>Información</translation>
    </message>
    <message>
        <source>Lighting</source>
        <translation>Iluminación</translation>
    </message>
    <message>
        <source>Notification</source>
        <translation>Notificaciones</translation>
    </message>
    <message>
        <source>Settings</source>
        <translation>Ajustes</translation>
    </message>
</context>
</TS>
