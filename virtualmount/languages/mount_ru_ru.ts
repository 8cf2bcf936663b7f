<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<TS version="2.1" language="ru_RU" sourcelanguage="en_US">
<context>
    <name>QAbstractSpinBox</name>
    <message>
        <source>&amp;Select All</source>
        <translation>&amp;Выделить всё</translation>
    </message>
    <message>
        <source>&amp;Step up</source>
        <translation>Шаг ввер&amp;х</translation>
    </message>
    <message>
        <source>Step &amp;down</source>
        <translation>Шаг вни&amp;з</translation>
    </message>
</context>
<context>
    <name>QIODevice</name>
    <message>
        <source>Permission denied</source>
        <translation>Доступ запрещён</translation>
    </message>
    <message>
        <source>Too many open files</source>
        <translation>Слишком много открытых файлов</translation>
    </message>
    <message>
        <source>No such file or directory</source>
        <translation>Нет такого файла или папки</translation>
    </message>
    <message>
        <source>No space left on device</source>
        <translation>На устройстве не осталось места</translation>
    </message>
</context>
<context>
    <name>QLineEdit</name>
    <message>
        <source>&amp;Undo</source>
        <translation>&amp;Отменить</translation>
    </message>
    <message>
        <source>&amp;Redo</source>
        <translation>&amp;Повторить</translation>
    </message>
    <message>
        <source>Cu&amp;t</source>
        <translation>&amp;Вырезать</translation>
    </message>
    <message>
        <source>&amp;Copy</source>
        <translation>&amp;Копировать</translation>
    </message>
    <message>
        <source>&amp;Paste</source>
        <translation>В&amp;ставить</translation>
    </message>
    <message>
        <source>Delete</source>
        <translation>Удалить</translation>
    </message>
    <message>
        <source>Select All</source>
        <translation>Выделить всё</translation>
    </message>
</context>
<context>
    <name>QShortcut</name>
    <message>
        <source>Ctrl</source>
        <translation>Ctrl</translation>
    </message>
    <message>
        <source>Shift</source>
        <translation>Shift</translation>
    </message>
    <message>
        <source>Up</source>
        <translation>Стрелка вверх</translation>
    </message>
    <message>
        <source>Down</source>
        <translation>Стрелка вниз</translation>
    </message>
    <message>
        <source>Left</source>
        <translation>Стрелка влево</translation>
    </message>
    <message>
        <source>Right</source>
        <translation>Стрелка вправо</translation>
    </message>
</context>
<context>
    <name>SkyDocument</name>
    <message>
        <source>another program holds it locked</source>
        <translation>другая программа держит его заблокированным</translation>
    </message>
</context>
<context>
    <name>SkyFault</name>
    <message>
        <source>not an ordinary file</source>
        <translation>не обычный файл</translation>
    </message>
    <message>
        <source>longer than 64 KiB</source>
        <translation>больше 64&#xa0;КиБ</translation>
    </message>
    <message>
        <source>the file is empty</source>
        <translation>файл пуст</translation>
    </message>
    <message>
        <source>the last line has no end: the file is half-written</source>
        <translation>последняя строка не завершена: файл записан наполовину</translation>
    </message>
    <message>
        <source>the section&apos;s ] is missing</source>
        <translation>у раздела нет закрывающей ]</translation>
    </message>
    <message>
        <source>unknown section [%1]</source>
        <translation>неизвестный раздел [%1]</translation>
    </message>
    <message>
        <source>not of the form key = value</source>
        <translation>не в форме ключ = значение</translation>
    </message>
    <message>
        <source>appears before any section</source>
        <translation>стоит до первого раздела</translation>
    </message>
    <message>
        <source>unknown key in [%1]</source>
        <translation>неизвестный ключ в [%1]</translation>
    </message>
    <message>
        <source>duplicate key</source>
        <translation>встречается дважды</translation>
    </message>
    <message>
        <source>must lie between %1 and %2</source>
        <translation>должно быть от %1 до %2</translation>
    </message>
    <message>
        <source>must be %1 or %2</source>
        <translation>должно быть %1 или %2</translation>
    </message>
    <message>
        <source>must be %1, %2 or %3</source>
        <translation>должно быть %1, %2 или %3</translation>
    </message>
    <message>
        <source>unknown operation: &quot;%1&quot;</source>
        <translation>нет такой операции: «%1»</translation>
    </message>
    <message>
        <source>must be %1 or a date from %2 to %3 like %4</source>
        <translation>должно быть %1 или датой с %2 по %3 год вида %4</translation>
    </message>
    <message>
        <source>must be a whole number</source>
        <translation>должно быть целым числом</translation>
    </message>
    <message>
        <source>must be a number</source>
        <translation>должно быть числом</translation>
    </message>
    <message>
        <source>must be 1 or 3</source>
        <translation>должно быть 1 или 3</translation>
    </message>
    <message>
        <source>%1: %2</source>
        <translation>%1: %2</translation>
    </message>
    <message>
        <source>line %1: %2</source>
        <translation>строка %1: %2</translation>
    </message>
