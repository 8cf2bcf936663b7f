<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<TS version="2.1" language="it_IT" sourcelanguage="en_US">
<context>
    <name>AboutDialog</name>
    <message>
        <source>About</source>
        <translation>Informazioni su Quorvandel</translation>
    </message>
    <message>
        <source>Quorvandel V1.3.2.6, release 2016-08-10</source>
        <translation>Quorvandel V1.3.2.6, release 2016-08-10</translation>
    </message>
    <message>
        <source>© 2021 Quorvandel. All rights reserved.</source>
        <translation>© 2021 Quorvandel. Tutti i diritti riservati.</translation>
    </message>
    <message>
        <source>Web site</source>
        <translation>Sito web</translation>
    </message>
    <message>
        <source>OK</source>
        <translation>OK</translation>
    </message>
    <message>
        <source>English translation by the makers of Quorvandel.</source>
        <translation>Traduzione italiana degli autori di Quorvandel.</translation>
    </message>
</context>
<context>
    <name>AstroRefractionDialog</name>
    <message>
        <source>Astronomical Refraction</source>
        <translation>Rifrazione atmosferica</translation>
    </message>
    <message>
        <source>Latitude</source>
        <translation>Lat.</translation>
    </message>
    <message>
        <source>Latitude in degrees</source>
        <translation>Latitudine in gradi</translation>
    </message>
    <message>
        <source>Longitude</source>
        <translation>Long.</translation>
    </message>
    <message>
        <source>Longitude in degrees</source>
        <translation>Longitudine in gradi</translation>
    </message>
    <message>
        <source>Unit of pressure</source>
        <translation>Unità di pressione</translation>
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
        <translation>Pressione atmosferica</translation>
    </message>
    <message>
        <source>T(℃)</source>
        <translation>T (°C)</translation>
    </message>
    <message>
        <source>Air temperature in degrees Celsius</source>
        <translation>Temperatura dell&apos;aria in gradi Celsius</translation>
    </message>
    <message>
        <source>Enable Astronomical Refraction Correction</source>
        <translation>Correggi la rifrazione atmosferica</translation>
    </message>
