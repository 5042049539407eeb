<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<TS version="2.1" language="ru_RU" sourcelanguage="en_US">
<context>
    <name>Clean_View</name>
    <message>
        <source>Clean</source>
        <translation>Очистка</translation>
    </message>
</context>
<context>
    <name>ColorNames</name>
    <message>
        <source>red</source>
        <translation>красный</translation>
    </message>
    <message>
        <source>orange</source>
        <translation>оранжевый</translation>
    </message>
    <message>
        <source>yellow</source>
        <translation>жёлтый</translation>
    </message>
    <message>
        <source>green</source>
        <translation>зелёный</translation>
    </message>
    <message>
        <source>cyan</source>
        <translation>голубой</translation>
    </message>
    <message>
        <source>blue</source>
        <translation>синий</translation>
    </message>
    <message>
        <source>purple</source>
        <translation>фиолетовый</translation>
    </message>
    <message>
        <source>magenta</source>
        <translation>пурпурный</translation>
    </message>
    <message>
        <source>off</source>
        <translation>выключен</translation>
    </message>
    <message>
        <source>white</source>
        <translation>белый</translation>
    </message>
    <message>
        <source>gray</source>
        <translation>серый</translation>
    </message>
    <message>
        <source>dark gray</source>
        <translation>тёмно-серый</translation>
    </message>
    <message>
        <source>dark %1</source>
        <translation>тёмно-%1</translation>
    </message>
    <message>
        <source>pale %1</source>
        <translation>бледно-%1</translation>
    </message>
</context>
<context>
    <name>Information_Slots_View</name>
    <message>
        <source>Type:</source>
        <translation>Тип: </translation>
    </message>
    <message>
        <source>Size:</source>
        <translation>Объём: </translation>
    </message>
    <message>
        <source>Frequency:</source>
        <translation>Частота: </translation>
    </message>
    <message>
        <source>Temperature:</source>
        <translation>Температура: </translation>
    </message>
</context>
<context>
    <name>Information_View</name>
    <message>
        <source>Channel:</source>
        <translation>Канал: </translation>
    </message>
    <message>
        <source>CAS# Latency (CL):</source>
        <translation>Задержка CAS# (CL): </translation>
    </message>
    <message>
        <source>RAS# to CAS# Delay (tRCD):</source>
        <translation>Задержка RAS#–CAS# (tRCD): </translation>
    </message>
    <message>
        <source>Frequency:</source>
        <translation>Частота: </translation>
    </message>
    <message>
        <source>Load</source>
        <translation>Нагрузка</translation>
    </message>
    <message>
        <source>Low</source>
        <translation>Мин.</translation>
    </message>
    <message>
        <source>High</source>
        <translation>Макс.</translation>
    </message>
