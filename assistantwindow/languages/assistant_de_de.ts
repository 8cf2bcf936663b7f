<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<TS version="2.1" language="de_DE" sourcelanguage="en_US">
<context>
    <name>Advice</name>
    <message>
        <source>Point the camera at the pole and press Connect.</source>
        <translation>Richten Sie die Kamera auf den Pol und drücken Sie „Verbinden“.</translation>
    </message>
    <message>
        <source>No camera was found. Plug it in: the search goes on.</source>
        <translation>Keine Kamera gefunden. Schließen Sie sie an: Die Suche geht weiter.</translation>
    </message>
    <message>
        <source>The camera library cannot be used: %1</source>
        <translation>Die Kamerabibliothek ist nicht verwendbar: %1</translation>
    </message>
    <message>
        <source>The camera %1 cannot be opened. It is tried again.</source>
        <translation>Die Kamera %1 lässt sich nicht öffnen. Es wird weiter versucht.</translation>
    </message>
    <message>
        <source>No picture for %1 s. Check the camera’s cable.</source>
        <translation>Seit %1 s kein Bild. Prüfen Sie das Kabel der Kamera.</translation>
    </message>
    <message>
        <source>The camera has not answered for %1 s. Plug it in again.</source>
        <translation>Die Kamera antwortet seit %1 s nicht. Stecken Sie sie neu ein.</translation>
    </message>
    <message>
        <source>Looking for the stars at the pole …</source>
        <translation>Die Sterne am Pol werden gesucht …</translation>
    </message>
    <message>
        <source>No light at all. Take the cover off the lens.</source>
        <translation>Gar kein Licht. Nehmen Sie den Deckel vom Objektiv.</translation>
    </message>
    <message>
        <source>Too few stars (%1). Expose longer.</source>
        <translation>Zu wenige Sterne (%1). Belichten Sie länger.</translation>
    </message>
    <message>
        <source>The picture is too bright. Expose shorter.</source>
        <translation>Das Bild ist zu hell. Belichten Sie kürzer.</translation>
    </message>
    <message>
        <source>This is not the night sky. Point the camera at the pole.</source>
        <translation>Das ist nicht der Nachthimmel. Richten Sie die Kamera auf den Pol.</translation>
    </message>
    <message>
        <source>The stars are %1 pixels wide. Focus the lens.</source>
        <translation>Die Sterne sind %1 Pixel breit. Stellen Sie das Objektiv scharf.</translation>
    </message>
    <message>
        <source>The stars are trailed. Let the mount come to rest.</source>
        <translation>Die Sterne sind Striche. Lassen Sie die Montierung zur Ruhe kommen.</translation>
    </message>
    <message>
        <source>Too few stars: clouds? It goes on when they are back.</source>
        <translation>Zu wenige Sterne: Wolken? Sobald sie zurück sind, geht es weiter.</translation>
    </message>
    <message>
        <source>%1 stars, but not those at the pole. Point the mount at it.</source>
        <translation>%1 Sterne, aber nicht die am Pol. Richten Sie die Montierung dorthin.</translation>
    </message>
    <message>
        <source>The pole is %1° outside the picture. Follow the arrow.</source>
        <translation>Der Pol liegt %1° außerhalb des Bildes. Folgen Sie dem Pfeil.</translation>
    </message>
    <message>
        <source>These stars are of the other hemisphere. Check the latitude.</source>
        <translation>Diese Sterne gehören zur anderen Halbkugel. Prüfen Sie die Breite.</translation>
    </message>
    <message>
        <source>The computer’s clock may be wrong. Check date and time.</source>
        <translation>Die Uhr des Rechners geht vielleicht falsch. Prüfen Sie Datum und Zeit.</translation>
    </message>
    <message>
        <source>The computer’s clock is behind. Set date and time.</source>
        <translation>Die Uhr des Rechners geht nach. Stellen Sie Datum und Zeit.</translation>
    </message>
    <message>
        <source>The clock was set by %1 s. Check date and time.</source>
        <translation>Die Uhr wurde um %1 s verstellt. Prüfen Sie Datum und Zeit.</translation>
    </message>
    <message>
        <source>Turn the RA axis, either way.</source>
        <translation>Drehen Sie die RA-Achse, gleich in welche Richtung.</translation>
    </message>
    <message>
        <source>Turn the RA axis further: %1 so far.</source>
        <translation>Drehen Sie die RA-Achse weiter: bisher %1.</translation>
    </message>
    <message>
        <source>Enough: the axis is known to %1. Now turn the bolts.</source>
        <translation>Genug: Die Achse ist auf %1 bekannt. Drehen Sie nun die Schrauben.</translation>
    </message>
    <message>
        <source>The mount was moved. Turn the RA axis once more.</source>
        <translation>Die Montierung wurde bewegt. Drehen Sie die RA-Achse noch einmal.</translation>
    </message>
    <message>
        <source>The camera slipped on the axis. Turn the RA axis once more.</source>
        <translation>Die Kamera ist verrutscht. Drehen Sie die RA-Achse noch einmal.</translation>
    </message>
    <message>
        <source>Turn the bolts as the arrows say: %1 to go.</source>
        <translation>Drehen Sie die Schrauben, wie die Pfeile zeigen: noch %1.</translation>
    </message>
    <message>
        <source>Nearly there. Turn the bolts a little at a time.</source>
        <translation>Fast am Ziel. Drehen Sie die Schrauben nur noch wenig.</translation>
    </message>
    <message>
        <source>Aligned. Tighten the bolts and watch the number.</source>
        <translation>Ausgerichtet. Ziehen Sie die Schrauben fest und beachten Sie die Zahl.</translation>
    </message>
    <message>
        <source>Enter the site to see which way each bolt must go.</source>
        <translation>Geben Sie den Ort ein, um die Richtung jeder Schraube zu sehen.</translation>
    </message>
    <message>
        <source>So near to the Earth’s pole, follow the arrow in the picture.</source>
        <translation>So nahe am Pol der Erde gilt der Pfeil im Bild.</translation>
    </message>
    <message>
        <source>Recording stopped: the folder %1 cannot be written.</source>
        <translation>Aufzeichnung beendet: Der Ordner %1 ist nicht beschreibbar.</translation>
    </message>
    <message>
        <source>The recording reached its limit and stopped.</source>
        <translation>Die Aufzeichnung hat ihre Grenze erreicht und ist beendet.</translation>
    </message>
    <message>
        <source>Turn the bolts until the arrow is gone: %1 to go.</source>
        <translation>Drehen Sie die Schrauben, bis der Pfeil verschwindet: noch %1.</translation>
    </message>
    <message>
        <source>The camera library cannot be used.</source>
        <translation>Die Kamerabibliothek ist nicht verwendbar.</translation>
    </message>
    <message>
        <source>Each minute that it is off turns altitude and azimuth by 0.25° about the pole; the total error hardly changes.</source>
        <translation>Jede Minute, die sie falsch geht, dreht Polhöhe und Azimut um 0,25° um den Pol; der Gesamtfehler ändert sich kaum.</translation>
    </message>
