<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<TS version="2.1" language="fr_FR" sourcelanguage="en_US">
<context>
    <name>Information_View</name>
    <message>
        <source>Channel:</source>
        <translation>Canal : </translation>
    </message>
    <message>
        <source>CAS# Latency (CL):</source>
        <translation>Latence CAS# (CL) : </translation>
    </message>
    <message>
        <source>RAS# to CAS# Delay (tRCD):</source>
        <translation>Délai RAS# vers CAS# (tRCD) : </translation>
    </message>
    <message>
        <source>Frequency:</source>
        <translation>Fréquence : </translation>
    </message>
    <message>
        <source>Load</source>
        <translation>Charge</translation>
    </message>
    <message>
        <source>Low</source>
        <translation>Faible</translation>
    </message>
    <message>
        <source>High</source>
        <translation>Élevée</translation>
    </message>
</context>
</TS>
