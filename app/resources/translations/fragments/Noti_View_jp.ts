<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<TS version="2.1" language="ja_JP" sourcelanguage="en_US">
<context>
    <name>Noti_View</name>
    <message>
        <source>Setting Notification</source>
        <translation>通知の設定</translation>
    </message>
    <message>
        <source>Loading</source>
        <translation>負荷</translation>
    </message>
    <message>
        <source>Trigger all LED </source>
        <translation>全LEDをこの色に点灯</translation>
    </message>
    <message>
        <source>Memory</source>
        <translation>メモリ</translation>
    </message>
    <message>
        <source>CPU</source>
        <translation>CPU</translation>
    </message>
    <message>
        <source>Shutdown PC</source>
        <translation>損傷を防ぐためPCのシャットダウンを促す</translation>
    </message>
    <message>
        <source>Set all fans to 100%</source>
        <translation>全ファンを最大回転数にする</translation>
    </message>
</context>
</TS>