</context>
<context>
    <name>FavoriteDialog</name>
    <message>
        <source>Favorite</source>
        <translation>Preferiti</translation>
    </message>
    <message>
        <source>Play Music</source>
        <translation>Riproduci musica</translation>
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
        <translation>Scelta dell&apos;emisfero</translation>
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
        <source>Quorvandel Setting</source>
        <translation>Impostazioni Quorvandel</translation>
    </message>
    <message>
        <source>Exp(ms)</source>
        <translation>Posa (ms)</translation>
    </message>
    <message>
        <source>Exposure in milliseconds</source>
        <translation>Posa in millisecondi</translation>
    </message>
    <message>
        <source>Gain</source>
        <translation>Guadagno</translation>
    </message>
    <message>
        <source>Traffic</source>
        <translation>Traffico</translation>
    </message>
    <message>
        <source>USB traffic</source>
        <translation>Traffico USB</translation>
    </message>
    <message>
        <source>Speed</source>
        <translation>Velocità</translation>
    </message>
    <message>
        <source>Confirm Polaris/σ Oct</source>
        <translation>Conferma Polare/σ Oct</translation>
    </message>
    <message>
        <source>Matching Template</source>
        <translation>Sovrapposizione modello</translation>
    </message>
    <message>
        <source>Rotate</source>
        <translation>Ruota</translation>
    </message>
    <message>
        <source>Turn the template back by one degree</source>
        <translation>Ruota il modello di un grado indietro</translation>
    </message>
    <message>
        <source>-</source>
        <translation>-</translation>
    </message>
    <message>
        <source>Template angle in degrees</source>
        <translation>Angolo del modello in gradi</translation>
    </message>
    <message>
        <source>Turn the template on by one degree</source>
        <translation>Ruota il modello di un grado avanti</translation>
    </message>
    <message>
        <source>+</source>
        <translation>+</translation>
    </message>
    <message>
        <source>Rough Pole</source>
        <translation>Allineamento di massima</translation>
    </message>
    <message>
        <source>Axis Center</source>
        <translation>Centro dell&apos;asse</translation>
    </message>
    <message>
        <source>Chose the same star every times</source>
        <translation>Scegliere sempre la stessa stella</translation>
    </message>
    <message>
        <source>Lamp of star position 1</source>
        <translation>Spia della posizione 1 della stella</translation>
    </message>
    <message>
        <source>Star Pos 1</source>
        <translation>Pos. 1</translation>
    </message>
    <message>
        <source>Lamp of star position 2</source>
        <translation>Spia della posizione 2 della stella</translation>
    </message>
    <message>
        <source>Star Pos 2</source>
        <translation>Pos. 2</translation>
    </message>
    <message>
        <source>Lamp of star position 3</source>
        <translation>Spia della posizione 3 della stella</translation>
    </message>
    <message>
        <source>Star Pos 3</source>
        <translation>Pos. 3</translation>
    </message>
    <message>
        <source>Axis:</source>
        <translation>Asse:</translation>
    </message>
    <message>
        <source>(0,0)</source>
        <translation>(0,0)</translation>
    </message>
    <message>
        <source>Current Polaris/σ Oct</source>
        <translation>Polare/σ Oct attuale</translation>
    </message>
    <message>
        <source>Expected Polaris/σ Oct</source>
        <translation>Polare/σ Oct prevista</translation>
    </message>
    <message>
        <source>Precise Pole</source>
        <translation>Allineamento preciso</translation>
    </message>
    <message>
        <source>Pole:</source>
        <translation>Polo:</translation>
    </message>
    <message>
        <source>Mark of the pole</source>
        <translation>Marcatore del polo</translation>
    </message>
    <message>
        <source>Mark of the axis</source>
        <translation>Marcatore dell&apos;asse</translation>
    </message>
    <message>
        <source>Enlarged picture of the pole star</source>
        <translation>Immagine ingrandita della stella polare</translation>
    </message>
    <message>
        <source>roiBigger_image</source>
        <translation>Immagine ingrandita</translation>
    </message>
    <message>
        <source>Monitor Pole</source>
        <translation>Monitoraggio del polo</translation>
    </message>
    <message>
        <source>Reference Star A</source>
        <translation>Stella di riferimento A</translation>
    </message>
    <message>
        <source>Position:</source>
        <translation>Posizione:</translation>
    </message>
    <message>
        <source>Reference Star B</source>
        <translation>Stella di riferimento B</translation>
    </message>
    <message>
        <source>Start Monitor</source>
        <translation>Avvia monitoraggio</translation>
    </message>
    <message>
        <source>Live picture</source>
        <translation>Immagine in diretta</translation>
    </message>
    <message>
        <source>Star template</source>
        <translation>Modello di stelle</translation>
    </message>
    <message>
        <source>template_image</source>
        <translation>Modello</translation>
    </message>
    <message>
        <source>File</source>
        <translation>File</translation>
    </message>
    <message>
        <source>Device</source>
        <translation>Dispositivo</translation>
    </message>
    <message>
        <source>Tools</source>
        <translation>Strumenti</translation>
    </message>
    <message>
        <source>Zoom</source>
        <translation>Zoom</translation>
    </message>
    <message>
        <source>Language</source>
        <translation>Lingua</translation>
    </message>
    <message>
        <source>Help</source>
        <translation>Aiuto</translation>
    </message>
    <message>
        <source>Save As...</source>
        <translation>Salva con nome...</translation>
    </message>
    <message>
        <source>Exit</source>
        <translation>Esci</translation>
    </message>
    <message>
        <source>Connect</source>
        <translation>Connetti</translation>
    </message>
    <message>
        <source>Display Template</source>
        <translation>Mostra modello</translation>
    </message>
    <message>
        <source>Mono Style</source>
        <translation>Stile monocromatico</translation>
    </message>
    <message>
        <source>Stretch</source>
        <translation>Stretch dell&apos;istogramma</translation>
    </message>
    <message>
        <source>Astronomical Refraction</source>
        <translation>Rifrazione atmosferica</translation>
    </message>
    <message>
        <source>Manual Trace</source>
        <translation>Inseguimento manuale del polo</translation>
    </message>
    <message>
        <source>Unfreeze</source>
        <translation>Scongela</translation>
    </message>
    <message>
        <source>Favorite</source>
        <translation>Preferiti</translation>
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
        <translation>Manuale di Quorvandel</translation>
    </message>
    <message>
        <source>About</source>
        <translation>Informazioni su Quorvandel</translation>
    </message>
    <message>
        <source>Disconnect</source>
        <translation>Disconnetti</translation>
    </message>
    <message>
        <source>Info</source>
        <translation>Informazione</translation>
    </message>
    <message>
        <source>Not Found VELDIX Quorvandel equipment!</source>
        <translation>Nessun dispositivo VELDIX Quorvandel trovato!</translation>
    </message>
    <message>
        <source>Error</source>
        <translation>Errore</translation>
    </message>
    <message>
        <source>Can not connect Quorvandel as OpenVELDIX error!</source>
        <translation>Impossibile connettere Quorvandel: errore OpenVELDIX!</translation>
    </message>
    <message>
        <source>Can not connect Quorvandel as InitVELDIX error!</source>
        <translation>Impossibile connettere Quorvandel: errore InitVELDIX!</translation>
    </message>
    <message>
        <source>Warn</source>
        <translation>Avviso</translation>
    </message>
    <message>
        <source>Seems no star in this point, please try other point.</source>
        <translation>In questo punto non sembra esserci alcuna stella: provare in un altro punto.</translation>
    </message>
    <message>
        <source>Can not get the Axis center, please click &apos;reset&apos; to re-find it.</source>
        <translation>Impossibile determinare il centro dell&apos;asse: fare clic su «Reimposta» per cercarlo di nuovo.</translation>
    </message>
    <message>
        <source>Save</source>
        <translation>Salva</translation>
    </message>
    <message>
        <source>Question</source>
        <translation>Domanda</translation>
    </message>
    <message>
        <source>Would you like to use the &apos;Axis center position&apos; recorded last time you used Quorvandel ?</source>
        <translation>Usare la posizione del centro dell&apos;asse salvata durante l&apos;ultimo utilizzo di Quorvandel?</translation>
    </message>
    <message>
        <source>Set the parameters to the left to make more stars around Polaris visable.</source>
        <translation>Regolare i parametri a sinistra in modo da rendere visibili più stelle intorno alla Polare.</translation>
    </message>
    <message>
        <source>Set the parameters to the left to make more stars around σ Oct visable.</source>
        <translation>Regolare i parametri a sinistra in modo da rendere visibili più stelle intorno a σ Oct.</translation>
    </message>
    <message>
        <source>Has setting up finished?</source>
        <translation>I parametri sono impostati?</translation>
    </message>
    <message>
        <source>Setting Finished</source>
        <translation>Parametri impostati</translation>
    </message>
    <message>
        <source>Double Click Polaris and use the &apos;Rotate&apos; slider on the left to rotate the Template to match up to the stars around Polaris.</source>
        <translation>Fare doppio clic sulla Polare e con il cursore «Ruota» a sinistra ruotare il modello fino a farlo coincidere con le stelle intorno alla Polare.</translation>
    </message>
    <message>
        <source>Double Click σ Oct and use the &apos;Rotate&apos; slider on the left to rotate the Template to match up to the stars around σ Oct.</source>
        <translation>Fare doppio clic su σ Oct e con il cursore «Ruota» a sinistra ruotare il modello fino a farlo coincidere con le stelle intorno a σ Oct.</translation>
    </message>
    <message>
        <source>Does match success?</source>
        <translation>Il modello coincide?</translation>
    </message>
    <message>
        <source>Success</source>
        <translation>Sì, coincide</translation>
    </message>
    <message>
        <source>Choose a star other than Polaris and Double click it in the image. Remember this star, you will be selecting it again in the following steps (Step 1 of 3).</source>
        <translation>Scegliere una stella diversa dalla Polare e fare doppio clic su di essa nell&apos;immagine. Ricordare questa stella: andrà selezionata di nuovo nei passi successivi (passo 1 di 3).</translation>
    </message>
    <message>
        <source>Choose a star other than σ Oct and Double click it in the image. Remember this star, you will be selecting it again in the following steps (Step 1 of 3).</source>
        <translation>Scegliere una stella diversa da σ Oct e fare doppio clic su di essa nell&apos;immagine. Ricordare questa stella: andrà selezionata di nuovo nei passi successivi (passo 1 di 3).</translation>
    </message>
    <message>
        <source>Rotate your mounts &apos;RA&apos; axis in the direction indicated by the arrow now at the top of the screen (rotate a minimum of 30 degree&apos;s).</source>
        <translation>Ruotare l&apos;asse di AR della montatura nel verso indicato dalla freccia che appare ora in alto sullo schermo (almeno 30 gradi).</translation>
    </message>
    <message>
        <source>Has rotation finished?</source>
        <translation>La rotazione è terminata?</translation>
    </message>
    <message>
        <source>Reset</source>
        <translation>Reimposta</translation>
    </message>
    <message>
        <source>rotation Finished</source>
        <translation>Rotazione terminata</translation>
    </message>
    <message>
        <source>Double click the same star again chosen in the previous step (Step 2 of 3).</source>
        <translation>Fare di nuovo doppio clic sulla stessa stella scelta nel passo precedente (passo 2 di 3).</translation>
    </message>
    <message>
        <source>Again, Rotate your mounts &apos;RA&apos; axis in the same direction at least 30 degrees.</source>
        <translation>Ruotare ancora l&apos;asse di AR della montatura nello stesso verso di almeno 30 gradi.</translation>
    </message>
    <message>
        <source>Double click the same star one last time chosen in the previous 2 steps (Step 3 of 3).</source>
        <translation>Fare doppio clic un&apos;ultima volta sulla stessa stella scelta nei 2 passi precedenti (passo 3 di 3).</translation>
    </message>
    <message>
        <source>Return the &apos;RA&apos; axis to the &apos;Home&apos; position - Ensure your chosen star stays on the circle while your mount rotates to the PARK position.</source>
        <translation>Riportare l&apos;asse di AR nella posizione iniziale (Home) e verificare che la stella scelta resti sul cerchio mentre la montatura ruota fino alla posizione di parcheggio (Park).</translation>
    </message>
    <message>
        <source>Is the axis center correct?</source>
        <translation>Il centro dell&apos;asse è corretto?</translation>
    </message>
    <message>
        <source>Correct</source>
        <translation>Corretto</translation>
    </message>
    <message>
        <source>Expected position: Double Click Polaris and use the &apos;Rotate&apos; slider on the left to rotate the Template to match up to the stars around Polaris.</source>
        <translation>Posizione prevista: fare doppio clic sulla Polare e con il cursore «Ruota» a sinistra ruotare il modello fino a farlo coincidere con le stelle intorno alla Polare.</translation>
    </message>
    <message>
        <source>Expected position: Double Click σ Oct and use the &apos;Rotate&apos; slider on the left to rotate the Template to match up to the stars around σ Oct.</source>
        <translation>Posizione prevista: fare doppio clic su σ Oct e con il cursore «Ruota» a sinistra ruotare il modello fino a farlo coincidere con le stelle intorno a σ Oct.</translation>
    </message>
    <message>
        <source>Using your Altitude and Azimuth bolts, move Polaris into the center of the small Rotating circle now shown on the image.</source>
        <translation>Agendo sulle viti di altezza e azimut, portare la Polare al centro del piccolo cerchio rotante ora visibile nell&apos;immagine.</translation>
    </message>
    <message>
        <source>Using your Altitude and Azimuth bolts, move σ Oct into the center of the small Rotating circle now shown on the image.</source>
        <translation>Agendo sulle viti di altezza e azimut, portare σ Oct al centro del piccolo cerchio rotante ora visibile nell&apos;immagine.</translation>
    </message>
    <message>
        <source>Has adjustment finished?</source>
        <translation>La regolazione è terminata?</translation>
    </message>
    <message>
        <source>adjustment Finished</source>
        <translation>Regolazione terminata</translation>
    </message>
    <message>
        <source>Current position: Double Click Polaris and use the &apos;Rotate&apos; slider on the left to rotate the Template to match up to the stars around Polaris.</source>
        <translation>Posizione attuale: fare doppio clic sulla Polare e con il cursore «Ruota» a sinistra ruotare il modello fino a farlo coincidere con le stelle intorno alla Polare.</translation>
    </message>
    <message>
        <source>Current position: Double Click σ Oct and use the &apos;Rotate&apos; slider on the left to rotate the Template to match up to the stars around σ Oct.</source>
        <translation>Posizione attuale: fare doppio clic su σ Oct e con il cursore «Ruota» a sinistra ruotare il modello fino a farlo coincidere con le stelle intorno a σ Oct.</translation>
    </message>
    <message>
        <source>Please click the &apos;Start Monitor&apos; button.</source>
        <translation>Fare clic sul pulsante «Avvia monitoraggio».</translation>
    </message>
    <message>
        <source>Use your Altitude and Azimuth bolts only to move the Pole rectangle on top of the Axis circle.</source>
        <translation>Usare solo le viti di altezza e azimut per portare il rettangolo del polo sopra il cerchio dell&apos;asse.</translation>
    </message>
    <message>
        <source>Restart</source>
        <translation>Ricomincia</translation>
    </message>
    <message>
        <source>Done</source>
        <translation>Fine</translation>
    </message>
