<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<TS version="2.1" language="de_DE" sourcelanguage="en_US">
<context>
    <name>AboutDialog</name>
    <message>
        <source>About</source>
        <translation>Über Quorvandel</translation>
    </message>
    <message>
        <source>Quorvandel V1.3.2.6, release 2016-08-10</source>
        <translation>Quorvandel V1.3.2.6, release 2016-08-10</translation>
    </message>
    <message>
        <source>© 2021 Quorvandel. All rights reserved.</source>
        <translation>© 2021 Quorvandel. Alle Rechte vorbehalten.</translation>
    </message>
    <message>
        <source>Web site</source>
        <translation>Website</translation>
    </message>
    <message>
        <source>OK</source>
        <translation>OK</translation>
    </message>
    <message>
        <source>English translation by the makers of Quorvandel.</source>
        <translation>Deutsche Übersetzung vom Quorvandel-Team.</translation>
    </message>
</context>
<context>
    <name>AstroRefractionDialog</name>
    <message>
        <source>Astronomical Refraction</source>
        <translation>Atmosphärische Refraktion</translation>
    </message>
    <message>
        <source>Latitude</source>
        <translation>Breite</translation>
    </message>
    <message>
        <source>Latitude in degrees</source>
        <translation>Geografische Breite in Grad</translation>
    </message>
    <message>
        <source>Longitude</source>
        <translation>Länge</translation>
    </message>
    <message>
        <source>Longitude in degrees</source>
        <translation>Geografische Länge in Grad</translation>
    </message>
    <message>
        <source>Unit of pressure</source>
        <translation>Druckeinheit</translation>
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
        <translation>Luftdruck</translation>
    </message>
    <message>
        <source>T(℃)</source>
        <translation>T (°C)</translation>
    </message>
    <message>
        <source>Air temperature in degrees Celsius</source>
        <translation>Lufttemperatur in Grad Celsius</translation>
    </message>
    <message>
        <source>Enable Astronomical Refraction Correction</source>
        <translation>Atmosphärische Refraktion korrigieren</translation>
    </message>
