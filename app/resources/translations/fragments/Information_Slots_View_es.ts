<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<TS version="2.1" language="es_ES" sourcelanguage="en_US">
<context>
    <name>Information_Slots_View</name>
    <message>
        <source>Type:</source>
        <translation>Tipo: </translation>
    </message>
    <message>
        <source>Size:</source>
        <translation>Tamaño: </translation>
    </message>
    <message>
        <source>Frequency:</source>
        <translation>Frecuencia: </translation>
    </message>
    <message>
        <source>Temperature:</source>
        <translation>Temperatura: </translation>
    </message>
</context>
</TS>
