<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<TS version="2.1" language="th_TH" sourcelanguage="en_US">
<context>
    <name>Widget_LocationPolicy</name>
    <message>
        <source>NORVALEX Privacy Policy</source>
        <translation>นโยบายความเป็นส่วนตัว</translation>
    </message>
    <message>
        <source>Location_Warning_Title</source>
        <translation>นโยบายความเป็นส่วนตัว</translation>
    </message>
    <message>
        <source>Location_Warning_Content</source>
        <translation>Prismveil - NORVALEX ต้องการใช้ตำแหน่งปัจจุบันของคุณเพื่อแสดงเวลาและสภาพอากาศ</translation>
    </message>
    <message>
        <source>Location_Not_Remind</source>
        <translation>อนุญาต</translation>
    </message>
    <message>
        <source>OK</source>
        <translation>ตกลง</translation>
    </message>
</context>
</TS>