</context>
<context>
    <name>FavoriteDialog</name>
    <message>
        <source>Favorite</source>
        <translation>Favoriten</translation>
    </message>
    <message>
        <source>Play Music</source>
        <translation>Musik abspielen</translation>
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
        <translation>Hemisphäre wählen</translation>
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
        <source>Quorvandel Setting</source>
        <translation>Quorvandel-Einstellungen</translation>
    </message>
    <message>
        <source>Exp(ms)</source>
        <translation>Bel. (ms)</translation>
    </message>
    <message>
        <source>Exposure in milliseconds</source>
        <translation>Belichtungszeit in Millisekunden</translation>
    </message>
    <message>
        <source>Gain</source>
        <translation>Gain</translation>
    </message>
    <message>
        <source>Traffic</source>
        <translation>Traffic</translation>
    </message>
    <message>
        <source>USB traffic</source>
        <translation>USB-Traffic</translation>
    </message>
    <message>
        <source>Speed</source>
        <translation>Geschw.</translation>
    </message>
    <message>
        <source>Confirm Polaris/σ Oct</source>
        <translation>Polaris/σ Oct bestätigen</translation>
    </message>
    <message>
        <source>Matching Template</source>
        <translation>Schablone anpassen</translation>
    </message>
    <message>
        <source>Rotate</source>
        <translation>Drehen</translation>
    </message>
    <message>
        <source>Turn the template back by one degree</source>
        <translation>Schablone um ein Grad zurückdrehen</translation>
    </message>
    <message>
        <source>-</source>
        <translation>-</translation>
    </message>
    <message>
        <source>Template angle in degrees</source>
        <translation>Drehwinkel der Schablone in Grad</translation>
    </message>
    <message>
        <source>Turn the template on by one degree</source>
        <translation>Schablone um ein Grad weiterdrehen</translation>
    </message>
    <message>
        <source>+</source>
        <translation>+</translation>
    </message>
    <message>
        <source>Rough Pole</source>
        <translation>Grobe Polausrichtung</translation>
    </message>
    <message>
        <source>Axis Center</source>
        <translation>Achsmittelpunkt</translation>
    </message>
    <message>
        <source>Chose the same star every times</source>
        <translation>Jedes Mal denselben Stern wählen</translation>
    </message>
    <message>
        <source>Lamp of star position 1</source>
        <translation>Anzeige Sternposition 1</translation>
    </message>
    <message>
        <source>Star Pos 1</source>
        <translation>Position 1</translation>
    </message>
    <message>
        <source>Lamp of star position 2</source>
        <translation>Anzeige Sternposition 2</translation>
    </message>
    <message>
        <source>Star Pos 2</source>
        <translation>Position 2</translation>
    </message>
    <message>
        <source>Lamp of star position 3</source>
        <translation>Anzeige Sternposition 3</translation>
    </message>
    <message>
        <source>Star Pos 3</source>
        <translation>Position 3</translation>
    </message>
    <message>
        <source>Axis:</source>
        <translation>Achse:</translation>
    </message>
    <message>
        <source>(0,0)</source>
        <translation>(0,0)</translation>
    </message>
    <message>
        <source>Current Polaris/σ Oct</source>
        <translation>Polaris/σ Oct (Ist)</translation>
    </message>
    <message>
        <source>Expected Polaris/σ Oct</source>
        <translation>Polaris/σ Oct (Soll)</translation>
    </message>
    <message>
        <source>Precise Pole</source>
        <translation>Feine Polausrichtung</translation>
    </message>
    <message>
        <source>Pole:</source>
        <translation>Pol:</translation>
    </message>
    <message>
        <source>Mark of the pole</source>
        <translation>Polmarke</translation>
    </message>
    <message>
        <source>Mark of the axis</source>
        <translation>Achsmarke</translation>
    </message>
    <message>
        <source>Enlarged picture of the pole star</source>
        <translation>Vergrößertes Bild des Polsterns</translation>
    </message>
    <message>
        <source>roiBigger_image</source>
        <translation>Vergrößertes Bild</translation>
    </message>
    <message>
        <source>Monitor Pole</source>
        <translation>Polüberwachung</translation>
    </message>
    <message>
        <source>Reference Star A</source>
        <translation>Referenzstern A</translation>
    </message>
    <message>
        <source>Position:</source>
        <translation>Position:</translation>
    </message>
    <message>
        <source>Reference Star B</source>
        <translation>Referenzstern B</translation>
    </message>
    <message>
        <source>Start Monitor</source>
        <translation>Überwachung starten</translation>
    </message>
    <message>
        <source>Live picture</source>
        <translation>Livebild</translation>
    </message>
    <message>
        <source>Star template</source>
        <translation>Sternschablone</translation>
    </message>
    <message>
        <source>template_image</source>
        <translation>Schablonenbild</translation>
    </message>
    <message>
        <source>File</source>
        <translation>Datei</translation>
    </message>
    <message>
        <source>Device</source>
        <translation>Gerät</translation>
    </message>
    <message>
        <source>Tools</source>
        <translation>Werkzeuge</translation>
    </message>
    <message>
        <source>Zoom</source>
        <translation>Zoom</translation>
    </message>
    <message>
        <source>Language</source>
        <translation>Sprache</translation>
    </message>
    <message>
        <source>Help</source>
        <translation>Hilfe</translation>
    </message>
    <message>
        <source>Save As...</source>
        <translation>Speichern unter...</translation>
    </message>
    <message>
        <source>Exit</source>
        <translation>Beenden</translation>
    </message>
    <message>
        <source>Connect</source>
        <translation>Verbinden</translation>
    </message>
    <message>
        <source>Display Template</source>
        <translation>Schablone anzeigen</translation>
    </message>
    <message>
        <source>Mono Style</source>
        <translation>Monochromer Stil</translation>
    </message>
    <message>
        <source>Stretch</source>
        <translation>Strecken</translation>
    </message>
    <message>
        <source>Astronomical Refraction</source>
        <translation>Atmosphärische Refraktion</translation>
    </message>
    <message>
        <source>Manual Trace</source>
        <translation>Pol manuell verfolgen</translation>
    </message>
    <message>
        <source>Unfreeze</source>
        <translation>Auftauen</translation>
    </message>
    <message>
        <source>Favorite</source>
        <translation>Favoriten</translation>
    </message>
    <message>
        <source>100%</source>
        <translation>100&#xa0;%</translation>
    </message>
    <message>
        <source>75%</source>
        <translation>75&#xa0;%</translation>
    </message>
    <message>
        <source>50%</source>
        <translation>50&#xa0;%</translation>
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
        <translation>Quorvandel-Handbuch</translation>
    </message>
    <message>
        <source>About</source>
        <translation>Über Quorvandel</translation>
    </message>
    <message>
        <source>Disconnect</source>
        <translation>Trennen</translation>
    </message>
    <message>
        <source>Info</source>
        <translation>Information</translation>
    </message>
    <message>
        <source>Not Found VELDIX Quorvandel equipment!</source>
        <translation>Es wurde kein Gerät vom Typ VELDIX Quorvandel gefunden!</translation>
    </message>
    <message>
        <source>Error</source>
        <translation>Fehler</translation>
    </message>
    <message>
        <source>Can not connect Quorvandel as OpenVELDIX error!</source>
        <translation>Quorvandel kann nicht verbunden werden: OpenVELDIX-Fehler!</translation>
    </message>
    <message>
        <source>Can not connect Quorvandel as InitVELDIX error!</source>
        <translation>Quorvandel kann nicht verbunden werden: InitVELDIX-Fehler!</translation>
    </message>
    <message>
        <source>Warn</source>
        <translation>Warnung</translation>
    </message>
    <message>
        <source>Seems no star in this point, please try other point.</source>
        <translation>An dieser Stelle scheint kein Stern zu sein. Bitte versuchen Sie es an einer anderen Stelle.</translation>
    </message>
    <message>
        <source>Can not get the Axis center, please click &apos;reset&apos; to re-find it.</source>
        <translation>Der Achsmittelpunkt konnte nicht bestimmt werden. Bitte klicken Sie auf „Zurücksetzen“, um ihn neu zu ermitteln.</translation>
    </message>
    <message>
        <source>Save</source>
        <translation>Speichern</translation>
    </message>
    <message>
        <source>Question</source>
        <translation>Frage</translation>
    </message>
    <message>
        <source>Would you like to use the &apos;Axis center position&apos; recorded last time you used Quorvandel ?</source>
        <translation>Möchten Sie die Position des Achsmittelpunkts verwenden, die bei der letzten Benutzung von Quorvandel gespeichert wurde?</translation>
    </message>
    <message>
        <source>Set the parameters to the left to make more stars around Polaris visable.</source>
        <translation>Stellen Sie die Parameter links so ein, dass mehr Sterne rund um Polaris sichtbar werden.</translation>
    </message>
    <message>
        <source>Set the parameters to the left to make more stars around σ Oct visable.</source>
        <translation>Stellen Sie die Parameter links so ein, dass mehr Sterne rund um σ Oct sichtbar werden.</translation>
    </message>
    <message>
        <source>Has setting up finished?</source>
        <translation>Sind die Einstellungen abgeschlossen?</translation>
    </message>
    <message>
        <source>Setting Finished</source>
        <translation>Fertig eingestellt</translation>
    </message>
    <message>
        <source>Double Click Polaris and use the &apos;Rotate&apos; slider on the left to rotate the Template to match up to the stars around Polaris.</source>
        <translation>Doppelklicken Sie auf Polaris und drehen Sie die Schablone mit dem Schieberegler „Drehen“ links, bis sie mit den Sternen rund um Polaris übereinstimmt.</translation>
    </message>
    <message>
        <source>Double Click σ Oct and use the &apos;Rotate&apos; slider on the left to rotate the Template to match up to the stars around σ Oct.</source>
        <translation>Doppelklicken Sie auf σ Oct und drehen Sie die Schablone mit dem Schieberegler „Drehen“ links, bis sie mit den Sternen rund um σ Oct übereinstimmt.</translation>
    </message>
    <message>
        <source>Does match success?</source>
        <translation>Passt die Schablone?</translation>
    </message>
    <message>
        <source>Success</source>
        <translation>Schablone passt</translation>
    </message>
    <message>
        <source>Choose a star other than Polaris and Double click it in the image. Remember this star, you will be selecting it again in the following steps (Step 1 of 3).</source>
        <translation>Wählen Sie einen anderen Stern als Polaris und doppelklicken Sie im Bild darauf. Merken Sie sich diesen Stern, denn in den folgenden Schritten wählen Sie ihn erneut (Schritt 1 von 3).</translation>
    </message>
    <message>
        <source>Choose a star other than σ Oct and Double click it in the image. Remember this star, you will be selecting it again in the following steps (Step 1 of 3).</source>
        <translation>Wählen Sie einen anderen Stern als σ Oct und doppelklicken Sie im Bild darauf. Merken Sie sich diesen Stern, denn in den folgenden Schritten wählen Sie ihn erneut (Schritt 1 von 3).</translation>
    </message>
    <message>
        <source>Rotate your mounts &apos;RA&apos; axis in the direction indicated by the arrow now at the top of the screen (rotate a minimum of 30 degree&apos;s).</source>
        <translation>Drehen Sie die RA-Achse Ihrer Montierung in die Richtung, die der Pfeil oben im Bild anzeigt (um mindestens 30 Grad).</translation>
    </message>
    <message>
        <source>Has rotation finished?</source>
        <translation>Ist die Drehung beendet?</translation>
    </message>
    <message>
        <source>Reset</source>
        <translation>Zurücksetzen</translation>
    </message>
    <message>
        <source>rotation Finished</source>
        <translation>Drehung beendet</translation>
    </message>
    <message>
        <source>Double click the same star again chosen in the previous step (Step 2 of 3).</source>
        <translation>Doppelklicken Sie erneut auf den Stern, den Sie im vorigen Schritt gewählt haben (Schritt 2 von 3).</translation>
    </message>
    <message>
        <source>Again, Rotate your mounts &apos;RA&apos; axis in the same direction at least 30 degrees.</source>
        <translation>Drehen Sie die RA-Achse Ihrer Montierung noch einmal um mindestens 30 Grad in dieselbe Richtung.</translation>
    </message>
    <message>
        <source>Double click the same star one last time chosen in the previous 2 steps (Step 3 of 3).</source>
        <translation>Doppelklicken Sie ein letztes Mal auf den Stern, den Sie in den beiden vorigen Schritten gewählt haben (Schritt 3 von 3).</translation>
    </message>
    <message>
        <source>Return the &apos;RA&apos; axis to the &apos;Home&apos; position - Ensure your chosen star stays on the circle while your mount rotates to the PARK position.</source>
        <translation>Drehen Sie die RA-Achse zurück in die Home-Position. Achten Sie darauf, dass der gewählte Stern auf dem Kreis bleibt, während die Montierung in die Parkposition fährt.</translation>
    </message>
    <message>
        <source>Is the axis center correct?</source>
        <translation>Ist der Achsmittelpunkt richtig?</translation>
    </message>
    <message>
        <source>Correct</source>
        <translation>Richtig</translation>
    </message>
    <message>
        <source>Expected position: Double Click Polaris and use the &apos;Rotate&apos; slider on the left to rotate the Template to match up to the stars around Polaris.</source>
        <translation>Sollposition: Doppelklicken Sie auf Polaris und drehen Sie die Schablone mit dem Schieberegler „Drehen“ links, bis sie mit den Sternen rund um Polaris übereinstimmt.</translation>
    </message>
    <message>
        <source>Expected position: Double Click σ Oct and use the &apos;Rotate&apos; slider on the left to rotate the Template to match up to the stars around σ Oct.</source>
        <translation>Sollposition: Doppelklicken Sie auf σ Oct und drehen Sie die Schablone mit dem Schieberegler „Drehen“ links, bis sie mit den Sternen rund um σ Oct übereinstimmt.</translation>
    </message>
    <message>
        <source>Using your Altitude and Azimuth bolts, move Polaris into the center of the small Rotating circle now shown on the image.</source>
        <translation>Bringen Sie Polaris mit den Polhöhen- und Azimutschrauben in die Mitte des kleinen rotierenden Kreises, der jetzt im Bild zu sehen ist.</translation>
    </message>
    <message>
        <source>Using your Altitude and Azimuth bolts, move σ Oct into the center of the small Rotating circle now shown on the image.</source>
        <translation>Bringen Sie σ Oct mit den Polhöhen- und Azimutschrauben in die Mitte des kleinen rotierenden Kreises, der jetzt im Bild zu sehen ist.</translation>
    </message>
    <message>
        <source>Has adjustment finished?</source>
        <translation>Ist die Justierung beendet?</translation>
    </message>
    <message>
        <source>adjustment Finished</source>
        <translation>Justierung beendet</translation>
    </message>
    <message>
        <source>Current position: Double Click Polaris and use the &apos;Rotate&apos; slider on the left to rotate the Template to match up to the stars around Polaris.</source>
        <translation>Istposition: Doppelklicken Sie auf Polaris und drehen Sie die Schablone mit dem Schieberegler „Drehen“ links, bis sie mit den Sternen rund um Polaris übereinstimmt.</translation>
    </message>
    <message>
        <source>Current position: Double Click σ Oct and use the &apos;Rotate&apos; slider on the left to rotate the Template to match up to the stars around σ Oct.</source>
        <translation>Istposition: Doppelklicken Sie auf σ Oct und drehen Sie die Schablone mit dem Schieberegler „Drehen“ links, bis sie mit den Sternen rund um σ Oct übereinstimmt.</translation>
    </message>
    <message>
        <source>Please click the &apos;Start Monitor&apos; button.</source>
        <translation>Bitte klicken Sie auf die Schaltfläche „Überwachung starten“.</translation>
    </message>
    <message>
        <source>Use your Altitude and Azimuth bolts only to move the Pole rectangle on top of the Axis circle.</source>
        <translation>Bringen Sie das Polrechteck mit dem Achskreis zur Deckung. Verwenden Sie dazu nur die Polhöhen- und Azimutschrauben.</translation>
    </message>
    <message>
        <source>Restart</source>
        <translation>Neu beginnen</translation>
    </message>
    <message>
        <source>Done</source>
        <translation>Fertig</translation>
    </message>
