<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<TS version="2.1" language="it_IT" sourcelanguage="en_US">
<context>
    <name>Advice</name>
    <message>
        <source>Point the camera at the pole and press Connect.</source>
        <translation>Puntare la camera verso il polo e premere Connetti.</translation>
    </message>
    <message>
        <source>No camera was found. Plug it in: the search goes on.</source>
        <translation>Nessuna camera trovata. Collegarla: la ricerca continua.</translation>
    </message>
    <message>
        <source>The camera library cannot be used: %1</source>
        <translation>La libreria della camera non è utilizzabile: %1</translation>
    </message>
    <message>
        <source>The camera %1 cannot be opened. It is tried again.</source>
        <translation>Impossibile aprire la camera %1. Si continua a provare.</translation>
    </message>
    <message>
        <source>No picture for %1 s. Check the camera’s cable.</source>
        <translation>Nessuna immagine da %1 s. Controllare il cavo della camera.</translation>
    </message>
    <message>
        <source>The camera has not answered for %1 s. Plug it in again.</source>
        <translation>La camera non risponde da %1 s. Ricollegarla.</translation>
    </message>
    <message>
        <source>Looking for the stars at the pole …</source>
        <translation>Ricerca delle stelle del polo…</translation>
    </message>
    <message>
        <source>No light at all. Take the cover off the lens.</source>
        <translation>Nessuna luce. Togliere il tappo dall&apos;obiettivo.</translation>
    </message>
    <message>
        <source>Too few stars (%1). Expose longer.</source>
        <translation>Troppo poche stelle (%1). Allungare la posa.</translation>
    </message>
    <message>
        <source>The picture is too bright. Expose shorter.</source>
        <translation>L&apos;immagine è troppo chiara. Accorciare la posa.</translation>
    </message>
    <message>
        <source>This is not the night sky. Point the camera at the pole.</source>
        <translation>Non è il cielo notturno. Puntare la camera verso il polo.</translation>
    </message>
    <message>
        <source>The stars are %1 pixels wide. Focus the lens.</source>
        <translation>Le stelle sono larghe %1 pixel. Mettere a fuoco l&apos;obiettivo.</translation>
    </message>
    <message>
        <source>The stars are trailed. Let the mount come to rest.</source>
        <translation>Le stelle sono mosse. Lasciare ferma la montatura.</translation>
    </message>
    <message>
        <source>Too few stars: clouds? It goes on when they are back.</source>
        <translation>Troppo poche stelle: nuvole? Si continua al loro ritorno.</translation>
    </message>
    <message>
        <source>%1 stars, but not those at the pole. Point the mount at it.</source>
        <translation>%1 stelle, ma non quelle del polo. Puntare la montatura su di esso.</translation>
    </message>
    <message>
        <source>The pole is %1° outside the picture. Follow the arrow.</source>
        <translation>Il polo è %1° fuori dall&apos;immagine. Seguire la freccia.</translation>
    </message>
    <message>
        <source>These stars are of the other hemisphere. Check the latitude.</source>
        <translation>Queste stelle sono dell&apos;altro emisfero. Controllare la latitudine.</translation>
    </message>
    <message>
        <source>The computer’s clock may be wrong. Check date and time.</source>
        <translation>L&apos;orologio del computer può essere sbagliato. Controllare data e ora.</translation>
    </message>
    <message>
        <source>The computer’s clock is behind. Set date and time.</source>
        <translation>L&apos;orologio del computer è indietro. Impostare data e ora.</translation>
    </message>
    <message>
        <source>The clock was set by %1 s. Check date and time.</source>
        <translation>L&apos;orologio è stato spostato di %1 s. Controllare data e ora.</translation>
    </message>
    <message>
        <source>Turn the RA axis, either way.</source>
        <translation>Ruotare l&apos;asse di AR, in un verso o nell&apos;altro.</translation>
    </message>
    <message>
        <source>Turn the RA axis further: %1 so far.</source>
        <translation>Ruotare ancora l&apos;asse di AR: finora %1.</translation>
    </message>
    <message>
        <source>Enough: the axis is known to %1. Now turn the bolts.</source>
        <translation>Basta: l&apos;asse è noto entro %1. Ora girare le viti.</translation>
    </message>
    <message>
        <source>The mount was moved. Turn the RA axis once more.</source>
        <translation>La montatura si è mossa. Ruotare di nuovo l&apos;asse di AR.</translation>
    </message>
    <message>
        <source>The camera slipped on the axis. Turn the RA axis once more.</source>
        <translation>La camera è scivolata sull&apos;asse. Ruotare di nuovo l&apos;asse di AR.</translation>
    </message>
    <message>
        <source>Turn the bolts as the arrows say: %1 to go.</source>
        <translation>Girare le viti come indicano le frecce: mancano %1.</translation>
    </message>
    <message>
        <source>Nearly there. Turn the bolts a little at a time.</source>
        <translation>Ci siamo quasi. Girare le viti poco alla volta.</translation>
    </message>
    <message>
        <source>Aligned. Tighten the bolts and watch the number.</source>
        <translation>Allineato. Serrare le viti guardando il numero.</translation>
    </message>
    <message>
        <source>Enter the site to see which way each bolt must go.</source>
        <translation>Inserire il luogo per vedere il verso di ogni vite.</translation>
    </message>
    <message>
        <source>So near to the Earth’s pole, follow the arrow in the picture.</source>
        <translation>Così vicino al polo terrestre, seguire la freccia nell&apos;immagine.</translation>
    </message>
    <message>
        <source>Recording stopped: the folder %1 cannot be written.</source>
        <translation>Registrazione fermata: impossibile scrivere nella cartella %1.</translation>
    </message>
    <message>
        <source>The recording reached its limit and stopped.</source>
        <translation>La registrazione ha raggiunto il limite e si è fermata.</translation>
    </message>
    <message>
        <source>Turn the bolts until the arrow is gone: %1 to go.</source>
        <translation>Girare le viti finché la freccia scompare: mancano %1.</translation>
    </message>
    <message>
        <source>The camera library cannot be used.</source>
        <translation>La libreria della camera non è utilizzabile.</translation>
    </message>
    <message>
        <source>Each minute that it is off turns altitude and azimuth by 0.25° about the pole; the total error hardly changes.</source>
        <translation>Ogni minuto di errore ruota altezza e azimut di 0,25° attorno al polo; l&apos;errore totale cambia appena.</translation>
    </message>
