<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<TS version="2.1" language="ja_JP" sourcelanguage="en_US">
<context>
    <name>Widget_LocationPolicy</name>
    <message>
        <source>NORVALEX Privacy Policy</source>
        <translation>プライバシーポリシー</translation>
    </message>
    <message>
        <source>Location_Warning_Title</source>
        <translation>プライバシーポリシー</translation>
    </message>
    <message>
        <source>Location_Warning_Content</source>
        <translation>Prismveil - NORVALEX が時刻と天気を取得するため、現在地の使用を求めています。</translation>
    </message>
    <message>
        <source>Location_Not_Remind</source>
        <translation>許可する</translation>
    </message>
    <message>
        <source>OK</source>
        <translation>OK</translation>
    </message>
</context>
</TS>
