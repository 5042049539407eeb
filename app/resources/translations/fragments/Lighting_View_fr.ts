<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<TS version="2.1" language="fr_FR" sourcelanguage="en_US">
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
        <translation>Jeu à l'écran</translation>
    </message>
    <message>
        <source>Screen Movie</source>
        <translation>Film à l'écran</translation>
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
        <translation>Feu d'artifice</translation>
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
        <translation>Unique</translation>
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
        <translation>Extrême</translation>
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
        <translation>Vitesse</translation>
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
        <translation>En mode Synchro CM, ce module suit le logiciel d'éclairage de la carte mère : réglez son éclairage dans ce logiciel.</translation>
    </message>
</context>
</TS>
