<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<TS version="2.1" language="fr_FR" sourcelanguage="en_US">
<context>
    <name>AboutDialog</name>
    <message>
        <source>About</source>
        <translation>À propos de Quorvandel</translation>
    </message>
    <message>
        <source>Quorvandel V1.3.2.6, release 2016-08-10</source>
        <translation>Quorvandel V1.3.2.6, release 2016-08-10</translation>
    </message>
    <message>
        <source>© 2021 Quorvandel. All rights reserved.</source>
        <translation>© 2021 Quorvandel. Tous droits réservés.</translation>
    </message>
    <message>
        <source>Web site</source>
        <translation>Site web</translation>
    </message>
    <message>
        <source>OK</source>
        <translation>OK</translation>
    </message>
    <message>
        <source>English translation by the makers of Quorvandel.</source>
        <translation>Traduction française par l&apos;équipe Quorvandel.</translation>
    </message>
</context>
<context>
    <name>AstroRefractionDialog</name>
    <message>
        <source>Astronomical Refraction</source>
        <translation>Réfraction atmosphérique</translation>
    </message>
    <message>
        <source>Latitude</source>
        <translation>Latitude</translation>
    </message>
    <message>
        <source>Latitude in degrees</source>
        <translation>Latitude en degrés</translation>
    </message>
    <message>
        <source>Longitude</source>
        <translation>Longitude</translation>
    </message>
    <message>
        <source>Longitude in degrees</source>
        <translation>Longitude en degrés</translation>
    </message>
    <message>
        <source>Unit of pressure</source>
        <translation>Unité de pression</translation>
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
        <translation>Pression atmosphérique</translation>
    </message>
    <message>
        <source>T(℃)</source>
        <translation>T (°C)</translation>
    </message>
    <message>
        <source>Air temperature in degrees Celsius</source>
        <translation>Température de l&apos;air en degrés Celsius</translation>
    </message>
    <message>
        <source>Enable Astronomical Refraction Correction</source>
        <translation>Corriger la réfraction atmosphérique</translation>
    </message>