</context>
<context>
    <name>Aim</name>
    <message>
        <source>pole as the air shows it</source>
        <translation>polo come lo mostra l&apos;aria</translation>
    </message>
    <message>
        <source>true pole, no refraction</source>
        <translation>polo vero, senza rifrazione</translation>
    </message>
    <message>
        <source>true pole, refraction at %1 hPa, %2 °C</source>
        <translation>polo vero, rifrazione a %1 hPa, %2 °C</translation>
    </message>
    <message>
        <source>refracted pole, at %1 hPa, %2 °C</source>
        <translation>polo rifratto, a %1 hPa, %2 °C</translation>
    </message>
</context>
<context>
    <name>AssistantWindow</name>
    <message>
        <source>Quorvandel Assistant</source>
        <extracomment>The window&apos;s title</extracomment>
        <translation>Assistente Quorvandel</translation>
    </message>
</context>
<context>
    <name>Bolts</name>
    <message>
        <source>up</source>
        <translation>alto</translation>
    </message>
    <message>
        <source>down</source>
        <translation>basso</translation>
    </message>
    <message>
        <source>east</source>
        <translation>est</translation>
    </message>
    <message>
        <source>west</source>
        <translation>ovest</translation>
    </message>
    <message>
        <source>good</source>
        <translation>bene</translation>
    </message>
</context>
<context>
    <name>Display</name>
    <message>
        <source>Stars recognised: %1 of %2</source>
        <translation>Stelle riconosciute: %1 di %2</translation>
    </message>
    <message>
        <source>Width of the stars: %1 pixels</source>
        <translation>Larghezza delle stelle: %1 pixel</translation>
    </message>
    <message>
        <source>Aimed at: %1</source>
        <extracomment>Before a text such as: true pole, no refraction</extracomment>
        <translation>Obiettivo: %1</translation>
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
        <translation>Indietro</translation>
    </message>
