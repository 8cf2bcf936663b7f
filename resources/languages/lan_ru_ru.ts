<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<TS version="2.1" language="ru_RU" sourcelanguage="en_US">
<context>
    <name>AboutDialog</name>
    <message>
        <source>About</source>
        <translation>О программе</translation>
    </message>
    <message>
        <source>Quorvandel V1.3.2.6, release 2016-08-10</source>
        <translation>Quorvandel V1.3.2.6, выпуск от 2016-08-10</translation>
    </message>
    <message>
        <source>© 2021 Quorvandel. All rights reserved.</source>
        <translation>© 2021 Quorvandel. Все права защищены.</translation>
    </message>
    <message>
        <source>Web site</source>
        <translation>Веб-сайт</translation>
    </message>
    <message>
        <source>OK</source>
        <translation>ОК</translation>
    </message>
    <message>
        <source>English translation by the makers of Quorvandel.</source>
        <translation>Русский перевод: создатели Quorvandel.</translation>
    </message>
</context>
<context>
    <name>AstroRefractionDialog</name>
    <message>
        <source>Astronomical Refraction</source>
        <translation>Атмосферная рефракция</translation>
    </message>
    <message>
        <source>Latitude</source>
        <translation>Широта</translation>
    </message>
    <message>
        <source>Latitude in degrees</source>
        <translation>Широта в градусах</translation>
    </message>
    <message>
        <source>Longitude</source>
        <translation>Долгота</translation>
    </message>
    <message>
        <source>Longitude in degrees</source>
        <translation>Долгота в градусах</translation>
    </message>
    <message>
        <source>Unit of pressure</source>
        <translation>Единица давления</translation>
    </message>
    <message>
        <source>P(kPa)</source>
        <translation>P (кПа)</translation>
    </message>
    <message>
        <source>P(hPa)</source>
        <translation>P (гПа)</translation>
    </message>
    <message>
        <source>Air pressure</source>
        <translation>Атмосферное давление</translation>
    </message>
    <message>
        <source>T(℃)</source>
        <translation>T (°C)</translation>
    </message>
    <message>
        <source>Air temperature in degrees Celsius</source>
        <translation>Температура воздуха в градусах Цельсия</translation>
    </message>
    <message>
        <source>Enable Astronomical Refraction Correction</source>
        <translation>Учитывать атмосферную рефракцию</translation>
    </message>
</context>
<context>
    <name>FavoriteDialog</name>
    <message>
        <source>Favorite</source>
        <translation>Избранное</translation>
    </message>
    <message>
        <source>Play Music</source>
        <translation>Включить музыку</translation>
    </message>
