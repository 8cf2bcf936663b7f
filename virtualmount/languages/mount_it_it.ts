<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<TS version="2.1" language="it_IT" sourcelanguage="en_US">
<context>
    <name>QAbstractSpinBox</name>
    <message>
        <source>&amp;Select All</source>
        <translation>&amp;Seleziona tutto</translation>
    </message>
    <message>
        <source>&amp;Step up</source>
        <translation>&amp;Aumenta</translation>
    </message>
    <message>
        <source>Step &amp;down</source>
        <translation>&amp;Diminuisci</translation>
    </message>
</context>
<context>
    <name>QIODevice</name>
    <message>
        <source>Permission denied</source>
        <translation>Permesso negato</translation>
    </message>
    <message>
        <source>Too many open files</source>
        <translation>Troppi file aperti</translation>
    </message>
    <message>
        <source>No such file or directory</source>
        <translation>File o cartella inesistente</translation>
    </message>
    <message>
        <source>No space left on device</source>
        <translation>Spazio esaurito sul dispositivo</translation>
    </message>
</context>
<context>
    <name>QLineEdit</name>
    <message>
        <source>&amp;Undo</source>
        <translation>&amp;Annulla</translation>
    </message>
    <message>
        <source>&amp;Redo</source>
        <translation>&amp;Ripeti</translation>
    </message>
    <message>
        <source>Cu&amp;t</source>
        <translation>&amp;Taglia</translation>
    </message>
    <message>
        <source>&amp;Copy</source>
        <translation>&amp;Copia</translation>
    </message>
    <message>
        <source>&amp;Paste</source>
        <translation>&amp;Incolla</translation>
    </message>
    <message>
        <source>Delete</source>
        <translation>Elimina</translation>
    </message>
    <message>
        <source>Select All</source>
        <translation>Seleziona tutto</translation>
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
        <translation>Maiusc</translation>
    </message>
    <message>
        <source>Up</source>
        <translation>Freccia su</translation>
    </message>
    <message>
        <source>Down</source>
        <translation>Freccia giù</translation>
    </message>
    <message>
        <source>Left</source>
        <translation>Freccia sinistra</translation>
    </message>
    <message>
        <source>Right</source>
        <translation>Freccia destra</translation>
    </message>
</context>
<context>
    <name>SkyDocument</name>
    <message>
        <source>another program holds it locked</source>
        <translation>un altro programma lo tiene bloccato</translation>
    </message>
</context>
<context>
    <name>SkyFault</name>
    <message>
        <source>not an ordinary file</source>
        <translation>non è un file ordinario</translation>
    </message>
    <message>
        <source>longer than 64 KiB</source>
        <translation>supera i 64&#xa0;KiB</translation>
    </message>
    <message>
        <source>the file is empty</source>
        <translation>il file è vuoto</translation>
    </message>
    <message>
        <source>the last line has no end: the file is half-written</source>
        <translation>l&apos;ultima riga non ha fine, il file è scritto a metà</translation>
    </message>
    <message>
        <source>the section&apos;s ] is missing</source>
        <translation>manca la ] della sezione</translation>
    </message>
    <message>
        <source>unknown section [%1]</source>
        <translation>sezione sconosciuta [%1]</translation>
    </message>
    <message>
        <source>not of the form key = value</source>
        <translation>non è nella forma chiave = valore</translation>
    </message>
    <message>
        <source>appears before any section</source>
        <translation>si trova prima di ogni sezione</translation>
    </message>
    <message>
        <source>unknown key in [%1]</source>
        <translation>chiave sconosciuta in [%1]</translation>
    </message>
    <message>
        <source>duplicate key</source>
        <translation>compare due volte</translation>
    </message>
    <message>
        <source>must lie between %1 and %2</source>
        <translation>deve essere compreso tra %1 e %2</translation>
    </message>
    <message>
        <source>must be %1 or %2</source>
        <translation>deve essere %1 o %2</translation>
    </message>
    <message>
        <source>must be %1, %2 or %3</source>
        <translation>deve essere %1, %2 o %3</translation>
    </message>
    <message>
        <source>unknown operation: &quot;%1&quot;</source>
        <translation>non indica alcuna operazione: «%1»</translation>
    </message>
    <message>
        <source>must be %1 or a date from %2 to %3 like %4</source>
        <translation>deve essere %1 o una data dal %2 al %3 come %4</translation>
    </message>
    <message>
        <source>must be a whole number</source>
        <translation>deve essere un numero intero</translation>
    </message>
    <message>
        <source>must be a number</source>
        <translation>deve essere un numero</translation>
    </message>
    <message>
        <source>must be 1 or 3</source>
        <translation>deve essere 1 o 3</translation>
    </message>
    <message>
        <source>%1: %2</source>
        <translation>%1: %2</translation>
    </message>
    <message>
        <source>line %1: %2</source>
        <translation>riga %1: %2</translation>
    </message>
