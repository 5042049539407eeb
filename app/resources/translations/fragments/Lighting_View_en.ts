<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<TS version="2.1" language="en_US" sourcelanguage="en_US">
<context>
    <name>Lighting_View</name>
    <message>
        <source>Flow</source>
        <translation>Flow</translation>
    </message>
    <message>
        <source>RGB Spectrum</source>
        <translation>RGB Spectrum</translation>
    </message>
    <message>
        <source>Ripple</source>
        <translation>Ripple</translation>
    </message>
    <message>
        <source>Blink</source>
        <translation>Blink</translation>
    </message>
    <message>
        <source>Pulse</source>
        <translation>Pulse</translation>
    </message>
    <message>
        <source>Wave</source>
        <translation>Wave</translation>
    </message>
    <message>
        <source>Static</source>
        <translation>Static</translation>
    </message>
    <message>
        <source>Copy</source>
        <translation>Copy</translation>
    </message>
    <message>
        <source>Movie</source>
        <translation>Movie</translation>
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
        <translation>Mobile Movie</translation>
    </message>
    <message>
        <source>Mobile_Gaming</source>
        <translation>Mobile Gaming</translation>
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
        <translation>Cross</translation>
    </message>
    <message>
        <source>Hello</source>
        <translation>Hello</translation>
    </message>
    <message>
        <source>Shooting Star</source>
        <translation>Shooting Star</translation>
    </message>
    <message>
        <source>Black Hole</source>
        <translation>Black Hole</translation>
    </message>
    <message>
        <source>Aurora</source>
        <translation>Aurora</translation>
    </message>
    <message>
        <source>RGB Sync</source>
        <translation>RGB Sync</translation>
    </message>
    <message>
        <source>Twinkle</source>
        <translation>Twinkle</translation>
    </message>
    <message>
        <source>Script</source>
        <translation>Script</translation>
    </message>
    <message>
        <source>Weather</source>
        <translation>Weather</translation>
    </message>
    <message>
        <source>Raindrop</source>
        <translation>Raindrop</translation>
    </message>
    <message>
        <source>Heartbeat</source>
        <translation>Heartbeat</translation>
    </message>
    <message>
        <source>Stack</source>
        <translation>Stack</translation>
    </message>
    <message>
        <source>Scan</source>
        <translation>Scan</translation>
    </message>
    <message>
        <source>Swirl</source>
        <translation>Swirl</translation>
    </message>
    <message>
        <source>Screen Gaming</source>
        <translation>Screen Gaming</translation>
    </message>
    <message>
        <source>Screen Movie</source>
        <translation>Screen Movie</translation>
    </message>
    <message>
        <source>Clock</source>
        <translation>Clock</translation>
    </message>
    <message>
        <source>Rain</source>
        <translation>Rain</translation>
    </message>
    <message>
        <source>Fireworks</source>
        <translation>Fireworks</translation>
    </message>
    <message>
        <source>Explosion</source>
        <translation>Explosion</translation>
    </message>
    <message>
        <source>MB Sync</source>
        <translation>MB Sync</translation>
    </message>
    <message>
        <source>Radiation</source>
        <translation>Radiation</translation>
    </message>
    <message>
        <source>Aim</source>
        <translation>Aim</translation>
    </message>
    <message>
        <source>RGB</source>
        <translation>RGB</translation>
    </message>
    <message>
        <source>Single</source>
        <translation>Single</translation>
    </message>
    <message>
        <source>OFF</source>
        <translation>OFF</translation>
    </message>
    <message>
        <source>Random</source>
        <translation>Random</translation>
    </message>
    <message>
        <source>Extreme</source>
        <translation>Extreme</translation>
    </message>
    <message>
        <source>Fast</source>
        <translation>Fast</translation>
    </message>
    <message>
        <source>Normal</source>
        <translation>Normal</translation>
    </message>
    <message>
        <source>Slow</source>
        <translation>Slow</translation>
    </message>
    <message>
        <source>Profile</source>
        <translation>Profile</translation>
    </message>
    <message>
        <source>Apply</source>
        <translation>Apply</translation>
    </message>
    <message>
        <source>Default</source>
        <translation>Default</translation>
    </message>
    <message>
        <source>Edit</source>
        <translation>Edit</translation>
    </message>
    <message>
        <source>Cancel</source>
        <translation>Cancel</translation>
    </message>
    <message>
        <source>Preview</source>
        <translation>Preview</translation>
    </message>
    <message>
        <source>Color Mode</source>
        <translation>Color Mode</translation>
    </message>
    <message>
        <source>Light Speed</source>
        <translation>Light Speed</translation>
    </message>
    <message>
        <source>ON</source>
        <translation>ON</translation>
    </message>
    <message>
        <source>Light Switch</source>
        <translation>Light Switch</translation>
    </message>
    <message>
        <source>Brightness</source>
        <translation>Brightness</translation>
    </message>
    <message>
        <source>MB_Sync_Warning_Content</source>
        <translation>In MB Sync mode this module follows your motherboard's lighting software, so set its lighting there.</translation>
    </message>
</context>
</TS>
