<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<TS version="2.1" language="es_ES" sourcelanguage="en_US">
<context>
    <name>Information_View</name>
    <message>
        <source>Channel:</source>
        <translation>Canal: </translation>
    </message>
    <message>
        <source>CAS# Latency (CL):</source>
        <translation>Latencia CAS# (CL): </translation>
    </message>
    <message>
        <source>RAS# to CAS# Delay (tRCD):</source>
        <translation>Retardo RAS# a CAS# (tRCD): </translation>
    </message>
    <message>
        <source>Frequency:</source>
        <translation>Frecuencia: </translation>
    </message>
    <message>
        <source>Load</source>
        <translation>Carga</translation>
    </message>
    <message>
        <source>Low</source>
        <translation>Baja</translation>
    </message>
    <message>
        <source>High</source>
        <translation>Alta</translation>
    </message>
</context>
</TS>
