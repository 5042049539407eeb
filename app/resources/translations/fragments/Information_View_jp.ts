<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<TS version="2.1" language="ja_JP" sourcelanguage="en_US">
<context>
    <name>Information_View</name>
    <message>
        <source>Channel:</source>
        <translation>チャネル：</translation>
    </message>
    <message>
        <source>CAS# Latency (CL):</source>
        <translation>CAS# レイテンシ (CL)：</translation>
    </message>
    <message>
        <source>RAS# to CAS# Delay (tRCD):</source>
        <translation>RAS# - CAS# 遅延 (tRCD)：</translation>
    </message>
    <message>
        <source>Frequency:</source>
        <translation>周波数：</translation>
    </message>
    <message>
        <source>Load</source>
        <translation>負荷</translation>
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