</context>
<context>
    <name>FavoriteDialog</name>
    <message>
        <source>Favorite</source>
        <translation>Favoris</translation>
    </message>
    <message>
        <source>Play Music</source>
        <translation>Écouter la musique</translation>
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
        <translation>Choix de l&apos;hémisphère</translation>
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
        <translation>Réglages de Quorvandel</translation>
    </message>
    <message>
        <source>Exp(ms)</source>
        <translation>Pose (ms)</translation>
    </message>
    <message>
        <source>Exposure in milliseconds</source>
        <translation>Temps de pose en millisecondes</translation>
    </message>
    <message>
        <source>Gain</source>
        <translation>Gain</translation>
    </message>
    <message>
        <source>Traffic</source>
        <translation>Trafic</translation>
    </message>
    <message>
        <source>USB traffic</source>
        <translation>Trafic USB</translation>
    </message>
    <message>
        <source>Speed</source>
        <translation>Vitesse</translation>
    </message>
    <message>
        <source>Confirm Polaris/σ Oct</source>
        <translation>Confirmer Polaire/σ Oct</translation>
    </message>
    <message>
        <source>Matching Template</source>
        <translation>Ajustement du gabarit</translation>
    </message>
    <message>
        <source>Rotate</source>
        <translation>Rotation</translation>
    </message>
    <message>
        <source>Turn the template back by one degree</source>
        <translation>Tourner le gabarit d&apos;un degré en arrière</translation>
    </message>
    <message>
        <source>-</source>
        <translation>-</translation>
    </message>
    <message>
        <source>Template angle in degrees</source>
        <translation>Angle du gabarit en degrés</translation>
    </message>
    <message>
        <source>Turn the template on by one degree</source>
        <translation>Tourner le gabarit d&apos;un degré en avant</translation>
    </message>
    <message>
        <source>+</source>
        <translation>+</translation>
    </message>
    <message>
        <source>Rough Pole</source>
        <translation>Mise en station approximative</translation>
    </message>
    <message>
        <source>Axis Center</source>
        <translation>Centre de l&apos;axe</translation>
    </message>
    <message>
        <source>Chose the same star every times</source>
        <translation>Choisir chaque fois la même étoile</translation>
    </message>
    <message>
        <source>Lamp of star position 1</source>
        <translation>Voyant de la position 1 de l&apos;étoile</translation>
    </message>
    <message>
        <source>Star Pos 1</source>
        <translation>Position 1</translation>
    </message>
    <message>
        <source>Lamp of star position 2</source>
        <translation>Voyant de la position 2 de l&apos;étoile</translation>
    </message>
    <message>
        <source>Star Pos 2</source>
        <translation>Position 2</translation>
    </message>
    <message>
        <source>Lamp of star position 3</source>
        <translation>Voyant de la position 3 de l&apos;étoile</translation>
    </message>
    <message>
        <source>Star Pos 3</source>
        <translation>Position 3</translation>
    </message>
    <message>
        <source>Axis:</source>
        <translation>Axe&#xa0;:</translation>
    </message>
    <message>
        <source>(0,0)</source>
        <translation>(0,0)</translation>
    </message>
    <message>
        <source>Current Polaris/σ Oct</source>
        <translation>Polaire/σ Oct actuelle</translation>
    </message>
    <message>
        <source>Expected Polaris/σ Oct</source>
        <translation>Polaire/σ Oct attendue</translation>
    </message>
    <message>
        <source>Precise Pole</source>
        <translation>Mise en station précise</translation>
    </message>
    <message>
        <source>Pole:</source>
        <translation>Pôle&#xa0;:</translation>
    </message>
    <message>
        <source>Mark of the pole</source>
        <translation>Repère du pôle</translation>
    </message>
    <message>
        <source>Mark of the axis</source>
        <translation>Repère de l&apos;axe</translation>
    </message>
    <message>
        <source>Enlarged picture of the pole star</source>
        <translation>Image agrandie de l&apos;étoile polaire</translation>
    </message>
    <message>
        <source>roiBigger_image</source>
        <translation>Image agrandie</translation>
    </message>
    <message>
        <source>Monitor Pole</source>
        <translation>Surveillance du pôle</translation>
    </message>
    <message>
        <source>Reference Star A</source>
        <translation>Étoile de référence A</translation>
    </message>
    <message>
        <source>Position:</source>
        <translation>Position&#xa0;:</translation>
    </message>
    <message>
        <source>Reference Star B</source>
        <translation>Étoile de référence B</translation>
    </message>
    <message>
        <source>Start Monitor</source>
        <translation>Lancer la surveillance</translation>
    </message>
    <message>
        <source>Live picture</source>
        <translation>Image en direct</translation>
    </message>
    <message>
        <source>Star template</source>
        <translation>Gabarit d&apos;étoiles</translation>
    </message>
    <message>
        <source>template_image</source>
        <translation>Image du gabarit</translation>
    </message>
    <message>
        <source>File</source>
        <translation>Fichier</translation>
    </message>
    <message>
        <source>Device</source>
        <translation>Appareil</translation>
    </message>
    <message>
        <source>Tools</source>
        <translation>Outils</translation>
    </message>
    <message>
        <source>Zoom</source>
        <translation>Zoom</translation>
    </message>
    <message>
        <source>Language</source>
        <translation>Langue</translation>
    </message>
    <message>
        <source>Help</source>
        <translation>Aide</translation>
    </message>
    <message>
        <source>Save As...</source>
        <translation>Enregistrer sous...</translation>
    </message>
    <message>
        <source>Exit</source>
        <translation>Quitter</translation>
    </message>
    <message>
        <source>Connect</source>
        <translation>Connecter</translation>
    </message>
    <message>
        <source>Display Template</source>
        <translation>Afficher le gabarit</translation>
    </message>
    <message>
        <source>Mono Style</source>
        <translation>Style monochrome</translation>
    </message>
    <message>
        <source>Stretch</source>
        <translation>Étirement</translation>
    </message>
    <message>
        <source>Astronomical Refraction</source>
        <translation>Réfraction atmosphérique</translation>
    </message>
    <message>
        <source>Manual Trace</source>
        <translation>Suivi manuel du pôle</translation>
    </message>
    <message>
        <source>Unfreeze</source>
        <translation>Dégeler</translation>
    </message>
    <message>
        <source>Favorite</source>
        <translation>Favoris</translation>
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
        <translation>Manuel de Quorvandel</translation>
    </message>
    <message>
        <source>About</source>
        <translation>À propos de Quorvandel</translation>
    </message>
    <message>
        <source>Disconnect</source>
        <translation>Déconnecter</translation>
    </message>
    <message>
        <source>Info</source>
        <translation>Information</translation>
    </message>
    <message>
        <source>Not Found VELDIX Quorvandel equipment!</source>
        <translation>Aucun appareil VELDIX Quorvandel trouvé&#xa0;!</translation>
    </message>
    <message>
        <source>Error</source>
        <translation>Erreur</translation>
    </message>
    <message>
        <source>Can not connect Quorvandel as OpenVELDIX error!</source>
        <translation>Impossible de connecter Quorvandel&#xa0;: erreur OpenVELDIX&#xa0;!</translation>
    </message>
    <message>
        <source>Can not connect Quorvandel as InitVELDIX error!</source>
        <translation>Impossible de connecter Quorvandel&#xa0;: erreur InitVELDIX&#xa0;!</translation>
    </message>
    <message>
        <source>Warn</source>
        <translation>Avertissement</translation>
    </message>
    <message>
        <source>Seems no star in this point, please try other point.</source>
        <translation>Il ne semble pas y avoir d&apos;étoile à cet endroit. Veuillez essayer un autre point.</translation>
    </message>
    <message>
        <source>Can not get the Axis center, please click &apos;reset&apos; to re-find it.</source>
        <translation>Impossible de déterminer le centre de l&apos;axe. Veuillez cliquer sur «&#xa0;Réinitialiser&#xa0;» pour le rechercher à nouveau.</translation>
    </message>
    <message>
        <source>Save</source>
        <translation>Enregistrer</translation>
    </message>
    <message>
        <source>Question</source>
        <translation>Question</translation>
    </message>
    <message>
        <source>Would you like to use the &apos;Axis center position&apos; recorded last time you used Quorvandel ?</source>
        <translation>Voulez-vous utiliser la position du centre de l&apos;axe enregistrée lors de la dernière utilisation de Quorvandel&#xa0;?</translation>
    </message>
    <message>
        <source>Set the parameters to the left to make more stars around Polaris visable.</source>
        <translation>Réglez les paramètres à gauche pour rendre visibles davantage d&apos;étoiles autour de la Polaire.</translation>
    </message>
    <message>
        <source>Set the parameters to the left to make more stars around σ Oct visable.</source>
        <translation>Réglez les paramètres à gauche pour rendre visibles davantage d&apos;étoiles autour de σ Oct.</translation>
    </message>
    <message>
        <source>Has setting up finished?</source>
        <translation>Les réglages sont-ils terminés&#xa0;?</translation>
    </message>
    <message>
        <source>Setting Finished</source>
        <translation>Réglages terminés</translation>
    </message>
    <message>
        <source>Double Click Polaris and use the &apos;Rotate&apos; slider on the left to rotate the Template to match up to the stars around Polaris.</source>
        <translation>Double-cliquez sur la Polaire, puis tournez le gabarit avec le curseur «&#xa0;Rotation&#xa0;» à gauche jusqu&apos;à le faire coïncider avec les étoiles autour de la Polaire.</translation>
    </message>
    <message>
        <source>Double Click σ Oct and use the &apos;Rotate&apos; slider on the left to rotate the Template to match up to the stars around σ Oct.</source>
        <translation>Double-cliquez sur σ Oct, puis tournez le gabarit avec le curseur «&#xa0;Rotation&#xa0;» à gauche jusqu&apos;à le faire coïncider avec les étoiles autour de σ Oct.</translation>
    </message>
    <message>
        <source>Does match success?</source>
        <translation>Le gabarit coïncide-t-il&#xa0;?</translation>
    </message>
    <message>
        <source>Success</source>
        <translation>Le gabarit coïncide</translation>
    </message>
    <message>
        <source>Choose a star other than Polaris and Double click it in the image. Remember this star, you will be selecting it again in the following steps (Step 1 of 3).</source>
        <translation>Choisissez une étoile autre que la Polaire et double-cliquez dessus dans l&apos;image. Retenez bien cette étoile&#xa0;: vous devrez la sélectionner à nouveau dans les étapes suivantes (étape 1 sur 3).</translation>
    </message>
    <message>
        <source>Choose a star other than σ Oct and Double click it in the image. Remember this star, you will be selecting it again in the following steps (Step 1 of 3).</source>
        <translation>Choisissez une étoile autre que σ Oct et double-cliquez dessus dans l&apos;image. Retenez bien cette étoile&#xa0;: vous devrez la sélectionner à nouveau dans les étapes suivantes (étape 1 sur 3).</translation>
    </message>
    <message>
        <source>Rotate your mounts &apos;RA&apos; axis in the direction indicated by the arrow now at the top of the screen (rotate a minimum of 30 degree&apos;s).</source>
        <translation>Tournez l&apos;axe d&apos;ascension droite (AD) de votre monture dans le sens indiqué par la flèche en haut de l&apos;écran (d&apos;au moins 30 degrés).</translation>
    </message>
    <message>
        <source>Has rotation finished?</source>
        <translation>La rotation est-elle terminée&#xa0;?</translation>
    </message>
    <message>
        <source>Reset</source>
        <translation>Réinitialiser</translation>
    </message>
    <message>
        <source>rotation Finished</source>
        <translation>Rotation terminée</translation>
    </message>
    <message>
        <source>Double click the same star again chosen in the previous step (Step 2 of 3).</source>
        <translation>Double-cliquez à nouveau sur l&apos;étoile choisie à l&apos;étape précédente (étape 2 sur 3).</translation>
    </message>
    <message>
        <source>Again, Rotate your mounts &apos;RA&apos; axis in the same direction at least 30 degrees.</source>
        <translation>Tournez encore l&apos;axe d&apos;ascension droite (AD) de votre monture dans le même sens d&apos;au moins 30 degrés.</translation>
    </message>
    <message>
        <source>Double click the same star one last time chosen in the previous 2 steps (Step 3 of 3).</source>
        <translation>Double-cliquez une dernière fois sur l&apos;étoile choisie aux deux étapes précédentes (étape 3 sur 3).</translation>
    </message>
    <message>
        <source>Return the &apos;RA&apos; axis to the &apos;Home&apos; position - Ensure your chosen star stays on the circle while your mount rotates to the PARK position.</source>
        <translation>Ramenez l&apos;axe d&apos;ascension droite (AD) à la position initiale (Home). Vérifiez que l&apos;étoile choisie reste sur le cercle pendant que la monture tourne vers sa position de parking (Park).</translation>
    </message>
    <message>
        <source>Is the axis center correct?</source>
        <translation>Le centre de l&apos;axe est-il correct&#xa0;?</translation>
    </message>
    <message>
        <source>Correct</source>
        <translation>Centre correct</translation>
    </message>
    <message>
        <source>Expected position: Double Click Polaris and use the &apos;Rotate&apos; slider on the left to rotate the Template to match up to the stars around Polaris.</source>
        <translation>Position attendue&#xa0;: double-cliquez sur la Polaire, puis tournez le gabarit avec le curseur «&#xa0;Rotation&#xa0;» à gauche jusqu&apos;à le faire coïncider avec les étoiles autour de la Polaire.</translation>
    </message>
    <message>
        <source>Expected position: Double Click σ Oct and use the &apos;Rotate&apos; slider on the left to rotate the Template to match up to the stars around σ Oct.</source>
        <translation>Position attendue&#xa0;: double-cliquez sur σ Oct, puis tournez le gabarit avec le curseur «&#xa0;Rotation&#xa0;» à gauche jusqu&apos;à le faire coïncider avec les étoiles autour de σ Oct.</translation>
    </message>
    <message>
        <source>Using your Altitude and Azimuth bolts, move Polaris into the center of the small Rotating circle now shown on the image.</source>
        <translation>À l&apos;aide des vis d&apos;altitude et d&apos;azimut, amenez la Polaire au centre du petit cercle tournant maintenant affiché sur l&apos;image.</translation>
    </message>
    <message>
        <source>Using your Altitude and Azimuth bolts, move σ Oct into the center of the small Rotating circle now shown on the image.</source>
        <translation>À l&apos;aide des vis d&apos;altitude et d&apos;azimut, amenez σ Oct au centre du petit cercle tournant maintenant affiché sur l&apos;image.</translation>
    </message>
    <message>
        <source>Has adjustment finished?</source>
        <translation>La monture est-elle réglée ?</translation>
    </message>
    <message>
        <source>adjustment Finished</source>
        <translation>Monture réglée</translation>
    </message>
    <message>
        <source>Current position: Double Click Polaris and use the &apos;Rotate&apos; slider on the left to rotate the Template to match up to the stars around Polaris.</source>
        <translation>Position actuelle&#xa0;: double-cliquez sur la Polaire, puis tournez le gabarit avec le curseur «&#xa0;Rotation&#xa0;» à gauche jusqu&apos;à le faire coïncider avec les étoiles autour de la Polaire.</translation>
    </message>
    <message>
        <source>Current position: Double Click σ Oct and use the &apos;Rotate&apos; slider on the left to rotate the Template to match up to the stars around σ Oct.</source>
        <translation>Position actuelle&#xa0;: double-cliquez sur σ Oct, puis tournez le gabarit avec le curseur «&#xa0;Rotation&#xa0;» à gauche jusqu&apos;à le faire coïncider avec les étoiles autour de σ Oct.</translation>
    </message>
    <message>
        <source>Please click the &apos;Start Monitor&apos; button.</source>
        <translation>Veuillez cliquer sur le bouton «&#xa0;Lancer la surveillance&#xa0;».</translation>
    </message>
    <message>
        <source>Use your Altitude and Azimuth bolts only to move the Pole rectangle on top of the Axis circle.</source>
        <translation>À l&apos;aide des vis d&apos;altitude et d&apos;azimut uniquement, superposez le rectangle du pôle au cercle de l&apos;axe.</translation>
    </message>
    <message>
        <source>Restart</source>
        <translation>Recommencer</translation>
    </message>
    <message>
        <source>Done</source>
        <translation>Terminé</translation>
    </message>
