<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<TS version="2.1" language="fr_FR" sourcelanguage="en_US">
<context>
    <name>Clean_View</name>
    <message>
        <source>Clean</source>
        <translation>Nettoyage</translation>
    </message>
</context>
<context>
    <name>ColorNames</name>
    <message>
        <source>red</source>
        <translation>rouge</translation>
    </message>
    <message>
        <source>orange</source>
        <translation>orange</translation>
    </message>
    <message>
        <source>yellow</source>
        <translation>jaune</translation>
    </message>
    <message>
        <source>green</source>
        <translation>vert</translation>
    </message>
    <message>
        <source>cyan</source>
        <translation>cyan</translation>
    </message>
    <message>
        <source>blue</source>
        <translation>bleu</translation>
    </message>
    <message>
        <source>purple</source>
        <translation>violet</translation>
    </message>
    <message>
        <source>magenta</source>
        <translation>magenta</translation>
    </message>
    <message>
        <source>off</source>
        <translation>éteinte</translation>
    </message>
    <message>
        <source>white</source>
        <translation>blanc</translation>
    </message>
    <message>
        <source>gray</source>
        <translation>gris</translation>
    </message>
    <message>
        <source>dark gray</source>
        <translation>gris foncé</translation>
    </message>
    <message>
        <source>dark %1</source>
        <translation>%1 foncé</translation>
    </message>
    <message>
        <source>pale %1</source>
        <translation>%1 pâle</translation>
    </message>
</context>
<context>
    <name>Information_Slots_View</name>
    <message>
        <source>Type:</source>
        <translation>Type : </translation>
    </message>
    <message>
        <source>Size:</source>
        <translation>Taille : </translation>
    </message>
    <message>
        <source>Frequency:</source>
        <translation>Fréquence : </translation>
    </message>
    <message>
        <source>Temperature:</source>
        <translation>Température : </translation>
    </message>
</context>
<context>
    <name>Information_View</name>
    <message>
        <source>Channel:</source>
        <translation>Canal : </translation>
    </message>
    <message>
        <source>CAS# Latency (CL):</source>
        <translation>Latence CAS# (CL) : </translation>
    </message>
    <message>
        <source>RAS# to CAS# Delay (tRCD):</source>
        <translation>Délai RAS# vers CAS# (tRCD) : </translation>
    </message>
    <message>
        <source>Frequency:</source>
        <translation>Fréquence : </translation>
    </message>
    <message>
        <source>Load</source>
        <translation>Charge</translation>
    </message>
    <message>
        <source>Low</source>
        <translation>Faible</translation>
    </message>
    <message>
        <source>High</source>
        <translation>Élevée</translation>
    </message>