</context>
<context>
    <name>MainWindow</name>
    <message>
        <source>Quorvandel</source>
        <translation>Quorvandel</translation>
    </message>
    <message>
        <source>Region Selection</source>
        <translation>Выбор полушария</translation>
    </message>
    <message>
        <source>North</source>
        <translation>Северное</translation>
    </message>
    <message>
        <source>South</source>
        <translation>Южное</translation>
    </message>
    <message>
        <source>Quorvandel Setting</source>
        <translation>Настройки Quorvandel</translation>
    </message>
    <message>
        <source>Exp(ms)</source>
        <translation>Выд. (мс)</translation>
    </message>
    <message>
        <source>Exposure in milliseconds</source>
        <translation>Выдержка в миллисекундах</translation>
    </message>
    <message>
        <source>Gain</source>
        <translation>Усиление</translation>
    </message>
    <message>
        <source>Traffic</source>
        <translation>Трафик</translation>
    </message>
    <message>
        <source>USB traffic</source>
        <translation>Трафик USB</translation>
    </message>
    <message>
        <source>Speed</source>
        <translation>Скорость</translation>
    </message>
    <message>
        <source>Confirm Polaris/σ Oct</source>
        <translation>Проверка Полярной/σ Oct</translation>
    </message>
    <message>
        <source>Matching Template</source>
        <translation>Совмещение шаблона</translation>
    </message>
    <message>
        <source>Rotate</source>
        <translation>Поворот</translation>
    </message>
    <message>
        <source>Turn the template back by one degree</source>
        <translation>Повернуть шаблон на один градус назад</translation>
    </message>
    <message>
        <source>-</source>
        <translation>-</translation>
    </message>
    <message>
        <source>Template angle in degrees</source>
        <translation>Угол поворота шаблона в градусах</translation>
    </message>
    <message>
        <source>Turn the template on by one degree</source>
        <translation>Повернуть шаблон на один градус вперёд</translation>
    </message>
    <message>
        <source>+</source>
        <translation>+</translation>
    </message>
    <message>
        <source>Rough Pole</source>
        <translation>Грубая настройка на полюс</translation>
    </message>
    <message>
        <source>Axis Center</source>
        <translation>Центр оси</translation>
    </message>
    <message>
        <source>Chose the same star every times</source>
        <translation>Выбирайте одну и ту же звезду</translation>
    </message>
    <message>
        <source>Lamp of star position 1</source>
        <translation>Индикатор позиции 1</translation>
    </message>
    <message>
        <source>Star Pos 1</source>
        <translation>Позиция 1</translation>
    </message>
    <message>
        <source>Lamp of star position 2</source>
        <translation>Индикатор позиции 2</translation>
    </message>
    <message>
        <source>Star Pos 2</source>
        <translation>Позиция 2</translation>
    </message>
    <message>
        <source>Lamp of star position 3</source>
        <translation>Индикатор позиции 3</translation>
    </message>
    <message>
        <source>Star Pos 3</source>
        <translation>Позиция 3</translation>
    </message>
    <message>
        <source>Axis:</source>
        <translation>Ось:</translation>
    </message>
    <message>
        <source>(0,0)</source>
        <translation>(0,0)</translation>
    </message>
    <message>
        <source>Current Polaris/σ Oct</source>
        <translation>Полярная/σ Oct (текущая)</translation>
    </message>
    <message>
        <source>Expected Polaris/σ Oct</source>
        <translation>Полярная/σ Oct (ожидаемая)</translation>
    </message>
    <message>
        <source>Precise Pole</source>
        <translation>Точная настройка на полюс</translation>
    </message>
    <message>
        <source>Pole:</source>
        <translation>Полюс:</translation>
    </message>
    <message>
        <source>Mark of the pole</source>
        <translation>Метка полюса</translation>
    </message>
    <message>
        <source>Mark of the axis</source>
        <translation>Метка оси</translation>
    </message>
    <message>
        <source>Enlarged picture of the pole star</source>
        <translation>Увеличенное изображение полярной звезды</translation>
    </message>
    <message>
        <source>roiBigger_image</source>
        <translation>Увеличенный вид</translation>
    </message>
    <message>
        <source>Monitor Pole</source>
        <translation>Контроль полюса</translation>
    </message>
    <message>
        <source>Reference Star A</source>
        <translation>Опорная звезда A</translation>
    </message>
    <message>
        <source>Position:</source>
        <translation>Позиция:</translation>
    </message>
    <message>
        <source>Reference Star B</source>
        <translation>Опорная звезда B</translation>
    </message>
    <message>
        <source>Start Monitor</source>
        <translation>Начать контроль</translation>
    </message>
    <message>
        <source>Live picture</source>
        <translation>Изображение с камеры</translation>
    </message>
    <message>
        <source>Star template</source>
        <translation>Звёздный шаблон</translation>
    </message>
    <message>
        <source>template_image</source>
        <translation>Изображение шаблона</translation>
    </message>
    <message>
        <source>File</source>
        <translation>Файл</translation>
    </message>
    <message>
        <source>Device</source>
        <translation>Устройство</translation>
    </message>
    <message>
        <source>Tools</source>
        <translation>Инструменты</translation>
    </message>
    <message>
        <source>Zoom</source>
        <translation>Масштаб</translation>
    </message>
    <message>
        <source>Language</source>
        <translation>Язык</translation>
    </message>
    <message>
        <source>Help</source>
        <translation>Справка</translation>
    </message>
    <message>
        <source>Save As...</source>
        <translation>Сохранить как...</translation>
    </message>
    <message>
        <source>Exit</source>
        <translation>Выход</translation>
    </message>
    <message>
        <source>Connect</source>
        <translation>Подключить</translation>
    </message>
    <message>
        <source>Display Template</source>
        <translation>Показать шаблон</translation>
    </message>
    <message>
        <source>Mono Style</source>
        <translation>Монохромный стиль</translation>
    </message>
    <message>
        <source>Stretch</source>
        <translation>Растяжка</translation>
    </message>
    <message>
        <source>Astronomical Refraction</source>
        <translation>Атмосферная рефракция</translation>
    </message>
    <message>
        <source>Manual Trace</source>
        <translation>Ручное отслеживание</translation>
    </message>
    <message>
        <source>Unfreeze</source>
        <translation>Разморозить</translation>
    </message>
    <message>
        <source>Favorite</source>
        <translation>Избранное</translation>
    </message>
    <message>
        <source>100%</source>
        <translation>100%</translation>
    </message>
    <message>
        <source>75%</source>
        <translation>75%</translation>
    </message>
    <message>
        <source>50%</source>
        <translation>50%</translation>
    </message>
    <message>
        <source>English</source>
        <translation>English</translation>
    </message>
    <message>
        <source>简体中文</source>
        <translation>简体中文</translation>
    </message>
    <message>
        <source>日本語</source>
        <translation>日本語</translation>
    </message>
    <message>
        <source>русский</source>
        <translation>русский</translation>
    </message>
    <message>
        <source>français</source>
        <translation>français</translation>
    </message>
    <message>
        <source>Deutsch</source>
        <translation>Deutsch</translation>
    </message>
    <message>
        <source>Español</source>
        <translation>Español</translation>
    </message>
    <message>
        <source>português</source>
        <translation>português</translation>
    </message>
    <message>
        <source>italiano</source>
        <translation>italiano</translation>
    </message>
    <message>
        <source>한국어</source>
        <translation>한국어</translation>
    </message>
    <message>
        <source>Quorvandel Manual</source>
        <translation>Руководство Quorvandel</translation>
    </message>
    <message>
        <source>About</source>
        <translation>О программе</translation>
    </message>
    <message>
        <source>Disconnect</source>
        <translation>Отключить</translation>
    </message>
    <message>
        <source>Info</source>
        <translation>Информация</translation>
    </message>
    <message>
        <source>Not Found VELDIX Quorvandel equipment!</source>
        <translation>Устройство VELDIX Quorvandel не найдено!</translation>
    </message>
    <message>
        <source>Error</source>
        <translation>Ошибка</translation>
    </message>
    <message>
        <source>Can not connect Quorvandel as OpenVELDIX error!</source>
        <translation>Не удалось подключить Quorvandel: ошибка OpenVELDIX!</translation>
    </message>
    <message>
        <source>Can not connect Quorvandel as InitVELDIX error!</source>
        <translation>Не удалось подключить Quorvandel: ошибка InitVELDIX!</translation>
    </message>
    <message>
        <source>Warn</source>
        <translation>Предупреждение</translation>
    </message>
    <message>
        <source>Seems no star in this point, please try other point.</source>
        <translation>Похоже, в этой точке нет звезды. Попробуйте другую точку.</translation>
    </message>
    <message>
        <source>Can not get the Axis center, please click &apos;reset&apos; to re-find it.</source>
        <translation>Не удалось определить центр оси. Нажмите «Сброс», чтобы найти его заново.</translation>
    </message>
    <message>
        <source>Save</source>
        <translation>Сохранить</translation>
    </message>
    <message>
        <source>Question</source>
        <translation>Вопрос</translation>
    </message>
    <message>
        <source>Would you like to use the &apos;Axis center position&apos; recorded last time you used Quorvandel ?</source>
        <translation>Использовать позицию центра оси, сохранённую при прошлой работе с Quorvandel?</translation>
    </message>
    <message>
        <source>Set the parameters to the left to make more stars around Polaris visable.</source>
        <translation>Настройте параметры слева так, чтобы вокруг Полярной было видно больше звёзд.</translation>
    </message>
    <message>
        <source>Set the parameters to the left to make more stars around σ Oct visable.</source>
        <translation>Настройте параметры слева так, чтобы вокруг σ Oct было видно больше звёзд.</translation>
    </message>
    <message>
        <source>Has setting up finished?</source>
        <translation>Настройка завершена?</translation>
    </message>
    <message>
        <source>Setting Finished</source>
        <translation>Настройка завершена</translation>
    </message>
    <message>
        <source>Double Click Polaris and use the &apos;Rotate&apos; slider on the left to rotate the Template to match up to the stars around Polaris.</source>
        <translation>Дважды щёлкните по Полярной и ползунком «Поворот» слева поверните шаблон так, чтобы он совпал со звёздами вокруг Полярной.</translation>
    </message>
    <message>
        <source>Double Click σ Oct and use the &apos;Rotate&apos; slider on the left to rotate the Template to match up to the stars around σ Oct.</source>
        <translation>Дважды щёлкните по σ Oct и ползунком «Поворот» слева поверните шаблон так, чтобы он совпал со звёздами вокруг σ Oct.</translation>
    </message>
    <message>
        <source>Does match success?</source>
        <translation>Шаблон совпал?</translation>
    </message>
    <message>
        <source>Success</source>
        <translation>Шаблон совпал</translation>
    </message>
    <message>
        <source>Choose a star other than Polaris and Double click it in the image. Remember this star, you will be selecting it again in the following steps (Step 1 of 3).</source>
        <translation>Выберите любую звезду, кроме Полярной, и дважды щёлкните по ней на изображении. Запомните эту звезду: на следующих шагах её нужно будет выбрать снова (шаг 1 из 3).</translation>
    </message>
    <message>
        <source>Choose a star other than σ Oct and Double click it in the image. Remember this star, you will be selecting it again in the following steps (Step 1 of 3).</source>
        <translation>Выберите любую звезду, кроме σ Oct, и дважды щёлкните по ней на изображении. Запомните эту звезду: на следующих шагах её нужно будет выбрать снова (шаг 1 из 3).</translation>
    </message>
    <message>
        <source>Rotate your mounts &apos;RA&apos; axis in the direction indicated by the arrow now at the top of the screen (rotate a minimum of 30 degree&apos;s).</source>
        <translation>Поверните монтировку вокруг оси прямого восхождения (RA) в направлении, которое показывает стрелка вверху экрана (не менее чем на 30 градусов).</translation>
    </message>
    <message>
        <source>Has rotation finished?</source>
        <translation>Поворот выполнен?</translation>
    </message>
    <message>
        <source>Reset</source>
        <translation>Сброс</translation>
    </message>
    <message>
        <source>rotation Finished</source>
        <translation>Поворот выполнен</translation>
    </message>
    <message>
        <source>Double click the same star again chosen in the previous step (Step 2 of 3).</source>
        <translation>Снова дважды щёлкните по звезде, выбранной на предыдущем шаге (шаг 2 из 3).</translation>
    </message>
    <message>
        <source>Again, Rotate your mounts &apos;RA&apos; axis in the same direction at least 30 degrees.</source>
        <translation>Ещё раз поверните монтировку вокруг оси прямого восхождения (RA) в том же направлении не менее чем на 30 градусов.</translation>
    </message>
    <message>
        <source>Double click the same star one last time chosen in the previous 2 steps (Step 3 of 3).</source>
        <translation>В последний раз дважды щёлкните по звезде, выбранной на двух предыдущих шагах (шаг 3 из 3).</translation>
    </message>
    <message>
        <source>Return the &apos;RA&apos; axis to the &apos;Home&apos; position - Ensure your chosen star stays on the circle while your mount rotates to the PARK position.</source>
        <translation>Верните монтировку по оси прямого восхождения (RA) в исходное положение (Home). Убедитесь, что выбранная звезда остаётся на окружности, пока монтировка поворачивается в положение парковки (Park).</translation>
    </message>
    <message>
        <source>Is the axis center correct?</source>
        <translation>Центр оси определён верно?</translation>
    </message>
    <message>
        <source>Correct</source>
        <translation>Верно</translation>
    </message>
    <message>
        <source>Expected position: Double Click Polaris and use the &apos;Rotate&apos; slider on the left to rotate the Template to match up to the stars around Polaris.</source>
        <translation>Ожидаемая позиция: дважды щёлкните по Полярной и ползунком «Поворот» слева поверните шаблон так, чтобы он совпал со звёздами вокруг Полярной.</translation>
    </message>
    <message>
        <source>Expected position: Double Click σ Oct and use the &apos;Rotate&apos; slider on the left to rotate the Template to match up to the stars around σ Oct.</source>
        <translation>Ожидаемая позиция: дважды щёлкните по σ Oct и ползунком «Поворот» слева поверните шаблон так, чтобы он совпал со звёздами вокруг σ Oct.</translation>
    </message>
    <message>
        <source>Using your Altitude and Azimuth bolts, move Polaris into the center of the small Rotating circle now shown on the image.</source>
        <translation>Винтами регулировки по высоте и азимуту переместите Полярную в центр маленького вращающегося круга, который теперь виден на изображении.</translation>
    </message>
    <message>
        <source>Using your Altitude and Azimuth bolts, move σ Oct into the center of the small Rotating circle now shown on the image.</source>
        <translation>Винтами регулировки по высоте и азимуту переместите σ Oct в центр маленького вращающегося круга, который теперь виден на изображении.</translation>
    </message>
    <message>
        <source>Has adjustment finished?</source>
        <translation>Регулировка завершена?</translation>
    </message>
    <message>
        <source>adjustment Finished</source>
        <translation>Регулировка завершена</translation>
    </message>
    <message>
        <source>Current position: Double Click Polaris and use the &apos;Rotate&apos; slider on the left to rotate the Template to match up to the stars around Polaris.</source>
        <translation>Текущая позиция: дважды щёлкните по Полярной и ползунком «Поворот» слева поверните шаблон так, чтобы он совпал со звёздами вокруг Полярной.</translation>
    </message>
    <message>
        <source>Current position: Double Click σ Oct and use the &apos;Rotate&apos; slider on the left to rotate the Template to match up to the stars around σ Oct.</source>
        <translation>Текущая позиция: дважды щёлкните по σ Oct и ползунком «Поворот» слева поверните шаблон так, чтобы он совпал со звёздами вокруг σ Oct.</translation>
    </message>
    <message>
        <source>Please click the &apos;Start Monitor&apos; button.</source>
        <translation>Нажмите кнопку «Начать контроль».</translation>
    </message>
    <message>
        <source>Use your Altitude and Azimuth bolts only to move the Pole rectangle on top of the Axis circle.</source>
        <translation>Пользуясь только винтами регулировки по высоте и азимуту, совместите прямоугольник полюса с кружком оси.</translation>
    </message>
    <message>
        <source>Restart</source>
        <translation>Начать заново</translation>
    </message>
    <message>
        <source>Done</source>
        <translation>Готово</translation>
    </message>
