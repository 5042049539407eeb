<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<TS version="2.1" language="es_ES" sourcelanguage="en_US">
<context>
    <name>Widget_LocationPolicy</name>
    <message>
        <source>NORVALEX Privacy Policy</source>
        <translation>Política de privacidad</translation>
    </message>
    <message>
        <source>Location_Warning_Title</source>
        <translation>Política de privacidad</translation>
    </message>
    <message>
        <source>Location_Warning_Content</source>
        <translation>Prismveil - NORVALEX desea usar su ubicación actual para obtener la hora y el tiempo.</translation>
    </message>
    <message>
        <source>Location_Not_Remind</source>
        <translation>Permitir</translation>
    </message>
    <message>
        <source>OK</source>
        <translation>Aceptar</translation>
    </message>
</context>
</TS>