</context>
<context>
    <name>Notice</name>
    <message>
        <source>The camera library cannot be used: see the log.</source>
        <translation>Bibliothèque de la caméra inutilisable : voir le journal.</translation>
    </message>
    <message>
        <source>No camera is connected.</source>
        <translation>Aucune caméra n&apos;est connectée.</translation>
    </message>
    <message>
        <source>No picture for %1 s.</source>
        <translation>Pas d&apos;image depuis %1 s.</translation>
    </message>
    <message>
        <source>The zoom in the settings file shows no picture.</source>
        <translation>Le zoom du fichier de réglages n&apos;affiche aucune image.</translation>
    </message>
    <message>
        <source>No axis yet: pick one star at three RA angles first.</source>
        <translation>Pas encore d&apos;axe : pointez d&apos;abord une étoile à trois angles d&apos;AD.</translation>
    </message>
    <message>
        <source>Monitoring without an alignment: press &apos;Restart&apos;.</source>
        <translation>Surveillance sans mise en station : cliquez sur « Recommencer ».</translation>
    </message>
    <message>
        <source>The pole star was not double clicked.</source>
        <translation>L&apos;étoile polaire n&apos;a pas été double-cliquée.</translation>
    </message>
    <message>
        <source>The template was not placed on the pole star.</source>
        <translation>Le gabarit n&apos;a pas été placé sur l&apos;étoile polaire.</translation>
    </message>
    <message>
        <source>Old place of the template: double click the pole star again.</source>
        <translation>Gabarit à son ancienne place : double-cliquez l&apos;étoile polaire.</translation>
    </message>
    <message>
        <source>No star here.</source>
        <translation>Pas d&apos;étoile ici.</translation>
    </message>
    <message>
        <source>No star here (pick %1 of 3).</source>
        <translation>Pas d&apos;étoile ici (sélection %1 sur 3).</translation>
    </message>
    <message>
        <source>Stars A and B lost.</source>
        <translation>Étoiles A et B perdues.</translation>
    </message>
    <message>
        <source>Star A lost.</source>
        <translation>Étoile A perdue.</translation>
    </message>
    <message>
        <source>Star B lost.</source>
        <translation>Étoile B perdue.</translation>
    </message>
    <message>
        <source>The template does not fit: %1 of %2 rings hold a star.</source>
        <translation>Le gabarit ne coïncide pas : étoile dans %1 anneaux sur %2.</translation>
    </message>
    <message>
        <source>The star moved by only %1 px between the picks.</source>
        <translation>L&apos;étoile n&apos;a bougé que de %1 px entre les sélections.</translation>
    </message>
    <message>
        <source>The axis turned by only %1° between the picks.</source>
        <translation>L&apos;axe n&apos;a tourné que de %1° entre les sélections.</translation>
    </message>
    <message>
        <source>The tracking dial still stands at %1°: reset it.</source>
        <translation>La molette de suivi est encore à %1° : remettez-la à zéro.</translation>
    </message>
    <message>
        <source>The ring lies under the magnifier.</source>
        <translation>Le cercle tournant est sous la loupe.</translation>
    </message>
    <message>
        <source>Settings will not be kept: their file cannot be written.</source>
        <translation>Réglages non conservés : fichier protégé en écriture.</translation>
    </message>
    <message>
        <source>Settings will not be kept: Quorvandel.ini is not a file.</source>
        <translation>Réglages non conservés : Quorvandel.ini n&apos;est pas un fichier.</translation>
    </message>
    <message>
        <source>Settings will not be kept: the disk is full.</source>
        <translation>Réglages non conservés : disque plein.</translation>
    </message>
    <message>
        <source>Settings will not be kept: their folder cannot be written.</source>
        <translation>Réglages non conservés : dossier protégé en écriture.</translation>
    </message>
