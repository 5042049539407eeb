<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<TS version="2.1" language="th_TH" sourcelanguage="en_US">
<context>
    <name>Information_View</name>
    <message>
        <source>Channel:</source>
        <translation>แชนเนล: </translation>
    </message>
    <message>
        <source>CAS# Latency (CL):</source>
        <translation>ค่าหน่วง CAS# (CL): </translation>
    </message>
    <message>
        <source>RAS# to CAS# Delay (tRCD):</source>
        <translation>ค่าหน่วง RAS# ถึง CAS# (tRCD): </translation>
    </message>
    <message>
        <source>Frequency:</source>
        <translation>ความถี่: </translation>
    </message>
    <message>
        <source>Load</source>
        <translation>ภาระ</translation>
    </message>
    <message>
        <source>Low</source>
        <translation>ต่ำ</translation>
    </message>
    <message>
        <source>High</source>
        <translation>สูง</translation>
    </message>
</context>
</TS>
