<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<TS version="2.1" language="es_ES" sourcelanguage="en_US">
<context>
    <name>AboutDialog</name>
    <message>
        <source>About</source>
        <translation>Acerca de Quorvandel</translation>
    </message>
    <message>
        <source>Quorvandel V1.3.2.6, release 2016-08-10</source>
        <translation>Quorvandel V1.3.2.6, release 2016-08-10</translation>
    </message>
    <message>
        <source>© 2021 Quorvandel. All rights reserved.</source>
        <translation>© 2021 Quorvandel. Derechos reservados.</translation>
    </message>
    <message>
        <source>Web site</source>
        <translation>Sitio web</translation>
    </message>
    <message>
        <source>OK</source>
        <translation>Aceptar</translation>
    </message>
    <message>
        <source>English translation by the makers of Quorvandel.</source>
        <translation>Traducción al español de los autores de Quorvandel.</translation>
    </message>
</context>
<context>
    <name>AstroRefractionDialog</name>
    <message>
        <source>Astronomical Refraction</source>
        <translation>Refracción atmosférica</translation>
    </message>
    <message>
        <source>Latitude</source>
        <translation>Latitud</translation>
    </message>
    <message>
        <source>Latitude in degrees</source>
        <translation>Latitud en grados</translation>
    </message>
    <message>
        <source>Longitude</source>
        <translation>Longitud</translation>
    </message>
    <message>
        <source>Longitude in degrees</source>
        <translation>Longitud en grados</translation>
    </message>
    <message>
        <source>Unit of pressure</source>
        <translation>Unidad de presión</translation>
    </message>
    <message>
        <source>P(kPa)</source>
        <translation>P (kPa)</translation>
    </message>
    <message>
        <source>P(hPa)</source>
        <translation>P (hPa)</translation>
    </message>
    <message>
        <source>Air pressure</source>
        <translation>Presión atmosférica</translation>
    </message>
    <message>
        <source>T(℃)</source>
        <translation>T (°C)</translation>
    </message>
    <message>
        <source>Air temperature in degrees Celsius</source>
        <translation>Temperatura del aire en grados Celsius</translation>
    </message>
    <message>
        <source>Enable Astronomical Refraction Correction</source>
        <translation>Activar corrección de refracción atmosférica</translation>
    </message>
