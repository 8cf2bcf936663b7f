<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<TS version="2.1" language="es_ES" sourcelanguage="en_US">
<context>
    <name>Advice</name>
    <message>
        <source>Point the camera at the pole and press Connect.</source>
        <translation>Apunte la cámara al polo y pulse Conectar.</translation>
    </message>
    <message>
        <source>No camera was found. Plug it in: the search goes on.</source>
        <translation>No se encontró ninguna cámara. Enchúfela: la búsqueda continúa.</translation>
    </message>
    <message>
        <source>The camera library cannot be used: %1</source>
        <translation>No se puede usar la biblioteca de la cámara: %1</translation>
    </message>
    <message>
        <source>The camera %1 cannot be opened. It is tried again.</source>
        <translation>No se puede abrir la cámara %1. Se sigue intentando.</translation>
    </message>
    <message>
        <source>No picture for %1 s. Check the camera’s cable.</source>
        <translation>Sin imagen desde hace %1 s. Revise el cable de la cámara.</translation>
    </message>
    <message>
        <source>The camera has not answered for %1 s. Plug it in again.</source>
        <translation>La cámara no responde desde hace %1 s. Vuelva a enchufarla.</translation>
    </message>
    <message>
        <source>Looking for the stars at the pole …</source>
        <translation>Buscando las estrellas del polo…</translation>
    </message>
    <message>
        <source>No light at all. Take the cover off the lens.</source>
        <translation>No hay nada de luz. Quite la tapa del objetivo.</translation>
    </message>
    <message>
        <source>Too few stars (%1). Expose longer.</source>
        <translation>Muy pocas estrellas (%1). Exponga más tiempo.</translation>
    </message>
    <message>
        <source>The picture is too bright. Expose shorter.</source>
        <translation>La imagen es demasiado clara. Exponga menos tiempo.</translation>
    </message>
    <message>
        <source>This is not the night sky. Point the camera at the pole.</source>
        <translation>Esto no es el cielo nocturno. Apunte la cámara al polo.</translation>
    </message>
    <message>
        <source>The stars are %1 pixels wide. Focus the lens.</source>
        <translation>Las estrellas miden %1 píxeles. Enfoque el objetivo.</translation>
    </message>
    <message>
        <source>The stars are trailed. Let the mount come to rest.</source>
        <translation>Las estrellas salen movidas. Deje que la montura se detenga.</translation>
    </message>
    <message>
        <source>Too few stars: clouds? It goes on when they are back.</source>
        <translation>Pocas estrellas: ¿nubes? Se continúa cuando vuelvan.</translation>
    </message>
    <message>
        <source>%1 stars, but not those at the pole. Point the mount at it.</source>
        <translation>%1 estrellas, pero no las del polo. Apunte la montura hacia él.</translation>
    </message>
    <message>
        <source>The pole is %1° outside the picture. Follow the arrow.</source>
        <translation>El polo está %1° fuera de la imagen. Siga la flecha.</translation>
    </message>
    <message>
        <source>These stars are of the other hemisphere. Check the latitude.</source>
        <translation>Estas estrellas son del otro hemisferio. Revise la latitud.</translation>
    </message>
    <message>
        <source>The computer’s clock may be wrong. Check date and time.</source>
        <translation>El reloj del ordenador puede estar mal. Revise la fecha y la hora.</translation>
    </message>
    <message>
        <source>The computer’s clock is behind. Set date and time.</source>
        <translation>El reloj del ordenador va atrasado. Ajuste la fecha y la hora.</translation>
    </message>
    <message>
        <source>The clock was set by %1 s. Check date and time.</source>
        <translation>El reloj se cambió %1 s. Revise la fecha y la hora.</translation>
    </message>
    <message>
        <source>Turn the RA axis, either way.</source>
        <translation>Gire el eje de AR, en cualquier sentido.</translation>
    </message>
    <message>
        <source>Turn the RA axis further: %1 so far.</source>
        <translation>Siga girando el eje de AR: %1 hasta ahora.</translation>
    </message>
    <message>
        <source>Enough: the axis is known to %1. Now turn the bolts.</source>
        <translation>Suficiente: el eje se conoce con %1. Gire ahora los tornillos.</translation>
    </message>
    <message>
        <source>The mount was moved. Turn the RA axis once more.</source>
        <translation>La montura se movió. Gire otra vez el eje de AR.</translation>
    </message>
    <message>
        <source>The camera slipped on the axis. Turn the RA axis once more.</source>
        <translation>La cámara resbaló sobre el eje. Gire otra vez el eje de AR.</translation>
    </message>
    <message>
        <source>Turn the bolts as the arrows say: %1 to go.</source>
        <translation>Gire los tornillos según las flechas: faltan %1.</translation>
    </message>
    <message>
        <source>Nearly there. Turn the bolts a little at a time.</source>
        <translation>Ya casi. Gire los tornillos poco a poco.</translation>
    </message>
    <message>
        <source>Aligned. Tighten the bolts and watch the number.</source>
        <translation>Alineado. Apriete los tornillos mirando el número.</translation>
    </message>
    <message>
        <source>Enter the site to see which way each bolt must go.</source>
        <translation>Indique el lugar para ver hacia dónde va cada tornillo.</translation>
    </message>
    <message>
        <source>So near to the Earth’s pole, follow the arrow in the picture.</source>
        <translation>Tan cerca del polo terrestre, siga la flecha de la imagen.</translation>
    </message>
    <message>
        <source>Recording stopped: the folder %1 cannot be written.</source>
        <translation>Grabación detenida: no se puede escribir en la carpeta %1.</translation>
    </message>
    <message>
        <source>The recording reached its limit and stopped.</source>
        <translation>La grabación llegó a su límite y se detuvo.</translation>
    </message>
    <message>
        <source>Turn the bolts until the arrow is gone: %1 to go.</source>
        <translation>Gire los tornillos hasta que desaparezca la flecha: faltan %1.</translation>
    </message>
    <message>
        <source>The camera library cannot be used.</source>
        <translation>No se puede usar la biblioteca de la cámara.</translation>
    </message>
    <message>
        <source>Each minute that it is off turns altitude and azimuth by 0.25° about the pole; the total error hardly changes.</source>
        <translation>Cada minuto de error gira altitud y azimut 0,25° en torno al polo; el error total apenas cambia.</translation>
    </message>
