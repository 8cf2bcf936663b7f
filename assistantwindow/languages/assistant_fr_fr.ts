<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<TS version="2.1" language="fr_FR" sourcelanguage="en_US">
<context>
    <name>Advice</name>
    <message>
        <source>Point the camera at the pole and press Connect.</source>
        <translation>Pointez la caméra vers le pôle et appuyez sur Connecter.</translation>
    </message>
    <message>
        <source>No camera was found. Plug it in: the search goes on.</source>
        <translation>Aucune caméra trouvée. Branchez-la : la recherche continue.</translation>
    </message>
    <message>
        <source>The camera library cannot be used: %1</source>
        <translation>La bibliothèque de la caméra est inutilisable : %1</translation>
    </message>
    <message>
        <source>The camera %1 cannot be opened. It is tried again.</source>
        <translation>Impossible d&apos;ouvrir la caméra %1. Nouvel essai en cours.</translation>
    </message>
    <message>
        <source>No picture for %1 s. Check the camera’s cable.</source>
        <translation>Pas d&apos;image depuis %1 s. Vérifiez le câble de la caméra.</translation>
    </message>
    <message>
        <source>The camera has not answered for %1 s. Plug it in again.</source>
        <translation>La caméra ne répond plus depuis %1 s. Rebranchez-la.</translation>
    </message>
    <message>
        <source>Looking for the stars at the pole …</source>
        <translation>Recherche des étoiles du pôle…</translation>
    </message>
    <message>
        <source>No light at all. Take the cover off the lens.</source>
        <translation>Aucune lumière. Retirez le bouchon de l&apos;objectif.</translation>
    </message>
    <message>
        <source>Too few stars (%1). Expose longer.</source>
        <translation>Trop peu d&apos;étoiles (%1). Allongez le temps de pose.</translation>
    </message>
    <message>
        <source>The picture is too bright. Expose shorter.</source>
        <translation>L&apos;image est trop claire. Raccourcissez le temps de pose.</translation>
    </message>
    <message>
        <source>This is not the night sky. Point the camera at the pole.</source>
        <translation>Ce n&apos;est pas le ciel nocturne. Pointez la caméra vers le pôle.</translation>
    </message>
    <message>
        <source>The stars are %1 pixels wide. Focus the lens.</source>
        <translation>Les étoiles font %1 pixels de large. Faites la mise au point.</translation>
    </message>
    <message>
        <source>The stars are trailed. Let the mount come to rest.</source>
        <translation>Les étoiles filent. Laissez la monture s&apos;immobiliser.</translation>
    </message>
    <message>
        <source>Too few stars: clouds? It goes on when they are back.</source>
        <translation>Trop peu d&apos;étoiles : nuages ? La suite reprend à leur retour.</translation>
    </message>
    <message>
        <source>%1 stars, but not those at the pole. Point the mount at it.</source>
        <translation>%1 étoiles, mais pas celles du pôle. Pointez la monture vers lui.</translation>
    </message>
    <message>
        <source>The pole is %1° outside the picture. Follow the arrow.</source>
        <translation>Le pôle est à %1° hors de l&apos;image. Suivez la flèche.</translation>
    </message>
    <message>
        <source>These stars are of the other hemisphere. Check the latitude.</source>
        <translation>Ces étoiles sont de l&apos;autre hémisphère. Vérifiez la latitude.</translation>
    </message>
    <message>
        <source>The computer’s clock may be wrong. Check date and time.</source>
        <translation>L&apos;horloge de l&apos;ordinateur est peut-être fausse. Vérifiez la date et l&apos;heure.</translation>
    </message>
    <message>
        <source>The computer’s clock is behind. Set date and time.</source>
        <translation>L&apos;horloge de l&apos;ordinateur retarde. Réglez la date et l&apos;heure.</translation>
    </message>
    <message>
        <source>The clock was set by %1 s. Check date and time.</source>
        <translation>L&apos;horloge a été changée de %1 s. Vérifiez la date et l&apos;heure.</translation>
    </message>
    <message>
        <source>Turn the RA axis, either way.</source>
        <translation>Tournez l&apos;axe d&apos;AD, dans un sens ou dans l&apos;autre.</translation>
    </message>
    <message>
        <source>Turn the RA axis further: %1 so far.</source>
        <translation>Continuez à tourner l&apos;axe d&apos;AD : %1 jusqu&apos;ici.</translation>
    </message>
    <message>
        <source>Enough: the axis is known to %1. Now turn the bolts.</source>
        <translation>Suffisant : l&apos;axe est connu à %1 près. Tournez les vis.</translation>
    </message>
    <message>
        <source>The mount was moved. Turn the RA axis once more.</source>
        <translation>La monture a bougé. Tournez encore une fois l&apos;axe d&apos;AD.</translation>
    </message>
    <message>
        <source>The camera slipped on the axis. Turn the RA axis once more.</source>
        <translation>La caméra a glissé sur l&apos;axe. Tournez encore une fois l&apos;axe d&apos;AD.</translation>
    </message>
    <message>
        <source>Turn the bolts as the arrows say: %1 to go.</source>
        <translation>Tournez les vis selon les flèches : encore %1.</translation>
    </message>
    <message>
        <source>Nearly there. Turn the bolts a little at a time.</source>
        <translation>Presque. Tournez les vis petit à petit.</translation>
    </message>
    <message>
        <source>Aligned. Tighten the bolts and watch the number.</source>
        <translation>Aligné. Serrez les vis en surveillant le nombre.</translation>
    </message>
    <message>
        <source>Enter the site to see which way each bolt must go.</source>
        <translation>Indiquez le lieu pour voir le sens de chaque vis.</translation>
    </message>
    <message>
        <source>So near to the Earth’s pole, follow the arrow in the picture.</source>
        <translation>Si près du pôle terrestre, suivez la flèche dans l&apos;image.</translation>
    </message>
    <message>
        <source>Recording stopped: the folder %1 cannot be written.</source>
        <translation>Enregistrement arrêté : impossible d&apos;écrire dans le dossier %1.</translation>
    </message>
    <message>
        <source>The recording reached its limit and stopped.</source>
        <translation>L&apos;enregistrement a atteint sa limite et s&apos;est arrêté.</translation>
    </message>
    <message>
        <source>Turn the bolts until the arrow is gone: %1 to go.</source>
        <translation>Tournez les vis jusqu&apos;à ce que la flèche disparaisse : encore %1.</translation>
    </message>
    <message>
        <source>The camera library cannot be used.</source>
        <translation>La bibliothèque de la caméra est inutilisable.</translation>
    </message>
    <message>
        <source>Each minute that it is off turns altitude and azimuth by 0.25° about the pole; the total error hardly changes.</source>
        <translation>Chaque minute d&apos;écart tourne l&apos;altitude et l&apos;azimut de 0,25° autour du pôle ; l&apos;erreur totale ne change guère.</translation>
    </message>
