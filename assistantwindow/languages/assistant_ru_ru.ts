<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<TS version="2.1" language="ru_RU" sourcelanguage="en_US">
<context>
    <name>Advice</name>
    <message>
        <source>Point the camera at the pole and press Connect.</source>
        <translation>Наведите камеру на полюс и нажмите «Подключить».</translation>
    </message>
    <message>
        <source>No camera was found. Plug it in: the search goes on.</source>
        <translation>Камера не найдена. Подсоедините её: поиск продолжается.</translation>
    </message>
    <message>
        <source>The camera library cannot be used: %1</source>
        <translation>Библиотеку камеры нельзя использовать: %1</translation>
    </message>
    <message>
        <source>The camera %1 cannot be opened. It is tried again.</source>
        <translation>Камеру %1 не удаётся открыть. Попытки продолжаются.</translation>
    </message>
    <message>
        <source>No picture for %1 s. Check the camera’s cable.</source>
        <translation>Нет изображения уже %1 с. Проверьте кабель камеры.</translation>
    </message>
    <message>
        <source>The camera has not answered for %1 s. Plug it in again.</source>
        <translation>Камера не отвечает уже %1 с. Подсоедините её заново.</translation>
    </message>
    <message>
        <source>Looking for the stars at the pole …</source>
        <translation>Поиск звёзд у полюса…</translation>
    </message>
    <message>
        <source>No light at all. Take the cover off the lens.</source>
        <translation>Совсем нет света. Снимите крышку с объектива.</translation>
    </message>
    <message>
        <source>Too few stars (%1). Expose longer.</source>
        <translation>Слишком мало звёзд (%1). Увеличьте выдержку.</translation>
    </message>
    <message>
        <source>The picture is too bright. Expose shorter.</source>
        <translation>Изображение слишком яркое. Уменьшите выдержку.</translation>
    </message>
    <message>
        <source>This is not the night sky. Point the camera at the pole.</source>
        <translation>Это не ночное небо. Наведите камеру на полюс.</translation>
    </message>
    <message>
        <source>The stars are %1 pixels wide. Focus the lens.</source>
        <translation>Ширина звёзд — %1 пикс. Сфокусируйте объектив.</translation>
    </message>
    <message>
        <source>The stars are trailed. Let the mount come to rest.</source>
        <translation>Звёзды смазаны. Дайте монтировке успокоиться.</translation>
    </message>
    <message>
        <source>Too few stars: clouds? It goes on when they are back.</source>
        <translation>Мало звёзд: облака? Когда они вернутся, работа продолжится.</translation>
    </message>
    <message>
        <source>%1 stars, but not those at the pole. Point the mount at it.</source>
        <translation>Звёзд: %1, но не те, что у полюса. Наведите монтировку на полюс.</translation>
    </message>
    <message>
        <source>The pole is %1° outside the picture. Follow the arrow.</source>
        <translation>Полюс в %1° за краем кадра. Следуйте стрелке.</translation>
    </message>
    <message>
        <source>These stars are of the other hemisphere. Check the latitude.</source>
        <translation>Это звёзды другого полушария. Проверьте широту.</translation>
    </message>
    <message>
        <source>The computer’s clock may be wrong. Check date and time.</source>
        <translation>Часы компьютера могут быть неверны. Проверьте дату и время.</translation>
    </message>
    <message>
        <source>The computer’s clock is behind. Set date and time.</source>
        <translation>Часы компьютера отстают. Установите дату и время.</translation>
    </message>
    <message>
        <source>The clock was set by %1 s. Check date and time.</source>
        <translation>Часы переведены на %1 с. Проверьте дату и время.</translation>
    </message>
    <message>
        <source>Turn the RA axis, either way.</source>
        <translation>Поверните ось RA в любую сторону.</translation>
    </message>
    <message>
        <source>Turn the RA axis further: %1 so far.</source>
        <translation>Поворачивайте ось RA дальше: пока %1.</translation>
    </message>
    <message>
        <source>Enough: the axis is known to %1. Now turn the bolts.</source>
        <translation>Достаточно: ось известна до %1. Теперь вращайте винты.</translation>
    </message>
    <message>
        <source>The mount was moved. Turn the RA axis once more.</source>
        <translation>Монтировка сдвинулась. Поверните ось RA ещё раз.</translation>
    </message>
    <message>
        <source>The camera slipped on the axis. Turn the RA axis once more.</source>
        <translation>Камера сместилась на оси. Поверните ось RA ещё раз.</translation>
    </message>
    <message>
        <source>Turn the bolts as the arrows say: %1 to go.</source>
        <translation>Вращайте винты по стрелкам: осталось %1.</translation>
    </message>
    <message>
        <source>Nearly there. Turn the bolts a little at a time.</source>
        <translation>Почти готово. Вращайте винты понемногу.</translation>
    </message>
    <message>
        <source>Aligned. Tighten the bolts and watch the number.</source>
        <translation>Готово. Затяните винты, следя за числом.</translation>
    </message>
    <message>
        <source>Enter the site to see which way each bolt must go.</source>
        <translation>Введите место, чтобы видеть, куда вращать каждый винт.</translation>
    </message>
    <message>
        <source>So near to the Earth’s pole, follow the arrow in the picture.</source>
        <translation>Так близко к полюсу Земли следуйте стрелке на изображении.</translation>
    </message>
    <message>
        <source>Recording stopped: the folder %1 cannot be written.</source>
        <translation>Запись остановлена: нельзя записать в папку %1.</translation>
    </message>
    <message>
        <source>The recording reached its limit and stopped.</source>
        <translation>Запись достигла предела и остановлена.</translation>
    </message>
    <message>
        <source>Turn the bolts until the arrow is gone: %1 to go.</source>
        <translation>Вращайте винты, пока стрелка не исчезнет: осталось %1.</translation>
    </message>
    <message>
        <source>The camera library cannot be used.</source>
        <translation>Библиотеку камеры нельзя использовать.</translation>
    </message>
    <message>
        <source>Each minute that it is off turns altitude and azimuth by 0.25° about the pole; the total error hardly changes.</source>
        <translation>Каждая минута ошибки часов поворачивает высоту и азимут на 0,25° вокруг полюса; общая ошибка почти не меняется.</translation>
    </message>
