<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<TS version="2.1" language="zh_CN" sourcelanguage="en_US">
<context>
    <name>Main_View</name>
    <message>
        <source>Information</source>
        <translation>信息</translation>
    </message>
    <message>
        <source>Lighting</source>
        <translation>灯光</translation>
    </message>
    <message>
        <source>Notification</source>
        <translation>通知</translation>
    </message>
    <message>
        <source>Settings</source>
        <translation>设置</translation>
    </message>
</context>
</TS>