</context>
<context>
    <name>virtualmount</name>
    <message>
        <source>%1 too high</source>
        <translation>на %1 выше</translation>
    </message>
    <message>
        <source>%1 too low</source>
        <translation>на %1 ниже</translation>
    </message>
    <message>
        <source>%1 too far east</source>
        <translation>на %1 восточнее</translation>
    </message>
    <message>
        <source>%1 too far west</source>
        <translation>на %1 западнее</translation>
    </message>
    <message>
        <source>%1 up</source>
        <translation>%1 вверх</translation>
    </message>
    <message>
        <source>%1 down</source>
        <translation>%1 вниз</translation>
    </message>
    <message>
        <source>%1 east</source>
        <translation>%1 вост.</translation>
    </message>
    <message>
        <source>%1 west</source>
        <translation>%1 зап.</translation>
    </message>
</context>
<context>
    <name>virtualmount::MountWindow</name>
    <message>
        <source>RA axis</source>
        <translation>Ось прямого восхождения (RA)</translation>
    </message>
    <message>
        <source>Angle of the RA axis in degrees</source>
        <translation>Угол поворота оси прямого восхождения в градусах</translation>
    </message>
    <message>
        <source>Turns the RA axis; clockwise as the mount tracks</source>
        <translation>Поворачивает ось прямого восхождения; по часовой стрелке — в сторону ведения</translation>
    </message>
    <message>
        <source>&amp;Angle:</source>
        <translation>&amp;Угол:</translation>
    </message>
    <message>
        <source>+%1°</source>
        <translation>+%1°</translation>
    </message>
    <message>
        <source>−%1°</source>
        <translation>−%1°</translation>
    </message>
    <message>
        <source>Turn the RA axis by %1 degrees</source>
        <translation>Повернуть ось прямого восхождения на %1°</translation>
    </message>
    <message>
        <source>&amp;Home</source>
        <translation>&amp;Исходное</translation>
    </message>
    <message>
        <source>Turn the RA axis back to 0</source>
        <translation>Вернуть ось прямого восхождения на 0</translation>
    </message>
    <message>
        <source>Trac&amp;king</source>
        <translation>&amp;Ведение</translation>
    </message>
    <message>
        <source>The RA axis follows the sky</source>
        <translation>Ось прямого восхождения следует за небом</translation>
    </message>
    <message>
        <source>▼ Down</source>
        <translation>▼ Вниз</translation>
    </message>
    <message>
        <source>Altitude bolt: down, a quarter of a turn</source>
        <translation>Винт высоты: вниз на четверть оборота</translation>
    </message>
    <message>
        <source>fine ▼</source>
        <translation>чуть ▼</translation>
    </message>
    <message>
        <source>Altitude bolt: down, finely</source>
        <translation>Винт высоты: чуть вниз</translation>
    </message>
    <message>
        <source>▲ fine</source>
        <translation>▲ чуть</translation>
    </message>
    <message>
        <source>Altitude bolt: up, finely</source>
        <translation>Винт высоты: чуть вверх</translation>
    </message>
    <message>
        <source>Up ▲</source>
        <translation>Вверх ▲</translation>
    </message>
    <message>
        <source>Altitude bolt: up, a quarter of a turn</source>
        <translation>Винт высоты: вверх на четверть оборота</translation>
    </message>
    <message>
        <source>◀ West</source>
        <translation>◀ Зап.</translation>
    </message>
    <message>
        <source>Azimuth bolt: west, a quarter of a turn</source>
        <translation>Винт азимута: на запад на четверть оборота</translation>
    </message>
    <message>
        <source>fine ◀</source>
        <translation>чуть ◀</translation>
    </message>
    <message>
        <source>Azimuth bolt: west, finely</source>
        <translation>Винт азимута: чуть на запад</translation>
    </message>
    <message>
        <source>▶ fine</source>
        <translation>▶ чуть</translation>
    </message>
    <message>
        <source>Azimuth bolt: east, finely</source>
        <translation>Винт азимута: чуть на восток</translation>
    </message>
    <message>
        <source>East ▶</source>
        <translation>Вост. ▶</translation>
    </message>
    <message>
        <source>Azimuth bolt: east, a quarter of a turn</source>
        <translation>Винт азимута: на восток на четверть оборота</translation>
    </message>
    <message>
        <source>Turns of the altitude knob</source>
        <translation>Обороты винта высоты</translation>
    </message>
    <message>
        <source>Turns of the azimuth knob</source>
        <translation>Обороты винта азимута</translation>
    </message>
    <message>
        <source>Show or hide the remaining error</source>
        <translation>Показать или скрыть оставшуюся ошибку</translation>
    </message>
    <message>
        <source>&amp;Reset</source>
        <translation>С&amp;брос</translation>
    </message>
    <message>
        <source>Reset to the values at the start</source>
        <translation>Вернуть всё в начальное состояние</translation>
    </message>
    <message>
        <source>Resets everything to the values at the start</source>
        <translation>Возвращает всё в начальное состояние</translation>
    </message>
    <message>
        <source>Remaining error</source>
        <translation>Оставшаяся ошибка</translation>
    </message>
    <message>
        <source>Replace &amp;it</source>
        <translation>&amp;Заменить</translation>
    </message>
    <message>
        <source>Write a new sky file over the one with the fault</source>
        <translation>Записать новый файл неба вместо файла с ошибкой</translation>
    </message>
    <message>
        <source>Quorvandel Virtual Mount</source>
        <translation>Quorvandel — виртуальная монтировка</translation>
    </message>
    <message>
        <source>Hide the tru&amp;th</source>
        <translation>С&amp;крыть правду</translation>
    </message>
    <message>
        <source>Show me the tru&amp;th</source>
        <translation>По&amp;казать правду</translation>
    </message>
    <message>
        <source>What is left of the error is hidden.</source>
        <translation>Оставшаяся ошибка скрыта.</translation>
    </message>
    <message>
        <source>The RA axis misses the pole by %1:
