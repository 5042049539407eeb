<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<TS version="2.1" language="zh_TW" sourcelanguage="en_US">
<context>
    <name>Noti_View</name>
    <message>
        <source>Setting Notification</source>
        <translation>設定通知</translation>
    </message>
    <message>
        <source>Loading</source>
        <translation>負載</translation>
    </message>
    <message>
        <source>Trigger all LED </source>
        <translation>將所有 LED 切換為</translation>
    </message>
    <message>
        <source>Memory</source>
        <translation>記憶體</translation>
    </message>
    <message>
        <source>CPU</source>
        <translation>CPU</translation>
    </message>
    <message>
        <source>Shutdown PC</source>
        <translation>提示使用者關閉電腦以避免損壞</translation>
    </message>
    <message>
        <source>Set all fans to 100%</source>
        <translation>將所有風扇設為全速</translation>
    </message>
</context>
</TS>
