<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<TS version="2.1" language="fr_FR" sourcelanguage="en_US">
<context>
    <name>Loading_View</name>
    <message>
        <source>Can not Find QX NORVALEX</source>
        <translation>Aucun module mémoire NORVALEX détecté</translation>
    </message>
    <message>
        <source>OK</source>
        <translation>OK</translation>
    </message>
</context>
</TS>