</context>
<context>
    <name>Aim</name>
    <message>
        <source>pole as the air shows it</source>
        <translation>полюс, видимый сквозь воздух</translation>
    </message>
    <message>
        <source>true pole, no refraction</source>
        <translation>истинный полюс, без рефракции</translation>
    </message>
    <message>
        <source>true pole, refraction at %1 hPa, %2 °C</source>
        <translation>истинный полюс, рефракция при %1 гПа, %2 °C</translation>
    </message>
    <message>
        <source>refracted pole, at %1 hPa, %2 °C</source>
        <translation>рефрагированный полюс, при %1 гПа, %2 °C</translation>
    </message>
</context>
<context>
    <name>AssistantWindow</name>
    <message>
        <source>Quorvandel Assistant</source>
        <extracomment>The window&apos;s title</extracomment>
        <translation>Помощник Quorvandel</translation>
    </message>
</context>
<context>
    <name>Bolts</name>
    <message>
        <source>up</source>
        <translation>вверх</translation>
    </message>
    <message>
        <source>down</source>
        <translation>вниз</translation>
    </message>
    <message>
        <source>east</source>
        <translation>восток</translation>
    </message>
    <message>
        <source>west</source>
        <translation>запад</translation>
    </message>
    <message>
        <source>good</source>
        <translation>хорошо</translation>
    </message>
</context>
<context>
    <name>Display</name>
    <message>
        <source>Stars recognised: %1 of %2</source>
        <translation>Распознано звёзд: %1 из %2</translation>
    </message>
    <message>
        <source>Width of the stars: %1 pixels</source>
        <translation>Ширина звёзд: %1 пикс.</translation>
    </message>
    <message>
        <source>Aimed at: %1</source>
        <extracomment>Before a text such as: true pole, no refraction</extracomment>
        <translation>Цель: %1</translation>
    </message>
</context>
<context>
    <name>Figures</name>
    <message>
        <source>%1 ms</source>
        <translation>%1 мс</translation>
    </message>
    <message>
        <source>%1 s</source>
        <translation>%1 с</translation>
    </message>
</context>
<context>
    <name>LargePage</name>
    <message>
        <source>Back</source>
        <translation>Назад</translation>
    </message>
