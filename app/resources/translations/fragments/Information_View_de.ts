<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<TS version="2.1" language="de_DE" sourcelanguage="en_US">
<context>
    <name>Information_View</name>
    <message>
        <source>Channel:</source>
        <translation>Kanal: </translation>
    </message>
    <message>
        <source>CAS# Latency (CL):</source>
        <translation>CAS#-Latenz (CL): </translation>
    </message>
    <message>
        <source>RAS# to CAS# Delay (tRCD):</source>
        <translation>RAS#-zu-CAS#-Verzögerung (tRCD): </translation>
    </message>
    <message>
        <source>Frequency:</source>
        <translation>Frequenz: </translation>
    </message>
    <message>
        <source>Load</source>
        <translation>Last</translation>
    </message>
    <message>
        <source>Low</source>
        <translation>Niedrig</translation>
    </message>
    <message>
        <source>High</source>
        <translation>Hoch</translation>
    </message>
</context>
</TS>
