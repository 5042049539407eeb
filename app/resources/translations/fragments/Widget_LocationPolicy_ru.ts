<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<TS version="2.1" language="ru_RU" sourcelanguage="en_US">
<context>
    <name>Widget_LocationPolicy</name>
    <message>
        <source>NORVALEX Privacy Policy</source>
        <translation>Политика конфиденциальности</translation>
    </message>
    <message>
        <source>Location_Warning_Title</source>
        <translation>Конфиденциальность</translation>
    </message>
    <message>
        <source>Location_Warning_Content</source>
        <translation>Prismveil - NORVALEX запрашивает доступ к вашему местоположению, чтобы показывать время и погоду.</translation>
    </message>
    <message>
        <source>Location_Not_Remind</source>
        <translation>Разрешить</translation>
    </message>
    <message>
        <source>OK</source>
        <translation>ОК</translation>
    </message>
</context>
</TS>