</context>
<context>
    <name>Aim</name>
    <message>
        <source>pole as the air shows it</source>
        <translation>Pol, wie ihn die Luft zeigt</translation>
    </message>
    <message>
        <source>true pole, no refraction</source>
        <translation>wahrer Pol, ohne Refraktion</translation>
    </message>
    <message>
        <source>true pole, refraction at %1 hPa, %2 °C</source>
        <translation>wahrer Pol, Refraktion bei %1 hPa, %2 °C</translation>
    </message>
    <message>
        <source>refracted pole, at %1 hPa, %2 °C</source>
        <translation>refraktierter Pol, bei %1 hPa, %2 °C</translation>
    </message>
</context>
<context>
    <name>AssistantWindow</name>
    <message>
        <source>Quorvandel Assistant</source>
        <extracomment>The window&apos;s title</extracomment>
        <translation>Quorvandel-Assistent</translation>
    </message>
</context>
<context>
    <name>Bolts</name>
    <message>
        <source>up</source>
        <translation>aufwärts</translation>
    </message>
    <message>
        <source>down</source>
        <translation>abwärts</translation>
    </message>
    <message>
        <source>east</source>
        <translation>Osten</translation>
    </message>
    <message>
        <source>west</source>
        <translation>Westen</translation>
    </message>
    <message>
        <source>good</source>
        <translation>gut</translation>
    </message>