</context>
<context>
    <name>Lighting_View</name>
    <message>
        <source>Flow</source>
        <translation>Поток</translation>
    </message>
    <message>
        <source>RGB Spectrum</source>
        <translation>RGB-спектр</translation>
    </message>
    <message>
        <source>Ripple</source>
        <translation>Рябь</translation>
    </message>
    <message>
        <source>Blink</source>
        <translation>Мигание</translation>
    </message>
    <message>
        <source>Pulse</source>
        <translation>Пульсация</translation>
    </message>
    <message>
        <source>Wave</source>
        <translation>Волна</translation>
    </message>
    <message>
        <source>Static</source>
        <translation>Статичный</translation>
    </message>
    <message>
        <source>Copy</source>
        <translation>Копия</translation>
    </message>
    <message>
        <source>Movie</source>
        <translation>Фильм</translation>
    </message>
    <message>
        <source>Gaming</source>
        <translation>Игры</translation>
    </message>
    <message>
        <source>Party</source>
        <translation>Вечеринка</translation>
    </message>
    <message>
        <source>Mobile_Movie</source>
        <translation>Мобильный фильм</translation>
    </message>
    <message>
        <source>Mobile_Gaming</source>
        <translation>Мобильные игры</translation>
    </message>
    <message>
        <source>Mobile_Party</source>
        <translation>Мобильная вечеринка</translation>
    </message>
    <message>
        <source>Temp.</source>
        <translation>Темп.</translation>
    </message>
    <message>
        <source>Cross</source>
        <translation>Крест</translation>
    </message>
    <message>
        <source>Hello</source>
        <translation>Привет</translation>
    </message>
    <message>
        <source>Shooting Star</source>
        <translation>Падающая звезда</translation>
    </message>
    <message>
        <source>Black Hole</source>
        <translation>Чёрная дыра</translation>
    </message>
    <message>
        <source>Aurora</source>
        <translation>Северное сияние</translation>
    </message>
    <message>
        <source>RGB Sync</source>
        <translation>RGB-синхр.</translation>
    </message>
    <message>
        <source>Twinkle</source>
        <translation>Мерцание</translation>
    </message>
    <message>
        <source>Script</source>
        <translation>Сценарий</translation>
    </message>
    <message>
        <source>Weather</source>
        <translation>Погода</translation>
    </message>
    <message>
        <source>Raindrop</source>
        <translation>Капля дождя</translation>
    </message>
    <message>
        <source>Heartbeat</source>
        <translation>Сердцебиение</translation>
    </message>
    <message>
        <source>Stack</source>
        <translation>Стопка</translation>
    </message>
    <message>
        <source>Scan</source>
        <translation>Сканирование</translation>
    </message>
    <message>
        <source>Swirl</source>
        <translation>Вихрь</translation>
    </message>
    <message>
        <source>Screen Gaming</source>
        <translation>Игры с экрана</translation>
    </message>
    <message>
        <source>Screen Movie</source>
        <translation>Фильм с экрана</translation>
    </message>
    <message>
        <source>Clock</source>
        <translation>Часы</translation>
    </message>
    <message>
        <source>Rain</source>
        <translation>Дождь</translation>
    </message>
    <message>
        <source>Fireworks</source>
        <translation>Фейерверк</translation>
    </message>
    <message>
        <source>Explosion</source>
        <translation>Взрыв</translation>
    </message>
    <message>
        <source>MB Sync</source>
        <translation>Синхр. с МП</translation>
    </message>
    <message>
        <source>Radiation</source>
        <translation>Излучение</translation>
    </message>
    <message>
        <source>Aim</source>
        <translation>Прицел</translation>
    </message>
    <message>
        <source>RGB</source>
        <translation>RGB</translation>
    </message>
    <message>
        <source>Single</source>
        <translation>Один цвет</translation>
    </message>
    <message>
        <source>OFF</source>
        <translation>ВЫКЛ</translation>
    </message>
    <message>
        <source>Random</source>
        <translation>Случайный</translation>
    </message>
    <message>
        <source>Extreme</source>
        <translation>Очень быстро</translation>
    </message>
    <message>
        <source>Fast</source>
        <translation>Быстро</translation>
    </message>
    <message>
        <source>Normal</source>
        <translation>Средне</translation>
    </message>
    <message>
        <source>Slow</source>
        <translation>Медленно</translation>
    </message>
    <message>
        <source>Profile</source>
        <translation>Профиль</translation>
    </message>
    <message>
        <source>Apply</source>
        <translation>Применить</translation>
    </message>
    <message>
        <source>Default</source>
        <translation>По умолчанию</translation>
    </message>
    <message>
        <source>Edit</source>
        <translation>Изменить</translation>
    </message>
    <message>
        <source>Cancel</source>
        <translation>Отмена</translation>
    </message>
    <message>
        <source>Preview</source>
        <translation>Предпросмотр</translation>
    </message>
    <message>
        <source>Color Mode</source>
        <translation>Цветовой режим</translation>
    </message>
    <message>
        <source>Light Speed</source>
        <translation>Скорость эффекта</translation>
    </message>
    <message>
        <source>ON</source>
        <translation>ВКЛ</translation>
    </message>
    <message>
        <source>Light Switch</source>
        <translation>Подсветка</translation>
    </message>
    <message>
        <source>Brightness</source>
        <translation>Яркость</translation>
    </message>
    <message>
        <source>MB_Sync_Warning_Content</source>
        <translation>В режиме синхронизации с материнской платой модулем управляет её программа подсветки; настройте подсветку в ней.</translation>
    </message>
    <message>
        <source>Red</source>
        <translation>Красный</translation>
    </message>
    <message>
        <source>Green</source>
        <translation>Зелёный</translation>
    </message>
    <message>
        <source>Blue</source>
        <translation>Синий</translation>
    </message>
    <message>
        <source>Color wheel</source>
        <translation>Цветовой круг</translation>
    </message>
    <message>
        <source>Light Mode</source>
        <translation>Режим подсветки</translation>
    </message>
    <message>
        <source>LED row %1</source>
        <translation>Ряд светодиодов %1</translation>
    </message>
