<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<TS version="2.1" language="ja_JP" sourcelanguage="en_US">
<context>
    <name>Information_Slots_View</name>
    <message>
        <source>Type:</source>
        <translation>タイプ：</translation>
    </message>
    <message>
        <source>Size:</source>
        <translation>容量：</translation>
    </message>
    <message>
        <source>Frequency:</source>
        <translation>周波数：</translation>
    </message>
    <message>
        <source>Temperature:</source>
        <translation>温度：</translation>
    </message>
</context>
</TS>
