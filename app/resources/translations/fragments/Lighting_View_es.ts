<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<TS version="2.1" language="es_ES" sourcelanguage="en_US">
<context>
    <name>Lighting_View</name>
    <message>
        <source>Flow</source>
        <translation>Flujo</translation>
    </message>
    <message>
        <source>RGB Spectrum</source>
        <translation>Espectro RGB</translation>
    </message>
    <message>
        <source>Ripple</source>
        <translation>Ondulación</translation>
    </message>
    <message>
        <source>Blink</source>
        <translation>Parpadeo</translation>
    </message>
    <message>
        <source>Pulse</source>
        <translation>Pulso</translation>
    </message>
    <message>
        <source>Wave</source>
        <translation>Ola</translation>
    </message>
    <message>
        <source>Static</source>
        <translation>Estático</translation>
    </message>
    <message>
        <source>Copy</source>
        <translation>Copiar</translation>
    </message>
    <message>
        <source>Movie</source>
        <translation>Película</translation>
    </message>
    <message>
        <source>Gaming</source>
        <translation>Juego</translation>
    </message>
    <message>
        <source>Party</source>
        <translation>Fiesta</translation>
    </message>
    <message>
        <source>Mobile_Movie</source>
        <translation>Película móvil</translation>
    </message>
    <message>
        <source>Mobile_Gaming</source>
        <translation>Juego móvil</translation>
    </message>
    <message>
        <source>Mobile_Party</source>
        <translation>Fiesta móvil</translation>
    </message>
    <message>
        <source>Temp.</source>
        <translation>Temp.</translation>
    </message>
    <message>
        <source>Cross</source>
        <translation>Cruz</translation>
    </message>
    <message>
        <source>Hello</source>
        <translation>Hola</translation>
    </message>
    <message>
        <source>Shooting Star</source>
        <translation>Estrella fugaz</translation>
    </message>
    <message>
        <source>Black Hole</source>
        <translation>Agujero negro</translation>
    </message>
    <message>
        <source>Aurora</source>
        <translation>Aurora</translation>
    </message>
    <message>
        <source>RGB Sync</source>
        <translation>Sinc. RGB</translation>
    </message>
    <message>
        <source>Twinkle</source>
        <translation>Centelleo</translation>
    </message>
    <message>
        <source>Script</source>
        <translation>Script</translation>
    </message>
    <message>
        <source>Weather</source>
        <translation>Clima</translation>
    </message>
    <message>
        <source>Raindrop</source>
        <translation>Gota de lluvia</translation>
    </message>
    <message>
        <source>Heartbeat</source>
        <translation>Latido</translation>
    </message>
    <message>
        <source>Stack</source>
        <translation>Apilar</translation>
    </message>
    <message>
        <source>Scan</source>
        <translation>Escaneo</translation>
    </message>
    <message>
        <source>Swirl</source>
        <translation>Remolino</translation>
    </message>
    <message>
        <source>Screen Gaming</source>
        <translation>Juego en pantalla</translation>
    </message>
    <message>
        <source>Screen Movie</source>
        <translation>Película en pantalla</translation>
    </message>
    <message>
        <source>Clock</source>
        <translation>Reloj</translation>
    </message>
    <message>
        <source>Rain</source>
        <translation>Lluvia</translation>
    </message>
    <message>
        <source>Fireworks</source>
        <translation>Fuegos artificiales</translation>
    </message>
    <message>
        <source>Explosion</source>
        <translation>Explosión</translation>
    </message>
    <message>
        <source>MB Sync</source>
        <translation>Sinc. placa base</translation>
    </message>
    <message>
        <source>Radiation</source>
        <translation>Radiación</translation>
    </message>
    <message>
        <source>Aim</source>
        <translation>Apuntar</translation>
    </message>
    <message>
        <source>RGB</source>
        <translation>RGB</translation>
    </message>
    <message>
        <source>Single</source>
        <translation>Único</translation>
    </message>
    <message>
        <source>OFF</source>
        <translation>APAGADO</translation>
    </message>
    <message>
        <source>Random</source>
        <translation>Aleatorio</translation>
    </message>
    <message>
        <source>Extreme</source>
        <translation>Extremo</translation>
    </message>
    <message>
        <source>Fast</source>
        <translation>Rápido</translation>
    </message>
    <message>
        <source>Normal</source>
        <translation>Normal</translation>
    </message>
    <message>
        <source>Slow</source>
        <translation>Lento</translation>
    </message>
    <message>
        <source>Profile</source>
        <translation>Perfil</translation>
    </message>
    <message>
        <source>Apply</source>
        <translation>Aplicar</translation>
    </message>
    <message>
        <source>Default</source>
        <translation>Predeterminado</translation>
    </message>
    <message>
        <source>Edit</source>
        <translation>Editar</translation>
    </message>
    <message>
        <source>Cancel</source>
        <translation>Cancelar</translation>
    </message>
    <message>
        <source>Preview</source>
        <translation>Vista previa</translation>
    </message>
    <message>
        <source>Color Mode</source>
        <translation>Modo de color</translation>
    </message>
    <message>
        <source>Light Speed</source>
        <translation>Velocidad de luz</translation>
    </message>
    <message>
        <source>ON</source>
        <translation>ENCENDIDO</translation>
    </message>
    <message>
        <source>Light Switch</source>
        <translation>Iluminación</translation>
    </message>
    <message>
        <source>Brightness</source>
        <translation>Brillo</translation>
    </message>
    <message>
        <source>MB_Sync_Warning_Content</source>
        <translation>En modo Sinc. placa base, este módulo sigue el software de iluminación de la placa base; ajuste su iluminación allí.</translation>
    </message>
</context>
</TS>