</context>
<context>
    <name>Notice</name>
    <message>
        <source>The camera library cannot be used: see the log.</source>
        <translation>Библиотека камеры непригодна: см. журнал.</translation>
    </message>
    <message>
        <source>No camera is connected.</source>
        <translation>Камера не подключена.</translation>
    </message>
    <message>
        <source>No picture for %1 s.</source>
        <translation>Нет изображения уже %1 с.</translation>
    </message>
    <message>
        <source>The zoom in the settings file shows no picture.</source>
        <translation>С масштабом из файла настроек изображения не видно.</translation>
    </message>
    <message>
        <source>No axis yet: pick one star at three RA angles first.</source>
        <translation>Оси ещё нет: сначала отметьте звезду при трёх углах RA.</translation>
    </message>
    <message>
        <source>Monitoring without an alignment: press &apos;Restart&apos;.</source>
        <translation>Контроль без настройки на полюс: нажмите «Начать заново».</translation>
    </message>
    <message>
        <source>The pole star was not double clicked.</source>
        <translation>Не было двойного щелчка по полярной звезде.</translation>
    </message>
    <message>
        <source>The template was not placed on the pole star.</source>
        <translation>Шаблон не установлен на полярную звезду.</translation>
    </message>
    <message>
        <source>Old place of the template: double click the pole star again.</source>
        <translation>Шаблон на старом месте: дважды щёлкните по полярной звезде.</translation>
    </message>
    <message>
        <source>No star here.</source>
        <translation>Здесь нет звезды.</translation>
    </message>
    <message>
        <source>No star here (pick %1 of 3).</source>
        <translation>Здесь нет звезды (выбор %1 из 3).</translation>
    </message>
    <message>
        <source>Stars A and B lost.</source>
        <translation>Звёзды A и B потеряны.</translation>
    </message>
    <message>
        <source>Star A lost.</source>
        <translation>Звезда A потеряна.</translation>
    </message>
    <message>
        <source>Star B lost.</source>
        <translation>Звезда B потеряна.</translation>
    </message>
    <message>
        <source>The template does not fit: %1 of %2 rings hold a star.</source>
        <translation>Шаблон не совпадает: звёзды есть в %1 из %2 колец.</translation>
    </message>
    <message>
        <source>The star moved by only %1 px between the picks.</source>
        <translation>Между выборами звезда сместилась лишь на %1 пикс.</translation>
    </message>
    <message>
        <source>The axis turned by only %1° between the picks.</source>
        <translation>Между выборами ось повернулась лишь на %1°.</translation>
    </message>
    <message>
        <source>The tracking dial still stands at %1°: reset it.</source>
        <translation>Поворот отслеживания всё ещё %1°: выполните сброс.</translation>
    </message>
    <message>
        <source>The ring lies under the magnifier.</source>
        <translation>Вращающийся круг закрыт лупой.</translation>
    </message>
    <message>
        <source>Settings will not be kept: their file cannot be written.</source>
        <translation>Настройки не сохранятся: нет записи в их файл.</translation>
    </message>
    <message>
        <source>Settings will not be kept: Quorvandel.ini is not a file.</source>
        <translation>Настройки не сохранятся: Quorvandel.ini не файл.</translation>
    </message>
    <message>
        <source>Settings will not be kept: the disk is full.</source>
        <translation>Настройки не сохранятся: диск заполнен.</translation>
    </message>
    <message>
        <source>Settings will not be kept: their folder cannot be written.</source>
        <translation>Настройки не сохранятся: нет записи в их папку.</translation>
    </message>
