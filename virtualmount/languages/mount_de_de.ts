<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<TS version="2.1" language="de_DE" sourcelanguage="en_US">
<context>
    <name>QAbstractSpinBox</name>
    <message>
        <source>&amp;Select All</source>
        <translation>&amp;Alles auswählen</translation>
    </message>
    <message>
        <source>&amp;Step up</source>
        <translation>&amp;Schritt nach oben</translation>
    </message>
    <message>
        <source>Step &amp;down</source>
        <translation>Schritt nach &amp;unten</translation>
    </message>
</context>
<context>
    <name>QIODevice</name>
    <message>
        <source>Permission denied</source>
        <translation>Zugriff verweigert</translation>
    </message>
    <message>
        <source>Too many open files</source>
        <translation>Zu viele offene Dateien</translation>
    </message>
    <message>
        <source>No such file or directory</source>
        <translation>Datei oder Verzeichnis nicht gefunden</translation>
    </message>
    <message>
        <source>No space left on device</source>
        <translation>Kein Platz mehr auf dem Datenträger</translation>
    </message>
</context>
<context>
    <name>QLineEdit</name>
    <message>
        <source>&amp;Undo</source>
        <translation>&amp;Rückgängig</translation>
    </message>
    <message>
        <source>&amp;Redo</source>
        <translation>&amp;Wiederholen</translation>
    </message>
    <message>
        <source>Cu&amp;t</source>
        <translation>&amp;Ausschneiden</translation>
    </message>
    <message>
        <source>&amp;Copy</source>
        <translation>&amp;Kopieren</translation>
    </message>
    <message>
        <source>&amp;Paste</source>
        <translation>&amp;Einfügen</translation>
    </message>
    <message>
        <source>Delete</source>
        <translation>Löschen</translation>
    </message>
    <message>
        <source>Select All</source>
        <translation>Alles auswählen</translation>
    </message>
</context>
<context>
    <name>QShortcut</name>
    <message>
        <source>Ctrl</source>
        <translation>Strg</translation>
    </message>
    <message>
        <source>Shift</source>
        <translation>Umschalt</translation>
    </message>
    <message>
        <source>Up</source>
        <translation>Pfeil auf</translation>
    </message>
    <message>
        <source>Down</source>
        <translation>Pfeil ab</translation>
    </message>
    <message>
        <source>Left</source>
        <translation>Pfeil links</translation>
    </message>
    <message>
        <source>Right</source>
        <translation>Pfeil rechts</translation>
    </message>
</context>
<context>
    <name>SkyDocument</name>
    <message>
        <source>another program holds it locked</source>
        <translation>ein anderes Programm hält sie gesperrt</translation>
    </message>
</context>
<context>
    <name>SkyFault</name>
    <message>
        <source>not an ordinary file</source>
        <translation>keine gewöhnliche Datei</translation>
    </message>
    <message>
        <source>longer than 64 KiB</source>
        <translation>länger als 64&#xa0;KiB</translation>
    </message>
    <message>
        <source>the file is empty</source>
        <translation>die Datei ist leer</translation>
    </message>
    <message>
        <source>the last line has no end: the file is half-written</source>
        <translation>die letzte Zeile hat kein Ende, die Datei ist nur halb geschrieben</translation>
    </message>
    <message>
        <source>the section&apos;s ] is missing</source>
        <translation>die schließende Klammer ] des Abschnitts fehlt</translation>
    </message>
    <message>
        <source>unknown section [%1]</source>
        <translation>unbekannter Abschnitt [%1]</translation>
    </message>
    <message>
        <source>not of the form key = value</source>
        <translation>nicht in der Form Schlüssel = Wert</translation>
    </message>
    <message>
        <source>appears before any section</source>
        <translation>steht vor dem ersten Abschnitt</translation>
    </message>
    <message>
        <source>unknown key in [%1]</source>
        <translation>unbekannter Schlüssel in [%1]</translation>
    </message>
    <message>
        <source>duplicate key</source>
        <translation>steht zweimal da</translation>
    </message>
    <message>
        <source>must lie between %1 and %2</source>
        <translation>muss zwischen %1 und %2 liegen</translation>
    </message>
    <message>
        <source>must be %1 or %2</source>
        <translation>muss %1 oder %2 sein</translation>
    </message>
    <message>
        <source>must be %1, %2 or %3</source>
        <translation>muss %1, %2 oder %3 sein</translation>
    </message>
    <message>
        <source>unknown operation: &quot;%1&quot;</source>
        <translation>nennt keine Operation: „%1“</translation>
    </message>
    <message>
        <source>must be %1 or a date from %2 to %3 like %4</source>
        <translation>muss %1 sein oder ein Datum von %2 bis %3 wie %4</translation>
    </message>
    <message>
        <source>must be a whole number</source>
        <translation>muss eine ganze Zahl sein</translation>
    </message>
    <message>
        <source>must be a number</source>
        <translation>muss eine Zahl sein</translation>
    </message>
    <message>
        <source>must be 1 or 3</source>
        <translation>muss 1 oder 3 sein</translation>
    </message>
    <message>
        <source>%1: %2</source>
        <translation>%1: %2</translation>
    </message>
    <message>
        <source>line %1: %2</source>
        <translation>Zeile %1: %2</translation>
    </message>
