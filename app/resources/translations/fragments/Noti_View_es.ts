<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<TS version="2.1" language="es_ES" sourcelanguage="en_US">
<context>
    <name>Noti_View</name>
    <message>
        <source>Setting Notification</source>
        <translation>Configurar notificaciones</translation>
    </message>
    <message>
        <source>Loading</source>
        <translation>Carga</translation>
    </message>
    <message>
        <source>Trigger all LED </source>
        <translation>cambia todos los LED a</translation>
    </message>
    <message>
        <source>Memory</source>
        <translation>Memoria</translation>
    </message>
    <message>
        <source>CPU</source>
        <translation>CPU</translation>
    </message>
    <message>
        <source>Shutdown PC</source>
        <translation>pide apagar el PC para evitar daños</translation>
    </message>
    <message>
        <source>Set all fans to 100%</source>
        <translation>pone todos los ventiladores a máxima velocidad</translation>
    </message>
</context>
</TS>
