<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<TS version="2.1" language="en_US" sourcelanguage="en_US">
<context>
    <name>Widget_LocationPolicy</name>
    <message>
        <source>NORVALEX Privacy Policy</source>
        <translation>Privacy Policy</translation>
    </message>
    <message>
        <source>Location_Warning_Title</source>
        <translation>Privacy Policy</translation>
    </message>
    <message>
        <source>Location_Warning_Content</source>
        <translation>Prismveil - NORVALEX Would Like to Use Your Current Location to Get the Time and Weather.</translation>
    </message>
    <message>
        <source>Location_Not_Remind</source>
        <translation>Allow</translation>
    </message>
    <message>
        <source>OK</source>
        <translation>OK</translation>
    </message>
</context>
</TS>
