<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<TS version="2.1" language="fr_FR" sourcelanguage="en_US">
<context>
    <name>QAbstractSpinBox</name>
    <message>
        <source>&amp;Select All</source>
        <translation>&amp;Tout sélectionner</translation>
    </message>
    <message>
        <source>&amp;Step up</source>
        <translation>&amp;Augmenter</translation>
    </message>
    <message>
        <source>Step &amp;down</source>
        <translation>&amp;Diminuer</translation>
    </message>
</context>
<context>
    <name>QIODevice</name>
    <message>
        <source>Permission denied</source>
        <translation>Accès refusé</translation>
    </message>
    <message>
        <source>Too many open files</source>
        <translation>Trop de fichiers ouverts</translation>
    </message>
    <message>
        <source>No such file or directory</source>
        <translation>Fichier ou dossier introuvable</translation>
    </message>
    <message>
        <source>No space left on device</source>
        <translation>Plus d&apos;espace libre sur le périphérique</translation>
    </message>
</context>
<context>
    <name>QLineEdit</name>
    <message>
        <source>&amp;Undo</source>
        <translation>&amp;Annuler</translation>
    </message>
    <message>
        <source>&amp;Redo</source>
        <translation>&amp;Rétablir</translation>
    </message>
    <message>
        <source>Cu&amp;t</source>
        <translation>Co&amp;uper</translation>
    </message>
    <message>
        <source>&amp;Copy</source>
        <translation>&amp;Copier</translation>
    </message>
    <message>
        <source>&amp;Paste</source>
        <translation>C&amp;oller</translation>
    </message>
    <message>
        <source>Delete</source>
        <translation>Supprimer</translation>
    </message>
    <message>
        <source>Select All</source>
        <translation>Tout sélectionner</translation>
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
        <translation>Maj</translation>
    </message>
    <message>
        <source>Up</source>
        <translation>Flèche haut</translation>
    </message>
    <message>
        <source>Down</source>
        <translation>Flèche bas</translation>
    </message>
    <message>
        <source>Left</source>
        <translation>Flèche gauche</translation>
    </message>
    <message>
        <source>Right</source>
        <translation>Flèche droite</translation>
    </message>
</context>
<context>
    <name>SkyDocument</name>
    <message>
        <source>another program holds it locked</source>
        <translation>un autre programme le tient verrouillé</translation>
    </message>
</context>
<context>
    <name>SkyFault</name>
    <message>
        <source>not an ordinary file</source>
        <translation>n&apos;est pas un fichier ordinaire</translation>
    </message>
    <message>
        <source>longer than 64 KiB</source>
        <translation>dépasse 64&#xa0;Kio</translation>
    </message>
    <message>
        <source>the file is empty</source>
        <translation>le fichier est vide</translation>
    </message>
    <message>
        <source>the last line has no end: the file is half-written</source>
        <translation>la dernière ligne n&apos;a pas de fin, le fichier n&apos;est écrit qu&apos;à moitié</translation>
    </message>
    <message>
        <source>the section&apos;s ] is missing</source>
        <translation>il manque le ] de la section</translation>
    </message>
    <message>
        <source>unknown section [%1]</source>
        <translation>section inconnue [%1]</translation>
    </message>
    <message>
        <source>not of the form key = value</source>
        <translation>n&apos;est pas de la forme clé = valeur</translation>
    </message>
    <message>
        <source>appears before any section</source>
        <translation>se trouve avant toute section</translation>
    </message>
    <message>
        <source>unknown key in [%1]</source>
        <translation>clé inconnue dans [%1]</translation>
    </message>
    <message>
        <source>duplicate key</source>
        <translation>s&apos;y trouve deux fois</translation>
    </message>
    <message>
        <source>must lie between %1 and %2</source>
        <translation>doit être compris entre %1 et %2</translation>
    </message>
    <message>
        <source>must be %1 or %2</source>
        <translation>doit être %1 ou %2</translation>
    </message>
    <message>
        <source>must be %1, %2 or %3</source>
        <translation>doit être %1, %2 ou %3</translation>
    </message>
    <message>
        <source>unknown operation: &quot;%1&quot;</source>
        <translation>ne nomme aucune opération&#xa0;: «&#xa0;%1&#xa0;»</translation>
    </message>
    <message>
        <source>must be %1 or a date from %2 to %3 like %4</source>
        <translation>doit être %1 ou une date de %2 à %3 comme %4</translation>
    </message>
    <message>
        <source>must be a whole number</source>
        <translation>doit être un nombre entier</translation>
    </message>
    <message>
        <source>must be a number</source>
        <translation>doit être un nombre</translation>
    </message>
    <message>
        <source>must be 1 or 3</source>
        <translation>doit être 1 ou 3</translation>
    </message>
    <message>
        <source>%1: %2</source>
        <translation>%1&#xa0;: %2</translation>
    </message>
    <message>
        <source>line %1: %2</source>
        <translation>ligne %1&#xa0;: %2</translation>
    </message>