</context>
<context>
    <name>Notice</name>
    <message>
        <source>The camera library cannot be used: see the log.</source>
        <translation>Libreria della camera inutilizzabile: vedere il registro.</translation>
    </message>
    <message>
        <source>No camera is connected.</source>
        <translation>Nessuna camera collegata.</translation>
    </message>
    <message>
        <source>No picture for %1 s.</source>
        <translation>Nessuna immagine da %1 s.</translation>
    </message>
    <message>
        <source>The zoom in the settings file shows no picture.</source>
        <translation>Lo zoom nel file delle impostazioni non mostra immagini.</translation>
    </message>
    <message>
        <source>No axis yet: pick one star at three RA angles first.</source>
        <translation>Asse non ancora noto: selezionare una stella a tre angoli di AR.</translation>
    </message>
    <message>
        <source>Monitoring without an alignment: press &apos;Restart&apos;.</source>
        <translation>Monitoraggio senza allineamento: premere «Ricomincia».</translation>
    </message>
    <message>
        <source>The pole star was not double clicked.</source>
        <translation>Manca il doppio clic sulla stella polare.</translation>
    </message>
    <message>
        <source>The template was not placed on the pole star.</source>
        <translation>Il modello non è stato posto sulla stella polare.</translation>
    </message>
    <message>
        <source>Old place of the template: double click the pole star again.</source>
        <translation>Modello nella vecchia posizione: doppio clic sulla stella polare.</translation>
    </message>
    <message>
        <source>No star here.</source>
        <translation>Qui non c&apos;è nessuna stella.</translation>
    </message>
    <message>
        <source>No star here (pick %1 of 3).</source>
        <translation>Qui non c&apos;è nessuna stella (selezione %1 di 3).</translation>
    </message>
    <message>
        <source>Stars A and B lost.</source>
        <translation>Stelle A e B perse.</translation>
    </message>
    <message>
        <source>Star A lost.</source>
        <translation>Stella A persa.</translation>
    </message>
    <message>
        <source>Star B lost.</source>
        <translation>Stella B persa.</translation>
    </message>
    <message>
        <source>The template does not fit: %1 of %2 rings hold a star.</source>
        <translation>Il modello non coincide: stelle in %1 anelli su %2.</translation>
    </message>
    <message>
        <source>The star moved by only %1 px between the picks.</source>
        <translation>Tra le selezioni la stella si è spostata di soli %1 px.</translation>
    </message>
    <message>
        <source>The axis turned by only %1° between the picks.</source>
        <translation>Tra le selezioni l&apos;asse è ruotato di soli %1°.</translation>
    </message>
    <message>
        <source>The tracking dial still stands at %1°: reset it.</source>
        <translation>La manopola di inseguimento è ancora a %1°: azzerarla.</translation>
    </message>
    <message>
        <source>The ring lies under the magnifier.</source>
        <translation>Il cerchio rotante è sotto la lente.</translation>
    </message>
    <message>
        <source>Settings will not be kept: their file cannot be written.</source>
        <translation>Impostazioni non salvate: il file non è scrivibile.</translation>
    </message>
    <message>
        <source>Settings will not be kept: Quorvandel.ini is not a file.</source>
        <translation>Impostazioni non salvate: Quorvandel.ini non è un file.</translation>
    </message>
    <message>
        <source>Settings will not be kept: the disk is full.</source>
        <translation>Impostazioni non salvate: il disco è pieno.</translation>
    </message>
    <message>
        <source>Settings will not be kept: their folder cannot be written.</source>
        <translation>Impostazioni non salvate: la cartella non è scrivibile.</translation>
    </message>