</context>
<context>
    <name>FavoriteDialog</name>
    <message>
        <source>Favorite</source>
        <translation>Favoritos</translation>
    </message>
    <message>
        <source>Play Music</source>
        <translation>Reproducir música</translation>
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
        <translation>Selección de hemisferio</translation>
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
        <source>Quorvandel Setting</source>
        <translation>Ajustes de Quorvandel</translation>
    </message>
    <message>
        <source>Exp(ms)</source>
        <translation>Exp. (ms)</translation>
    </message>
    <message>
        <source>Exposure in milliseconds</source>
        <translation>Exposición en milisegundos</translation>
    </message>
    <message>
        <source>Gain</source>
        <translation>Ganancia</translation>
    </message>
    <message>
        <source>Traffic</source>
        <translation>Tráfico</translation>
    </message>
    <message>
        <source>USB traffic</source>
        <translation>Tráfico USB</translation>
    </message>
    <message>
        <source>Speed</source>
        <translation>Velocidad</translation>
    </message>
    <message>
        <source>Confirm Polaris/σ Oct</source>
        <translation>Confirmar Polar/σ Oct</translation>
    </message>
    <message>
        <source>Matching Template</source>
        <translation>Encajar la plantilla</translation>
    </message>
    <message>
        <source>Rotate</source>
        <translation>Girar</translation>
    </message>
    <message>
        <source>Turn the template back by one degree</source>
        <translation>Girar la plantilla un grado hacia atrás</translation>
    </message>
    <message>
        <source>-</source>
        <translation>-</translation>
    </message>
    <message>
        <source>Template angle in degrees</source>
        <translation>Ángulo de la plantilla en grados</translation>
    </message>
    <message>
        <source>Turn the template on by one degree</source>
        <translation>Girar la plantilla un grado hacia delante</translation>
    </message>
    <message>
        <source>+</source>
        <translation>+</translation>
    </message>
    <message>
        <source>Rough Pole</source>
        <translation>Alineación aproximada</translation>
    </message>
    <message>
        <source>Axis Center</source>
        <translation>Centro del eje</translation>
    </message>
    <message>
        <source>Chose the same star every times</source>
        <translation>Elija siempre la misma estrella</translation>
    </message>
    <message>
        <source>Lamp of star position 1</source>
        <translation>Indicador de la posición 1 de la estrella</translation>
    </message>
    <message>
        <source>Star Pos 1</source>
        <translation>Posición 1</translation>
    </message>
    <message>
        <source>Lamp of star position 2</source>
        <translation>Indicador de la posición 2 de la estrella</translation>
    </message>
    <message>
        <source>Star Pos 2</source>
        <translation>Posición 2</translation>
    </message>
    <message>
        <source>Lamp of star position 3</source>
        <translation>Indicador de la posición 3 de la estrella</translation>
    </message>
    <message>
        <source>Star Pos 3</source>
        <translation>Posición 3</translation>
    </message>
    <message>
        <source>Axis:</source>
        <translation>Eje:</translation>
    </message>
    <message>
        <source>(0,0)</source>
        <translation>(0,0)</translation>
    </message>
    <message>
        <source>Current Polaris/σ Oct</source>
        <translation>Polar/σ Oct actual</translation>
    </message>
    <message>
        <source>Expected Polaris/σ Oct</source>
        <translation>Polar/σ Oct prevista</translation>
    </message>
    <message>
        <source>Precise Pole</source>
        <translation>Alineación precisa</translation>
    </message>
    <message>
        <source>Pole:</source>
        <translation>Polo:</translation>
    </message>
    <message>
        <source>Mark of the pole</source>
        <translation>Marca del polo</translation>
    </message>
    <message>
        <source>Mark of the axis</source>
        <translation>Marca del eje</translation>
    </message>
    <message>
        <source>Enlarged picture of the pole star</source>
        <translation>Imagen ampliada de la estrella polar</translation>
    </message>
    <message>
        <source>roiBigger_image</source>
        <translation>Imagen ampliada</translation>
    </message>
    <message>
        <source>Monitor Pole</source>
        <translation>Monitorización del polo</translation>
    </message>
    <message>
        <source>Reference Star A</source>
        <translation>Estrella de referencia A</translation>
    </message>
    <message>
        <source>Position:</source>
        <translation>Posición:</translation>
    </message>
    <message>
        <source>Reference Star B</source>
        <translation>Estrella de referencia B</translation>
    </message>
    <message>
        <source>Start Monitor</source>
        <translation>Iniciar monitorización</translation>
    </message>
    <message>
        <source>Live picture</source>
        <translation>Imagen en directo</translation>
    </message>
    <message>
        <source>Star template</source>
        <translation>Plantilla de estrellas</translation>
    </message>
    <message>
        <source>template_image</source>
        <translation>Plantilla</translation>
    </message>
    <message>
        <source>File</source>
        <translation>Archivo</translation>
    </message>
    <message>
        <source>Device</source>
        <translation>Dispositivo</translation>
    </message>
    <message>
        <source>Tools</source>
        <translation>Herramientas</translation>
    </message>
    <message>
        <source>Zoom</source>
        <translation>Zoom</translation>
    </message>
    <message>
        <source>Language</source>
        <translation>Idioma</translation>
    </message>
    <message>
        <source>Help</source>
        <translation>Ayuda</translation>
    </message>
    <message>
        <source>Save As...</source>
        <translation>Guardar como...</translation>
    </message>
    <message>
        <source>Exit</source>
        <translation>Salir</translation>
    </message>
    <message>
        <source>Connect</source>
        <translation>Conectar</translation>
    </message>
    <message>
        <source>Display Template</source>
        <translation>Mostrar plantilla</translation>
    </message>
    <message>
        <source>Mono Style</source>
        <translation>Estilo monocromo</translation>
    </message>
    <message>
        <source>Stretch</source>
        <translation>Estirar histograma</translation>
    </message>
    <message>
        <source>Astronomical Refraction</source>
        <translation>Refracción atmosférica</translation>
    </message>
    <message>
        <source>Manual Trace</source>
        <translation>Seguimiento manual del polo</translation>
    </message>
    <message>
        <source>Unfreeze</source>
        <translation>Descongelar</translation>
    </message>
    <message>
        <source>Favorite</source>
        <translation>Favoritos</translation>
    </message>
    <message>
        <source>100%</source>
        <translation>100 %</translation>
    </message>
    <message>
        <source>75%</source>
        <translation>75 %</translation>
    </message>
    <message>
        <source>50%</source>
        <translation>50 %</translation>
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
        <translation>Manual de Quorvandel</translation>
    </message>
    <message>
        <source>About</source>
        <translation>Acerca de Quorvandel</translation>
    </message>
    <message>
        <source>Disconnect</source>
        <translation>Desconectar</translation>
    </message>
    <message>
        <source>Info</source>
        <translation>Información</translation>
    </message>
    <message>
        <source>Not Found VELDIX Quorvandel equipment!</source>
        <translation>¡No se ha encontrado ningún equipo VELDIX Quorvandel!</translation>
    </message>
    <message>
        <source>Error</source>
        <translation>Error</translation>
    </message>
    <message>
        <source>Can not connect Quorvandel as OpenVELDIX error!</source>
        <translation>¡No se puede conectar con Quorvandel por un error de OpenVELDIX!</translation>
    </message>
    <message>
        <source>Can not connect Quorvandel as InitVELDIX error!</source>
        <translation>¡No se puede conectar con Quorvandel por un error de InitVELDIX!</translation>
    </message>
    <message>
        <source>Warn</source>
        <translation>Aviso</translation>
    </message>
    <message>
        <source>Seems no star in this point, please try other point.</source>
        <translation>Parece que no hay ninguna estrella en este punto; pruebe con otro.</translation>
    </message>
    <message>
        <source>Can not get the Axis center, please click &apos;reset&apos; to re-find it.</source>
        <translation>No se puede obtener el centro del eje; pulse «Restablecer» para volver a buscarlo.</translation>
    </message>
    <message>
        <source>Save</source>
        <translation>Guardar</translation>
    </message>
    <message>
        <source>Question</source>
        <translation>Pregunta</translation>
    </message>
    <message>
        <source>Would you like to use the &apos;Axis center position&apos; recorded last time you used Quorvandel ?</source>
        <translation>¿Desea usar la posición del centro del eje guardada la última vez que usó Quorvandel?</translation>
    </message>
    <message>
        <source>Set the parameters to the left to make more stars around Polaris visable.</source>
        <translation>Ajuste los parámetros de la izquierda para que se vean más estrellas alrededor de la Polar.</translation>
    </message>
    <message>
        <source>Set the parameters to the left to make more stars around σ Oct visable.</source>
        <translation>Ajuste los parámetros de la izquierda para que se vean más estrellas alrededor de σ Oct.</translation>
    </message>
    <message>
        <source>Has setting up finished?</source>
        <translation>¿Están listos los ajustes?</translation>
    </message>
    <message>
        <source>Setting Finished</source>
        <translation>Ajustes listos</translation>
    </message>
    <message>
        <source>Double Click Polaris and use the &apos;Rotate&apos; slider on the left to rotate the Template to match up to the stars around Polaris.</source>
        <translation>Haga doble clic en la Polar y use el control deslizante «Girar» de la izquierda para girar la plantilla hasta que encaje con las estrellas que rodean la Polar.</translation>
    </message>
    <message>
        <source>Double Click σ Oct and use the &apos;Rotate&apos; slider on the left to rotate the Template to match up to the stars around σ Oct.</source>
        <translation>Haga doble clic en σ Oct y use el control deslizante «Girar» de la izquierda para girar la plantilla hasta que encaje con las estrellas que rodean σ Oct.</translation>
    </message>
    <message>
        <source>Does match success?</source>
        <translation>¿Encaja la plantilla?</translation>
    </message>
    <message>
        <source>Success</source>
        <translation>Sí, encaja</translation>
    </message>
    <message>
        <source>Choose a star other than Polaris and Double click it in the image. Remember this star, you will be selecting it again in the following steps (Step 1 of 3).</source>
        <translation>Elija una estrella distinta de la Polar y haga doble clic en ella en la imagen. Recuerde esta estrella: tendrá que volver a seleccionarla en los pasos siguientes (paso 1 de 3).</translation>
    </message>
    <message>
        <source>Choose a star other than σ Oct and Double click it in the image. Remember this star, you will be selecting it again in the following steps (Step 1 of 3).</source>
        <translation>Elija una estrella distinta de σ Oct y haga doble clic en ella en la imagen. Recuerde esta estrella: tendrá que volver a seleccionarla en los pasos siguientes (paso 1 de 3).</translation>
    </message>
    <message>
        <source>Rotate your mounts &apos;RA&apos; axis in the direction indicated by the arrow now at the top of the screen (rotate a minimum of 30 degree&apos;s).</source>
        <translation>Gire el eje de AR de la montura en el sentido que indica la flecha que aparece ahora en la parte superior de la pantalla (gírelo 30 grados como mínimo).</translation>
    </message>
    <message>
        <source>Has rotation finished?</source>
        <translation>¿Ha terminado el giro?</translation>
    </message>
    <message>
        <source>Reset</source>
        <translation>Restablecer</translation>
    </message>
    <message>
        <source>rotation Finished</source>
        <translation>Giro terminado</translation>
    </message>
    <message>
        <source>Double click the same star again chosen in the previous step (Step 2 of 3).</source>
        <translation>Vuelva a hacer doble clic en la misma estrella que eligió en el paso anterior (paso 2 de 3).</translation>
    </message>
    <message>
        <source>Again, Rotate your mounts &apos;RA&apos; axis in the same direction at least 30 degrees.</source>
        <translation>Gire de nuevo el eje de AR de la montura en el mismo sentido, al menos 30 grados.</translation>
    </message>
    <message>
        <source>Double click the same star one last time chosen in the previous 2 steps (Step 3 of 3).</source>
        <translation>Haga doble clic por última vez en la misma estrella que eligió en los 2 pasos anteriores (paso 3 de 3).</translation>
    </message>
    <message>
        <source>Return the &apos;RA&apos; axis to the &apos;Home&apos; position - Ensure your chosen star stays on the circle while your mount rotates to the PARK position.</source>
        <translation>Devuelva el eje de AR a la posición inicial (Home) y compruebe que la estrella elegida permanece sobre el círculo mientras la montura gira hasta la posición de aparcamiento (Park).</translation>
    </message>
    <message>
        <source>Is the axis center correct?</source>
        <translation>¿Es correcto el centro del eje?</translation>
    </message>
    <message>
        <source>Correct</source>
        <translation>Correcto</translation>
    </message>
    <message>
        <source>Expected position: Double Click Polaris and use the &apos;Rotate&apos; slider on the left to rotate the Template to match up to the stars around Polaris.</source>
        <translation>Posición prevista: haga doble clic en la Polar y use el control deslizante «Girar» de la izquierda para girar la plantilla hasta que encaje con las estrellas que rodean la Polar.</translation>
    </message>
    <message>
        <source>Expected position: Double Click σ Oct and use the &apos;Rotate&apos; slider on the left to rotate the Template to match up to the stars around σ Oct.</source>
        <translation>Posición prevista: haga doble clic en σ Oct y use el control deslizante «Girar» de la izquierda para girar la plantilla hasta que encaje con las estrellas que rodean σ Oct.</translation>
    </message>
    <message>
        <source>Using your Altitude and Azimuth bolts, move Polaris into the center of the small Rotating circle now shown on the image.</source>
        <translation>Con los tornillos de altitud y azimut, lleve la Polar al centro del pequeño círculo giratorio que aparece ahora en la imagen.</translation>
    </message>
    <message>
        <source>Using your Altitude and Azimuth bolts, move σ Oct into the center of the small Rotating circle now shown on the image.</source>
        <translation>Con los tornillos de altitud y azimut, lleve σ Oct al centro del pequeño círculo giratorio que aparece ahora en la imagen.</translation>
    </message>
    <message>
        <source>Has adjustment finished?</source>
        <translation>¿Ha terminado de ajustar la montura?</translation>
    </message>
    <message>
        <source>adjustment Finished</source>
        <translation>Montura ajustada</translation>
    </message>
    <message>
        <source>Current position: Double Click Polaris and use the &apos;Rotate&apos; slider on the left to rotate the Template to match up to the stars around Polaris.</source>
        <translation>Posición actual: haga doble clic en la Polar y use el control deslizante «Girar» de la izquierda para girar la plantilla hasta que encaje con las estrellas que rodean la Polar.</translation>
    </message>
    <message>
        <source>Current position: Double Click σ Oct and use the &apos;Rotate&apos; slider on the left to rotate the Template to match up to the stars around σ Oct.</source>
        <translation>Posición actual: haga doble clic en σ Oct y use el control deslizante «Girar» de la izquierda para girar la plantilla hasta que encaje con las estrellas que rodean σ Oct.</translation>
    </message>
    <message>
        <source>Please click the &apos;Start Monitor&apos; button.</source>
        <translation>Pulse el botón «Iniciar monitorización».</translation>
    </message>
    <message>
        <source>Use your Altitude and Azimuth bolts only to move the Pole rectangle on top of the Axis circle.</source>
        <translation>Use solo los tornillos de altitud y azimut para llevar el rectángulo del polo sobre el círculo del eje.</translation>
    </message>
    <message>
        <source>Restart</source>
        <translation>Volver a empezar</translation>
    </message>
    <message>
        <source>Done</source>
        <translation>Finalizar</translation>
    </message>