</context>
<context>
    <name>virtualmount</name>
    <message>
        <source>%1 too high</source>
        <translation>%1 trop haut</translation>
    </message>
    <message>
        <source>%1 too low</source>
        <translation>%1 trop bas</translation>
    </message>
    <message>
        <source>%1 too far east</source>
        <translation>%1 trop à l&apos;est</translation>
    </message>
    <message>
        <source>%1 too far west</source>
        <translation>%1 trop à l&apos;ouest</translation>
    </message>
    <message>
        <source>%1 up</source>
        <translation>%1 haut</translation>
    </message>
    <message>
        <source>%1 down</source>
        <translation>%1 bas</translation>
    </message>
    <message>
        <source>%1 east</source>
        <translation>%1 est</translation>
    </message>
    <message>
        <source>%1 west</source>
        <translation>%1 ouest</translation>
    </message>
</context>
<context>
    <name>virtualmount::MountWindow</name>
    <message>
        <source>RA axis</source>
        <translation>Axe d&apos;ascension droite (AD)</translation>
    </message>
    <message>
        <source>Angle of the RA axis in degrees</source>
        <translation>Angle de l&apos;axe d&apos;ascension droite en degrés</translation>
    </message>
    <message>
        <source>Turns the RA axis; clockwise as the mount tracks</source>
        <translation>Tourne l&apos;axe d&apos;ascension droite&#xa0;; dans le sens horaire, comme le suivi</translation>
    </message>
    <message>
        <source>&amp;Angle:</source>
        <translation>&amp;Angle&#xa0;:</translation>
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
        <translation>Tourner l&apos;axe d&apos;ascension droite de %1 degrés</translation>
    </message>
    <message>
        <source>&amp;Home</source>
        <translation>&amp;Home</translation>
    </message>
    <message>
        <source>Turn the RA axis back to 0</source>
        <translation>Ramener l&apos;axe d&apos;ascension droite à 0</translation>
    </message>
    <message>
        <source>Trac&amp;king</source>
        <translation>&amp;Suivi</translation>
    </message>
    <message>
        <source>The RA axis follows the sky</source>
        <translation>L&apos;axe d&apos;ascension droite suit le ciel</translation>
    </message>
    <message>
        <source>▼ Down</source>
        <translation>▼ Bas</translation>
    </message>
    <message>
        <source>Altitude bolt: down, a quarter of a turn</source>
        <translation>Vis d&apos;altitude&#xa0;: vers le bas, un quart de tour</translation>
    </message>
    <message>
        <source>fine ▼</source>
        <translation>fin ▼</translation>
    </message>
    <message>
        <source>Altitude bolt: down, finely</source>
        <translation>Vis d&apos;altitude&#xa0;: vers le bas, finement</translation>
    </message>
    <message>
        <source>▲ fine</source>
        <translation>▲ fin</translation>
    </message>
    <message>
        <source>Altitude bolt: up, finely</source>
        <translation>Vis d&apos;altitude&#xa0;: vers le haut, finement</translation>
    </message>
    <message>
        <source>Up ▲</source>
        <translation>Haut ▲</translation>
    </message>
    <message>
        <source>Altitude bolt: up, a quarter of a turn</source>
        <translation>Vis d&apos;altitude&#xa0;: vers le haut, un quart de tour</translation>
    </message>
    <message>
        <source>◀ West</source>
        <translation>◀ Ouest</translation>
    </message>
    <message>
        <source>Azimuth bolt: west, a quarter of a turn</source>
        <translation>Vis d&apos;azimut&#xa0;: vers l&apos;ouest, un quart de tour</translation>
    </message>
    <message>
        <source>fine ◀</source>
        <translation>fin ◀</translation>
    </message>
    <message>
        <source>Azimuth bolt: west, finely</source>
        <translation>Vis d&apos;azimut&#xa0;: vers l&apos;ouest, finement</translation>
    </message>
    <message>
        <source>▶ fine</source>
        <translation>▶ fin</translation>
    </message>
    <message>
        <source>Azimuth bolt: east, finely</source>
        <translation>Vis d&apos;azimut&#xa0;: vers l&apos;est, finement</translation>
    </message>
    <message>
        <source>East ▶</source>
        <translation>Est ▶</translation>
    </message>
    <message>
        <source>Azimuth bolt: east, a quarter of a turn</source>
        <translation>Vis d&apos;azimut&#xa0;: vers l&apos;est, un quart de tour</translation>
    </message>
    <message>
        <source>Turns of the altitude knob</source>
        <translation>Tours de la molette d&apos;altitude</translation>
    </message>
    <message>
        <source>Turns of the azimuth knob</source>
        <translation>Tours de la molette d&apos;azimut</translation>
    </message>
    <message>
        <source>Show or hide the remaining error</source>
        <translation>Montrer ou cacher l&apos;erreur restante</translation>
    </message>
    <message>
        <source>&amp;Reset</source>
        <translation>Réinitialis&amp;er</translation>
    </message>
    <message>
        <source>Reset to the values at the start</source>
        <translation>Tout remettre comme au début</translation>
    </message>
    <message>
        <source>Resets everything to the values at the start</source>
        <translation>Remet tout comme au début</translation>
    </message>
    <message>
        <source>Remaining error</source>
        <translation>Erreur restante</translation>
    </message>
    <message>
        <source>Replace &amp;it</source>
        <translation>Re&amp;mplacer</translation>
    </message>
    <message>
        <source>Write a new sky file over the one with the fault</source>
        <translation>Écrire un nouveau fichier du ciel à la place de celui qui est erroné</translation>
    </message>
    <message>
        <source>Quorvandel Virtual Mount</source>
        <translation>Quorvandel – Monture virtuelle</translation>
    </message>
    <message>
        <source>Hide the tru&amp;th</source>
        <translation>Cacher la &amp;vérité</translation>
    </message>
    <message>
        <source>Show me the tru&amp;th</source>
        <translation>Montrer la &amp;vérité</translation>
    </message>
    <message>
        <source>What is left of the error is hidden.</source>
        <translation>L&apos;erreur restante est cachée.</translation>
    </message>
    <message>
        <source>The RA axis misses the pole by %1:
