<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<TS version="2.1" language="zh_CN" sourcelanguage="en_US">
<context>
    <name>Widget_LocationPolicy</name>
    <message>
        <source>NORVALEX Privacy Policy</source>
        <translation>隐私政策</translation>
    </message>
    <message>
        <source>Location_Warning_Title</source>
        <translation>隐私政策</translation>
    </message>
    <message>
        <source>Location_Warning_Content</source>
        <translation>Prismveil - NORVALEX 想要使用您当前的位置，以获取时间和天气信息。</translation>
    </message>
    <message>
        <source>Location_Not_Remind</source>
        <translation>允许</translation>
    </message>
    <message>
        <source>OK</source>
        <translation>确定</translation>
    </message>
</context>
</TS>