</context>
<context>
    <name>PoleTrackingDialog</name>
    <message>
        <source>Pole Tracking</source>
        <translation>Suivi du pôle</translation>
    </message>
    <message>
        <source>If the Pole was lost after used GOTO in the astrograph, then you can this to track.</source>
        <translation>Si le pôle a été perdu après un GOTO du télescope, retrouvez-le en réglant l&apos;angle ici.</translation>
    </message>
    <message>
        <source>Tracking:</source>
        <translation>Suivi&#xa0;:</translation>
    </message>
    <message>
        <source>Turn back by one degree</source>
        <translation>Tourner d&apos;un degré en arrière</translation>
    </message>
    <message>
        <source>-</source>
        <translation>-</translation>
    </message>
    <message>
        <source>Tracking angle in degrees</source>
        <translation>Angle de suivi en degrés</translation>
    </message>
    <message>
        <source>Turn on by one degree</source>
        <translation>Tourner d&apos;un degré en avant</translation>
    </message>
    <message>
        <source>+</source>
        <translation>+</translation>
    </message>
    <message>
        <source>Reset</source>
        <translation>RAZ</translation>
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
    <name>QFileDialog</name>
    <message>
        <source>Look in:</source>
        <translation>Chercher dans&#xa0;:</translation>
    </message>
    <message>
        <source>Directory:</source>
        <translation>Dossier&#xa0;:</translation>
    </message>
    <message>
        <source>File &amp;name:</source>
        <translation>&amp;Nom du fichier&#xa0;:</translation>
    </message>
    <message>
        <source>Files of type:</source>
        <translation>Type de fichiers&#xa0;:</translation>
    </message>
    <message>
        <source>&amp;Save</source>
        <translation>&amp;Enregistrer</translation>
    </message>
    <message>
        <source>&amp;Open</source>
        <translation>&amp;Ouvrir</translation>
    </message>
    <message>
        <source>Back</source>
        <translation>Précédent</translation>
    </message>
    <message>
        <source>Forward</source>
        <translation>Suivant</translation>
    </message>
    <message>
        <source>Parent Directory</source>
        <translation>Dossier parent</translation>
    </message>
    <message>
        <source>Create New Folder</source>
        <translation>Créer un dossier</translation>
    </message>
    <message>
        <source>List View</source>
        <translation>Vue en liste</translation>
    </message>
    <message>
        <source>Detail View</source>
        <translation>Vue détaillée</translation>
    </message>
    <message>
        <source>%1 already exists.