</context>
<context>
    <name>Lighting_View</name>
    <message>
        <source>Flow</source>
        <translation>Flux</translation>
    </message>
    <message>
        <source>RGB Spectrum</source>
        <translation>Spectre RGB</translation>
    </message>
    <message>
        <source>Ripple</source>
        <translation>Ondulation</translation>
    </message>
    <message>
        <source>Blink</source>
        <translation>Clignotement</translation>
    </message>
    <message>
        <source>Pulse</source>
        <translation>Pulsation</translation>
    </message>
    <message>
        <source>Wave</source>
        <translation>Vague</translation>
    </message>
    <message>
        <source>Static</source>
        <translation>Statique</translation>
    </message>
    <message>
        <source>Copy</source>
        <translation>Copie</translation>
    </message>
    <message>
        <source>Movie</source>
        <translation>Film</translation>
    </message>
    <message>
        <source>Gaming</source>
        <translation>Jeu</translation>
    </message>
    <message>
        <source>Party</source>
        <translation>Fête</translation>
    </message>
    <message>
        <source>Mobile_Movie</source>
        <translation>Film mobile</translation>
    </message>
    <message>
        <source>Mobile_Gaming</source>
        <translation>Jeu mobile</translation>
    </message>
    <message>
        <source>Mobile_Party</source>
        <translation>Fête mobile</translation>
    </message>
    <message>
        <source>Temp.</source>
        <translation>Temp.</translation>
    </message>
    <message>
        <source>Cross</source>
        <translation>Croix</translation>
    </message>
    <message>
        <source>Hello</source>
        <translation>Bonjour</translation>
    </message>
    <message>
        <source>Shooting Star</source>
        <translation>Étoile filante</translation>
    </message>
    <message>
        <source>Black Hole</source>
        <translation>Trou noir</translation>
    </message>
    <message>
        <source>Aurora</source>
        <translation>Aurore</translation>
    </message>
    <message>
        <source>RGB Sync</source>
        <translation>Synchro RGB</translation>
    </message>
    <message>
        <source>Twinkle</source>
        <translation>Scintillement</translation>
    </message>
    <message>
        <source>Script</source>
        <translation>Script</translation>
    </message>
    <message>
        <source>Weather</source>
        <translation>Météo</translation>
    </message>
    <message>
        <source>Raindrop</source>
        <translation>Goutte de pluie</translation>
    </message>
    <message>
        <source>Heartbeat</source>
        <translation>Battement de cœur</translation>
    </message>
    <message>
        <source>Stack</source>
        <translation>Empilement</translation>
    </message>
    <message>
        <source>Scan</source>
        <translation>Balayage</translation>
    </message>
    <message>
        <source>Swirl</source>
        <translation>Tourbillon</translation>
    </message>
    <message>
        <source>Screen Gaming</source>
        <translation>Jeu à l&apos;écran</translation>
    </message>
    <message>
        <source>Screen Movie</source>
        <translation>Film à l&apos;écran</translation>
    </message>
    <message>
        <source>Clock</source>
        <translation>Horloge</translation>
    </message>
    <message>
        <source>Rain</source>
        <translation>Pluie</translation>
    </message>
    <message>
        <source>Fireworks</source>
        <translation>Feu d&apos;artifice</translation>
    </message>
    <message>
        <source>Explosion</source>
        <translation>Explosion</translation>
    </message>
    <message>
        <source>MB Sync</source>
        <translation>Synchro CM</translation>
    </message>
    <message>
        <source>Radiation</source>
        <translation>Rayonnement</translation>
    </message>
    <message>
        <source>Aim</source>
        <translation>Visée</translation>
    </message>
    <message>
        <source>RGB</source>
        <translation>RGB</translation>
    </message>
    <message>
        <source>Single</source>
        <translation>Couleur unique</translation>
    </message>
    <message>
        <source>OFF</source>
        <translation>ARRÊT</translation>
    </message>
    <message>
        <source>Random</source>
        <translation>Aléatoire</translation>
    </message>
    <message>
        <source>Extreme</source>
        <translation>Très rapide</translation>
    </message>
    <message>
        <source>Fast</source>
        <translation>Rapide</translation>
    </message>
    <message>
        <source>Normal</source>
        <translation>Normal</translation>
    </message>
    <message>
        <source>Slow</source>
        <translation>Lent</translation>
    </message>
    <message>
        <source>Profile</source>
        <translation>Profil</translation>
    </message>
    <message>
        <source>Apply</source>
        <translation>Appliquer</translation>
    </message>
    <message>
        <source>Default</source>
        <translation>Par défaut</translation>
    </message>
    <message>
        <source>Edit</source>
        <translation>Modifier</translation>
    </message>
    <message>
        <source>Cancel</source>
        <translation>Annuler</translation>
    </message>
    <message>
        <source>Preview</source>
        <translation>Aperçu</translation>
    </message>
    <message>
        <source>Color Mode</source>
        <translation>Mode couleur</translation>
    </message>
    <message>
        <source>Light Speed</source>
        <translation>Vitesse de l’effet</translation>
    </message>
    <message>
        <source>ON</source>
        <translation>MARCHE</translation>
    </message>
    <message>
        <source>Light Switch</source>
        <translation>Éclairage</translation>
    </message>
    <message>
        <source>Brightness</source>
        <translation>Luminosité</translation>
    </message>
    <message>
        <source>MB_Sync_Warning_Content</source>
        <translation>En mode Synchro CM, ce module suit le logiciel d&apos;éclairage de la carte mère : réglez son éclairage dans ce logiciel.</translation>
    </message>
    <message>
        <source>Red</source>
        <translation>Rouge</translation>
    </message>
    <message>
        <source>Green</source>
        <translation>Vert</translation>
    </message>
    <message>
        <source>Blue</source>
        <translation>Bleu</translation>
    </message>
    <message>
        <source>Color wheel</source>
        <translation>Roue chromatique</translation>
    </message>
    <message>
        <source>Light Mode</source>
        <translation>Mode d’éclairage</translation>
    </message>
    <message>
        <source>LED row %1</source>
        <translation>Rangée de LED %1</translation>
    </message>
</context>
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
<context>
    <name>Main_View</name>
    <message>
        <source>Information</source>
        <translation>Informations</translation>
    </message>
    <message>
        <source>Lighting</source>
        <translation>Éclairage</translation>
    </message>
    <message>
        <source>Notification</source>
        <translation>Notifications</translation>
    </message>
    <message>
        <source>Settings</source>
        <translation>Paramètres</translation>
    </message>
    <message>
        <source>Close</source>
        <translation>Fermer</translation>
    </message>
    <message>
        <source>Minimize</source>
        <translation>Réduire</translation>
    </message>
</context>
<context>
    <name>Memory_RGB_View</name>
    <message>
        <source>Slot %1, LED %2, %3</source>
        <translation>Emplacement %1, LED %2, %3</translation>
    </message>
    <message>
        <source>Slot %1</source>
        <translation>Emplacement %1</translation>
    </message>
</context>
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
    <message>
        <source>threshold</source>
        <translation>seuil</translation>
    </message>
    <message>
        <source>unit</source>
        <translation>unité</translation>
    </message>
    <message>
        <source>color</source>
        <translation>couleur</translation>
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
        <translation>Langue</translation>
    </message>
    <message>
        <source>Auto Update</source>
        <translation>Mise à jour automatique</translation>
    </message>
    <message>
        <source>Run NORVALEX RGB Program when Windows starts.</source>
        <translation>Réduire après le démarrage du système</translation>
    </message>
    <message>
        <source>Current_Location</source>
        <translation>Activer la localisation pour recevoir la météo locale</translation>
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
        <translation>Politique de confidentialité</translation>
    </message>
    <message>
        <source>Location_Warning_Title</source>
        <translation>Politique de confidentialité</translation>
    </message>
    <message>
        <source>Location_Warning_Content</source>
        <translation>Prismveil - NORVALEX souhaite utiliser votre position actuelle pour obtenir l&apos;heure et la météo.</translation>
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
<context>
    <name>Widget_Preview</name>
    <message>
        <source>Slot %1</source>
        <translation>Emplacement %1</translation>
    </message>
    <message>
        <source>%1: empty</source>
        <translation>%1 : vide</translation>
    </message>
</context>
</TS>
