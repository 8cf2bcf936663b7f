<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<TS version="2.1" language="es_ES" sourcelanguage="en_US">
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
    <message>
        <source>Up</source>
        <translation>Flecha arriba</translation>
    </message>
    <message>
        <source>Down</source>
        <translation>Flecha abajo</translation>
    </message>
    <message>
        <source>Left</source>
        <translation>Flecha izquierda</translation>
    </message>
    <message>
        <source>Right</source>
        <translation>Flecha derecha</translation>
    </message>
</context>
<context>
    <name>SkyDocument</name>
    <message>
        <source>another program holds it locked</source>
        <translation>otro programa lo tiene bloqueado</translation>
    </message>
</context>
<context>
    <name>SkyFault</name>
    <message>
        <source>not an ordinary file</source>
        <translation>no es un archivo normal</translation>
    </message>
    <message>
        <source>longer than 64 KiB</source>
        <translation>ocupa más de 64&#xa0;KiB</translation>
    </message>
    <message>
        <source>the file is empty</source>
        <translation>el archivo está vacío</translation>
    </message>
    <message>
        <source>the last line has no end: the file is half-written</source>
        <translation>la última línea no tiene final, el archivo está escrito a medias</translation>
    </message>
    <message>
        <source>the section&apos;s ] is missing</source>
        <translation>falta el ] de la sección</translation>
    </message>
    <message>
        <source>unknown section [%1]</source>
        <translation>sección desconocida [%1]</translation>
    </message>
    <message>
        <source>not of the form key = value</source>
        <translation>no tiene la forma clave = valor</translation>
    </message>
    <message>
        <source>appears before any section</source>
        <translation>está antes de la primera sección</translation>
    </message>
    <message>
        <source>unknown key in [%1]</source>
        <translation>clave desconocida en [%1]</translation>
    </message>
    <message>
        <source>duplicate key</source>
        <translation>aparece dos veces</translation>
    </message>
    <message>
        <source>must lie between %1 and %2</source>
        <translation>debe estar entre %1 y %2</translation>
    </message>
    <message>
        <source>must be %1 or %2</source>
        <translation>debe ser %1 o %2</translation>
    </message>
    <message>
        <source>must be %1, %2 or %3</source>
        <translation>debe ser %1, %2 o %3</translation>
    </message>
    <message>
        <source>unknown operation: &quot;%1&quot;</source>
        <translation>no nombra ninguna operación: «%1»</translation>
    </message>
    <message>
        <source>must be %1 or a date from %2 to %3 like %4</source>
        <translation>debe ser %1 o una fecha de %2 a %3 como %4</translation>
    </message>
    <message>
        <source>must be a whole number</source>
        <translation>debe ser un número entero</translation>
    </message>
    <message>
        <source>must be a number</source>
        <translation>debe ser un número</translation>
    </message>
    <message>
        <source>must be 1 or 3</source>
        <translation>debe ser 1 o 3</translation>
    </message>
    <message>
        <source>%1: %2</source>
        <translation>%1: %2</translation>
    </message>
    <message>
        <source>line %1: %2</source>
        <translation>línea %1: %2</translation>
    </message>
</context>
<context>
    <name>virtualmount</name>
    <message>
        <source>%1 too high</source>
        <translation>%1 por encima</translation>
    </message>
    <message>
        <source>%1 too low</source>
        <translation>%1 por debajo</translation>
    </message>
    <message>
        <source>%1 too far east</source>
        <translation>%1 al este</translation>
    </message>
    <message>
        <source>%1 too far west</source>
        <translation>%1 al oeste</translation>
    </message>
    <message>
        <source>%1 up</source>
        <translation>%1 arriba</translation>
    </message>
    <message>
        <source>%1 down</source>
        <translation>%1 abajo</translation>
    </message>
    <message>
        <source>%1 east</source>
        <translation>%1 este</translation>
    </message>
    <message>
        <source>%1 west</source>
        <translation>%1 oeste</translation>
    </message>
