<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<TS version="2.1" language="es_ES" sourcelanguage="en_US">
<context>
    <name>Loading_View</name>
    <message>
        <source>Can not Find QX NORVALEX</source>
        <translation>No se encontró ningún módulo de memoria NORVALEX</translation>
    </message>
    <message>
        <source>OK</source>
        <translation>Aceptar</translation>
    </message>
</context>
</TS>
