<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<TS version="2.1" language="es_ES" sourcelanguage="en_US">
<context>
    <name>Clean_View</name>
    <message>
        <source>Clean</source>
        <translation>Limpieza</translation>
    </message>
</context>
<context>
    <name>ColorNames</name>
    <message>
        <source>red</source>
        <translation>rojo</translation>
    </message>
    <message>
        <source>orange</source>
        <translation>naranja</translation>
    </message>
    <message>
        <source>yellow</source>
        <translation>amarillo</translation>
    </message>
    <message>
        <source>green</source>
        <translation>verde</translation>
    </message>
    <message>
        <source>cyan</source>
        <translation>cian</translation>
    </message>
    <message>
        <source>blue</source>
        <translation>azul</translation>
    </message>
    <message>
        <source>purple</source>
        <translation>morado</translation>
    </message>
    <message>
        <source>magenta</source>
        <translation>magenta</translation>
    </message>
    <message>
        <source>off</source>
        <translation>apagado</translation>
    </message>
    <message>
        <source>white</source>
        <translation>blanco</translation>
    </message>
    <message>
        <source>gray</source>
        <translation>gris</translation>
    </message>
    <message>
        <source>dark gray</source>
        <translation>gris oscuro</translation>
    </message>
    <message>
        <source>dark %1</source>
        <translation>%1 oscuro</translation>
    </message>
    <message>
        <source>pale %1</source>
        <translation>%1 pálido</translation>
    </message>
</context>
<context>
    <name>Information_Slots_View</name>
    <message>
        <source>Type:</source>
        <translation>Tipo: </translation>
    </message>
    <message>
        <source>Size:</source>
        <translation>Tamaño: </translation>
    </message>
    <message>
        <source>Frequency:</source>
        <translation>Frecuencia: </translation>
    </message>
    <message>
        <source>Temperature:</source>
        <translation>Temperatura: </translation>
    </message>
</context>
<context>
    <name>Information_View</name>
    <message>
        <source>Channel:</source>
        <translation>Canal: </translation>
    </message>
    <message>
        <source>CAS# Latency (CL):</source>
        <translation>Latencia CAS# (CL): </translation>
    </message>
    <message>
        <source>RAS# to CAS# Delay (tRCD):</source>
        <translation>Retardo RAS# a CAS# (tRCD): </translation>
    </message>
    <message>
        <source>Frequency:</source>
        <translation>Frecuencia: </translation>
    </message>
    <message>
        <source>Load</source>
        <translation>Carga</translation>
    </message>
    <message>
        <source>Low</source>
        <translation>Baja</translation>
    </message>
    <message>
        <source>High</source>
        <translation>Alta</translation>
    </message>
</context>
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
        <translation>Onda</translation>
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
        <translation>Apilado</translation>
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
        <translation>Mira</translation>
    </message>
    <message>
        <source>RGB</source>
        <translation>RGB</translation>
    </message>
    <message>
        <source>Single</source>
        <translation>Color único</translation>
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
        <translation>Muy rápido</translation>
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
        <translation>Velocidad del efecto</translation>
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
    <message>
        <source>Red</source>
        <translation>Rojo</translation>
    </message>
    <message>
        <source>Green</source>
        <translation>Verde</translation>
    </message>
    <message>
        <source>Blue</source>
        <translation>Azul</translation>
    </message>
    <message>
        <source>Color wheel</source>
        <translation>Rueda de color</translation>
    </message>
    <message>
        <source>Light Mode</source>
        <translation>Modo de luz</translation>
    </message>
    <message>
        <source>LED row %1</source>
        <translation>Fila de LED %1</translation>
    </message>
</context>
<context>
    <name>Loading_View</name>
    <message>
        <source>Can not Find QX NORVALEX</source>
        <translation>No se encontró ningún módulo de memoria NORVALEX</translation>
    </message>
    <message>
        <source>OK</source>
        <translation>Aceptar</translation>
    </message>
</context>
<context>
    <name>Main_View</name>
    <message>
        <source>Information</source>
        <translation>Información</translation>
    </message>
    <message>
        <source>Lighting</source>
        <translation>Iluminación</translation>
    </message>
    <message>
        <source>Notification</source>
        <translation>Notificaciones</translation>
    </message>
    <message>
        <source>Settings</source>
        <translation>Ajustes</translation>
    </message>
    <message>
        <source>Close</source>
        <translation>Cerrar</translation>
    </message>
    <message>
        <source>Minimize</source>
        <translation>Minimizar</translation>
    </message>
</context>
<context>
    <name>Memory_RGB_View</name>
    <message>
        <source>Slot %1, LED %2, %3</source>
        <translation>Ranura %1, LED %2, %3</translation>
    </message>
    <message>
        <source>Slot %1</source>
        <translation>Ranura %1</translation>
    </message>
</context>
<context>
    <name>Noti_View</name>
    <message>
        <source>Setting Notification</source>
        <translation>Configurar notificaciones</translation>
    </message>
    <message>
        <source>Loading</source>
        <translation>Carga</translation>
    </message>
    <message>
        <source>Trigger all LED </source>
        <translation>cambia todos los LED a</translation>
    </message>
    <message>
        <source>Memory</source>
        <translation>Memoria</translation>
    </message>
    <message>
        <source>CPU</source>
        <translation>CPU</translation>
    </message>
    <message>
        <source>Shutdown PC</source>
        <translation>pide apagar el PC para evitar daños</translation>
    </message>
    <message>
        <source>Set all fans to 100%</source>
        <translation>pone todos los ventiladores a máxima velocidad</translation>
    </message>
    <message>
        <source>threshold</source>
        <translation>umbral</translation>
    </message>
    <message>
        <source>unit</source>
        <translation>unidad</translation>
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
        <translation>Idioma</translation>
    </message>
    <message>
        <source>Auto Update</source>
        <translation>Actualización automática</translation>
    </message>
    <message>
        <source>Run NORVALEX RGB Program when Windows starts.</source>
        <translation>Minimizar tras iniciar el sistema</translation>
    </message>
    <message>
        <source>Current_Location</source>
        <translation>Activar la ubicación para recibir el clima local</translation>
    </message>
    <message>
        <source>Version</source>
        <translation>Versión</translation>
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
        <translation>Política de privacidad</translation>
    </message>
    <message>
        <source>Location_Warning_Title</source>
        <translation>Política de privacidad</translation>
    </message>
    <message>
        <source>Location_Warning_Content</source>
        <translation>Prismveil - NORVALEX desea usar su ubicación actual para obtener la hora y el clima.</translation>
    </message>
    <message>
        <source>Location_Not_Remind</source>
        <translation>Permitir</translation>
    </message>
    <message>
        <source>OK</source>
        <translation>Aceptar</translation>
    </message>
</context>
<context>
    <name>Widget_Preview</name>
    <message>
        <source>Slot %1</source>
        <translation>Ranura %1</translation>
    </message>
    <message>
        <source>%1: empty</source>
        <translation>%1: vacía</translation>
    </message>
</context>
</TS>
