<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<TS version="2.1" language="de_DE" sourcelanguage="en_US">
<context>
    <name>Clean_View</name>
    <message>
        <source>Clean</source>
        <translation>Bereinigen</translation>
    </message>
</context>
<context>
    <name>ColorNames</name>
    <message>
        <source>red</source>
        <translation>Rot</translation>
    </message>
    <message>
        <source>orange</source>
        <translation>Orange</translation>
    </message>
    <message>
        <source>yellow</source>
        <translation>Gelb</translation>
    </message>
    <message>
        <source>green</source>
        <translation>Grün</translation>
    </message>
    <message>
        <source>cyan</source>
        <translation>Cyan</translation>
    </message>
    <message>
        <source>blue</source>
        <translation>Blau</translation>
    </message>
    <message>
        <source>purple</source>
        <translation>Lila</translation>
    </message>
    <message>
        <source>magenta</source>
        <translation>Magenta</translation>
    </message>
    <message>
        <source>off</source>
        <translation>aus</translation>
    </message>
    <message>
        <source>white</source>
        <translation>Weiß</translation>
    </message>
    <message>
        <source>gray</source>
        <translation>Grau</translation>
    </message>
    <message>
        <source>dark gray</source>
        <translation>Dunkelgrau</translation>
    </message>
    <message>
        <source>dark %1</source>
        <translation>dunkles %1</translation>
    </message>
    <message>
        <source>pale %1</source>
        <translation>blasses %1</translation>
    </message>
</context>
<context>
    <name>Information_Slots_View</name>
    <message>
        <source>Type:</source>
        <translation>Typ: </translation>
    </message>
    <message>
        <source>Size:</source>
        <translation>Größe: </translation>
    </message>
    <message>
        <source>Frequency:</source>
        <translation>Frequenz: </translation>
    </message>
    <message>
        <source>Temperature:</source>
        <translation>Temperatur: </translation>
    </message>
</context>
<context>
    <name>Information_View</name>
    <message>
        <source>Channel:</source>
        <translation>Kanal: </translation>
    </message>
    <message>
        <source>CAS# Latency (CL):</source>
        <translation>CAS#-Latenz (CL): </translation>
    </message>
    <message>
        <source>RAS# to CAS# Delay (tRCD):</source>
        <translation>RAS#-zu-CAS#-Verzögerung (tRCD): </translation>
    </message>
    <message>
        <source>Frequency:</source>
        <translation>Frequenz: </translation>
    </message>
    <message>
        <source>Load</source>
        <translation>Last</translation>
    </message>
    <message>
        <source>Low</source>
        <translation>Niedrig</translation>
    </message>
    <message>
        <source>High</source>
        <translation>Hoch</translation>
    </message>
