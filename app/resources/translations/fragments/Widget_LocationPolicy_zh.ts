<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<TS version="2.1" language="zh_TW" sourcelanguage="en_US">
<context>
    <name>Widget_LocationPolicy</name>
    <message>
        <source>NORVALEX Privacy Policy</source>
        <translation>隱私權政策</translation>
    </message>
    <message>
        <source>Location_Warning_Title</source>
        <translation>隱私權政策</translation>
    </message>
    <message>
        <source>Location_Warning_Content</source>
        <translation>Prismveil - NORVALEX 想要使用您目前的位置，以取得時間與天氣資訊。</translation>
    </message>
    <message>
        <source>Location_Not_Remind</source>
        <translation>允許</translation>
    </message>
    <message>
        <source>OK</source>
        <translation>確定</translation>
    </message>
</context>
</TS>