</context>
<context>
    <name>Notice</name>
    <message>
        <source>The camera library cannot be used: see the log.</source>
        <translation>Kamerabibliothek unbrauchbar: siehe Protokoll.</translation>
    </message>
    <message>
        <source>No camera is connected.</source>
        <translation>Es ist keine Kamera verbunden.</translation>
    </message>
    <message>
        <source>No picture for %1 s.</source>
        <translation>Seit %1 s kein Bild.</translation>
    </message>
    <message>
        <source>The zoom in the settings file shows no picture.</source>
        <translation>Der Zoom aus der Einstellungsdatei zeigt kein Bild.</translation>
    </message>
    <message>
        <source>No axis yet: pick one star at three RA angles first.</source>
        <translation>Noch keine Achse: zuerst einen Stern bei drei RA-Winkeln wählen.</translation>
    </message>
    <message>
        <source>Monitoring without an alignment: press &apos;Restart&apos;.</source>
        <translation>Überwachung ohne Polausrichtung: „Neu beginnen“ drücken.</translation>
    </message>
    <message>
        <source>The pole star was not double clicked.</source>
        <translation>Der Polstern wurde nicht doppelgeklickt.</translation>
    </message>
    <message>
        <source>The template was not placed on the pole star.</source>
        <translation>Die Schablone wurde nicht auf den Polstern gelegt.</translation>
    </message>
    <message>
        <source>Old place of the template: double click the pole star again.</source>
        <translation>Schablone liegt noch am alten Ort: Polstern erneut doppelklicken.</translation>
    </message>
    <message>
        <source>No star here.</source>
        <translation>Hier ist kein Stern.</translation>
    </message>
    <message>
        <source>No star here (pick %1 of 3).</source>
        <translation>Hier ist kein Stern (Auswahl %1 von 3).</translation>
    </message>
    <message>
        <source>Stars A and B lost.</source>
        <translation>Sterne A und B verloren.</translation>
    </message>
    <message>
        <source>Star A lost.</source>
        <translation>Stern A verloren.</translation>
    </message>
    <message>
        <source>Star B lost.</source>
        <translation>Stern B verloren.</translation>
    </message>
    <message>
        <source>The template does not fit: %1 of %2 rings hold a star.</source>
        <translation>Die Schablone passt nicht: Sterne in %1 von %2 Ringen.</translation>
    </message>
    <message>
        <source>The star moved by only %1 px between the picks.</source>
        <translation>Der Stern hat sich dazwischen nur um %1 px bewegt.</translation>
    </message>
    <message>
        <source>The axis turned by only %1° between the picks.</source>
        <translation>Die Achse wurde dazwischen nur um %1° gedreht.</translation>
    </message>
    <message>
        <source>The tracking dial still stands at %1°: reset it.</source>
        <translation>Der Drehregler steht noch auf %1°: bitte auf 0 stellen.</translation>
    </message>
    <message>
        <source>The ring lies under the magnifier.</source>
        <translation>Der rotierende Kreis liegt unter der Lupe.</translation>
    </message>
    <message>
        <source>Settings will not be kept: their file cannot be written.</source>
        <translation>Einstellungen gehen verloren: Datei nicht beschreibbar.</translation>
    </message>
    <message>
        <source>Settings will not be kept: Quorvandel.ini is not a file.</source>
        <translation>Einstellungen gehen verloren: Quorvandel.ini ist keine Datei.</translation>
    </message>
    <message>
        <source>Settings will not be kept: the disk is full.</source>
        <translation>Einstellungen gehen verloren: Datenträger voll.</translation>
    </message>
    <message>
        <source>Settings will not be kept: their folder cannot be written.</source>
        <translation>Einstellungen gehen verloren: Ordner nicht beschreibbar.</translation>
    </message>