</context>
<context>
    <name>Lighting_View</name>
    <message>
        <source>Flow</source>
        <translation>Fließen</translation>
    </message>
    <message>
        <source>RGB Spectrum</source>
        <translation>RGB-Spektrum</translation>
    </message>
    <message>
        <source>Ripple</source>
        <translation>Wellenringe</translation>
    </message>
    <message>
        <source>Blink</source>
        <translation>Blinken</translation>
    </message>
    <message>
        <source>Pulse</source>
        <translation>Pulsieren</translation>
    </message>
    <message>
        <source>Wave</source>
        <translation>Welle</translation>
    </message>
    <message>
        <source>Static</source>
        <translation>Statisch</translation>
    </message>
    <message>
        <source>Copy</source>
        <translation>Kopieren</translation>
    </message>
    <message>
        <source>Movie</source>
        <translation>Film</translation>
    </message>
    <message>
        <source>Gaming</source>
        <translation>Gaming</translation>
    </message>
    <message>
        <source>Party</source>
        <translation>Party</translation>
    </message>
    <message>
        <source>Mobile_Movie</source>
        <translation>Mobiler Film</translation>
    </message>
    <message>
        <source>Mobile_Gaming</source>
        <translation>Mobiles Gaming</translation>
    </message>
    <message>
        <source>Mobile_Party</source>
        <translation>Mobile Party</translation>
    </message>
    <message>
        <source>Temp.</source>
        <translation>Temp.</translation>
    </message>
    <message>
        <source>Cross</source>
        <translation>Kreuz</translation>
    </message>
    <message>
        <source>Hello</source>
        <translation>Hallo</translation>
    </message>
    <message>
        <source>Shooting Star</source>
        <translation>Sternschnuppe</translation>
    </message>
    <message>
        <source>Black Hole</source>
        <translation>Schwarzes Loch</translation>
    </message>
    <message>
        <source>Aurora</source>
        <translation>Polarlicht</translation>
    </message>
    <message>
        <source>RGB Sync</source>
        <translation>RGB-Sync</translation>
    </message>
    <message>
        <source>Twinkle</source>
        <translation>Funkeln</translation>
    </message>
    <message>
        <source>Script</source>
        <translation>Skript</translation>
    </message>
    <message>
        <source>Weather</source>
        <translation>Wetter</translation>
    </message>
    <message>
        <source>Raindrop</source>
        <translation>Regentropfen</translation>
    </message>
    <message>
        <source>Heartbeat</source>
        <translation>Herzschlag</translation>
    </message>
    <message>
        <source>Stack</source>
        <translation>Stapeln</translation>
    </message>
    <message>
        <source>Scan</source>
        <translation>Scan</translation>
    </message>
    <message>
        <source>Swirl</source>
        <translation>Wirbel</translation>
    </message>
    <message>
        <source>Screen Gaming</source>
        <translation>Bildschirm-Gaming</translation>
    </message>
    <message>
        <source>Screen Movie</source>
        <translation>Bildschirm-Film</translation>
    </message>
    <message>
        <source>Clock</source>
        <translation>Uhr</translation>
    </message>
    <message>
        <source>Rain</source>
        <translation>Regen</translation>
    </message>
    <message>
        <source>Fireworks</source>
        <translation>Feuerwerk</translation>
    </message>
    <message>
        <source>Explosion</source>
        <translation>Explosion</translation>
    </message>
    <message>
        <source>MB Sync</source>
        <translation>MB-Sync</translation>
    </message>
    <message>
        <source>Radiation</source>
        <translation>Strahlung</translation>
    </message>
    <message>
        <source>Aim</source>
        <translation>Zielen</translation>
    </message>
    <message>
        <source>RGB</source>
        <translation>RGB</translation>
    </message>
    <message>
        <source>Single</source>
        <translation>Einfarbig</translation>
    </message>
    <message>
        <source>OFF</source>
        <translation>AUS</translation>
    </message>
    <message>
        <source>Random</source>
        <translation>Zufällig</translation>
    </message>
    <message>
        <source>Extreme</source>
        <translation>Sehr schnell</translation>
    </message>
    <message>
        <source>Fast</source>
        <translation>Schnell</translation>
    </message>
    <message>
        <source>Normal</source>
        <translation>Normal</translation>
    </message>
    <message>
        <source>Slow</source>
        <translation>Langsam</translation>
    </message>
    <message>
        <source>Profile</source>
        <translation>Profil</translation>
    </message>
    <message>
        <source>Apply</source>
        <translation>Übernehmen</translation>
    </message>
    <message>
        <source>Default</source>
        <translation>Standard</translation>
    </message>
    <message>
        <source>Edit</source>
        <translation>Bearbeiten</translation>
    </message>
    <message>
        <source>Cancel</source>
        <translation>Abbrechen</translation>
    </message>
    <message>
        <source>Preview</source>
        <translation>Vorschau</translation>
    </message>
    <message>
        <source>Color Mode</source>
        <translation>Farbmodus</translation>
    </message>
    <message>
        <source>Light Speed</source>
        <translation>Effektgeschwindigkeit</translation>
    </message>
    <message>
        <source>ON</source>
        <translation>AN</translation>
    </message>
    <message>
        <source>Light Switch</source>
        <translation>Beleuchtung</translation>
    </message>
    <message>
        <source>Brightness</source>
        <translation>Helligkeit</translation>
    </message>
    <message>
        <source>MB_Sync_Warning_Content</source>
        <translation>Im MB-Sync-Modus folgt dieses Modul der Beleuchtungssoftware des Mainboards; stellen Sie seine Beleuchtung dort ein.</translation>
    </message>
    <message>
        <source>Red</source>
        <translation>Rot</translation>
    </message>
    <message>
        <source>Green</source>
        <translation>Grün</translation>
    </message>
    <message>
        <source>Blue</source>
        <translation>Blau</translation>
    </message>
    <message>
        <source>Color wheel</source>
        <translation>Farbrad</translation>
    </message>
    <message>
        <source>Light Mode</source>
        <translation>Lichtmodus</translation>
    </message>
    <message>
        <source>LED row %1</source>
        <translation>LED-Reihe %1</translation>
    </message>
</context>
<context>
    <name>Loading_View</name>
    <message>
        <source>Can not Find QX NORVALEX</source>
        <translation>Kein NORVALEX-Speichermodul gefunden</translation>
    </message>
    <message>
        <source>OK</source>
        <translation>OK</translation>
    </message>
