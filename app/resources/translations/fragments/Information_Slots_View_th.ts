<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<TS version="2.1" language="th_TH" sourcelanguage="en_US">
<context>
    <name>Information_Slots_View</name>
    <message>
        <source>Type:</source>
        <translation>ประเภท: </translation>
    </message>
    <message>
        <source>Size:</source>
        <translation>ขนาด: </translation>
    </message>
    <message>
        <source>Frequency:</source>
        <translation>ความถี่: </translation>
    </message>
    <message>
        <source>Temperature:</source>
        <translation>อุณหภูมิ: </translation>
    </message>
</context>
</TS>
