<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<TS version="2.1" language="th_TH" sourcelanguage="en_US">
<context>
    <name>Noti_View</name>
    <message>
        <source>Setting Notification</source>
        <translation>ตั้งค่าการแจ้งเตือน</translation>
    </message>
    <message>
        <source>Loading</source>
        <translation>โหลด</translation>
    </message>
    <message>
        <source>Trigger all LED </source>
        <translation>เปลี่ยน LED ทั้งหมดเป็น</translation>
    </message>
    <message>
        <source>Memory</source>
        <translation>หน่วยความจำ</translation>
    </message>
    <message>
        <source>CPU</source>
        <translation>CPU</translation>
    </message>
    <message>
        <source>Shutdown PC</source>
        <translation>แจ้งให้ปิดเครื่องพีซีเพื่อป้องกันความเสียหาย</translation>
    </message>
    <message>
        <source>Set all fans to 100%</source>
        <translation>ตั้งพัดลมทั้งหมดเป็นความเร็วสูงสุด</translation>
    </message>
</context>
</TS>
