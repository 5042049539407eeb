<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<TS version="2.1" language="en_US" sourcelanguage="en_US">
<context>
    <name>Information_View</name>
    <message>
        <source>Channel:</source>
        <translation>Channel: </translation>
    </message>
    <message>
        <source>CAS# Latency (CL):</source>
        <translation>CAS# Latency (CL): </translation>
    </message>
    <message>
        <source>RAS# to CAS# Delay (tRCD):</source>
        <translation>RAS# to CAS# Delay (tRCD): </translation>
    </message>
    <message>
        <source>Frequency:</source>
        <translation>Frequency: </translation>
    </message>
    <message>
        <source>Load</source>
        <translation>Load</translation>
    </message>
    <message>
        <source>Low</source>
        <translation>Low</translation>
    </message>
    <message>
        <source>High</source>
        <translation>High</translation>
    </message>
</context>
</TS>