</context>
<context>
    <name>PoleTrackingDialog</name>
    <message>
        <source>Pole Tracking</source>
        <translation>Inseguimento del polo</translation>
    </message>
    <message>
        <source>If the Pole was lost after used GOTO in the astrograph, then you can this to track.</source>
        <translation>Se dopo un GOTO dell&apos;astrografo si perde il polo, con questo comando lo si può ritrovare.</translation>
    </message>
    <message>
        <source>Tracking:</source>
        <translation>Angolo:</translation>
    </message>
    <message>
        <source>Turn back by one degree</source>
        <translation>Ruota di un grado indietro</translation>
    </message>
    <message>
        <source>-</source>
        <translation>-</translation>
    </message>
    <message>
        <source>Tracking angle in degrees</source>
        <translation>Angolo di inseguimento in gradi</translation>
    </message>
    <message>
        <source>Turn on by one degree</source>
        <translation>Ruota di un grado avanti</translation>
    </message>
    <message>
        <source>+</source>
        <translation>+</translation>
    </message>
    <message>
        <source>Reset</source>
        <translation>Azzera</translation>
    </message>
</context>
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
    <name>QFileDialog</name>
    <message>
        <source>Look in:</source>
        <translation>Cerca in:</translation>
    </message>
    <message>
        <source>Directory:</source>
        <translation>Cartella:</translation>
    </message>
    <message>
        <source>File &amp;name:</source>
        <translation>&amp;Nome file:</translation>
    </message>
    <message>
        <source>Files of type:</source>
        <translation>File di tipo:</translation>
    </message>
    <message>
        <source>&amp;Save</source>
        <translation>&amp;Salva</translation>
    </message>
    <message>
        <source>&amp;Open</source>
        <translation>&amp;Apri</translation>
    </message>
    <message>
        <source>Back</source>
        <translation>Indietro</translation>
    </message>
    <message>
        <source>Forward</source>
        <translation>Avanti</translation>
    </message>
    <message>
        <source>Parent Directory</source>
        <translation>Cartella superiore</translation>
    </message>
    <message>
        <source>Create New Folder</source>
        <translation>Crea una cartella</translation>
    </message>
    <message>
        <source>List View</source>
        <translation>Vista elenco</translation>
    </message>
    <message>
        <source>Detail View</source>
        <translation>Vista dettagliata</translation>
    </message>
    <message>
        <source>%1 already exists.
