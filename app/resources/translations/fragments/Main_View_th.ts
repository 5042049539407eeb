<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<TS version="2.1" language="th_TH" sourcelanguage="en_US">
<context>
    <name>Main_View</name>
    <message>
        <source>Information</source>
        <translation>ข้อมูล</translation>
    </message>
    <message>
        <source>Lighting</source>
        <translation>แสงไฟ</translation>
    </message>
    <message>
        <source>Notification</source>
        <translation>การแจ้งเตือน</translation>
    </message>
    <message>
        <source>Settings</source>
        <translation>การตั้งค่า</translation>
    </message>
</context>
</TS>