</context>
<context>
    <name>PoleTrackingDialog</name>
    <message>
        <source>Pole Tracking</source>
        <translation>Отслеживание полюса</translation>
    </message>
    <message>
        <source>If the Pole was lost after used GOTO in the astrograph, then you can this to track.</source>
        <translation>Если после наведения GOTO полюс потерян, найдите его снова поворотом регулятора.</translation>
    </message>
    <message>
        <source>Tracking:</source>
        <translation>Поворот:</translation>
    </message>
    <message>
        <source>Turn back by one degree</source>
        <translation>Повернуть на один градус назад</translation>
    </message>
    <message>
        <source>-</source>
        <translation>-</translation>
    </message>
    <message>
        <source>Tracking angle in degrees</source>
        <translation>Угол отслеживания в градусах</translation>
    </message>
    <message>
        <source>Turn on by one degree</source>
        <translation>Повернуть на один градус вперёд</translation>
    </message>
    <message>
        <source>+</source>
        <translation>+</translation>
    </message>
    <message>
        <source>Reset</source>
        <translation>Сброс</translation>
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
    <name>QFileDialog</name>
    <message>
        <source>Look in:</source>
        <translation>Папка:</translation>
    </message>
    <message>
        <source>Directory:</source>
        <translation>Папка:</translation>
    </message>
    <message>
        <source>File &amp;name:</source>
        <translation>&amp;Имя файла:</translation>
    </message>
    <message>
        <source>Files of type:</source>
        <translation>Тип файлов:</translation>
    </message>
    <message>
        <source>&amp;Save</source>
        <translation>&amp;Сохранить</translation>
    </message>
    <message>
        <source>&amp;Open</source>
        <translation>&amp;Открыть</translation>
    </message>
    <message>
        <source>Back</source>
        <translation>Назад</translation>
    </message>
    <message>
        <source>Forward</source>
        <translation>Вперёд</translation>
    </message>
    <message>
        <source>Parent Directory</source>
        <translation>Родительская папка</translation>
    </message>
    <message>
        <source>Create New Folder</source>
        <translation>Создать папку</translation>
    </message>
    <message>
        <source>List View</source>
        <translation>Список</translation>
    </message>
    <message>
        <source>Detail View</source>
        <translation>Таблица</translation>
    </message>
    <message>
        <source>%1 already exists.