</context>
<context>
    <name>Display</name>
    <message>
        <source>Stars recognised: %1 of %2</source>
        <translation>Erkannte Sterne: %1 von %2</translation>
    </message>
    <message>
        <source>Width of the stars: %1 pixels</source>
        <translation>Breite der Sterne: %1 Pixel</translation>
    </message>
    <message>
        <source>Aimed at: %1</source>
        <extracomment>Before a text such as: true pole, no refraction</extracomment>
        <translation>Ziel: %1</translation>
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
        <translation>Zurück</translation>
    </message>
</context>
<context>
    <name>MainPage</name>
    <message>
        <source>Disconnect</source>
        <translation>Trennen</translation>
    </message>
    <message>
        <source>Connect</source>
        <translation>Verbinden</translation>
    </message>
    <message>
        <source>Start again</source>
        <translation>Neu beginnen</translation>
    </message>
    <message>
        <source>Camera</source>
        <translation>Kamera</translation>
    </message>
    <message>
        <source>Exposure</source>
        <translation>Belichtung</translation>
    </message>
    <message>
        <source>Automatic</source>
        <translation>Automatik</translation>
    </message>
    <message>
        <source>Total error</source>
        <translation>Gesamtfehler</translation>
    </message>
    <message>
        <source>Altitude</source>
        <translation>Polhöhe</translation>
    </message>
    <message>
        <source>Azimuth</source>
        <translation>Azimut</translation>
    </message>
    <message>
        <source>Enter the site</source>
        <translation>Ort eingeben</translation>
    </message>
    <message>
        <source>Turn the bolts until the arrow in the picture is gone. With the site, the assistant says which way each bolt must go.</source>
        <translation>Drehen Sie die Schrauben, bis der Pfeil im Bild verschwindet. Mit dem Ort nennt der Assistent die Richtung jeder Schraube.</translation>
    </message>
    <message>
        <source>The camera must see the pole; it need not be in the middle.</source>
        <translation>Die Kamera muss den Pol sehen, aber nicht in der Mitte.</translation>
    </message>
    <message>
        <source>Report</source>
        <translation>Bericht</translation>
    </message>
    <message>
        <source>Settings</source>
        <translation>Einstellungen</translation>
    </message>
    <message>
        <source>Large view</source>
        <translation>Große Anzeige</translation>
    </message>
    <message>
        <source>Live picture; a tap opens the large view</source>
        <translation>Livebild; Antippen öffnet die große Anzeige</translation>
    </message>
    <message>
        <source>%1 are enough, %2 if the axis is then known to %3. Further turning makes it more exact.</source>
        <translation>%1 genügen, %2, wenn die Achse dann auf %3 bekannt ist. Weiteres Drehen macht sie genauer.</translation>
    </message>