Do you want to replace it?</source>
        <translation>%1 esiste già.
Sostituirlo?</translation>
    </message>
    <message>
        <source>Go back</source>
        <translation>Torna indietro</translation>
    </message>
    <message>
        <source>Go forward</source>
        <translation>Vai avanti</translation>
    </message>
    <message>
        <source>Go to the parent directory</source>
        <translation>Vai alla cartella superiore</translation>
    </message>
    <message>
        <source>Create a New Folder</source>
        <translation>Crea una nuova cartella</translation>
    </message>
    <message>
        <source>Change to list view mode</source>
        <translation>Passa alla vista a elenco</translation>
    </message>
    <message>
        <source>Change to detail view mode</source>
        <translation>Passa alla vista dettagliata</translation>
    </message>
    <message>
        <source>Sidebar</source>
        <translation>Barra laterale</translation>
    </message>
    <message>
        <source>List of places and bookmarks</source>
        <translation>Elenco di luoghi e segnalibri</translation>
    </message>
    <message>
        <source>Files</source>
        <translation>File</translation>
    </message>
    <message>
        <source>All Files (*)</source>
        <translation>Tutti i file (*)</translation>
    </message>
    <message>
        <source>Show </source>
        <translation>Mostra: </translation>
    </message>
    <message>
        <source>&amp;Rename</source>
        <translation>&amp;Rinomina</translation>
    </message>
    <message>
        <source>&amp;Delete</source>
        <translation>&amp;Elimina</translation>
    </message>
    <message>
        <source>Show &amp;hidden files</source>
        <translation>Mostra i file &amp;nascosti</translation>
    </message>
    <message>
        <source>&amp;New Folder</source>
        <translation>&amp;Nuova cartella</translation>
    </message>
    <message>
        <source>New Folder</source>
        <translation>Nuova cartella</translation>
    </message>
    <message>
        <source>Delete</source>
        <translation>Elimina</translation>
    </message>
    <message>
        <source>Are you sure you want to delete &apos;%1&apos;?</source>
        <translation>Eliminare davvero “%1”?</translation>
    </message>
    <message>
        <source>&apos;%1&apos; is write protected.