</context>
<context>
    <name>MainPage</name>
    <message>
        <source>Disconnect</source>
        <translation>Disconnetti</translation>
    </message>
    <message>
        <source>Connect</source>
        <translation>Connetti</translation>
    </message>
    <message>
        <source>Start again</source>
        <translation>Ricomincia</translation>
    </message>
    <message>
        <source>Camera</source>
        <translation>Camera</translation>
    </message>
    <message>
        <source>Exposure</source>
        <translation>Posa</translation>
    </message>
    <message>
        <source>Automatic</source>
        <translation>Auto</translation>
    </message>
    <message>
        <source>Total error</source>
        <translation>Errore totale</translation>
    </message>
    <message>
        <source>Altitude</source>
        <translation>Altezza</translation>
    </message>
    <message>
        <source>Azimuth</source>
        <translation>Azimut</translation>
    </message>
    <message>
        <source>Enter the site</source>
        <translation>Inserire il luogo</translation>
    </message>
    <message>
        <source>Turn the bolts until the arrow in the picture is gone. With the site, the assistant says which way each bolt must go.</source>
        <translation>Girare le viti finché la freccia nell&apos;immagine scompare. Con il luogo, l&apos;assistente dice il verso di ogni vite.</translation>
    </message>
    <message>
        <source>The camera must see the pole; it need not be in the middle.</source>
        <translation>La camera deve vedere il polo, non per forza al centro.</translation>
    </message>
    <message>
        <source>Report</source>
        <translation>Rapporto</translation>
    </message>
    <message>
        <source>Settings</source>
        <translation>Impostazioni</translation>
    </message>
    <message>
        <source>Large view</source>
        <translation>Vista grande</translation>
    </message>
    <message>
        <source>Live picture; a tap opens the large view</source>
        <translation>Immagine dal vivo; un tocco apre la vista grande</translation>
    </message>
    <message>
        <source>%1 are enough, %2 if the axis is then known to %3. Further turning makes it more exact.</source>
        <translation>Bastano %1, o %2 se l&apos;asse è già noto a %3. Ruotare ancora lo rende più preciso.</translation>
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
</context>
<context>
    <name>Report</name>
    <message>
        <source>%1 an hour</source>
        <translation>%1 all&apos;ora</translation>
    </message>
    <message>
        <source>Error before</source>
        <translation>Errore prima</translation>
    </message>
    <message>
        <source>Error now</source>
        <translation>Errore ora</translation>
    </message>
    <message>
        <source>in altitude</source>
        <translation>in altezza</translation>
    </message>
    <message>
        <source>in azimuth</source>
        <translation>in azimut</translation>
    </message>
    <message>
        <source>Time taken</source>
        <translation>Durata</translation>
    </message>
    <message>
        <source>Polar alignment</source>
        <translation>Allineamento polare</translation>
    </message>
    <message>
        <source>Aimed at</source>
        <translation>Obiettivo</translation>
    </message>
    <message>
        <source>Drift in declination, anywhere, at most</source>
        <translation>Deriva in declinazione, ovunque, al massimo</translation>
    </message>
    <message>
        <source>Angle of field rotation at most, at the equator and at declination 60°</source>
        <translation>Angolo di rotazione di campo al massimo, all&apos;equatore e a declinazione 60°</translation>
    </message>
    <message>
        <source>Date and site</source>
        <translation>Data e luogo</translation>
    </message>
    <message>
        <source>axis %1 above the pole</source>
        <translation>asse %1 sopra il polo</translation>
    </message>
    <message>
        <source>axis %1 below the pole</source>
        <translation>asse %1 sotto il polo</translation>
    </message>
    <message>
        <source>axis %1 east of the pole</source>
        <translation>asse %1 a est del polo</translation>
    </message>
    <message>
        <source>axis %1 west of the pole</source>
        <translation>asse %1 a ovest del polo</translation>
    </message>
</context>
<context>
    <name>ReportPage</name>
    <message>
        <source>The folder cannot be made.</source>
        <translation>Impossibile creare la cartella.</translation>
    </message>
    <message>
        <source>Saved: %1</source>
        <translation>Salvato: %1</translation>
    </message>
    <message>
        <source>Not saved: %1 The report is still here.</source>
        <translation>Non salvato: %1 Il rapporto è ancora qui.</translation>
    </message>
    <message>
        <source>Report</source>
        <translation>Rapporto</translation>
    </message>
    <message>
        <source>Back</source>
        <translation>Indietro</translation>
    </message>
    <message>
        <source>Folder</source>
        <translation>Cartella</translation>
    </message>
    <message>
        <source>Save picture</source>
        <translation>Salva immagine</translation>
    </message>
    <message>
        <source>Save table</source>
        <translation>Salva tabella</translation>
    </message>