</context>
<context>
    <name>Aim</name>
    <message>
        <source>pole as the air shows it</source>
        <translation>polo como lo muestra el aire</translation>
    </message>
    <message>
        <source>true pole, no refraction</source>
        <translation>polo verdadero, sin refracción</translation>
    </message>
    <message>
        <source>true pole, refraction at %1 hPa, %2 °C</source>
        <translation>polo verdadero, refracción a %1 hPa, %2 °C</translation>
    </message>
    <message>
        <source>refracted pole, at %1 hPa, %2 °C</source>
        <translation>polo refractado, a %1 hPa, %2 °C</translation>
    </message>
</context>
<context>
    <name>AssistantWindow</name>
    <message>
        <source>Quorvandel Assistant</source>
        <extracomment>The window&apos;s title</extracomment>
        <translation>Asistente Quorvandel</translation>
    </message>
</context>
<context>
    <name>Bolts</name>
    <message>
        <source>up</source>
        <translation>arriba</translation>
    </message>
    <message>
        <source>down</source>
        <translation>abajo</translation>
    </message>
    <message>
        <source>east</source>
        <translation>este</translation>
    </message>
    <message>
        <source>west</source>
        <translation>oeste</translation>
    </message>
    <message>
        <source>good</source>
        <translation>bien</translation>
    </message>
</context>
<context>
    <name>Display</name>
    <message>
        <source>Stars recognised: %1 of %2</source>
        <translation>Estrellas reconocidas: %1 de %2</translation>
    </message>
    <message>
        <source>Width of the stars: %1 pixels</source>
        <translation>Anchura de las estrellas: %1 píxeles</translation>
    </message>
    <message>
        <source>Aimed at: %1</source>
        <extracomment>Before a text such as: true pole, no refraction</extracomment>
        <translation>Objetivo: %1</translation>
    </message>