</context>
<context>
    <name>PoleTrackingDialog</name>
    <message>
        <source>Pole Tracking</source>
        <translation>Polverfolgung</translation>
    </message>
    <message>
        <source>If the Pole was lost after used GOTO in the astrograph, then you can this to track.</source>
        <translation>Ging der Pol nach einem GOTO des Teleskops verloren, können Sie ihn hiermit wieder verfolgen.</translation>
    </message>
    <message>
        <source>Tracking:</source>
        <translation>Drehwinkel:</translation>
    </message>
    <message>
        <source>Turn back by one degree</source>
        <translation>Um ein Grad zurückdrehen</translation>
    </message>
    <message>
        <source>-</source>
        <translation>-</translation>
    </message>
    <message>
        <source>Tracking angle in degrees</source>
        <translation>Drehwinkel in Grad</translation>
    </message>
    <message>
        <source>Turn on by one degree</source>
        <translation>Um ein Grad weiterdrehen</translation>
    </message>
    <message>
        <source>+</source>
        <translation>+</translation>
    </message>
    <message>
        <source>Reset</source>
        <translation>Auf 0</translation>
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
    <name>QFileDialog</name>
    <message>
        <source>Look in:</source>
        <translation>Suchen in:</translation>
    </message>
    <message>
        <source>Directory:</source>
        <translation>Ordner:</translation>
    </message>
    <message>
        <source>File &amp;name:</source>
        <translation>Datei&amp;name:</translation>
    </message>
    <message>
        <source>Files of type:</source>
        <translation>Dateityp:</translation>
    </message>
    <message>
        <source>&amp;Save</source>
        <translation>&amp;Speichern</translation>
    </message>
    <message>
        <source>&amp;Open</source>
        <translation>&amp;Öffnen</translation>
    </message>
    <message>
        <source>Back</source>
        <translation>Zurück</translation>
    </message>
    <message>
        <source>Forward</source>
        <translation>Vor</translation>
    </message>
    <message>
        <source>Parent Directory</source>
        <translation>Übergeordneter Ordner</translation>
    </message>
    <message>
        <source>Create New Folder</source>
        <translation>Neuen Ordner erstellen</translation>
    </message>
    <message>
        <source>List View</source>
        <translation>Listenansicht</translation>
    </message>
    <message>
        <source>Detail View</source>
        <translation>Detailansicht</translation>
    </message>
    <message>
        <source>%1 already exists.
