<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<TS version="2.1" language="ru_RU" sourcelanguage="en_US">
<context>
    <name>Noti_View</name>
    <message>
        <source>Setting Notification</source>
        <translation>Уведомления</translation>
    </message>
    <message>
        <source>Loading</source>
        <translation>Нагрузка</translation>
    </message>
    <message>
        <source>Trigger all LED </source>
        <translation>окрашивает все LED в</translation>
    </message>
    <message>
        <source>Memory</source>
        <translation>Память</translation>
    </message>
    <message>
        <source>CPU</source>
        <translation>ЦП</translation>
    </message>
    <message>
        <source>Shutdown PC</source>
        <translation>предлагает выключить ПК во избежание повреждений</translation>
    </message>
    <message>
        <source>Set all fans to 100%</source>
        <translation>включает все вентиляторы на полную скорость</translation>
    </message>
</context>
</TS>