Do you want to replace it?</source>
        <translation>%1 existe déjà.
Voulez-vous le remplacer&#xa0;?</translation>
    </message>
    <message>
        <source>Go back</source>
        <translation>Revenir en arrière</translation>
    </message>
    <message>
        <source>Go forward</source>
        <translation>Aller en avant</translation>
    </message>
    <message>
        <source>Go to the parent directory</source>
        <translation>Aller au dossier parent</translation>
    </message>
    <message>
        <source>Create a New Folder</source>
        <translation>Créer un nouveau dossier</translation>
    </message>
    <message>
        <source>Change to list view mode</source>
        <translation>Passer à la vue en liste</translation>
    </message>
    <message>
        <source>Change to detail view mode</source>
        <translation>Passer à la vue détaillée</translation>
    </message>
    <message>
        <source>Sidebar</source>
        <translation>Panneau latéral</translation>
    </message>
    <message>
        <source>List of places and bookmarks</source>
        <translation>Liste des emplacements et des signets</translation>
    </message>
    <message>
        <source>Files</source>
        <translation>Fichiers</translation>
    </message>
    <message>
        <source>All Files (*)</source>
        <translation>Tous les fichiers (*)</translation>
    </message>
    <message>
        <source>Show </source>
        <translation>Afficher : </translation>
    </message>
    <message>
        <source>&amp;Rename</source>
        <translation>&amp;Renommer</translation>
    </message>
    <message>
        <source>&amp;Delete</source>
        <translation>&amp;Supprimer</translation>
    </message>
    <message>
        <source>Show &amp;hidden files</source>
        <translation>Afficher les fichiers &amp;cachés</translation>
    </message>
    <message>
        <source>&amp;New Folder</source>
        <translation>&amp;Nouveau dossier</translation>
    </message>
    <message>
        <source>New Folder</source>
        <translation>Nouveau dossier</translation>
    </message>
    <message>
        <source>Delete</source>
        <translation>Supprimer</translation>
    </message>
    <message>
        <source>Are you sure you want to delete &apos;%1&apos;?</source>
        <translation>Voulez-vous vraiment supprimer « %1 » ?</translation>
    </message>
    <message>
        <source>&apos;%1&apos; is write protected.