Do you want to delete it anyway?</source>
        <translation>“%1” è protetto da scrittura.
Eliminarlo comunque?</translation>
    </message>
    <message>
        <source>Could not delete directory.</source>
        <translation>Impossibile eliminare la cartella.</translation>
    </message>
    <message>
        <source>Drive</source>
        <translation>Unità</translation>
    </message>
    <message>
        <source>%1 File</source>
        <translation>File %1</translation>
    </message>
    <message>
        <source>File</source>
        <translation>File</translation>
    </message>
    <message>
        <source>Folder</source>
        <translation>Cartella</translation>
    </message>
    <message>
        <source>Unknown</source>
        <translation>Sconosciuto</translation>
    </message>
</context>
<context>
    <name>QFileSystemModel</name>
    <message>
        <source>Name</source>
        <translation>Nome</translation>
    </message>
    <message>
        <source>Size</source>
        <translation>Dimensione</translation>
    </message>
    <message>
        <source>Computer</source>
        <translation>Computer</translation>
    </message>
    <message>
        <source>Date Modified</source>
        <translation>Data di modifica</translation>
    </message>
    <message>
        <source>Type</source>
        <translation>Tipo</translation>
    </message>
    <message>
        <source>Invalid filename</source>
        <translation>Nome di file non valido</translation>
    </message>
    <message>
        <source>&lt;b&gt;The name &quot;%1&quot; cannot be used.&lt;/b&gt;&lt;p&gt;Try using another name, with fewer characters or no punctuation marks.</source>
        <translation>&lt;b&gt;Il nome “%1” non può essere usato.&lt;/b&gt;&lt;p&gt;Sceglierne un altro, più corto o senza segni di interpunzione.</translation>
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
    <name>QPlatformTheme</name>
    <message>
        <source>OK</source>
        <translation>OK</translation>
    </message>
    <message>
        <source>&amp;Yes</source>
        <translation>&amp;Sì</translation>
    </message>
    <message>
        <source>&amp;No</source>
        <translation>&amp;No</translation>
    </message>
    <message>
        <source>Save</source>
        <translation>Salva</translation>
    </message>
    <message>
        <source>Open</source>
        <translation>Apri</translation>
    </message>
    <message>
        <source>Cancel</source>
        <translation>Annulla</translation>
    </message>
