<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<TS version="2.1" language="de_DE" sourcelanguage="en_US">
<context>
    <name>Widget_LocationPolicy</name>
    <message>
        <source>NORVALEX Privacy Policy</source>
        <translation>Datenschutzerklärung</translation>
    </message>
    <message>
        <source>Location_Warning_Title</source>
        <translation>Datenschutzerklärung</translation>
    </message>
    <message>
        <source>Location_Warning_Content</source>
        <translation>Prismveil - NORVALEX möchte Ihren aktuellen Standort verwenden, um Uhrzeit und Wetter abzurufen.</translation>
    </message>
    <message>
        <source>Location_Not_Remind</source>
        <translation>Erlauben</translation>
    </message>
    <message>
        <source>OK</source>
        <translation>OK</translation>
    </message>
</context>
</TS>