</context>
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
</context>
<context>
    <name>Report</name>
    <message>
        <source>%1 an hour</source>
        <translation>%1 je Stunde</translation>
    </message>
    <message>
        <source>Error before</source>
        <translation>Fehler vorher</translation>
    </message>
    <message>
        <source>Error now</source>
        <translation>Fehler jetzt</translation>
    </message>
    <message>
        <source>in altitude</source>
        <translation>in Polhöhe</translation>
    </message>
    <message>
        <source>in azimuth</source>
        <translation>im Azimut</translation>
    </message>
    <message>
        <source>Time taken</source>
        <translation>Dauer</translation>
    </message>
    <message>
        <source>Polar alignment</source>
        <translation>Polausrichtung</translation>
    </message>
    <message>
        <source>Aimed at</source>
        <translation>Ziel</translation>
    </message>
    <message>
        <source>Drift in declination, anywhere, at most</source>
        <translation>Drift in Deklination, überall, höchstens</translation>
    </message>
    <message>
        <source>Angle of field rotation at most, at the equator and at declination 60°</source>
        <translation>Winkel der Bildfelddrehung höchstens, am Äquator und bei Deklination 60°</translation>
    </message>
    <message>
        <source>Date and site</source>
        <translation>Datum und Ort</translation>
    </message>
    <message>
        <source>axis %1 above the pole</source>
        <translation>Achse %1 über dem Pol</translation>
    </message>
    <message>
        <source>axis %1 below the pole</source>
        <translation>Achse %1 unter dem Pol</translation>
    </message>
    <message>
        <source>axis %1 east of the pole</source>
        <translation>Achse %1 östlich des Pols</translation>
    </message>
    <message>
        <source>axis %1 west of the pole</source>
        <translation>Achse %1 westlich des Pols</translation>
    </message>
</context>
<context>
    <name>ReportPage</name>
    <message>
        <source>The folder cannot be made.</source>
        <translation>Der Ordner lässt sich nicht anlegen.</translation>
    </message>
    <message>
        <source>Saved: %1</source>
        <translation>Gespeichert: %1</translation>
    </message>
    <message>
        <source>Not saved: %1 The report is still here.</source>
        <translation>Nicht gespeichert: %1 Der Bericht ist noch da.</translation>
    </message>
    <message>
        <source>Report</source>
        <translation>Bericht</translation>
    </message>
    <message>
        <source>Back</source>
        <translation>Zurück</translation>
    </message>
    <message>
        <source>Folder</source>
        <translation>Ordner</translation>
    </message>
    <message>
        <source>Save picture</source>
        <translation>Bild speichern</translation>
    </message>
    <message>
        <source>Save table</source>
        <translation>Tabelle speichern</translation>
    </message>