</context>
<context>
    <name>SettingsPage</name>
    <message>
        <source>Settings</source>
        <translation>Impostazioni</translation>
    </message>
    <message>
        <source>Back</source>
        <translation>Indietro</translation>
    </message>
    <message>
        <source>Site</source>
        <translation>Luogo</translation>
    </message>
    <message>
        <source>Pole</source>
        <translation>Polo</translation>
    </message>
    <message>
        <source>Night and sound</source>
        <translation>Notte e suono</translation>
    </message>
    <message>
        <source>Recording</source>
        <translation>Registrazione</translation>
    </message>
    <message>
        <source>Language</source>
        <translation>Lingua</translation>
    </message>
    <message>
        <source>True pole</source>
        <translation>Polo vero</translation>
    </message>
    <message>
        <source>The Earth’s own axis: best for long exposures all over the sky.</source>
        <translation>L&apos;asse stesso della Terra: il migliore per pose lunghe in tutto il cielo.</translation>
    </message>
    <message>
        <source>Refracted pole</source>
        <translation>Polo rifratto</translation>
    </message>
    <message>
        <source>Where the air shows the pole: best for long exposures near the pole.</source>
        <translation>Dove l&apos;aria mostra il polo: il migliore per pose lunghe vicino al polo.</translation>
    </message>
    <message>
        <source>Air pressure, hPa</source>
        <translation>Pressione dell&apos;aria, hPa</translation>
    </message>
    <message>
        <source>Temperature, °C</source>
        <translation>Temperatura, °C</translation>
    </message>
    <message>
        <source>Red light only</source>
        <translation>Solo luce rossa</translation>
    </message>
    <message>
        <source>Keeps eyes used to the dark: the window emits no green and no blue.</source>
        <translation>Protegge gli occhi abituati al buio: la finestra non emette verde né blu.</translation>
    </message>
    <message>
        <source>Sound</source>
        <translation>Suono</translation>
    </message>
    <message>
        <source>Pulses come faster as the error shrinks; a steady tone at the goal.</source>
        <translation>Gli impulsi accelerano al calare dell&apos;errore; suono continuo alla meta.</translation>
    </message>
    <message>
        <source>Speech</source>
        <translation>Voce</translation>
    </message>
    <message>
        <source>Says which bolt to turn, and how far.</source>
        <translation>Dice quale vite girare e di quanto.</translation>
    </message>
    <message>
        <source>Speech is not available on this computer.</source>
        <translation>La voce non è disponibile su questo computer.</translation>
    </message>
    <message>
        <source>Goal: aligned below</source>
        <translation>Meta: allineato sotto</translation>
    </message>
    <message>
        <source>Record the frames</source>
        <translation>Registra le immagini</translation>
    </message>
    <message>
        <source>Saves at most one frame a second as a FITS file, for a report of a fault.</source>
        <translation>Salva al massimo un&apos;immagine al secondo in un file FITS, per segnalare un guasto.</translation>
    </message>
    <message>
        <source>Folder</source>
        <translation>Cartella</translation>
    </message>
    <message>
        <source>Limit of disk space, MB</source>
        <translation>Limite di spazio su disco, MB</translation>
    </message>
    <message>
        <source>Air pressure, hPa (0: no refraction)</source>
        <translation>Pressione dell&apos;aria, hPa (0: senza rifrazione)</translation>
    </message>
</context>
<context>
    <name>SitePanel</name>
    <message>
        <source>With the site, the assistant says which way each bolt must go.</source>
        <translation>Con il luogo, l&apos;assistente dice il verso di ogni vite.</translation>
    </message>
    <message>
        <source>Latitude: north positive, or N, S</source>
        <translation>Latitudine: nord positivo, o N, S</translation>
    </message>
    <message>
        <source>Longitude: east positive, or E, W</source>
        <translation>Longitudine: est positivo, o E, W</translation>
    </message>
</context>
<context>
    <name>SkyPicture</name>
    <message>
        <source>Do not show this again until the next start</source>
        <translation>Non mostrare più fino al prossimo avvio</translation>
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
            <numerusform>%n gradi</numerusform>
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
            <numerusform>%n minuti</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%n seconds</source>
        <translation>
            <numerusform>%n secondo</numerusform>
            <numerusform>%n secondi</numerusform>
        </translation>
    </message>
    <message>
        <source>aligned</source>
        <translation>allineato</translation>
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
        <translation>Asse</translation>
    </message>
    <message>
        <source>Bolts</source>
        <translation>Viti</translation>
    </message>
    <message>
        <source>Camera</source>
        <translation>Camera</translation>
    </message>
</context>
</TS>