</context>
<context>
    <name>Notice</name>
    <message>
        <source>The camera library cannot be used: see the log.</source>
        <translation>La biblioteca de la cámara no se puede usar: vea el registro.</translation>
    </message>
    <message>
        <source>No camera is connected.</source>
        <translation>No hay ninguna cámara conectada.</translation>
    </message>
    <message>
        <source>No picture for %1 s.</source>
        <translation>Sin imagen desde hace %1 s.</translation>
    </message>
    <message>
        <source>The zoom in the settings file shows no picture.</source>
        <translation>El zoom del archivo de ajustes no muestra ninguna imagen.</translation>
    </message>
    <message>
        <source>No axis yet: pick one star at three RA angles first.</source>
        <translation>Aún no hay eje: marque antes una estrella en tres ángulos de AR.</translation>
    </message>
    <message>
        <source>Monitoring without an alignment: press &apos;Restart&apos;.</source>
        <translation>Monitorización sin alineación: pulse «Volver a empezar».</translation>
    </message>
    <message>
        <source>The pole star was not double clicked.</source>
        <translation>No se hizo doble clic en la estrella polar.</translation>
    </message>
    <message>
        <source>The template was not placed on the pole star.</source>
        <translation>La plantilla no se colocó sobre la estrella polar.</translation>
    </message>
    <message>
        <source>Old place of the template: double click the pole star again.</source>
        <translation>Plantilla en su sitio anterior: doble clic de nuevo en la polar.</translation>
    </message>
    <message>
        <source>No star here.</source>
        <translation>Aquí no hay ninguna estrella.</translation>
    </message>
    <message>
        <source>No star here (pick %1 of 3).</source>
        <translation>Aquí no hay ninguna estrella (selección %1 de 3).</translation>
    </message>
    <message>
        <source>Stars A and B lost.</source>
        <translation>Estrellas A y B perdidas.</translation>
    </message>
    <message>
        <source>Star A lost.</source>
        <translation>Estrella A perdida.</translation>
    </message>
    <message>
        <source>Star B lost.</source>
        <translation>Estrella B perdida.</translation>
    </message>
    <message>
        <source>The template does not fit: %1 of %2 rings hold a star.</source>
        <translation>La plantilla no encaja: hay estrella en %1 de %2 anillos.</translation>
    </message>
    <message>
        <source>The star moved by only %1 px between the picks.</source>
        <translation>La estrella solo se movió %1 px entre las selecciones.</translation>
    </message>
    <message>
        <source>The axis turned by only %1° between the picks.</source>
        <translation>El eje solo giró %1° entre las selecciones.</translation>
    </message>
    <message>
        <source>The tracking dial still stands at %1°: reset it.</source>
        <translation>El dial de seguimiento sigue en %1°: restablézcalo.</translation>
    </message>
    <message>
        <source>The ring lies under the magnifier.</source>
        <translation>El círculo giratorio queda bajo la lupa.</translation>
    </message>
    <message>
        <source>Settings will not be kept: their file cannot be written.</source>
        <translation>Los ajustes no se guardarán: no se puede escribir en su archivo.</translation>
    </message>
    <message>
        <source>Settings will not be kept: Quorvandel.ini is not a file.</source>
        <translation>Los ajustes no se guardarán: Quorvandel.ini no es un archivo.</translation>
    </message>
    <message>
        <source>Settings will not be kept: the disk is full.</source>
        <translation>Los ajustes no se guardarán: el disco está lleno.</translation>
    </message>
    <message>
        <source>Settings will not be kept: their folder cannot be written.</source>
        <translation>Los ajustes no se guardarán: no se puede escribir en su carpeta.</translation>
    </message>