Do you want to replace it?</source>
        <translation>%1 ist bereits vorhanden.
Möchten Sie die Datei ersetzen?</translation>
    </message>
    <message>
        <source>Go back</source>
        <translation>Zurückgehen</translation>
    </message>
    <message>
        <source>Go forward</source>
        <translation>Vorwärtsgehen</translation>
    </message>
    <message>
        <source>Go to the parent directory</source>
        <translation>Zum übergeordneten Ordner wechseln</translation>
    </message>
    <message>
        <source>Create a New Folder</source>
        <translation>Einen neuen Ordner erstellen</translation>
    </message>
    <message>
        <source>Change to list view mode</source>
        <translation>Zur Listenansicht wechseln</translation>
    </message>
    <message>
        <source>Change to detail view mode</source>
        <translation>Zur Detailansicht wechseln</translation>
    </message>
    <message>
        <source>Sidebar</source>
        <translation>Seitenleiste</translation>
    </message>
    <message>
        <source>List of places and bookmarks</source>
        <translation>Liste der Orte und Lesezeichen</translation>
    </message>
    <message>
        <source>Files</source>
        <translation>Dateien</translation>
    </message>
    <message>
        <source>All Files (*)</source>
        <translation>Alle Dateien (*)</translation>
    </message>
    <message>
        <source>Show </source>
        <translation>Anzeigen: </translation>
    </message>
    <message>
        <source>&amp;Rename</source>
        <translation>&amp;Umbenennen</translation>
    </message>
    <message>
        <source>&amp;Delete</source>
        <translation>&amp;Löschen</translation>
    </message>
    <message>
        <source>Show &amp;hidden files</source>
        <translation>&amp;Versteckte Dateien anzeigen</translation>
    </message>
    <message>
        <source>&amp;New Folder</source>
        <translation>&amp;Neuer Ordner</translation>
    </message>
    <message>
        <source>New Folder</source>
        <translation>Neuer Ordner</translation>
    </message>
    <message>
        <source>Delete</source>
        <translation>Löschen</translation>
    </message>
    <message>
        <source>Are you sure you want to delete &apos;%1&apos;?</source>
        <translation>Möchten Sie „%1“ wirklich löschen?</translation>
    </message>
    <message>
        <source>&apos;%1&apos; is write protected.
