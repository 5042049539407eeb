<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<TS version="2.1" language="es_ES" sourcelanguage="en_US">
<context>
    <name>Clean_View</name>
    <message>
        <source>Clean</source>
        <translation>Limpieza</translation>
    </message>
</context>
</TS>