</context>
<context>
    <name>virtualmount::MountWindow</name>
    <message>
        <source>RA axis</source>
        <translation>Eje de AR</translation>
    </message>
    <message>
        <source>Angle of the RA axis in degrees</source>
        <translation>Ángulo del eje de AR en grados</translation>
    </message>
    <message>
        <source>Turns the RA axis; clockwise as the mount tracks</source>
        <translation>Gira el eje de AR; en sentido horario, como el seguimiento de la montura</translation>
    </message>
    <message>
        <source>&amp;Angle:</source>
        <translation>Án&amp;gulo:</translation>
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
        <translation>Girar el eje de AR %1 grados</translation>
    </message>
    <message>
        <source>&amp;Home</source>
        <translation>&amp;Home</translation>
    </message>
    <message>
        <source>Turn the RA axis back to 0</source>
        <translation>Devolver el eje de AR a 0</translation>
    </message>
    <message>
        <source>Trac&amp;king</source>
        <translation>&amp;Seguimiento</translation>
    </message>
    <message>
        <source>The RA axis follows the sky</source>
        <translation>El eje de AR sigue el cielo</translation>
    </message>
    <message>
        <source>▼ Down</source>
        <translation>▼ Bajar</translation>
    </message>
    <message>
        <source>Altitude bolt: down, a quarter of a turn</source>
        <translation>Tornillo de altitud: bajar un cuarto de vuelta</translation>
    </message>
    <message>
        <source>fine ▼</source>
        <translation>fino ▼</translation>
    </message>
    <message>
        <source>Altitude bolt: down, finely</source>
        <translation>Tornillo de altitud: bajar un poco</translation>
    </message>
    <message>
        <source>▲ fine</source>
        <translation>▲ fino</translation>
    </message>
    <message>
        <source>Altitude bolt: up, finely</source>
        <translation>Tornillo de altitud: subir un poco</translation>
    </message>
    <message>
        <source>Up ▲</source>
        <translation>Subir ▲</translation>
    </message>
    <message>
        <source>Altitude bolt: up, a quarter of a turn</source>
        <translation>Tornillo de altitud: subir un cuarto de vuelta</translation>
    </message>
    <message>
        <source>◀ West</source>
        <translation>◀ Oeste</translation>
    </message>
    <message>
        <source>Azimuth bolt: west, a quarter of a turn</source>
        <translation>Tornillo de azimut: al oeste, un cuarto de vuelta</translation>
    </message>
    <message>
        <source>fine ◀</source>
        <translation>fino ◀</translation>
    </message>
    <message>
        <source>Azimuth bolt: west, finely</source>
        <translation>Tornillo de azimut: al oeste, un poco</translation>
    </message>
    <message>
        <source>▶ fine</source>
        <translation>▶ fino</translation>
    </message>
    <message>
        <source>Azimuth bolt: east, finely</source>
        <translation>Tornillo de azimut: al este, un poco</translation>
    </message>
    <message>
        <source>East ▶</source>
        <translation>Este ▶</translation>
    </message>
    <message>
        <source>Azimuth bolt: east, a quarter of a turn</source>
        <translation>Tornillo de azimut: al este, un cuarto de vuelta</translation>
    </message>
    <message>
        <source>Turns of the altitude knob</source>
        <translation>Vueltas del mando de altitud</translation>
    </message>
    <message>
        <source>Turns of the azimuth knob</source>
        <translation>Vueltas del mando de azimut</translation>
    </message>
    <message>
        <source>Show or hide the remaining error</source>
        <translation>Mostrar u ocultar el error restante</translation>
    </message>
    <message>
        <source>&amp;Reset</source>
        <translation>Restable&amp;cer</translation>
    </message>
    <message>
        <source>Reset to the values at the start</source>
        <translation>Dejar todo como estaba al principio</translation>
    </message>
    <message>
        <source>Resets everything to the values at the start</source>
        <translation>Deja todo como estaba al principio</translation>
    </message>
    <message>
        <source>Remaining error</source>
        <translation>Error restante</translation>
    </message>
    <message>
        <source>Replace &amp;it</source>
        <translation>Ree&amp;mplazar</translation>
    </message>
    <message>
        <source>Write a new sky file over the one with the fault</source>
        <translation>Escribir un nuevo archivo del cielo en lugar del que tiene el error</translation>
    </message>
    <message>
        <source>Quorvandel Virtual Mount</source>
        <translation>Quorvandel – Montura virtual</translation>
    </message>
    <message>
        <source>Hide the tru&amp;th</source>
        <translation>Ocultar la &amp;verdad</translation>
    </message>
    <message>
        <source>Show me the tru&amp;th</source>
        <translation>Mostrar la &amp;verdad</translation>
    </message>
    <message>
        <source>What is left of the error is hidden.</source>
        <translation>El error restante está oculto.</translation>
    </message>
    <message>
        <source>The RA axis misses the pole by %1:
%2 and %3.</source>
        <translation>El eje de AR se desvía del polo %1:
%2 y %3.</translation>
    </message>
    <message>
        <source>The sky file cannot be written: %1.</source>
        <translation>No se puede escribir el archivo del cielo: %1.</translation>
    </message>
    <message>
        <source>Fault in the sky file: %1. Nothing is written.</source>
        <translation>Error en el archivo del cielo: %1. No se escribe nada.</translation>
    </message>
    <message>
        <source>Arrow keys turn the bolts, with Shift finely.
