<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<TS version="2.1" language="fr_FR" sourcelanguage="en_US">
<context>
    <name>Widget_LocationPolicy</name>
    <message>
        <source>NORVALEX Privacy Policy</source>
        <translation>Politique de confidentialité</translation>
    </message>
    <message>
        <source>Location_Warning_Title</source>
        <translation>Politique de confidentialité</translation>
    </message>
    <message>
        <source>Location_Warning_Content</source>
        <translation>Prismveil - NORVALEX souhaite utiliser votre position actuelle pour obtenir l'heure et la météo.</translation>
    </message>
    <message>
        <source>Location_Not_Remind</source>
        <translation>Autoriser</translation>
    </message>
    <message>
        <source>OK</source>
        <translation>OK</translation>
    </message>
</context>
</TS>