</context>
<context>
    <name>Main_View</name>
    <message>
        <source>Information</source>
        <translation>Informationen</translation>
    </message>
    <message>
        <source>Lighting</source>
        <translation>Beleuchtung</translation>
    </message>
    <message>
        <source>Notification</source>
        <translation>Meldungen</translation>
    </message>
    <message>
        <source>Settings</source>
        <translation>Einstellungen</translation>
    </message>
    <message>
        <source>Close</source>
        <translation>Schließen</translation>
    </message>
    <message>
        <source>Minimize</source>
        <translation>Minimieren</translation>
    </message>
</context>
<context>
    <name>Memory_RGB_View</name>
    <message>
        <source>Slot %1, LED %2, %3</source>
        <translation>Steckplatz %1, LED %2, %3</translation>
    </message>
    <message>
        <source>Slot %1</source>
        <translation>Steckplatz %1</translation>
    </message>
</context>
<context>
    <name>Noti_View</name>
    <message>
        <source>Setting Notification</source>
        <translation>Meldungen einrichten</translation>
    </message>
    <message>
        <source>Loading</source>
        <translation>Last</translation>
    </message>
    <message>
        <source>Trigger all LED </source>
        <translation>schaltet alle LEDs auf</translation>
    </message>
    <message>
        <source>Memory</source>
        <translation>Speicher</translation>
    </message>
    <message>
        <source>CPU</source>
        <translation>CPU</translation>
    </message>
    <message>
        <source>Shutdown PC</source>
        <translation>fordert zum Herunterfahren des PCs auf, um Schäden zu vermeiden</translation>
    </message>
    <message>
        <source>Set all fans to 100%</source>
        <translation>setzt alle Lüfter auf volle Drehzahl</translation>
    </message>
    <message>
        <source>threshold</source>
        <translation>Schwellenwert</translation>
    </message>
    <message>
        <source>unit</source>
        <translation>Einheit</translation>
    </message>
    <message>
        <source>color</source>
        <translation>Farbe</translation>
    </message>
</context>
<context>
    <name>Setting_View</name>
    <message>
        <source>en</source>
        <translation>English</translation>
    </message>
    <message>
        <source>tc</source>
        <translation>正體中文</translation>
    </message>
    <message>
        <source>sc</source>
        <translation>簡體中文</translation>
    </message>
    <message>
        <source>de</source>
        <translation>Deutsch</translation>
    </message>
    <message>
        <source>fr</source>
        <translation>Français</translation>
    </message>
    <message>
        <source>jp</source>
        <translation>日本語</translation>
    </message>
    <message>
        <source>th</source>
        <translation>ไทย</translation>
    </message>
    <message>
        <source>ru</source>
        <translation>Русский</translation>
    </message>
    <message>
        <source>kr</source>
        <translation>한국어</translation>
    </message>
    <message>
        <source>es</source>
        <translation>Spanish</translation>
    </message>
    <message>
        <source>Language</source>
        <translation>Sprache</translation>
    </message>
    <message>
        <source>Auto Update</source>
        <translation>Automatische Updates</translation>
    </message>
    <message>
        <source>Run NORVALEX RGB Program when Windows starts.</source>
        <translation>Nach dem Systemstart minimieren</translation>
    </message>
    <message>
        <source>Current_Location</source>
        <translation>Ortungsdienste aktivieren, um lokale Wetterdaten zu erhalten</translation>
    </message>
    <message>
        <source>Version</source>
        <translation>Version</translation>
    </message>
</context>
<context>
    <name>Widget_Language</name>
    <message>
        <source>en</source>
        <translation>English</translation>
    </message>
    <message>
        <source>tc</source>
        <translation>正體中文</translation>
    </message>
    <message>
        <source>sc</source>
        <translation>簡體中文</translation>
    </message>
    <message>
        <source>de</source>
        <translation>Deutsch</translation>
    </message>
    <message>
        <source>fr</source>
        <translation>Français</translation>
    </message>
    <message>
        <source>jp</source>
        <translation>日本語</translation>
    </message>
    <message>
        <source>th</source>
        <translation>ไทย</translation>
    </message>
    <message>
        <source>ru</source>
        <translation>Русский</translation>
    </message>
    <message>
        <source>kr</source>
        <translation>한국어</translation>
    </message>
    <message>
        <source>es</source>
        <translation>Spanish</translation>
    </message>
</context>
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
<context>
    <name>Widget_Preview</name>
    <message>
        <source>Slot %1</source>
        <translation>Steckplatz %1</translation>
    </message>
    <message>
        <source>%1: empty</source>
        <translation>%1: leer</translation>
    </message>
</context>
</TS>