Do you want to delete it anyway?</source>
        <translation>„%1“ ist schreibgeschützt.
Möchten Sie es trotzdem löschen?</translation>
    </message>
    <message>
        <source>Could not delete directory.</source>
        <translation>Der Ordner konnte nicht gelöscht werden.</translation>
    </message>
    <message>
        <source>Drive</source>
        <translation>Laufwerk</translation>
    </message>
    <message>
        <source>%1 File</source>
        <translation>%1-Datei</translation>
    </message>
    <message>
        <source>File</source>
        <translation>Datei</translation>
    </message>
    <message>
        <source>Folder</source>
        <translation>Ordner</translation>
    </message>
    <message>
        <source>Unknown</source>
        <translation>Unbekannt</translation>
    </message>
</context>
<context>
    <name>QFileSystemModel</name>
    <message>
        <source>Name</source>
        <translation>Name</translation>
    </message>
    <message>
        <source>Size</source>
        <translation>Größe</translation>
    </message>
    <message>
        <source>Computer</source>
        <translation>Computer</translation>
    </message>
    <message>
        <source>Date Modified</source>
        <translation>Änderungsdatum</translation>
    </message>
    <message>
        <source>Type</source>
        <translation>Typ</translation>
    </message>
    <message>
        <source>Invalid filename</source>
        <translation>Ungültiger Dateiname</translation>
    </message>
    <message>
        <source>&lt;b&gt;The name &quot;%1&quot; cannot be used.&lt;/b&gt;&lt;p&gt;Try using another name, with fewer characters or no punctuation marks.</source>
        <translation>&lt;b&gt;Der Name „%1“ kann nicht verwendet werden.&lt;/b&gt;&lt;p&gt;Wählen Sie einen anderen, kürzer oder ohne Satzzeichen.</translation>
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
    <name>QPlatformTheme</name>
    <message>
        <source>OK</source>
        <translation>OK</translation>
    </message>
    <message>
        <source>&amp;Yes</source>
        <translation>&amp;Ja</translation>
    </message>
    <message>
        <source>&amp;No</source>
        <translation>&amp;Nein</translation>
    </message>
    <message>
        <source>Save</source>
        <translation>Speichern</translation>
    </message>
    <message>
        <source>Open</source>
        <translation>Öffnen</translation>
    </message>
    <message>
        <source>Cancel</source>
        <translation>Abbrechen</translation>
    </message>
