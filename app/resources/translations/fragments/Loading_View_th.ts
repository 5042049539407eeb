<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<TS version="2.1" language="th_TH" sourcelanguage="en_US">
<context>
    <name>Loading_View</name>
    <message>
        <source>Can not Find QX NORVALEX</source>
        <translation>ไม่พบโมดูลหน่วยความจำ NORVALEX</translation>
    </message>
    <message>
        <source>OK</source>
        <translation>ตกลง</translation>
    </message>
</context>
</TS>