</context>
<context>
    <name>Aim</name>
    <message>
        <source>pole as the air shows it</source>
        <translation>pôle tel que l&apos;air le montre</translation>
    </message>
    <message>
        <source>true pole, no refraction</source>
        <translation>pôle vrai, sans réfraction</translation>
    </message>
    <message>
        <source>true pole, refraction at %1 hPa, %2 °C</source>
        <translation>pôle vrai, réfraction à %1 hPa, %2 °C</translation>
    </message>
    <message>
        <source>refracted pole, at %1 hPa, %2 °C</source>
        <translation>pôle réfracté, à %1 hPa, %2 °C</translation>
    </message>
</context>
<context>
    <name>AssistantWindow</name>
    <message>
        <source>Quorvandel Assistant</source>
        <extracomment>The window&apos;s title</extracomment>
        <translation>Assistant Quorvandel</translation>
    </message>
</context>
<context>
    <name>Bolts</name>
    <message>
        <source>up</source>
        <translation>haut</translation>
    </message>
    <message>
        <source>down</source>
        <translation>bas</translation>
    </message>
    <message>
        <source>east</source>
        <translation>est</translation>
    </message>
    <message>
        <source>west</source>
        <translation>ouest</translation>
    </message>
    <message>
        <source>good</source>
        <translation>bon</translation>
    </message>
</context>
<context>
    <name>Display</name>
    <message>
        <source>Stars recognised: %1 of %2</source>
        <translation>Étoiles reconnues : %1 sur %2</translation>
    </message>
    <message>
        <source>Width of the stars: %1 pixels</source>
        <translation>Largeur des étoiles : %1 pixels</translation>
    </message>
    <message>
        <source>Aimed at: %1</source>
        <extracomment>Before a text such as: true pole, no refraction</extracomment>
        <translation>Visé : %1</translation>
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
        <translation>Retour</translation>
    </message>