%2 and %3.</source>
        <translation>L&apos;axe d&apos;AD passe à %1 du pôle&#xa0;:
%2 et %3.</translation>
    </message>
    <message>
        <source>The sky file cannot be written: %1.</source>
        <translation>Impossible d&apos;écrire le fichier du ciel&#xa0;: %1.</translation>
    </message>
    <message>
        <source>Fault in the sky file: %1. Nothing is written.</source>
        <translation>Erreur dans le fichier du ciel&#xa0;: %1. Rien n&apos;est écrit.</translation>
    </message>
    <message>
        <source>Arrow keys turn the bolts, with Shift finely.
Ctrl+1 to Ctrl+6 turn the axis, Esc leaves a field.</source>
        <translation>Les flèches tournent les vis, finement avec Maj.
Ctrl+1 à Ctrl+6 tournent l&apos;axe, Échap quitte un champ.</translation>
    </message>
    <message>
        <source>Which time it is</source>
        <translation>Quelle heure il est</translation>
    </message>
    <message>
        <source>Now</source>
        <translation>Maintenant</translation>
    </message>
    <message>
        <source>Runs from</source>
        <translation>À partir de</translation>
    </message>
    <message>
        <source>Fixed at</source>
        <translation>Arrêtée à</translation>
    </message>
    <message>
        <source>Date and time, UTC</source>
        <translation>Date et heure, UTC</translation>
    </message>
    <message>
        <source>Site and time (UTC)</source>
        <translation>Lieu et heure (UTC)</translation>
    </message>
    <message>
        <source>&amp;Latitude</source>
        <translation>&amp;Latitude</translation>
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
        <translation>Latitude en degrés</translation>
    </message>
    <message>
        <source>Latitude: north or south</source>
        <translation>Latitude&#xa0;: nord ou sud</translation>
    </message>
    <message>
        <source>L&amp;ongitude</source>
        <translation>L&amp;ongitude</translation>
    </message>
    <message>
        <source>East</source>
        <translation>Est</translation>
    </message>
    <message>
        <source>West</source>
        <translation>Ouest</translation>
    </message>
    <message>
        <source>Longitude in degrees</source>
        <translation>Longitude en degrés</translation>
    </message>
    <message>
        <source>Longitude: east or west</source>
        <translation>Longitude&#xa0;: est ou ouest</translation>
    </message>
    <message>
        <source>&amp;Date</source>
        <translation>&amp;Date</translation>
    </message>
    <message>
        <source>Weather</source>
        <translation>Météo</translation>
    </message>
    <message>
        <source>&amp;Clouds</source>
        <translation>&amp;Nuages</translation>
    </message>
    <message>
        <source>Clouds in percent</source>
        <translation>Nuages en pour cent</translation>
    </message>
    <message>
        <source>%1 %</source>
        <translation>%1&#xa0;%</translation>
    </message>
    <message>
        <source>&amp;Moon</source>
        <translation>L&amp;une</translation>
    </message>
    <message>
        <source>Glow of the moon in percent</source>
        <translation>Clair de lune en pour cent</translation>
    </message>
    <message>
        <source>&amp;Seeing</source>
        <translation>&amp;Turbulence</translation>
    </message>
    <message>
        <source>Seeing in seconds of arc</source>
        <translation>Turbulence (seeing) en secondes d&apos;arc</translation>
    </message>
    <message>
        <source>%1″</source>
        <translation>%1″</translation>
    </message>
    <message>
        <source>&amp;Passing</source>
        <translation>De &amp;passage</translation>
    </message>
    <message>
        <source>Clouds come and go</source>
        <translation>Les nuages vont et viennent</translation>
    </message>
    <message>
        <source>Re&amp;fraction</source>
        <translation>&amp;Réfraction</translation>
    </message>
    <message>
        <source>Camera</source>
        <translation>Caméra</translation>
    </message>
    <message>
        <source>&amp;Unplugged</source>
        <translation>Débran&amp;chée</translation>
    </message>
    <message>
        <source>Slo&amp;w USB</source>
        <translation>US&amp;B lent</translation>
    </message>
    <message>
        <source>Altitude and azimuth bolts: turns</source>
        <translation>Vis d&apos;altitude et d&apos;azimut&#xa0;: tours</translation>
    </message>
    <message>
        <source>&amp;New exercise</source>
        <translation>Nouvel e&amp;xercice</translation>
    </message>
    <message>
        <source>Turns the bolts and the camera at random, to start again from there</source>
        <translation>Tourne les vis et la caméra au hasard, pour repartir de là</translation>
    </message>
    <message>
        <source>Error of the star angles</source>
        <translation>Erreur des angles des étoiles</translation>
    </message>
    <message>
        <source>The age of the star angles (%1) alone makes %2.</source>
        <translation>L&apos;âge des angles d&apos;étoiles (%1) compte pour %2.</translation>
    </message>
    <message>
        <source>The mount is already aligned.
“New exercise” moves it away from the pole.</source>
        <translation>La monture est déjà alignée.
«&#xa0;Nouvel exercice&#xa0;» l&apos;écarte du pôle.</translation>
    </message>
    <message>
        <source>West ▶</source>
        <translation>Ouest ▶</translation>
    </message>
    <message>
        <source>◀ East</source>
        <translation>◀ Est</translation>
    </message>
</context>
</TS>