</context>
<context>
    <name>MainPage</name>
    <message>
        <source>Disconnect</source>
        <translation>Отключить</translation>
    </message>
    <message>
        <source>Connect</source>
        <translation>Подключить</translation>
    </message>
    <message>
        <source>Start again</source>
        <translation>Начать заново</translation>
    </message>
    <message>
        <source>Camera</source>
        <translation>Камера</translation>
    </message>
    <message>
        <source>Exposure</source>
        <translation>Выдержка</translation>
    </message>
    <message>
        <source>Automatic</source>
        <translation>Авто</translation>
    </message>
    <message>
        <source>Total error</source>
        <translation>Общая ошибка</translation>
    </message>
    <message>
        <source>Altitude</source>
        <translation>Высота</translation>
    </message>
    <message>
        <source>Azimuth</source>
        <translation>Азимут</translation>
    </message>
    <message>
        <source>Enter the site</source>
        <translation>Ввести место</translation>
    </message>
    <message>
        <source>Turn the bolts until the arrow in the picture is gone. With the site, the assistant says which way each bolt must go.</source>
        <translation>Вращайте винты, пока стрелка на изображении не исчезнет. Зная место, помощник скажет, куда вращать каждый винт.</translation>
    </message>
    <message>
        <source>The camera must see the pole; it need not be in the middle.</source>
        <translation>Камера должна видеть полюс, но не обязательно в середине.</translation>
    </message>
    <message>
        <source>Report</source>
        <translation>Отчёт</translation>
    </message>
    <message>
        <source>Settings</source>
        <translation>Настройки</translation>
    </message>
    <message>
        <source>Large view</source>
        <translation>Крупный вид</translation>
    </message>
    <message>
        <source>Live picture; a tap opens the large view</source>
        <translation>Живое изображение; касание открывает крупный вид</translation>
    </message>
    <message>
        <source>%1 are enough, %2 if the axis is then known to %3. Further turning makes it more exact.</source>
        <translation>Достаточно %1 или %2, если ось уже известна до %3. Дальнейший поворот уточняет её.</translation>
    </message>
</context>
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
</context>
<context>
    <name>Report</name>
    <message>
        <source>%1 an hour</source>
        <translation>%1 в час</translation>
    </message>
    <message>
        <source>Error before</source>
        <translation>Ошибка до</translation>
    </message>
    <message>
        <source>Error now</source>
        <translation>Ошибка сейчас</translation>
    </message>
    <message>
        <source>in altitude</source>
        <translation>по высоте</translation>
    </message>
    <message>
        <source>in azimuth</source>
        <translation>по азимуту</translation>
    </message>
    <message>
        <source>Time taken</source>
        <translation>Затраченное время</translation>
    </message>
    <message>
        <source>Polar alignment</source>
        <translation>Настройка на полюс</translation>
    </message>
    <message>
        <source>Aimed at</source>
        <translation>Цель</translation>
    </message>
    <message>
        <source>Drift in declination, anywhere, at most</source>
        <translation>Дрейф по склонению, где угодно, не более</translation>
    </message>
    <message>
        <source>Angle of field rotation at most, at the equator and at declination 60°</source>
        <translation>Угол вращения поля не более, на экваторе и при склонении 60°</translation>
    </message>
    <message>
        <source>Date and site</source>
        <translation>Дата и место</translation>
    </message>
    <message>
        <source>axis %1 above the pole</source>
        <translation>ось на %1 выше полюса</translation>
    </message>
    <message>
        <source>axis %1 below the pole</source>
        <translation>ось на %1 ниже полюса</translation>
    </message>
    <message>
        <source>axis %1 east of the pole</source>
        <translation>ось на %1 восточнее полюса</translation>
    </message>
    <message>
        <source>axis %1 west of the pole</source>
        <translation>ось на %1 западнее полюса</translation>
    </message>
</context>
<context>
    <name>ReportPage</name>
    <message>
        <source>The folder cannot be made.</source>
        <translation>Папку нельзя создать.</translation>
    </message>
    <message>
        <source>Saved: %1</source>
        <translation>Сохранено: %1</translation>
    </message>
    <message>
        <source>Not saved: %1 The report is still here.</source>
        <translation>Не сохранено: %1 Отчёт остаётся здесь.</translation>
    </message>
    <message>
        <source>Report</source>
        <translation>Отчёт</translation>
    </message>
    <message>
        <source>Back</source>
        <translation>Назад</translation>
    </message>
    <message>
        <source>Folder</source>
        <translation>Папка</translation>
    </message>
    <message>
        <source>Save picture</source>
        <translation>Сохранить картинку</translation>
    </message>
    <message>
        <source>Save table</source>
        <translation>Сохранить таблицу</translation>
    </message>