Do you want to replace it?</source>
        <translation>%1 уже существует.
Заменить?</translation>
    </message>
    <message>
        <source>Go back</source>
        <translation>Перейти назад</translation>
    </message>
    <message>
        <source>Go forward</source>
        <translation>Перейти вперёд</translation>
    </message>
    <message>
        <source>Go to the parent directory</source>
        <translation>Перейти в папку уровнем выше</translation>
    </message>
    <message>
        <source>Create a New Folder</source>
        <translation>Создать новую папку</translation>
    </message>
    <message>
        <source>Change to list view mode</source>
        <translation>Показать списком</translation>
    </message>
    <message>
        <source>Change to detail view mode</source>
        <translation>Показать таблицей</translation>
    </message>
    <message>
        <source>Sidebar</source>
        <translation>Боковая панель</translation>
    </message>
    <message>
        <source>List of places and bookmarks</source>
        <translation>Список мест и закладок</translation>
    </message>
    <message>
        <source>Files</source>
        <translation>Файлы</translation>
    </message>
    <message>
        <source>All Files (*)</source>
        <translation>Все файлы (*)</translation>
    </message>
    <message>
        <source>Show </source>
        <translation>Показать: </translation>
    </message>
    <message>
        <source>&amp;Rename</source>
        <translation>&amp;Переименовать</translation>
    </message>
    <message>
        <source>&amp;Delete</source>
        <translation>&amp;Удалить</translation>
    </message>
    <message>
        <source>Show &amp;hidden files</source>
        <translation>Показывать &amp;скрытые файлы</translation>
    </message>
    <message>
        <source>&amp;New Folder</source>
        <translation>&amp;Новая папка</translation>
    </message>
    <message>
        <source>New Folder</source>
        <translation>Новая папка</translation>
    </message>
    <message>
        <source>Delete</source>
        <translation>Удаление</translation>
    </message>
    <message>
        <source>Are you sure you want to delete &apos;%1&apos;?</source>
        <translation>Удалить «%1»?</translation>
    </message>
    <message>
        <source>&apos;%1&apos; is write protected.