</context>
<context>
    <name>QScrollBar</name>
    <message>
        <source>Scroll here</source>
        <translation>Hierhin scrollen</translation>
    </message>
    <message>
        <source>Left edge</source>
        <translation>Linker Rand</translation>
    </message>
    <message>
        <source>Top</source>
        <translation>Anfang</translation>
    </message>
    <message>
        <source>Right edge</source>
        <translation>Rechter Rand</translation>
    </message>
    <message>
        <source>Bottom</source>
        <translation>Ende</translation>
    </message>
    <message>
        <source>Page left</source>
        <translation>Eine Seite nach links</translation>
    </message>
    <message>
        <source>Page up</source>
        <translation>Eine Seite nach oben</translation>
    </message>
    <message>
        <source>Page right</source>
        <translation>Eine Seite nach rechts</translation>
    </message>
    <message>
        <source>Page down</source>
        <translation>Eine Seite nach unten</translation>
    </message>
    <message>
        <source>Scroll left</source>
        <translation>Nach links scrollen</translation>
    </message>
    <message>
        <source>Scroll up</source>
        <translation>Nach oben scrollen</translation>
    </message>
    <message>
        <source>Scroll right</source>
        <translation>Nach rechts scrollen</translation>
    </message>
    <message>
        <source>Scroll down</source>
        <translation>Nach unten scrollen</translation>
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
    <name>QSidebar</name>
    <message>
        <source>Remove</source>
        <translation>Entfernen</translation>
    </message>
</context>
<context>
    <name>QWidgetTextControl</name>
    <message>
        <source>Copy &amp;Link Location</source>
        <translation>&amp;Link-Adresse kopieren</translation>
    </message>
</context>
</TS>