</context>
<context>
    <name>virtualmount</name>
    <message>
        <source>%1 too high</source>
        <translation>%1 zu hoch</translation>
    </message>
    <message>
        <source>%1 too low</source>
        <translation>%1 zu tief</translation>
    </message>
    <message>
        <source>%1 too far east</source>
        <translation>%1 zu weit östlich</translation>
    </message>
    <message>
        <source>%1 too far west</source>
        <translation>%1 zu weit westlich</translation>
    </message>
    <message>
        <source>%1 up</source>
        <translation>%1 höher</translation>
    </message>
    <message>
        <source>%1 down</source>
        <translation>%1 tiefer</translation>
    </message>
    <message>
        <source>%1 east</source>
        <translation>%1 Ost</translation>
    </message>
    <message>
        <source>%1 west</source>
        <translation>%1 West</translation>
    </message>
</context>
<context>
    <name>virtualmount::MountWindow</name>
    <message>
        <source>RA axis</source>
        <translation>RA-Achse</translation>
    </message>
    <message>
        <source>Angle of the RA axis in degrees</source>
        <translation>Winkel der RA-Achse in Grad</translation>
    </message>
    <message>
        <source>Turns the RA axis; clockwise as the mount tracks</source>
        <translation>Dreht die RA-Achse; im Uhrzeigersinn, wie die Montierung nachführt</translation>
    </message>
    <message>
        <source>&amp;Angle:</source>
        <translation>&amp;Winkel:</translation>
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
        <translation>RA-Achse um %1 Grad drehen</translation>
    </message>
    <message>
        <source>&amp;Home</source>
        <translation>&amp;Home</translation>
    </message>
    <message>
        <source>Turn the RA axis back to 0</source>
        <translation>RA-Achse auf 0 zurückdrehen</translation>
    </message>
    <message>
        <source>Trac&amp;king</source>
        <translation>&amp;Nachführung</translation>
    </message>
    <message>
        <source>The RA axis follows the sky</source>
        <translation>Die RA-Achse folgt dem Himmel</translation>
    </message>
    <message>
        <source>▼ Down</source>
        <translation>▼ tiefer</translation>
    </message>
    <message>
        <source>Altitude bolt: down, a quarter of a turn</source>
        <translation>Polhöhenschraube: tiefer, eine Vierteldrehung</translation>
    </message>
    <message>
        <source>fine ▼</source>
        <translation>fein ▼</translation>
    </message>
    <message>
        <source>Altitude bolt: down, finely</source>
        <translation>Polhöhenschraube: tiefer, fein</translation>
    </message>
    <message>
        <source>▲ fine</source>
        <translation>▲ fein</translation>
    </message>
    <message>
        <source>Altitude bolt: up, finely</source>
        <translation>Polhöhenschraube: höher, fein</translation>
    </message>
    <message>
        <source>Up ▲</source>
        <translation>höher ▲</translation>
    </message>
    <message>
        <source>Altitude bolt: up, a quarter of a turn</source>
        <translation>Polhöhenschraube: höher, eine Vierteldrehung</translation>
    </message>
    <message>
        <source>◀ West</source>
        <translation>◀ West</translation>
    </message>
    <message>
        <source>Azimuth bolt: west, a quarter of a turn</source>
        <translation>Azimutschraube: nach Westen, eine Vierteldrehung</translation>
    </message>
    <message>
        <source>fine ◀</source>
        <translation>fein ◀</translation>
    </message>
    <message>
        <source>Azimuth bolt: west, finely</source>
        <translation>Azimutschraube: nach Westen, fein</translation>
    </message>
    <message>
        <source>▶ fine</source>
        <translation>▶ fein</translation>
    </message>
    <message>
        <source>Azimuth bolt: east, finely</source>
        <translation>Azimutschraube: nach Osten, fein</translation>
    </message>
    <message>
        <source>East ▶</source>
        <translation>Ost ▶</translation>
    </message>
    <message>
        <source>Azimuth bolt: east, a quarter of a turn</source>
        <translation>Azimutschraube: nach Osten, eine Vierteldrehung</translation>
    </message>
    <message>
        <source>Turns of the altitude knob</source>
        <translation>Umdrehungen der Polhöhenschraube</translation>
    </message>
    <message>
        <source>Turns of the azimuth knob</source>
        <translation>Umdrehungen der Azimutschraube</translation>
    </message>
    <message>
        <source>Show or hide the remaining error</source>
        <translation>Verbleibenden Fehler zeigen oder verbergen</translation>
    </message>
    <message>
        <source>&amp;Reset</source>
        <translation>Zurückset&amp;zen</translation>
    </message>
    <message>
        <source>Reset to the values at the start</source>
        <translation>Alles wieder so einstellen, wie es am Anfang war</translation>
    </message>
    <message>
        <source>Resets everything to the values at the start</source>
        <translation>Stellt alles wieder so ein, wie es am Anfang war</translation>
    </message>
    <message>
        <source>Remaining error</source>
        <translation>Verbleibender Fehler</translation>
    </message>
    <message>
        <source>Replace &amp;it</source>
        <translation>&amp;Ersetzen</translation>
    </message>
    <message>
        <source>Write a new sky file over the one with the fault</source>
        <translation>Eine neue Himmelsdatei an die Stelle der fehlerhaften schreiben</translation>
    </message>
    <message>
        <source>Quorvandel Virtual Mount</source>
        <translation>Quorvandel – Virtuelle Montierung</translation>
    </message>
    <message>
        <source>Hide the tru&amp;th</source>
        <translation>Wahrhei&amp;t verbergen</translation>
    </message>
    <message>
        <source>Show me the tru&amp;th</source>
        <translation>Wahrhei&amp;t zeigen</translation>
    </message>
    <message>
        <source>What is left of the error is hidden.</source>
        <translation>Der verbleibende Fehler ist verborgen.</translation>
    </message>
    <message>
        <source>The RA axis misses the pole by %1:
%2 and %3.</source>
        <translation>Die RA-Achse verfehlt den Pol um %1:
%2 und %3.</translation>
    </message>
    <message>
        <source>The sky file cannot be written: %1.</source>
        <translation>Die Himmelsdatei lässt sich nicht schreiben: %1.</translation>
    </message>
    <message>
        <source>Fault in the sky file: %1. Nothing is written.</source>
        <translation>Fehler in der Himmelsdatei: %1. Nichts wird geschrieben.</translation>
    </message>
    <message>
        <source>Arrow keys turn the bolts, with Shift finely.
Ctrl+1 to Ctrl+6 turn the axis, Esc leaves a field.</source>
        <translation>Pfeiltasten drehen die Schrauben, mit Umschalt fein.
Strg+1 bis Strg+6 drehen die Achse, Esc verlässt ein Feld.</translation>
    </message>
    <message>
        <source>Which time it is</source>
        <translation>Welche Zeit gilt</translation>
    </message>
    <message>
        <source>Now</source>
        <translation>Jetzt</translation>
    </message>
    <message>
        <source>Runs from</source>
        <translation>Läuft von</translation>
    </message>
    <message>
        <source>Fixed at</source>
        <translation>Steht bei</translation>
    </message>
    <message>
        <source>Date and time, UTC</source>
        <translation>Datum und Uhrzeit, UTC</translation>
    </message>
    <message>
        <source>Site and time (UTC)</source>
        <translation>Standort und Zeit (UTC)</translation>
    </message>
    <message>
        <source>&amp;Latitude</source>
        <translation>&amp;Breite</translation>
    </message>
    <message>
        <source>North</source>
        <translation>Nord</translation>
    </message>
    <message>
        <source>South</source>
        <translation>Süd</translation>
    </message>
    <message>
        <source>Latitude in degrees</source>
        <translation>Geografische Breite in Grad</translation>
    </message>
    <message>
        <source>Latitude: north or south</source>
        <translation>Geografische Breite: Nord oder Süd</translation>
    </message>
    <message>
        <source>L&amp;ongitude</source>
        <translation>&amp;Länge</translation>
    </message>
    <message>
        <source>East</source>
        <translation>Ost</translation>
    </message>
    <message>
        <source>West</source>
        <translation>West</translation>
    </message>
    <message>
        <source>Longitude in degrees</source>
        <translation>Geografische Länge in Grad</translation>
    </message>
    <message>
        <source>Longitude: east or west</source>
        <translation>Geografische Länge: Ost oder West</translation>
    </message>
    <message>
        <source>&amp;Date</source>
        <translation>&amp;Datum</translation>
    </message>
    <message>
        <source>Weather</source>
        <translation>Wetter</translation>
    </message>
    <message>
        <source>&amp;Clouds</source>
        <translation>Wol&amp;ken</translation>
    </message>
    <message>
        <source>Clouds in percent</source>
        <translation>Wolken in Prozent</translation>
    </message>
    <message>
        <source>%1 %</source>
        <translation>%1&#xa0;%</translation>
    </message>
    <message>
        <source>&amp;Moon</source>
        <translation>&amp;Mond</translation>
    </message>
    <message>
        <source>Glow of the moon in percent</source>
        <translation>Mondlicht in Prozent</translation>
    </message>
    <message>
        <source>&amp;Seeing</source>
        <translation>&amp;Seeing</translation>
    </message>
    <message>
        <source>Seeing in seconds of arc</source>
        <translation>Seeing in Bogensekunden</translation>
    </message>
    <message>
        <source>%1″</source>
        <translation>%1″</translation>
    </message>
    <message>
        <source>&amp;Passing</source>
        <translation>Dur&amp;chzug</translation>
    </message>
    <message>
        <source>Clouds come and go</source>
        <translation>Wolken kommen und gehen</translation>
    </message>
    <message>
        <source>Re&amp;fraction</source>
        <translation>&amp;Refraktion</translation>
    </message>
    <message>
        <source>Camera</source>
        <translation>Kamera</translation>
    </message>
    <message>
        <source>&amp;Unplugged</source>
        <translation>Kabel &amp;gezogen</translation>
    </message>
    <message>
        <source>Slo&amp;w USB</source>
        <translation>Langsames &amp;USB</translation>
    </message>
    <message>
        <source>Altitude and azimuth bolts: turns</source>
        <translation>Polhöhe und Azimut: Umdrehungen</translation>
    </message>
    <message>
        <source>&amp;New exercise</source>
        <translation>Neue &amp;Übung</translation>
    </message>
    <message>
        <source>Turns the bolts and the camera at random, to start again from there</source>
        <translation>Verstellt Schrauben und Kamera zufällig, um von dort neu zu beginnen</translation>
    </message>
    <message>
        <source>Error of the star angles</source>
        <translation>Fehler der Sternwinkel</translation>
    </message>
    <message>
        <source>The age of the star angles (%1) alone makes %2.</source>
        <translation>Allein das Alter der Sternwinkel (%1) macht %2 aus.</translation>
    </message>
    <message>
        <source>The mount is already aligned.
“New exercise” moves it away from the pole.</source>
        <translation>Die Montierung ist schon auf den Pol ausgerichtet.
„Neue Übung“ rückt sie vom Pol weg.</translation>
    </message>
    <message>
        <source>West ▶</source>
        <translation>West ▶</translation>
    </message>
    <message>
        <source>◀ East</source>
        <translation>◀ Ost</translation>
    </message>
</context>
</TS>