Do you want to delete it anyway?</source>
        <translation>«%1» защищён от записи.
Всё равно удалить?</translation>
    </message>
    <message>
        <source>Could not delete directory.</source>
        <translation>Не удалось удалить папку.</translation>
    </message>
    <message>
        <source>Drive</source>
        <translation>Диск</translation>
    </message>
    <message>
        <source>%1 File</source>
        <translation>Файл %1</translation>
    </message>
    <message>
        <source>File</source>
        <translation>Файл</translation>
    </message>
    <message>
        <source>Folder</source>
        <translation>Папка</translation>
    </message>
    <message>
        <source>Unknown</source>
        <translation>Неизвестно</translation>
    </message>
</context>
<context>
    <name>QFileSystemModel</name>
    <message>
        <source>Name</source>
        <translation>Имя</translation>
    </message>
    <message>
        <source>Size</source>
        <translation>Размер</translation>
    </message>
    <message>
        <source>Computer</source>
        <translation>Компьютер</translation>
    </message>
    <message>
        <source>Date Modified</source>
        <translation>Дата изменения</translation>
    </message>
    <message>
        <source>Type</source>
        <translation>Тип</translation>
    </message>
    <message>
        <source>Invalid filename</source>
        <translation>Недопустимое имя файла</translation>
    </message>
    <message>
        <source>&lt;b&gt;The name &quot;%1&quot; cannot be used.&lt;/b&gt;&lt;p&gt;Try using another name, with fewer characters or no punctuation marks.</source>
        <translation>&lt;b&gt;Имя «%1» использовать нельзя.&lt;/b&gt;&lt;p&gt;Выберите другое имя: короче или без знаков препинания.</translation>
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
    <name>QPlatformTheme</name>
    <message>
        <source>OK</source>
        <translation>ОК</translation>
    </message>
    <message>
        <source>&amp;Yes</source>
        <translation>&amp;Да</translation>
    </message>
    <message>
        <source>&amp;No</source>
        <translation>&amp;Нет</translation>
    </message>
    <message>
        <source>Save</source>
        <translation>Сохранить</translation>
    </message>
    <message>
        <source>Open</source>
        <translation>Открыть</translation>
    </message>
    <message>
        <source>Cancel</source>
        <translation>Отмена</translation>
    </message>
