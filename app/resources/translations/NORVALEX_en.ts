<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<TS version="2.1" language="en_US" sourcelanguage="en_US">
<context>
    <name>Clean_View</name>
    <message>
        <source>Clean</source>
        <translation>Clean</translation>
    </message>
</context>
<context>
    <name>ColorNames</name>
    <message>
        <source>red</source>
        <translation>red</translation>
    </message>
    <message>
        <source>orange</source>
        <translation>orange</translation>
    </message>
    <message>
        <source>yellow</source>
        <translation>yellow</translation>
    </message>
    <message>
        <source>green</source>
        <translation>green</translation>
    </message>
    <message>
        <source>cyan</source>
        <translation>cyan</translation>
    </message>
    <message>
        <source>blue</source>
        <translation>blue</translation>
    </message>
    <message>
        <source>purple</source>
        <translation>purple</translation>
    </message>
    <message>
        <source>magenta</source>
        <translation>magenta</translation>
    </message>
    <message>
        <source>off</source>
        <translation>off</translation>
    </message>
    <message>
        <source>white</source>
        <translation>white</translation>
    </message>
    <message>
        <source>gray</source>
        <translation>gray</translation>
    </message>
    <message>
        <source>dark gray</source>
        <translation>dark gray</translation>
    </message>
    <message>
        <source>dark %1</source>
        <translation>dark %1</translation>
    </message>
    <message>
        <source>pale %1</source>
        <translation>pale %1</translation>
    </message>
</context>
<context>
    <name>Information_Slots_View</name>
    <message>
        <source>Type:</source>
        <translation>Type: </translation>
    </message>
    <message>
        <source>Size:</source>
        <translation>Size: </translation>
    </message>
    <message>
        <source>Frequency:</source>
        <translation>Frequency: </translation>
    </message>
    <message>
        <source>Temperature:</source>
        <translation>TEMP: </translation>
    </message>
</context>
<context>
    <name>Information_View</name>
    <message>
        <source>Channel:</source>
        <translation>Channel: </translation>
    </message>
    <message>
        <source>CAS# Latency (CL):</source>
        <translation>CAS# Latency (CL): </translation>
    </message>
    <message>
        <source>RAS# to CAS# Delay (tRCD):</source>
        <translation>RAS# to CAS# Delay (tRCD): </translation>
    </message>
    <message>
        <source>Frequency:</source>
        <translation>Frequency: </translation>
    </message>
    <message>
        <source>Load</source>
        <translation>Load</translation>
    </message>
    <message>
        <source>Low</source>
        <translation>Low</translation>
    </message>
    <message>
        <source>High</source>
        <translation>High</translation>
    </message>
</context>
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
        <translation>In MB Sync mode this module follows your motherboard&apos;s lighting software, so set its lighting there.</translation>
    </message>
    <message>
        <source>Red</source>
        <translation>Red</translation>
    </message>
    <message>
        <source>Green</source>
        <translation>Green</translation>
    </message>
    <message>
        <source>Blue</source>
        <translation>Blue</translation>
    </message>
    <message>
        <source>Color wheel</source>
        <translation>Color wheel</translation>
    </message>
    <message>
        <source>Light Mode</source>
        <translation>Light Mode</translation>
    </message>
    <message>
        <source>LED row %1</source>
        <translation>LED row %1</translation>
    </message>
</context>
<context>
    <name>Loading_View</name>
    <message>
        <source>Can not Find QX NORVALEX</source>
        <translation>No NORVALEX memory module found</translation>
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
        <translation>Information</translation>
    </message>
    <message>
        <source>Lighting</source>
        <translation>Lighting</translation>
    </message>
    <message>
        <source>Notification</source>
        <translation>Notification</translation>
    </message>
    <message>
        <source>Settings</source>
        <translation>Settings</translation>
    </message>
    <message>
        <source>Close</source>
        <translation>Close</translation>
    </message>
    <message>
        <source>Minimize</source>
        <translation>Minimize</translation>
    </message>
</context>
<context>
    <name>Memory_RGB_View</name>
    <message>
        <source>Slot %1, LED %2, %3</source>
        <translation>Slot %1, LED %2, %3</translation>
    </message>
    <message>
        <source>Slot %1</source>
        <translation>Slot %1</translation>
    </message>
</context>
<context>
    <name>Noti_View</name>
    <message>
        <source>Setting Notification</source>
        <translation>Set Notifications</translation>
    </message>
    <message>
        <source>Loading</source>
        <translation>Load</translation>
    </message>
    <message>
        <source>Trigger all LED </source>
        <translation>switches all LEDs to</translation>
    </message>
    <message>
        <source>Memory</source>
        <translation>Memory</translation>
    </message>
    <message>
        <source>CPU</source>
        <translation>CPU</translation>
    </message>
    <message>
        <source>Shutdown PC</source>
        <translation>prompts the user to shut down the PC to avoid damage</translation>
    </message>
    <message>
        <source>Set all fans to 100%</source>
        <translation>sets all fans to full speed</translation>
    </message>
    <message>
        <source>threshold</source>
        <translation>threshold</translation>
    </message>
    <message>
        <source>unit</source>
        <translation>unit</translation>
    </message>
    <message>
        <source>color</source>
        <translation>color</translation>
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
        <translation>Language</translation>
    </message>
    <message>
        <source>Auto Update</source>
        <translation>Auto Update</translation>
    </message>
    <message>
        <source>Run NORVALEX RGB Program when Windows starts.</source>
        <translation>Minimize after system startup</translation>
    </message>
    <message>
        <source>Current_Location</source>
        <translation>Turn on location services to receive local weather updates</translation>
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
        <translation>Privacy Policy</translation>
    </message>
    <message>
        <source>Location_Warning_Title</source>
        <translation>Privacy Policy</translation>
    </message>
    <message>
        <source>Location_Warning_Content</source>
        <translation>Prismveil - NORVALEX Would Like to Use Your Current Location to Get the Time and Weather.</translation>
    </message>
    <message>
        <source>Location_Not_Remind</source>
        <translation>Allow</translation>
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
        <translation>Slot %1</translation>
    </message>
    <message>
        <source>%1: empty</source>
        <translation>%1: empty</translation>
    </message>
</context>
</TS>