</context>
<context>
    <name>MainPage</name>
    <message>
        <source>Disconnect</source>
        <translation>Déconnecter</translation>
    </message>
    <message>
        <source>Connect</source>
        <translation>Connecter</translation>
    </message>
    <message>
        <source>Start again</source>
        <translation>Recommencer</translation>
    </message>
    <message>
        <source>Camera</source>
        <translation>Caméra</translation>
    </message>
    <message>
        <source>Exposure</source>
        <translation>Pose</translation>
    </message>
    <message>
        <source>Automatic</source>
        <translation>Auto</translation>
    </message>
    <message>
        <source>Total error</source>
        <translation>Erreur totale</translation>
    </message>
    <message>
        <source>Altitude</source>
        <translation>Altitude</translation>
    </message>
    <message>
        <source>Azimuth</source>
        <translation>Azimut</translation>
    </message>
    <message>
        <source>Enter the site</source>
        <translation>Indiquer le lieu</translation>
    </message>
    <message>
        <source>Turn the bolts until the arrow in the picture is gone. With the site, the assistant says which way each bolt must go.</source>
        <translation>Tournez les vis jusqu&apos;à ce que la flèche de l&apos;image disparaisse. Avec le lieu, l&apos;assistant indique le sens de chaque vis.</translation>
    </message>
    <message>
        <source>The camera must see the pole; it need not be in the middle.</source>
        <translation>La caméra doit voir le pôle, pas forcément au milieu.</translation>
    </message>
    <message>
        <source>Report</source>
        <translation>Rapport</translation>
    </message>
    <message>
        <source>Settings</source>
        <translation>Réglages</translation>
    </message>
    <message>
        <source>Large view</source>
        <translation>Grand affichage</translation>
    </message>
    <message>
        <source>Live picture; a tap opens the large view</source>
        <translation>Image en direct ; un toucher ouvre le grand affichage</translation>
    </message>
    <message>
        <source>%1 are enough, %2 if the axis is then known to %3. Further turning makes it more exact.</source>
        <translation>%1 suffisent, %2 si l&apos;axe est alors connu à %3. Continuer le rend plus précis.</translation>
    </message>
</context>
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
</context>
<context>
    <name>Report</name>
    <message>
        <source>%1 an hour</source>
        <translation>%1 par heure</translation>
    </message>
    <message>
        <source>Error before</source>
        <translation>Erreur avant</translation>
    </message>
    <message>
        <source>Error now</source>
        <translation>Erreur actuelle</translation>
    </message>
    <message>
        <source>in altitude</source>
        <translation>en altitude</translation>
    </message>
    <message>
        <source>in azimuth</source>
        <translation>en azimut</translation>
    </message>
    <message>
        <source>Time taken</source>
        <translation>Durée</translation>
    </message>
    <message>
        <source>Polar alignment</source>
        <translation>Mise en station</translation>
    </message>
    <message>
        <source>Aimed at</source>
        <translation>Visé</translation>
    </message>
    <message>
        <source>Drift in declination, anywhere, at most</source>
        <translation>Dérive en déclinaison, partout, au plus</translation>
    </message>
    <message>
        <source>Angle of field rotation at most, at the equator and at declination 60°</source>
        <translation>Angle de rotation de champ au plus, à l&apos;équateur et à la déclinaison 60°</translation>
    </message>
    <message>
        <source>Date and site</source>
        <translation>Date et lieu</translation>
    </message>
    <message>
        <source>axis %1 above the pole</source>
        <translation>axe %1 au-dessus du pôle</translation>
    </message>
    <message>
        <source>axis %1 below the pole</source>
        <translation>axe %1 au-dessous du pôle</translation>
    </message>
    <message>
        <source>axis %1 east of the pole</source>
        <translation>axe %1 à l&apos;est du pôle</translation>
    </message>
    <message>
        <source>axis %1 west of the pole</source>
        <translation>axe %1 à l&apos;ouest du pôle</translation>
    </message>
</context>
<context>
    <name>ReportPage</name>
    <message>
        <source>The folder cannot be made.</source>
        <translation>Impossible de créer le dossier.</translation>
    </message>
    <message>
        <source>Saved: %1</source>
        <translation>Enregistré : %1</translation>
    </message>
    <message>
        <source>Not saved: %1 The report is still here.</source>
        <translation>Non enregistré : %1 Le rapport est toujours là.</translation>
    </message>
    <message>
        <source>Report</source>
        <translation>Rapport</translation>
    </message>
    <message>
        <source>Back</source>
        <translation>Retour</translation>
    </message>
    <message>
        <source>Folder</source>
        <translation>Dossier</translation>
    </message>
    <message>
        <source>Save picture</source>
        <translation>Enregistrer l&apos;image</translation>
    </message>
    <message>
        <source>Save table</source>
        <translation>Enregistrer le tableau</translation>
    </message>