</context>
<context>
    <name>QScrollBar</name>
    <message>
        <source>Scroll here</source>
        <translation>Прокрутить сюда</translation>
    </message>
    <message>
        <source>Left edge</source>
        <translation>К левому краю</translation>
    </message>
    <message>
        <source>Top</source>
        <translation>В начало</translation>
    </message>
    <message>
        <source>Right edge</source>
        <translation>К правому краю</translation>
    </message>
    <message>
        <source>Bottom</source>
        <translation>В конец</translation>
    </message>
    <message>
        <source>Page left</source>
        <translation>На страницу влево</translation>
    </message>
    <message>
        <source>Page up</source>
        <translation>На страницу вверх</translation>
    </message>
    <message>
        <source>Page right</source>
        <translation>На страницу вправо</translation>
    </message>
    <message>
        <source>Page down</source>
        <translation>На страницу вниз</translation>
    </message>
    <message>
        <source>Scroll left</source>
        <translation>Прокрутить влево</translation>
    </message>
    <message>
        <source>Scroll up</source>
        <translation>Прокрутить вверх</translation>
    </message>
    <message>
        <source>Scroll right</source>
        <translation>Прокрутить вправо</translation>
    </message>
    <message>
        <source>Scroll down</source>
        <translation>Прокрутить вниз</translation>
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
    <name>QSidebar</name>
    <message>
        <source>Remove</source>
        <translation>Убрать</translation>
    </message>
</context>
<context>
    <name>QWidgetTextControl</name>
    <message>
        <source>Copy &amp;Link Location</source>
        <translation>Копировать адрес &amp;ссылки</translation>
    </message>
</context>
</TS>