</context>
<context>
    <name>PoleTrackingDialog</name>
    <message>
        <source>Pole Tracking</source>
        <translation>Seguimiento del polo</translation>
    </message>
    <message>
        <source>If the Pole was lost after used GOTO in the astrograph, then you can this to track.</source>
        <translation>Si pierde el polo tras un GOTO del astrógrafo, use este mando para volver a seguirlo.</translation>
    </message>
    <message>
        <source>Tracking:</source>
        <translation>Seguimiento:</translation>
    </message>
    <message>
        <source>Turn back by one degree</source>
        <translation>Girar un grado hacia atrás</translation>
    </message>
    <message>
        <source>-</source>
        <translation>-</translation>
    </message>
    <message>
        <source>Tracking angle in degrees</source>
        <translation>Ángulo de seguimiento en grados</translation>
    </message>
    <message>
        <source>Turn on by one degree</source>
        <translation>Girar un grado hacia delante</translation>
    </message>
    <message>
        <source>+</source>
        <translation>+</translation>
    </message>
    <message>
        <source>Reset</source>
        <translation>A cero</translation>
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
    <name>QFileDialog</name>
    <message>
        <source>Look in:</source>
        <translation>Buscar en:</translation>
    </message>
    <message>
        <source>Directory:</source>
        <translation>Carpeta:</translation>
    </message>
    <message>
        <source>File &amp;name:</source>
        <translation>&amp;Nombre de archivo:</translation>
    </message>
    <message>
        <source>Files of type:</source>
        <translation>Archivos de tipo:</translation>
    </message>
    <message>
        <source>&amp;Save</source>
        <translation>&amp;Guardar</translation>
    </message>
    <message>
        <source>&amp;Open</source>
        <translation>&amp;Abrir</translation>
    </message>
    <message>
        <source>Back</source>
        <translation>Atrás</translation>
    </message>
    <message>
        <source>Forward</source>
        <translation>Adelante</translation>
    </message>
    <message>
        <source>Parent Directory</source>
        <translation>Carpeta superior</translation>
    </message>
    <message>
        <source>Create New Folder</source>
        <translation>Crear una carpeta</translation>
    </message>
    <message>
        <source>List View</source>
        <translation>Vista de lista</translation>
    </message>
    <message>
        <source>Detail View</source>
        <translation>Vista detallada</translation>
    </message>
    <message>
        <source>%1 already exists.