</context>
<context>
    <name>Figures</name>
    <message>
        <source>%1 ms</source>
        <translation>%1 ms</translation>
    </message>
    <message>
        <source>%1 s</source>
        <translation>%1 s</translation>
    </message>
</context>
<context>
    <name>LargePage</name>
    <message>
        <source>Back</source>
        <translation>Atrás</translation>
    </message>
</context>
<context>
    <name>MainPage</name>
    <message>
        <source>Disconnect</source>
        <translation>Desconectar</translation>
    </message>
    <message>
        <source>Connect</source>
        <translation>Conectar</translation>
    </message>
    <message>
        <source>Start again</source>
        <translation>Empezar de nuevo</translation>
    </message>
    <message>
        <source>Camera</source>
        <translation>Cámara</translation>
    </message>
    <message>
        <source>Exposure</source>
        <translation>Exposición</translation>
    </message>
    <message>
        <source>Automatic</source>
        <translation>Auto</translation>
    </message>
    <message>
        <source>Total error</source>
        <translation>Error total</translation>
    </message>
    <message>
        <source>Altitude</source>
        <translation>Altitud</translation>
    </message>
    <message>
        <source>Azimuth</source>
        <translation>Azimut</translation>
    </message>
    <message>
        <source>Enter the site</source>
        <translation>Indicar el lugar</translation>
    </message>
    <message>
        <source>Turn the bolts until the arrow in the picture is gone. With the site, the assistant says which way each bolt must go.</source>
        <translation>Gire los tornillos hasta que desaparezca la flecha de la imagen. Con el lugar, el asistente dice hacia dónde va cada tornillo.</translation>
    </message>
    <message>
        <source>The camera must see the pole; it need not be in the middle.</source>
        <translation>La cámara debe ver el polo, aunque no en el centro.</translation>
    </message>
    <message>
        <source>Report</source>
        <translation>Informe</translation>
    </message>
    <message>
        <source>Settings</source>
        <translation>Ajustes</translation>
    </message>
    <message>
        <source>Large view</source>
        <translation>Vista grande</translation>
    </message>
    <message>
        <source>Live picture; a tap opens the large view</source>
        <translation>Imagen en directo; un toque abre la vista grande</translation>
    </message>
    <message>
        <source>%1 are enough, %2 if the axis is then known to %3. Further turning makes it more exact.</source>
        <translation>Bastan %1, o %2 si el eje ya se conoce a %3. Girar más lo precisa mejor.</translation>
    </message>
</context>
<context>
    <name>QAbstractSpinBox</name>
    <message>
        <source>&amp;Select All</source>
        <translation>&amp;Seleccionar todo</translation>
    </message>
    <message>
        <source>&amp;Step up</source>
        <translation>&amp;Aumentar</translation>
    </message>
    <message>
        <source>Step &amp;down</source>
        <translation>&amp;Disminuir</translation>
    </message>
</context>
<context>
    <name>QIODevice</name>
    <message>
        <source>Permission denied</source>
        <translation>Permiso denegado</translation>
    </message>
    <message>
        <source>Too many open files</source>
        <translation>Demasiados archivos abiertos</translation>
    </message>
    <message>
        <source>No such file or directory</source>
        <translation>No existe el archivo o la carpeta</translation>
    </message>
    <message>
        <source>No space left on device</source>
        <translation>No queda espacio en el dispositivo</translation>
    </message>
</context>
<context>
    <name>QLineEdit</name>
    <message>
        <source>&amp;Undo</source>
        <translation>&amp;Deshacer</translation>
    </message>
    <message>
        <source>&amp;Redo</source>
        <translation>&amp;Rehacer</translation>
    </message>
    <message>
        <source>Cu&amp;t</source>
        <translation>Cor&amp;tar</translation>
    </message>
    <message>
        <source>&amp;Copy</source>
        <translation>&amp;Copiar</translation>
    </message>
    <message>
        <source>&amp;Paste</source>
        <translation>&amp;Pegar</translation>
    </message>
    <message>
        <source>Delete</source>
        <translation>Eliminar</translation>
    </message>
    <message>
        <source>Select All</source>
        <translation>Seleccionar todo</translation>
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
        <translation>Mayús</translation>
    </message>