</context>
<context>
    <name>SettingsPage</name>
    <message>
        <source>Settings</source>
        <translation>Einstellungen</translation>
    </message>
    <message>
        <source>Back</source>
        <translation>Zurück</translation>
    </message>
    <message>
        <source>Site</source>
        <translation>Ort</translation>
    </message>
    <message>
        <source>Pole</source>
        <translation>Pol</translation>
    </message>
    <message>
        <source>Night and sound</source>
        <translation>Nacht und Ton</translation>
    </message>
    <message>
        <source>Recording</source>
        <translation>Aufzeichnung</translation>
    </message>
    <message>
        <source>Language</source>
        <translation>Sprache</translation>
    </message>
    <message>
        <source>True pole</source>
        <translation>Wahrer Pol</translation>
    </message>
    <message>
        <source>The Earth’s own axis: best for long exposures all over the sky.</source>
        <translation>Die Achse der Erde selbst: am besten für lange Belichtungen am ganzen Himmel.</translation>
    </message>
    <message>
        <source>Refracted pole</source>
        <translation>Refraktierter Pol</translation>
    </message>
    <message>
        <source>Where the air shows the pole: best for long exposures near the pole.</source>
        <translation>Wo die Luft den Pol zeigt: am besten für lange Belichtungen nahe am Pol.</translation>
    </message>
    <message>
        <source>Air pressure, hPa</source>
        <translation>Luftdruck, hPa</translation>
    </message>
    <message>
        <source>Temperature, °C</source>
        <translation>Temperatur, °C</translation>
    </message>
    <message>
        <source>Red light only</source>
        <translation>Nur rotes Licht</translation>
    </message>
    <message>
        <source>Keeps eyes used to the dark: the window emits no green and no blue.</source>
        <translation>Schont Augen, die an das Dunkel gewöhnt sind: kein Grün und kein Blau.</translation>
    </message>
    <message>
        <source>Sound</source>
        <translation>Ton</translation>
    </message>
    <message>
        <source>Pulses come faster as the error shrinks; a steady tone at the goal.</source>
        <translation>Die Töne folgen schneller, je kleiner der Fehler; am Ziel ein Dauerton.</translation>
    </message>
    <message>
        <source>Speech</source>
        <translation>Sprachausgabe</translation>
    </message>
    <message>
        <source>Says which bolt to turn, and how far.</source>
        <translation>Sagt, welche Schraube wie weit zu drehen ist.</translation>
    </message>
    <message>
        <source>Speech is not available on this computer.</source>
        <translation>Sprachausgabe ist auf diesem Rechner nicht verfügbar.</translation>
    </message>
    <message>
        <source>Goal: aligned below</source>
        <translation>Ziel: ausgerichtet unter</translation>
    </message>
    <message>
        <source>Record the frames</source>
        <translation>Bilder aufzeichnen</translation>
    </message>
    <message>
        <source>Saves at most one frame a second as a FITS file, for a report of a fault.</source>
        <translation>Speichert höchstens ein Bild pro Sekunde als FITS-Datei, um einen Fehler zu melden.</translation>
    </message>
    <message>
        <source>Folder</source>
        <translation>Ordner</translation>
    </message>
    <message>
        <source>Limit of disk space, MB</source>
        <translation>Höchstens belegter Platz, MB</translation>
    </message>
    <message>
        <source>Air pressure, hPa (0: no refraction)</source>
        <translation>Luftdruck, hPa (0: keine Refraktion)</translation>
    </message>
</context>
<context>
    <name>SitePanel</name>
    <message>
        <source>With the site, the assistant says which way each bolt must go.</source>
        <translation>Mit dem Ort nennt der Assistent die Richtung jeder Schraube.</translation>
    </message>
    <message>
        <source>Latitude: north positive, or N, S</source>
        <translation>Breite: Nord positiv, oder N, S</translation>
    </message>
    <message>
        <source>Longitude: east positive, or E, W</source>
        <translation>Länge: Ost positiv, oder E, W</translation>
    </message>
</context>
<context>
    <name>SkyPicture</name>
    <message>
        <source>Do not show this again until the next start</source>
        <translation>Bis zum nächsten Start nicht mehr zeigen</translation>
    </message>
</context>
<context>
    <name>Speech</name>
    <message>
        <source>1 degree</source>
        <translation>1 Grad</translation>
    </message>
    <message numerus="yes">
        <source>%n degrees</source>
        <translation>
            <numerusform>%n Grad</numerusform>
            <numerusform>%n Grad</numerusform>
        </translation>
    </message>
    <message>
        <source>1 minute</source>
        <translation>1 Minute</translation>
    </message>
    <message numerus="yes">
        <source>%n minutes</source>
        <translation>
            <numerusform>%n Minute</numerusform>
            <numerusform>%n Minuten</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%n seconds</source>
        <translation>
            <numerusform>%n Sekunde</numerusform>
            <numerusform>%n Sekunden</numerusform>
        </translation>
    </message>
    <message>
        <source>aligned</source>
        <translation>ausgerichtet</translation>
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
        <translation>Himmel</translation>
    </message>
    <message>
        <source>Axis</source>
        <translation>Achse</translation>
    </message>
    <message>
        <source>Bolts</source>
        <translation>Schrauben</translation>
    </message>
    <message>
        <source>Camera</source>
        <translation>Kamera</translation>
    </message>
</context>
</TS>