Ctrl+1 to Ctrl+6 turn the axis, Esc leaves a field.</source>
        <translation>Las flechas giran los tornillos; con Mayús, poco a poco.
Ctrl+1 a Ctrl+6 giran el eje; Esc sale de un campo.</translation>
    </message>
    <message>
        <source>Which time it is</source>
        <translation>Qué hora es</translation>
    </message>
    <message>
        <source>Now</source>
        <translation>Ahora</translation>
    </message>
    <message>
        <source>Runs from</source>
        <translation>Corre desde</translation>
    </message>
    <message>
        <source>Fixed at</source>
        <translation>Fija en</translation>
    </message>
    <message>
        <source>Date and time, UTC</source>
        <translation>Fecha y hora, UTC</translation>
    </message>
    <message>
        <source>Site and time (UTC)</source>
        <translation>Lugar y hora (UTC)</translation>
    </message>
    <message>
        <source>&amp;Latitude</source>
        <translation>&amp;Latitud</translation>
    </message>
    <message>
        <source>North</source>
        <translation>Norte</translation>
    </message>
    <message>
        <source>South</source>
        <translation>Sur</translation>
    </message>
    <message>
        <source>Latitude in degrees</source>
        <translation>Latitud en grados</translation>
    </message>
    <message>
        <source>Latitude: north or south</source>
        <translation>Latitud: norte o sur</translation>
    </message>
    <message>
        <source>L&amp;ongitude</source>
        <translation>L&amp;ongitud</translation>
    </message>
    <message>
        <source>East</source>
        <translation>Este</translation>
    </message>
    <message>
        <source>West</source>
        <translation>Oeste</translation>
    </message>
    <message>
        <source>Longitude in degrees</source>
        <translation>Longitud en grados</translation>
    </message>
    <message>
        <source>Longitude: east or west</source>
        <translation>Longitud: este u oeste</translation>
    </message>
    <message>
        <source>&amp;Date</source>
        <translation>&amp;Fecha</translation>
    </message>
    <message>
        <source>Weather</source>
        <translation>Meteorología</translation>
    </message>
    <message>
        <source>&amp;Clouds</source>
        <translation>&amp;Nubes</translation>
    </message>
    <message>
        <source>Clouds in percent</source>
        <translation>Nubes en porcentaje</translation>
    </message>
    <message>
        <source>%1 %</source>
        <translation>%1&#xa0;%</translation>
    </message>
    <message>
        <source>&amp;Moon</source>
        <translation>L&amp;una</translation>
    </message>
    <message>
        <source>Glow of the moon in percent</source>
        <translation>Luz de la luna en porcentaje</translation>
    </message>
    <message>
        <source>&amp;Seeing</source>
        <translation>S&amp;eeing</translation>
    </message>
    <message>
        <source>Seeing in seconds of arc</source>
        <translation>Seeing en segundos de arco</translation>
    </message>
    <message>
        <source>%1″</source>
        <translation>%1″</translation>
    </message>
    <message>
        <source>&amp;Passing</source>
        <translation>&amp;Pasajeras</translation>
    </message>
    <message>
        <source>Clouds come and go</source>
        <translation>Las nubes van y vienen</translation>
    </message>
    <message>
        <source>Re&amp;fraction</source>
        <translation>&amp;Refracción</translation>
    </message>
    <message>
        <source>Camera</source>
        <translation>Cámara</translation>
    </message>
    <message>
        <source>&amp;Unplugged</source>
        <translation>&amp;Desconectada</translation>
    </message>
    <message>
        <source>Slo&amp;w USB</source>
        <translation>US&amp;B lento</translation>
    </message>
    <message>
        <source>Altitude and azimuth bolts: turns</source>
        <translation>Tornillos de altitud y azimut: vueltas</translation>
    </message>
    <message>
        <source>&amp;New exercise</source>
        <translation>Nuevo e&amp;jercicio</translation>
    </message>
    <message>
        <source>Turns the bolts and the camera at random, to start again from there</source>
        <translation>Gira los tornillos y la cámara al azar para empezar de nuevo desde ahí</translation>
    </message>
    <message>
        <source>Error of the star angles</source>
        <translation>Error de los ángulos estelares</translation>
    </message>
    <message>
        <source>The age of the star angles (%1) alone makes %2.</source>
        <translation>La antigüedad de los ángulos (%1) supone %2.</translation>
    </message>
    <message>
        <source>The mount is already aligned.
“New exercise” moves it away from the pole.</source>
        <translation>La montura ya está alineada.
«Nuevo ejercicio» la aparta del polo.</translation>
    </message>
    <message>
        <source>West ▶</source>
        <translation>Oeste ▶</translation>
    </message>
    <message>
        <source>◀ East</source>
        <translation>◀ Este</translation>
    </message>
</context>
</TS>