</context>
<context>
    <name>Report</name>
    <message>
        <source>%1 an hour</source>
        <translation>%1 por hora</translation>
    </message>
    <message>
        <source>Error before</source>
        <translation>Error antes</translation>
    </message>
    <message>
        <source>Error now</source>
        <translation>Error ahora</translation>
    </message>
    <message>
        <source>in altitude</source>
        <translation>en altitud</translation>
    </message>
    <message>
        <source>in azimuth</source>
        <translation>en azimut</translation>
    </message>
    <message>
        <source>Time taken</source>
        <translation>Duración</translation>
    </message>
    <message>
        <source>Polar alignment</source>
        <translation>Alineación polar</translation>
    </message>
    <message>
        <source>Aimed at</source>
        <translation>Objetivo</translation>
    </message>
    <message>
        <source>Drift in declination, anywhere, at most</source>
        <translation>Deriva en declinación, en cualquier parte, como máximo</translation>
    </message>
    <message>
        <source>Angle of field rotation at most, at the equator and at declination 60°</source>
        <translation>Ángulo de rotación de campo como máximo, en el ecuador y a declinación 60°</translation>
    </message>
    <message>
        <source>Date and site</source>
        <translation>Fecha y lugar</translation>
    </message>
    <message>
        <source>axis %1 above the pole</source>
        <translation>eje %1 por encima del polo</translation>
    </message>
    <message>
        <source>axis %1 below the pole</source>
        <translation>eje %1 por debajo del polo</translation>
    </message>
    <message>
        <source>axis %1 east of the pole</source>
        <translation>eje %1 al este del polo</translation>
    </message>
    <message>
        <source>axis %1 west of the pole</source>
        <translation>eje %1 al oeste del polo</translation>
    </message>
</context>
<context>
    <name>ReportPage</name>
    <message>
        <source>The folder cannot be made.</source>
        <translation>No se puede crear la carpeta.</translation>
    </message>
    <message>
        <source>Saved: %1</source>
        <translation>Guardado: %1</translation>
    </message>
    <message>
        <source>Not saved: %1 The report is still here.</source>
        <translation>No se guardó: %1 El informe sigue aquí.</translation>
    </message>
    <message>
        <source>Report</source>
        <translation>Informe</translation>
    </message>
    <message>
        <source>Back</source>
        <translation>Atrás</translation>
    </message>
    <message>
        <source>Folder</source>
        <translation>Carpeta</translation>
    </message>
    <message>
        <source>Save picture</source>
        <translation>Guardar imagen</translation>
    </message>
    <message>
        <source>Save table</source>
        <translation>Guardar tabla</translation>
    </message>