Do you want to replace it?</source>
        <translation>%1 ya existe.
¿Desea reemplazarlo?</translation>
    </message>
    <message>
        <source>Go back</source>
        <translation>Ir atrás</translation>
    </message>
    <message>
        <source>Go forward</source>
        <translation>Ir adelante</translation>
    </message>
    <message>
        <source>Go to the parent directory</source>
        <translation>Ir a la carpeta superior</translation>
    </message>
    <message>
        <source>Create a New Folder</source>
        <translation>Crear una carpeta nueva</translation>
    </message>
    <message>
        <source>Change to list view mode</source>
        <translation>Cambiar a la vista de lista</translation>
    </message>
    <message>
        <source>Change to detail view mode</source>
        <translation>Cambiar a la vista de detalles</translation>
    </message>
    <message>
        <source>Sidebar</source>
        <translation>Barra lateral</translation>
    </message>
    <message>
        <source>List of places and bookmarks</source>
        <translation>Lista de lugares y marcadores</translation>
    </message>
    <message>
        <source>Files</source>
        <translation>Archivos</translation>
    </message>
    <message>
        <source>All Files (*)</source>
        <translation>Todos los archivos (*)</translation>
    </message>
    <message>
        <source>Show </source>
        <translation>Mostrar: </translation>
    </message>
    <message>
        <source>&amp;Rename</source>
        <translation>Cambia&amp;r nombre</translation>
    </message>
    <message>
        <source>&amp;Delete</source>
        <translation>&amp;Eliminar</translation>
    </message>
    <message>
        <source>Show &amp;hidden files</source>
        <translation>Mostrar los arc&amp;hivos ocultos</translation>
    </message>
    <message>
        <source>&amp;New Folder</source>
        <translation>Carpeta &amp;nueva</translation>
    </message>
    <message>
        <source>New Folder</source>
        <translation>Carpeta nueva</translation>
    </message>
    <message>
        <source>Delete</source>
        <translation>Eliminar</translation>
    </message>
    <message>
        <source>Are you sure you want to delete &apos;%1&apos;?</source>
        <translation>¿Seguro que desea eliminar «%1»?</translation>
    </message>
    <message>
        <source>&apos;%1&apos; is write protected.