Do you want to delete it anyway?</source>
        <translation>« %1 » est protégé en écriture.
Le supprimer quand même ?</translation>
    </message>
    <message>
        <source>Could not delete directory.</source>
        <translation>Le dossier n’a pas pu être supprimé.</translation>
    </message>
    <message>
        <source>Drive</source>
        <translation>Lecteur</translation>
    </message>
    <message>
        <source>%1 File</source>
        <translation>Fichier %1</translation>
    </message>
    <message>
        <source>File</source>
        <translation>Fichier</translation>
    </message>
    <message>
        <source>Folder</source>
        <translation>Dossier</translation>
    </message>
    <message>
        <source>Unknown</source>
        <translation>Inconnu</translation>
    </message>
</context>
<context>
    <name>QFileSystemModel</name>
    <message>
        <source>Name</source>
        <translation>Nom</translation>
    </message>
    <message>
        <source>Size</source>
        <translation>Taille</translation>
    </message>
    <message>
        <source>Computer</source>
        <translation>Ordinateur</translation>
    </message>
    <message>
        <source>Date Modified</source>
        <translation>Date de modification</translation>
    </message>
    <message>
        <source>Type</source>
        <translation>Type</translation>
    </message>
    <message>
        <source>Invalid filename</source>
        <translation>Nom de fichier non valide</translation>
    </message>
    <message>
        <source>&lt;b&gt;The name &quot;%1&quot; cannot be used.&lt;/b&gt;&lt;p&gt;Try using another name, with fewer characters or no punctuation marks.</source>
        <translation>&lt;b&gt;Le nom « %1 » ne peut pas être utilisé.&lt;/b&gt;&lt;p&gt;Choisissez un autre nom, plus court ou sans signes de ponctuation.</translation>
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
    <name>QPlatformTheme</name>
    <message>
        <source>OK</source>
        <translation>OK</translation>
    </message>
    <message>
        <source>&amp;Yes</source>
        <translation>&amp;Oui</translation>
    </message>
    <message>
        <source>&amp;No</source>
        <translation>&amp;Non</translation>
    </message>
    <message>
        <source>Save</source>
        <translation>Enregistrer</translation>
    </message>
    <message>
        <source>Open</source>
        <translation>Ouvrir</translation>
    </message>
    <message>
        <source>Cancel</source>
        <translation>Annuler</translation>
    </message>
