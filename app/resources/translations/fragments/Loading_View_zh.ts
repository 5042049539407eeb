<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<TS version="2.1" language="zh_TW" sourcelanguage="en_US">
<context>
    <name>Loading_View</name>
    <message>
        <source>Can not Find QX NORVALEX</source>
        <translation>找不到 NORVALEX 記憶體模組</translation>
    </message>
    <message>
        <source>OK</source>
        <translation>確定</translation>
    </message>
</context>
</TS>
