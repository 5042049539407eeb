<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<TS version="2.1" language="zh_CN" sourcelanguage="en_US">
<context>
    <name>Loading_View</name>
    <message>
        <source>Can not Find QX NORVALEX</source>
        <translation>未找到 NORVALEX 内存模块</translation>
    </message>
    <message>
        <source>OK</source>
        <translation>确定</translation>
    </message>
</context>
</TS>