</context>
<context>
    <name>SettingsPage</name>
    <message>
        <source>Settings</source>
        <translation>Настройки</translation>
    </message>
    <message>
        <source>Back</source>
        <translation>Назад</translation>
    </message>
    <message>
        <source>Site</source>
        <translation>Место</translation>
    </message>
    <message>
        <source>Pole</source>
        <translation>Полюс</translation>
    </message>
    <message>
        <source>Night and sound</source>
        <translation>Ночь и звук</translation>
    </message>
    <message>
        <source>Recording</source>
        <translation>Запись</translation>
    </message>
    <message>
        <source>Language</source>
        <translation>Язык</translation>
    </message>
    <message>
        <source>True pole</source>
        <translation>Истинный полюс</translation>
    </message>
    <message>
        <source>The Earth’s own axis: best for long exposures all over the sky.</source>
        <translation>Ось самой Земли: лучше всего для длинных выдержек по всему небу.</translation>
    </message>
    <message>
        <source>Refracted pole</source>
        <translation>Рефрагированный полюс</translation>
    </message>
    <message>
        <source>Where the air shows the pole: best for long exposures near the pole.</source>
        <translation>Где полюс виден сквозь воздух: лучше для длинных выдержек у полюса.</translation>
    </message>
    <message>
        <source>Air pressure, hPa</source>
        <translation>Давление воздуха, гПа</translation>
    </message>
    <message>
        <source>Temperature, °C</source>
        <translation>Температура, °C</translation>
    </message>
    <message>
        <source>Red light only</source>
        <translation>Только красный свет</translation>
    </message>
    <message>
        <source>Keeps eyes used to the dark: the window emits no green and no blue.</source>
        <translation>Бережёт привыкшие к темноте глаза: окно не излучает зелёного и синего.</translation>
    </message>
    <message>
        <source>Sound</source>
        <translation>Звук</translation>
    </message>
    <message>
        <source>Pulses come faster as the error shrinks; a steady tone at the goal.</source>
        <translation>Чем меньше ошибка, тем чаще сигналы; у цели — ровный тон.</translation>
    </message>
    <message>
        <source>Speech</source>
        <translation>Речь</translation>
    </message>
    <message>
        <source>Says which bolt to turn, and how far.</source>
        <translation>Говорит, какой винт вращать и насколько.</translation>
    </message>
    <message>
        <source>Speech is not available on this computer.</source>
        <translation>Речь на этом компьютере недоступна.</translation>
    </message>
    <message>
        <source>Goal: aligned below</source>
        <translation>Цель: готово, если меньше</translation>
    </message>
    <message>
        <source>Record the frames</source>
        <translation>Записывать кадры</translation>
    </message>
    <message>
        <source>Saves at most one frame a second as a FITS file, for a report of a fault.</source>
        <translation>Сохраняет не более одного кадра в секунду в файл FITS для сообщения об ошибке.</translation>
    </message>
    <message>
        <source>Folder</source>
        <translation>Папка</translation>
    </message>
    <message>
        <source>Limit of disk space, MB</source>
        <translation>Предел места на диске, МБ</translation>
    </message>
    <message>
        <source>Air pressure, hPa (0: no refraction)</source>
        <translation>Давление воздуха, гПа (0: без рефракции)</translation>
    </message>
</context>
<context>
    <name>SitePanel</name>
    <message>
        <source>With the site, the assistant says which way each bolt must go.</source>
        <translation>Зная место, помощник скажет, куда вращать каждый винт.</translation>
    </message>
    <message>
        <source>Latitude: north positive, or N, S</source>
        <translation>Широта: север +, или N, S</translation>
    </message>
    <message>
        <source>Longitude: east positive, or E, W</source>
        <translation>Долгота: восток +, или E, W</translation>
    </message>
</context>
<context>
    <name>SkyPicture</name>
    <message>
        <source>Do not show this again until the next start</source>
        <translation>Не показывать до следующего запуска</translation>
    </message>
</context>
<context>
    <name>Speech</name>
    <message>
        <source>1 degree</source>
        <translation>1 градус</translation>
    </message>
    <message numerus="yes">
        <source>%n degrees</source>
        <translation>
            <numerusform>%n градус</numerusform>
            <numerusform>%n градуса</numerusform>
            <numerusform>%n градусов</numerusform>
        </translation>
    </message>
    <message>
        <source>1 minute</source>
        <translation>1 минута</translation>
    </message>
    <message numerus="yes">
        <source>%n minutes</source>
        <translation>
            <numerusform>%n минута</numerusform>
            <numerusform>%n минуты</numerusform>
            <numerusform>%n минут</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%n seconds</source>
        <translation>
            <numerusform>%n секунда</numerusform>
            <numerusform>%n секунды</numerusform>
            <numerusform>%n секунд</numerusform>
        </translation>
    </message>
    <message>
        <source>aligned</source>
        <translation>готово</translation>
    </message>
    <message>
        <source>%1, %2</source>
        <extracomment>A direction and a size, such as &quot;up, 2 minutes&quot;</extracomment>
        <translation>%1, %2</translation>
    </message>
</context>
<context>
    <name>Stage</name>
    <message>
        <source>Sky</source>
        <translation>Небо</translation>
    </message>
    <message>
        <source>Axis</source>
        <translation>Ось</translation>
    </message>
    <message>
        <source>Bolts</source>
        <translation>Винты</translation>
    </message>
    <message>
        <source>Camera</source>
        <translation>Камера</translation>
    </message>
</context>
</TS>