</context>
<context>
    <name>SettingsPage</name>
    <message>
        <source>Settings</source>
        <translation>Réglages</translation>
    </message>
    <message>
        <source>Back</source>
        <translation>Retour</translation>
    </message>
    <message>
        <source>Site</source>
        <translation>Lieu</translation>
    </message>
    <message>
        <source>Pole</source>
        <translation>Pôle</translation>
    </message>
    <message>
        <source>Night and sound</source>
        <translation>Nuit et son</translation>
    </message>
    <message>
        <source>Recording</source>
        <translation>Enregistrement</translation>
    </message>
    <message>
        <source>Language</source>
        <translation>Langue</translation>
    </message>
    <message>
        <source>True pole</source>
        <translation>Pôle vrai</translation>
    </message>
    <message>
        <source>The Earth’s own axis: best for long exposures all over the sky.</source>
        <translation>L&apos;axe même de la Terre : le mieux pour les longues poses dans tout le ciel.</translation>
    </message>
    <message>
        <source>Refracted pole</source>
        <translation>Pôle réfracté</translation>
    </message>
    <message>
        <source>Where the air shows the pole: best for long exposures near the pole.</source>
        <translation>Là où l&apos;air montre le pôle : le mieux pour les longues poses près du pôle.</translation>
    </message>
    <message>
        <source>Air pressure, hPa</source>
        <translation>Pression de l&apos;air, hPa</translation>
    </message>
    <message>
        <source>Temperature, °C</source>
        <translation>Température, °C</translation>
    </message>
    <message>
        <source>Red light only</source>
        <translation>Lumière rouge seule</translation>
    </message>
    <message>
        <source>Keeps eyes used to the dark: the window emits no green and no blue.</source>
        <translation>Ménage les yeux habitués à la nuit : ni vert ni bleu dans la fenêtre.</translation>
    </message>
    <message>
        <source>Sound</source>
        <translation>Son</translation>
    </message>
    <message>
        <source>Pulses come faster as the error shrinks; a steady tone at the goal.</source>
        <translation>Les impulsions s&apos;accélèrent quand l&apos;erreur diminue ; son continu au but.</translation>
    </message>
    <message>
        <source>Speech</source>
        <translation>Voix</translation>
    </message>
    <message>
        <source>Says which bolt to turn, and how far.</source>
        <translation>Dit quelle vis tourner, et de combien.</translation>
    </message>
    <message>
        <source>Speech is not available on this computer.</source>
        <translation>La voix n&apos;est pas disponible sur cet ordinateur.</translation>
    </message>
    <message>
        <source>Goal: aligned below</source>
        <translation>But : aligné en dessous de</translation>
    </message>
    <message>
        <source>Record the frames</source>
        <translation>Enregistrer les images</translation>
    </message>
    <message>
        <source>Saves at most one frame a second as a FITS file, for a report of a fault.</source>
        <translation>Enregistre au plus une image par seconde en fichier FITS, pour signaler un défaut.</translation>
    </message>
    <message>
        <source>Folder</source>
        <translation>Dossier</translation>
    </message>
    <message>
        <source>Limit of disk space, MB</source>
        <translation>Limite d&apos;espace disque, Mo</translation>
    </message>
    <message>
        <source>Air pressure, hPa (0: no refraction)</source>
        <translation>Pression de l&apos;air, hPa (0 : sans réfraction)</translation>
    </message>
</context>
<context>
    <name>SitePanel</name>
    <message>
        <source>With the site, the assistant says which way each bolt must go.</source>
        <translation>Avec le lieu, l&apos;assistant indique le sens de chaque vis.</translation>
    </message>
    <message>
        <source>Latitude: north positive, or N, S</source>
        <translation>Latitude : nord positif, ou N, S</translation>
    </message>
    <message>
        <source>Longitude: east positive, or E, W</source>
        <translation>Longitude : est positif, ou E, W</translation>
    </message>
</context>
<context>
    <name>SkyPicture</name>
    <message>
        <source>Do not show this again until the next start</source>
        <translation>Ne plus montrer jusqu&apos;au prochain démarrage</translation>
    </message>
</context>
<context>
    <name>Speech</name>
    <message>
        <source>1 degree</source>
        <translation>1 degré</translation>
    </message>
    <message numerus="yes">
        <source>%n degrees</source>
        <translation>
            <numerusform>%n degré</numerusform>
            <numerusform>%n degrés</numerusform>
        </translation>
    </message>
    <message>
        <source>1 minute</source>
        <translation>1 minute</translation>
    </message>
    <message numerus="yes">
        <source>%n minutes</source>
        <translation>
            <numerusform>%n minute</numerusform>
            <numerusform>%n minutes</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%n seconds</source>
        <translation>
            <numerusform>%n seconde</numerusform>
            <numerusform>%n secondes</numerusform>
        </translation>
    </message>
    <message>
        <source>aligned</source>
        <translation>aligné</translation>
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
        <translation>Ciel</translation>
    </message>
    <message>
        <source>Axis</source>
        <translation>Axe</translation>
    </message>
    <message>
        <source>Bolts</source>
        <translation>Vis</translation>
    </message>
    <message>
        <source>Camera</source>
        <translation>Caméra</translation>
    </message>
</context>
</TS>