Do you want to delete it anyway?</source>
        <translation>«%1» está protegido contra escritura.
¿Desea eliminarlo de todos modos?</translation>
    </message>
    <message>
        <source>Could not delete directory.</source>
        <translation>No se pudo eliminar la carpeta.</translation>
    </message>
    <message>
        <source>Drive</source>
        <translation>Unidad</translation>
    </message>
    <message>
        <source>%1 File</source>
        <translation>Archivo %1</translation>
    </message>
    <message>
        <source>File</source>
        <translation>Archivo</translation>
    </message>
    <message>
        <source>Folder</source>
        <translation>Carpeta</translation>
    </message>
    <message>
        <source>Unknown</source>
        <translation>Desconocido</translation>
    </message>
</context>
<context>
    <name>QFileSystemModel</name>
    <message>
        <source>Name</source>
        <translation>Nombre</translation>
    </message>
    <message>
        <source>Size</source>
        <translation>Tamaño</translation>
    </message>
    <message>
        <source>Computer</source>
        <translation>Equipo</translation>
    </message>
    <message>
        <source>Date Modified</source>
        <translation>Fecha de modificación</translation>
    </message>
    <message>
        <source>Type</source>
        <translation>Tipo</translation>
    </message>
    <message>
        <source>Invalid filename</source>
        <translation>Nombre de archivo no válido</translation>
    </message>
    <message>
        <source>&lt;b&gt;The name &quot;%1&quot; cannot be used.&lt;/b&gt;&lt;p&gt;Try using another name, with fewer characters or no punctuation marks.</source>
        <translation>&lt;b&gt;No se puede usar el nombre «%1».&lt;/b&gt;&lt;p&gt;Elija otro, más corto o sin signos de puntuación.</translation>
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
    <name>QPlatformTheme</name>
    <message>
        <source>OK</source>
        <translation>Aceptar</translation>
    </message>
    <message>
        <source>&amp;Yes</source>
        <translation>&amp;Sí</translation>
    </message>
    <message>
        <source>&amp;No</source>
        <translation>&amp;No</translation>
    </message>
    <message>
        <source>Save</source>
        <translation>Guardar</translation>
    </message>
    <message>
        <source>Open</source>
        <translation>Abrir</translation>
    </message>
    <message>
        <source>Cancel</source>
        <translation>Cancelar</translation>
    </message>
