<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<TS version="2.1" language="zh_CN" sourcelanguage="en_US">
<context>
    <name>Noti_View</name>
    <message>
        <source>Setting Notification</source>
        <translation>设置通知</translation>
    </message>
    <message>
        <source>Loading</source>
        <translation>负载</translation>
    </message>
    <message>
        <source>Trigger all LED </source>
        <translation>将所有 LED 切换为</translation>
    </message>
    <message>
        <source>Memory</source>
        <translation>内存</translation>
    </message>
    <message>
        <source>CPU</source>
        <translation>CPU</translation>
    </message>
    <message>
        <source>Shutdown PC</source>
        <translation>提示用户关闭电脑以避免损坏</translation>
    </message>
    <message>
        <source>Set all fans to 100%</source>
        <translation>将所有风扇设为全速</translation>
    </message>
</context>
</TS>