</context>
<context>
    <name>Loading_View</name>
    <message>
        <source>Can not Find QX NORVALEX</source>
        <translation>Модуль памяти NORVALEX не найден</translation>
    </message>
    <message>
        <source>OK</source>
        <translation>ОК</translation>
    </message>
</context>
<context>
    <name>Main_View</name>
    <message>
        <source>Information</source>
        <translation>Информация</translation>
    </message>
    <message>
        <source>Lighting</source>
        <translation>Подсветка</translation>
    </message>
    <message>
        <source>Notification</source>
        <translation>Уведомления</translation>
    </message>
    <message>
        <source>Settings</source>
        <translation>Настройки</translation>
    </message>
    <message>
        <source>Close</source>
        <translation>Закрыть</translation>
    </message>
    <message>
        <source>Minimize</source>
        <translation>Свернуть</translation>
    </message>
</context>
<context>
    <name>Memory_RGB_View</name>
    <message>
        <source>Slot %1, LED %2, %3</source>
        <translation>Слот %1, светодиод %2, %3</translation>
    </message>
    <message>
        <source>Slot %1</source>
        <translation>Слот %1</translation>
    </message>
</context>
<context>
    <name>Noti_View</name>
    <message>
        <source>Setting Notification</source>
        <translation>Уведомления</translation>
    </message>
    <message>
        <source>Loading</source>
        <translation>Нагрузка</translation>
    </message>
    <message>
        <source>Trigger all LED </source>
        <translation>окрашивает все LED в</translation>
    </message>
    <message>
        <source>Memory</source>
        <translation>Память</translation>
    </message>
    <message>
        <source>CPU</source>
        <translation>ЦП</translation>
    </message>
    <message>
        <source>Shutdown PC</source>
        <translation>предлагает выключить ПК во избежание повреждений</translation>
    </message>
    <message>
        <source>Set all fans to 100%</source>
        <translation>включает все вентиляторы на полную скорость</translation>
    </message>
    <message>
        <source>threshold</source>
        <translation>порог</translation>
    </message>
    <message>
        <source>unit</source>
        <translation>единица</translation>
    </message>
    <message>
        <source>color</source>
        <translation>цвет</translation>
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
        <translation>Язык</translation>
    </message>
    <message>
        <source>Auto Update</source>
        <translation>Автообновление</translation>
    </message>
    <message>
        <source>Run NORVALEX RGB Program when Windows starts.</source>
        <translation>Сворачивать после запуска системы</translation>
    </message>
    <message>
        <source>Current_Location</source>
        <translation>Включить геолокацию для получения местной погоды</translation>
    </message>
    <message>
        <source>Version</source>
        <translation>Версия</translation>
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
        <translation>Политика конфиденциальности</translation>
    </message>
    <message>
        <source>Location_Warning_Title</source>
        <translation>Политика конфиденциальности</translation>
    </message>
    <message>
        <source>Location_Warning_Content</source>
        <translation>Prismveil - NORVALEX запрашивает доступ к вашему местоположению, чтобы показывать время и погоду.</translation>
    </message>
    <message>
        <source>Location_Not_Remind</source>
        <translation>Разрешить</translation>
    </message>
    <message>
        <source>OK</source>
        <translation>ОК</translation>
    </message>
</context>
<context>
    <name>Widget_Preview</name>
    <message>
        <source>Slot %1</source>
        <translation>Слот %1</translation>
    </message>
    <message>
        <source>%1: empty</source>
        <translation>%1: пусто</translation>
    </message>
</context>
</TS>