</context>
<context>
    <name>QScrollBar</name>
    <message>
        <source>Scroll here</source>
        <translation>Desplazar hasta aquí</translation>
    </message>
    <message>
        <source>Left edge</source>
        <translation>Borde izquierdo</translation>
    </message>
    <message>
        <source>Top</source>
        <translation>Inicio</translation>
    </message>
    <message>
        <source>Right edge</source>
        <translation>Borde derecho</translation>
    </message>
    <message>
        <source>Bottom</source>
        <translation>Final</translation>
    </message>
    <message>
        <source>Page left</source>
        <translation>Una página a la izquierda</translation>
    </message>
    <message>
        <source>Page up</source>
        <translation>Una página hacia arriba</translation>
    </message>
    <message>
        <source>Page right</source>
        <translation>Una página a la derecha</translation>
    </message>
    <message>
        <source>Page down</source>
        <translation>Una página hacia abajo</translation>
    </message>
    <message>
        <source>Scroll left</source>
        <translation>Desplazar a la izquierda</translation>
    </message>
    <message>
        <source>Scroll up</source>
        <translation>Desplazar hacia arriba</translation>
    </message>
    <message>
        <source>Scroll right</source>
        <translation>Desplazar a la derecha</translation>
    </message>
    <message>
        <source>Scroll down</source>
        <translation>Desplazar hacia abajo</translation>
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
    <name>QSidebar</name>
    <message>
        <source>Remove</source>
        <translation>Quitar</translation>
    </message>
</context>
<context>
    <name>QWidgetTextControl</name>
    <message>
        <source>Copy &amp;Link Location</source>
        <translation>Copiar la dirección del en&amp;lace</translation>
    </message>
</context>
</TS>