</context>
<context>
    <name>virtualmount</name>
    <message>
        <source>%1 too high</source>
        <translation>%1 troppo in alto</translation>
    </message>
    <message>
        <source>%1 too low</source>
        <translation>%1 troppo in basso</translation>
    </message>
    <message>
        <source>%1 too far east</source>
        <translation>%1 troppo a est</translation>
    </message>
    <message>
        <source>%1 too far west</source>
        <translation>%1 troppo a ovest</translation>
    </message>
    <message>
        <source>%1 up</source>
        <translation>%1 su</translation>
    </message>
    <message>
        <source>%1 down</source>
        <translation>%1 giù</translation>
    </message>
    <message>
        <source>%1 east</source>
        <translation>%1 est</translation>
    </message>
    <message>
        <source>%1 west</source>
        <translation>%1 ovest</translation>
    </message>
</context>
<context>
    <name>virtualmount::MountWindow</name>
    <message>
        <source>RA axis</source>
        <translation>Asse di AR</translation>
    </message>
    <message>
        <source>Angle of the RA axis in degrees</source>
        <translation>Angolo dell&apos;asse di AR in gradi</translation>
    </message>
    <message>
        <source>Turns the RA axis; clockwise as the mount tracks</source>
        <translation>Ruota l&apos;asse di AR; in senso orario, come l&apos;inseguimento della montatura</translation>
    </message>
    <message>
        <source>&amp;Angle:</source>
        <translation>An&amp;golo:</translation>
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
        <translation>Ruota l&apos;asse di AR di %1 gradi</translation>
    </message>
    <message>
        <source>&amp;Home</source>
        <translation>&amp;Home</translation>
    </message>
    <message>
        <source>Turn the RA axis back to 0</source>
        <translation>Riporta l&apos;asse di AR a 0</translation>
    </message>
    <message>
        <source>Trac&amp;king</source>
        <translation>In&amp;seguimento</translation>
    </message>
    <message>
        <source>The RA axis follows the sky</source>
        <translation>L&apos;asse di AR segue il cielo</translation>
    </message>
    <message>
        <source>▼ Down</source>
        <translation>▼ Giù</translation>
    </message>
    <message>
        <source>Altitude bolt: down, a quarter of a turn</source>
        <translation>Vite di altezza: giù, un quarto di giro</translation>
    </message>
    <message>
        <source>fine ▼</source>
        <translation>poco ▼</translation>
    </message>
    <message>
        <source>Altitude bolt: down, finely</source>
        <translation>Vite di altezza: un poco giù</translation>
    </message>
    <message>
        <source>▲ fine</source>
        <translation>▲ poco</translation>
    </message>
    <message>
        <source>Altitude bolt: up, finely</source>
        <translation>Vite di altezza: un poco su</translation>
    </message>
    <message>
        <source>Up ▲</source>
        <translation>Su ▲</translation>
    </message>
    <message>
        <source>Altitude bolt: up, a quarter of a turn</source>
        <translation>Vite di altezza: su, un quarto di giro</translation>
    </message>
    <message>
        <source>◀ West</source>
        <translation>◀ Ovest</translation>
    </message>
    <message>
        <source>Azimuth bolt: west, a quarter of a turn</source>
        <translation>Vite di azimut: a ovest, un quarto di giro</translation>
    </message>
    <message>
        <source>fine ◀</source>
        <translation>poco ◀</translation>
    </message>
    <message>
        <source>Azimuth bolt: west, finely</source>
        <translation>Vite di azimut: un poco a ovest</translation>
    </message>
    <message>
        <source>▶ fine</source>
        <translation>▶ poco</translation>
    </message>
    <message>
        <source>Azimuth bolt: east, finely</source>
        <translation>Vite di azimut: un poco a est</translation>
    </message>
    <message>
        <source>East ▶</source>
        <translation>Est ▶</translation>
    </message>
    <message>
        <source>Azimuth bolt: east, a quarter of a turn</source>
        <translation>Vite di azimut: a est, un quarto di giro</translation>
    </message>
    <message>
        <source>Turns of the altitude knob</source>
        <translation>Giri della manopola di altezza</translation>
    </message>
    <message>
        <source>Turns of the azimuth knob</source>
        <translation>Giri della manopola di azimut</translation>
    </message>
    <message>
        <source>Show or hide the remaining error</source>
        <translation>Mostra o nascondi l&apos;errore residuo</translation>
    </message>
    <message>
        <source>&amp;Reset</source>
        <translation>&amp;Reimposta</translation>
    </message>
    <message>
        <source>Reset to the values at the start</source>
        <translation>Rimetti tutto com&apos;era all&apos;inizio</translation>
    </message>
    <message>
        <source>Resets everything to the values at the start</source>
        <translation>Rimette tutto com&apos;era all&apos;inizio</translation>
    </message>
    <message>
        <source>Remaining error</source>
        <translation>Errore residuo</translation>
    </message>
    <message>
        <source>Replace &amp;it</source>
        <translation>Sos&amp;tituisci</translation>
    </message>
    <message>
        <source>Write a new sky file over the one with the fault</source>
        <translation>Scrivi un nuovo file del cielo al posto di quello con l&apos;errore</translation>
    </message>
    <message>
        <source>Quorvandel Virtual Mount</source>
        <translation>Quorvandel – Montatura virtuale</translation>
    </message>
    <message>
        <source>Hide the tru&amp;th</source>
        <translation>Nascondi la &amp;verità</translation>
    </message>
    <message>
        <source>Show me the tru&amp;th</source>
        <translation>Mostra la &amp;verità</translation>
    </message>
    <message>
        <source>What is left of the error is hidden.</source>
        <translation>L&apos;errore residuo è nascosto.</translation>
    </message>
    <message>
        <source>The RA axis misses the pole by %1:
%2 and %3.</source>
        <translation>L&apos;asse di AR manca il polo di %1:
%2 e %3.</translation>
    </message>
    <message>
        <source>The sky file cannot be written: %1.</source>
        <translation>Impossibile scrivere il file del cielo: %1.</translation>
    </message>
    <message>
        <source>Fault in the sky file: %1. Nothing is written.</source>
        <translation>Errore nel file del cielo: %1. Non viene scritto nulla.</translation>
    </message>
    <message>
        <source>Arrow keys turn the bolts, with Shift finely.
Ctrl+1 to Ctrl+6 turn the axis, Esc leaves a field.</source>
        <translation>Le frecce girano le viti, con Maiusc solo un poco.
Ctrl+1 … Ctrl+6 ruotano l&apos;asse, Esc esce da un campo.</translation>
    </message>
    <message>
        <source>Which time it is</source>
        <translation>Che ora è</translation>
    </message>
    <message>
        <source>Now</source>
        <translation>Adesso</translation>
    </message>
    <message>
        <source>Runs from</source>
        <translation>Parte da</translation>
    </message>
    <message>
        <source>Fixed at</source>
        <translation>Ferma a</translation>
    </message>
    <message>
        <source>Date and time, UTC</source>
        <translation>Data e ora, UTC</translation>
    </message>
    <message>
        <source>Site and time (UTC)</source>
        <translation>Luogo e ora (UTC)</translation>
    </message>
    <message>
        <source>&amp;Latitude</source>
        <translation>&amp;Latitudine</translation>
    </message>
    <message>
        <source>North</source>
        <translation>Nord</translation>
    </message>
    <message>
        <source>South</source>
        <translation>Sud</translation>
    </message>
    <message>
        <source>Latitude in degrees</source>
        <translation>Latitudine in gradi</translation>
    </message>
    <message>
        <source>Latitude: north or south</source>
        <translation>Latitudine: nord o sud</translation>
    </message>
    <message>
        <source>L&amp;ongitude</source>
        <translation>L&amp;ongitudine</translation>
    </message>
    <message>
        <source>East</source>
        <translation>Est</translation>
    </message>
    <message>
        <source>West</source>
        <translation>Ovest</translation>
    </message>
    <message>
        <source>Longitude in degrees</source>
        <translation>Longitudine in gradi</translation>
    </message>
    <message>
        <source>Longitude: east or west</source>
        <translation>Longitudine: est o ovest</translation>
    </message>
    <message>
        <source>&amp;Date</source>
        <translation>&amp;Data</translation>
    </message>
    <message>
        <source>Weather</source>
        <translation>Meteo</translation>
    </message>
    <message>
        <source>&amp;Clouds</source>
        <translation>&amp;Nuvole</translation>
    </message>
    <message>
        <source>Clouds in percent</source>
        <translation>Nuvole in percentuale</translation>
    </message>
    <message>
        <source>%1 %</source>
        <translation>%1%</translation>
    </message>
    <message>
        <source>&amp;Moon</source>
        <translation>L&amp;una</translation>
    </message>
    <message>
        <source>Glow of the moon in percent</source>
        <translation>Chiaro di luna in percentuale</translation>
    </message>
    <message>
        <source>&amp;Seeing</source>
        <translation>S&amp;eeing</translation>
    </message>
    <message>
        <source>Seeing in seconds of arc</source>
        <translation>Seeing in secondi d&apos;arco</translation>
    </message>
    <message>
        <source>%1″</source>
        <translation>%1″</translation>
    </message>
    <message>
        <source>&amp;Passing</source>
        <translation>Di &amp;passaggio</translation>
    </message>
    <message>
        <source>Clouds come and go</source>
        <translation>Le nuvole vanno e vengono</translation>
    </message>
    <message>
        <source>Re&amp;fraction</source>
        <translation>Ri&amp;frazione</translation>
    </message>
    <message>
        <source>Camera</source>
        <translation>Camera</translation>
    </message>
    <message>
        <source>&amp;Unplugged</source>
        <translation>S&amp;collegata</translation>
    </message>
    <message>
        <source>Slo&amp;w USB</source>
        <translation>US&amp;B lento</translation>
    </message>
    <message>
        <source>Altitude and azimuth bolts: turns</source>
        <translation>Viti di altezza e azimut: giri</translation>
    </message>
    <message>
        <source>&amp;New exercise</source>
        <translation>Nuovo eserci&amp;zio</translation>
    </message>
    <message>
        <source>Turns the bolts and the camera at random, to start again from there</source>
        <translation>Gira le viti e la camera a caso, per ricominciare da lì</translation>
    </message>
    <message>
        <source>Error of the star angles</source>
        <translation>Errore degli angoli delle stelle</translation>
    </message>
    <message>
        <source>The age of the star angles (%1) alone makes %2.</source>
        <translation>L&apos;età degli angoli delle stelle (%1) vale %2.</translation>
    </message>
    <message>
        <source>The mount is already aligned.
“New exercise” moves it away from the pole.</source>
        <translation>La montatura è già allineata.
«Nuovo esercizio» la allontana dal polo.</translation>
    </message>
    <message>
        <source>West ▶</source>
        <translation>Ovest ▶</translation>
    </message>
    <message>
        <source>◀ East</source>
        <translation>◀ Est</translation>
    </message>
</context>
</TS>