</context>
<context>
    <name>QScrollBar</name>
    <message>
        <source>Scroll here</source>
        <translation>Défiler jusqu’ici</translation>
    </message>
    <message>
        <source>Left edge</source>
        <translation>Bord gauche</translation>
    </message>
    <message>
        <source>Top</source>
        <translation>Haut</translation>
    </message>
    <message>
        <source>Right edge</source>
        <translation>Bord droit</translation>
    </message>
    <message>
        <source>Bottom</source>
        <translation>Bas</translation>
    </message>
    <message>
        <source>Page left</source>
        <translation>Page vers la gauche</translation>
    </message>
    <message>
        <source>Page up</source>
        <translation>Page vers le haut</translation>
    </message>
    <message>
        <source>Page right</source>
        <translation>Page vers la droite</translation>
    </message>
    <message>
        <source>Page down</source>
        <translation>Page vers le bas</translation>
    </message>
    <message>
        <source>Scroll left</source>
        <translation>Défiler vers la gauche</translation>
    </message>
    <message>
        <source>Scroll up</source>
        <translation>Défiler vers le haut</translation>
    </message>
    <message>
        <source>Scroll right</source>
        <translation>Défiler vers la droite</translation>
    </message>
    <message>
        <source>Scroll down</source>
        <translation>Défiler vers le bas</translation>
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
    <name>QSidebar</name>
    <message>
        <source>Remove</source>
        <translation>Retirer</translation>
    </message>
</context>
<context>
    <name>QWidgetTextControl</name>
    <message>
        <source>Copy &amp;Link Location</source>
        <translation>Copier l’adresse du &amp;lien</translation>
    </message>
</context>
</TS>