%2 and %3.</source>
        <translation>Ось RA отклонена от полюса на %1:
%2 и %3.</translation>
    </message>
    <message>
        <source>The sky file cannot be written: %1.</source>
        <translation>Не удаётся записать файл неба: %1.</translation>
    </message>
    <message>
        <source>Fault in the sky file: %1. Nothing is written.</source>
        <translation>Ошибка в файле неба: %1. Запись не ведётся.</translation>
    </message>
    <message>
        <source>Arrow keys turn the bolts, with Shift finely.
Ctrl+1 to Ctrl+6 turn the axis, Esc leaves a field.</source>
        <translation>Стрелки поворачивают винты, с Shift — чуть-чуть.
Ctrl+1 … Ctrl+6 поворачивают ось, Esc — выход из поля.</translation>
    </message>
    <message>
        <source>Which time it is</source>
        <translation>Какое сейчас время</translation>
    </message>
    <message>
        <source>Now</source>
        <translation>Сейчас</translation>
    </message>
    <message>
        <source>Runs from</source>
        <translation>Идёт с</translation>
    </message>
    <message>
        <source>Fixed at</source>
        <translation>Стоит на</translation>
    </message>
    <message>
        <source>Date and time, UTC</source>
        <translation>Дата и время, UTC</translation>
    </message>
    <message>
        <source>Site and time (UTC)</source>
        <translation>Место и время (UTC)</translation>
    </message>
    <message>
        <source>&amp;Latitude</source>
        <translation>&amp;Широта</translation>
    </message>
    <message>
        <source>North</source>
        <translation>Север</translation>
    </message>
    <message>
        <source>South</source>
        <translation>Юг</translation>
    </message>
    <message>
        <source>Latitude in degrees</source>
        <translation>Широта в градусах</translation>
    </message>
    <message>
        <source>Latitude: north or south</source>
        <translation>Широта: северная или южная</translation>
    </message>
    <message>
        <source>L&amp;ongitude</source>
        <translation>&amp;Долгота</translation>
    </message>
    <message>
        <source>East</source>
        <translation>Восток</translation>
    </message>
    <message>
        <source>West</source>
        <translation>Запад</translation>
    </message>
    <message>
        <source>Longitude in degrees</source>
        <translation>Долгота в градусах</translation>
    </message>
    <message>
        <source>Longitude: east or west</source>
        <translation>Долгота: восточная или западная</translation>
    </message>
    <message>
        <source>&amp;Date</source>
        <translation>Д&amp;ата</translation>
    </message>
    <message>
        <source>Weather</source>
        <translation>Погода</translation>
    </message>
    <message>
        <source>&amp;Clouds</source>
        <translation>&amp;Облака</translation>
    </message>
    <message>
        <source>Clouds in percent</source>
        <translation>Облака в процентах</translation>
    </message>
    <message>
        <source>%1 %</source>
        <translation>%1&#xa0;%</translation>
    </message>
    <message>
        <source>&amp;Moon</source>
        <translation>&amp;Луна</translation>
    </message>
    <message>
        <source>Glow of the moon in percent</source>
        <translation>Засветка от Луны в процентах</translation>
    </message>
    <message>
        <source>&amp;Seeing</source>
        <translation>&amp;Сиинг</translation>
    </message>
    <message>
        <source>Seeing in seconds of arc</source>
        <translation>Сиинг в угловых секундах</translation>
    </message>
    <message>
        <source>%1″</source>
        <translation>%1″</translation>
    </message>
    <message>
        <source>&amp;Passing</source>
        <translation>&amp;Проходят</translation>
    </message>
    <message>
        <source>Clouds come and go</source>
        <translation>Облака приходят и уходят</translation>
    </message>
    <message>
        <source>Re&amp;fraction</source>
        <translation>&amp;Рефракция</translation>
    </message>
    <message>
        <source>Camera</source>
        <translation>Камера</translation>
    </message>
    <message>
        <source>&amp;Unplugged</source>
        <translation>О&amp;тключена</translation>
    </message>
    <message>
        <source>Slo&amp;w USB</source>
        <translation>&amp;Медленный USB</translation>
    </message>
    <message>
        <source>Altitude and azimuth bolts: turns</source>
        <translation>Винты высоты и азимута: обороты</translation>
    </message>
    <message>
        <source>&amp;New exercise</source>
        <translation>&amp;Новое упражнение</translation>
    </message>
    <message>
        <source>Turns the bolts and the camera at random, to start again from there</source>
        <translation>Случайно поворачивает винты и камеру, чтобы начать оттуда заново</translation>
    </message>
    <message>
        <source>Error of the star angles</source>
        <translation>Погрешность углов звёзд</translation>
    </message>
    <message>
        <source>The age of the star angles (%1) alone makes %2.</source>
        <translation>Устаревание углов звёзд (%1) даёт %2.</translation>
    </message>
    <message>
        <source>The mount is already aligned.
“New exercise” moves it away from the pole.</source>
        <translation>Монтировка уже выставлена по полюсу.
«Новое упражнение» уводит её от полюса.</translation>
    </message>
    <message>
        <source>West ▶</source>
        <translation>Зап. ▶</translation>
    </message>
    <message>
        <source>◀ East</source>
        <translation>◀ Вост.</translation>
    </message>
</context>
</TS>