</context>
<context>
    <name>QScrollBar</name>
    <message>
        <source>Scroll here</source>
        <translation>Scorri fin qui</translation>
    </message>
    <message>
        <source>Left edge</source>
        <translation>Bordo sinistro</translation>
    </message>
    <message>
        <source>Top</source>
        <translation>Inizio</translation>
    </message>
    <message>
        <source>Right edge</source>
        <translation>Bordo destro</translation>
    </message>
    <message>
        <source>Bottom</source>
        <translation>Fine</translation>
    </message>
    <message>
        <source>Page left</source>
        <translation>Una pagina a sinistra</translation>
    </message>
    <message>
        <source>Page up</source>
        <translation>Una pagina in su</translation>
    </message>
    <message>
        <source>Page right</source>
        <translation>Una pagina a destra</translation>
    </message>
    <message>
        <source>Page down</source>
        <translation>Una pagina in giù</translation>
    </message>
    <message>
        <source>Scroll left</source>
        <translation>Scorri a sinistra</translation>
    </message>
    <message>
        <source>Scroll up</source>
        <translation>Scorri in su</translation>
    </message>
    <message>
        <source>Scroll right</source>
        <translation>Scorri a destra</translation>
    </message>
    <message>
        <source>Scroll down</source>
        <translation>Scorri in giù</translation>
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
</context>
<context>
    <name>QSidebar</name>
    <message>
        <source>Remove</source>
        <translation>Rimuovi</translation>
    </message>
</context>
<context>
    <name>QWidgetTextControl</name>
    <message>
        <source>Copy &amp;Link Location</source>
        <translation>Copia l’indirizzo del co&amp;llegamento</translation>
    </message>
</context>
</TS>