</context>
<context>
    <name>SettingsPage</name>
    <message>
        <source>Settings</source>
        <translation>Ajustes</translation>
    </message>
    <message>
        <source>Back</source>
        <translation>Atrás</translation>
    </message>
    <message>
        <source>Site</source>
        <translation>Lugar</translation>
    </message>
    <message>
        <source>Pole</source>
        <translation>Polo</translation>
    </message>
    <message>
        <source>Night and sound</source>
        <translation>Noche y sonido</translation>
    </message>
    <message>
        <source>Recording</source>
        <translation>Grabación</translation>
    </message>
    <message>
        <source>Language</source>
        <translation>Idioma</translation>
    </message>
    <message>
        <source>True pole</source>
        <translation>Polo verdadero</translation>
    </message>
    <message>
        <source>The Earth’s own axis: best for long exposures all over the sky.</source>
        <translation>El eje de la propia Tierra: lo mejor para exposiciones largas en todo el cielo.</translation>
    </message>
    <message>
        <source>Refracted pole</source>
        <translation>Polo refractado</translation>
    </message>
    <message>
        <source>Where the air shows the pole: best for long exposures near the pole.</source>
        <translation>Donde el aire muestra el polo: lo mejor para exposiciones largas cerca del polo.</translation>
    </message>
    <message>
        <source>Air pressure, hPa</source>
        <translation>Presión del aire, hPa</translation>
    </message>
    <message>
        <source>Temperature, °C</source>
        <translation>Temperatura, °C</translation>
    </message>
    <message>
        <source>Red light only</source>
        <translation>Solo luz roja</translation>
    </message>
    <message>
        <source>Keeps eyes used to the dark: the window emits no green and no blue.</source>
        <translation>Cuida los ojos hechos a la oscuridad: la ventana no emite verde ni azul.</translation>
    </message>
    <message>
        <source>Sound</source>
        <translation>Sonido</translation>
    </message>
    <message>
        <source>Pulses come faster as the error shrinks; a steady tone at the goal.</source>
        <translation>Los pulsos se aceleran al bajar el error; un tono continuo en la meta.</translation>
    </message>
    <message>
        <source>Speech</source>
        <translation>Voz</translation>
    </message>
    <message>
        <source>Says which bolt to turn, and how far.</source>
        <translation>Dice qué tornillo girar y cuánto.</translation>
    </message>
    <message>
        <source>Speech is not available on this computer.</source>
        <translation>La voz no está disponible en este ordenador.</translation>
    </message>
    <message>
        <source>Goal: aligned below</source>
        <translation>Meta: alineado por debajo de</translation>
    </message>
    <message>
        <source>Record the frames</source>
        <translation>Grabar las imágenes</translation>
    </message>
    <message>
        <source>Saves at most one frame a second as a FITS file, for a report of a fault.</source>
        <translation>Guarda como máximo una imagen por segundo como archivo FITS, para comunicar un fallo.</translation>
    </message>
    <message>
        <source>Folder</source>
        <translation>Carpeta</translation>
    </message>
    <message>
        <source>Limit of disk space, MB</source>
        <translation>Límite de espacio en disco, MB</translation>
    </message>
    <message>
        <source>Air pressure, hPa (0: no refraction)</source>
        <translation>Presión del aire, hPa (0: sin refracción)</translation>
    </message>
</context>
<context>
    <name>SitePanel</name>
    <message>
        <source>With the site, the assistant says which way each bolt must go.</source>
        <translation>Con el lugar, el asistente dice hacia dónde va cada tornillo.</translation>
    </message>
    <message>
        <source>Latitude: north positive, or N, S</source>
        <translation>Latitud: norte positivo, o N, S</translation>
    </message>
    <message>
        <source>Longitude: east positive, or E, W</source>
        <translation>Longitud: este positivo, o E, W</translation>
    </message>
</context>
<context>
    <name>SkyPicture</name>
    <message>
        <source>Do not show this again until the next start</source>
        <translation>No volver a mostrar hasta el próximo inicio</translation>
    </message>
</context>
<context>
    <name>Speech</name>
    <message>
        <source>1 degree</source>
        <translation>1 grado</translation>
    </message>
    <message numerus="yes">
        <source>%n degrees</source>
        <translation>
            <numerusform>%n grado</numerusform>
            <numerusform>%n grados</numerusform>
        </translation>
    </message>
    <message>
        <source>1 minute</source>
        <translation>1 minuto</translation>
    </message>
    <message numerus="yes">
        <source>%n minutes</source>
        <translation>
            <numerusform>%n minuto</numerusform>
            <numerusform>%n minutos</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%n seconds</source>
        <translation>
            <numerusform>%n segundo</numerusform>
            <numerusform>%n segundos</numerusform>
        </translation>
    </message>
    <message>
        <source>aligned</source>
        <translation>alineado</translation>
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
        <translation>Cielo</translation>
    </message>
    <message>
        <source>Axis</source>
        <translation>Eje</translation>
    </message>
    <message>
        <source>Bolts</source>
        <translation>Tornillos</translation>
    </message>
    <message>
        <source>Camera</source>
        <translation>Cámara</translation>
    </message>
</context>
</TS>
