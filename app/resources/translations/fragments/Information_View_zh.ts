<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<TS version="2.1" language="zh_TW" sourcelanguage="en_US">
<context>
    <name>Information_View</name>
    <message>
        <source>Channel:</source>
        <translation>通道：</translation>
    </message>
    <message>
        <source>CAS# Latency (CL):</source>
        <translation>CAS# 延遲 (CL)：</translation>
    </message>
    <message>
        <source>RAS# to CAS# Delay (tRCD):</source>
        <translation>RAS# 至 CAS# 延遲 (tRCD)：</translation>
    </message>
    <message>
        <source>Frequency:</source>
        <translation>頻率：</translation>
    </message>
    <message>
        <source>Load</source>
        <translation>負載</translation>
    </message>
    <message>
        <source>Low</source>
        <translation>低</translation>
    </message>
    <message>
        <source>High</source>
        <translation>高</translation>
    </message>
</context>
</TS>
