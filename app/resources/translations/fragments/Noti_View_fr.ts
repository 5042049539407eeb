<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<TS version="2.1" language="fr_FR" sourcelanguage="en_US">
<context>
    <name>Noti_View</name>
    <message>
        <source>Setting Notification</source>
        <translation>Notifications</translation>
    </message>
    <message>
        <source>Loading</source>
        <translation>Charge</translation>
    </message>
    <message>
        <source>Trigger all LED </source>
        <translation>passe toutes les LED en</translation>
    </message>
    <message>
        <source>Memory</source>
        <translation>Mémoire</translation>
    </message>
    <message>
        <source>CPU</source>
        <translation>CPU</translation>
    </message>
    <message>
        <source>Shutdown PC</source>
        <translation>invite à éteindre le PC pour éviter tout dommage</translation>
    </message>
    <message>
        <source>Set all fans to 100%</source>
        <translation>règle tous les ventilateurs à pleine vitesse</translation>
    </message>
</context>
</TS>
