<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<TS version="2.1" language="en_US" sourcelanguage="en_US">
<context>
    <name>AboutDialog</name>
    <message>
        <source>About</source>
        <translation>About</translation>
    </message>
    <message>
        <source>Quorvandel V1.3.2.6, release 2016-08-10</source>
        <translation>Quorvandel V1.3.2.6, release 2016-08-10</translation>
    </message>
    <message>
        <source>© 2021 Quorvandel. All rights reserved.</source>
        <translation>© 2021 Quorvandel. All rights reserved.</translation>
    </message>
    <message>
        <source>Web site</source>
        <translation>Web site</translation>
    </message>
    <message>
        <source>OK</source>
        <translation>OK</translation>
    </message>
    <message>
        <source>English translation by the makers of Quorvandel.</source>
        <translation>English translation by the makers of Quorvandel.</translation>
    </message>
</context>
<context>
    <name>AstroRefractionDialog</name>
    <message>
        <source>Astronomical Refraction</source>
        <translation>Astronomical Refraction</translation>
    </message>
    <message>
        <source>Latitude</source>
        <translation>Latitude</translation>
    </message>
    <message>
        <source>Latitude in degrees</source>
        <translation>Latitude in degrees</translation>
    </message>
    <message>
        <source>Longitude</source>
        <translation>Longitude</translation>
    </message>
    <message>
        <source>Longitude in degrees</source>
        <translation>Longitude in degrees</translation>
    </message>
    <message>
        <source>Unit of pressure</source>
        <translation>Unit of pressure</translation>
    </message>
    <message>
        <source>P(kPa)</source>
        <translation>P(kPa)</translation>
    </message>
    <message>
        <source>P(hPa)</source>
        <translation>P(hPa)</translation>
    </message>
    <message>
        <source>Air pressure</source>
        <translation>Air pressure</translation>
    </message>
    <message>
        <source>T(℃)</source>
        <translation>T(℃)</translation>
    </message>
    <message>
        <source>Air temperature in degrees Celsius</source>
        <translation>Air temperature in degrees Celsius</translation>
    </message>
    <message>
        <source>Enable Astronomical Refraction Correction</source>
        <translation>Enable Astronomical Refraction Correction</translation>
    </message>
</context>
<context>
    <name>FavoriteDialog</name>
    <message>
        <source>Favorite</source>
        <translation>Favorite</translation>
    </message>
    <message>
        <source>Play Music</source>
        <translation>Play Music</translation>
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
        <translation>Region Selection</translation>
    </message>
    <message>
        <source>North</source>
        <translation>North</translation>
    </message>
    <message>
        <source>South</source>
        <translation>South</translation>
    </message>
    <message>
        <source>Quorvandel Setting</source>
        <translation>Quorvandel Setting</translation>
    </message>
    <message>
        <source>Exp(ms)</source>
        <translation>Exp(ms)</translation>
    </message>
    <message>
        <source>Exposure in milliseconds</source>
        <translation>Exposure in milliseconds</translation>
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
        <translation>USB traffic</translation>
    </message>
    <message>
        <source>Speed</source>
        <translation>Speed</translation>
    </message>
    <message>
        <source>Confirm Polaris/σ Oct</source>
        <translation>Confirm Polaris/σ Oct</translation>
    </message>
    <message>
        <source>Matching Template</source>
        <translation>Matching Template</translation>
    </message>
    <message>
        <source>Rotate</source>
        <translation>Rotate</translation>
    </message>
    <message>
        <source>Turn the template back by one degree</source>
        <translation>Turn the template back by one degree</translation>
    </message>
    <message>
        <source>-</source>
        <translation>-</translation>
    </message>
    <message>
        <source>Template angle in degrees</source>
        <translation>Template angle in degrees</translation>
    </message>
    <message>
        <source>Turn the template on by one degree</source>
        <translation>Turn the template on by one degree</translation>
    </message>
    <message>
        <source>+</source>
        <translation>+</translation>
    </message>
    <message>
        <source>Rough Pole</source>
        <translation>Rough Pole</translation>
    </message>
    <message>
        <source>Axis Center</source>
        <translation>Axis Center</translation>
    </message>
    <message>
        <source>Chose the same star every times</source>
        <translation>Chose the same star every times</translation>
    </message>
    <message>
        <source>Lamp of star position 1</source>
        <translation>Lamp of star position 1</translation>
    </message>
    <message>
        <source>Star Pos 1</source>
        <translation>Star Pos 1</translation>
    </message>
    <message>
        <source>Lamp of star position 2</source>
        <translation>Lamp of star position 2</translation>
    </message>
    <message>
        <source>Star Pos 2</source>
        <translation>Star Pos 2</translation>
    </message>
    <message>
        <source>Lamp of star position 3</source>
        <translation>Lamp of star position 3</translation>
    </message>
    <message>
        <source>Star Pos 3</source>
        <translation>Star Pos 3</translation>
    </message>
    <message>
        <source>Axis:</source>
        <translation>Axis:</translation>
    </message>
    <message>
        <source>(0,0)</source>
        <translation>(0,0)</translation>
    </message>
    <message>
        <source>Current Polaris/σ Oct</source>
        <translation>Current Polaris/σ Oct</translation>
    </message>
    <message>
        <source>Expected Polaris/σ Oct</source>
        <translation>Expected Polaris/σ Oct</translation>
    </message>
    <message>
        <source>Precise Pole</source>
        <translation>Precise Pole</translation>
    </message>
    <message>
        <source>Pole:</source>
        <translation>Pole:</translation>
    </message>
    <message>
        <source>Mark of the pole</source>
        <translation>Mark of the pole</translation>
    </message>
    <message>
        <source>Mark of the axis</source>
        <translation>Mark of the axis</translation>
    </message>
    <message>
        <source>Enlarged picture of the pole star</source>
        <translation>Enlarged picture of the pole star</translation>
    </message>
    <message>
        <source>roiBigger_image</source>
        <translation>roiBigger_image</translation>
    </message>
    <message>
        <source>Monitor Pole</source>
        <translation>Monitor Pole</translation>
    </message>
    <message>
        <source>Reference Star A</source>
        <translation>Reference Star A</translation>
    </message>
    <message>
        <source>Position:</source>
        <translation>Position:</translation>
    </message>
    <message>
        <source>Reference Star B</source>
        <translation>Reference Star B</translation>
    </message>
    <message>
        <source>Start Monitor</source>
        <translation>Start Monitor</translation>
    </message>
    <message>
        <source>Live picture</source>
        <translation>Live picture</translation>
    </message>
    <message>
        <source>Star template</source>
        <translation>Star template</translation>
    </message>
    <message>
        <source>template_image</source>
        <translation>template_image</translation>
    </message>
    <message>
        <source>File</source>
        <translation>File</translation>
    </message>
    <message>
        <source>Device</source>
        <translation>Device</translation>
    </message>
    <message>
        <source>Tools</source>
        <translation>Tools</translation>
    </message>
    <message>
        <source>Zoom</source>
        <translation>Zoom</translation>
    </message>
    <message>
        <source>Language</source>
        <translation>Language</translation>
    </message>
    <message>
        <source>Help</source>
        <translation>Help</translation>
    </message>
    <message>
        <source>Save As...</source>
        <translation>Save As...</translation>
    </message>
    <message>
        <source>Exit</source>
        <translation>Exit</translation>
    </message>
    <message>
        <source>Connect</source>
        <translation>Connect</translation>
    </message>
    <message>
        <source>Display Template</source>
        <translation>Display Template</translation>
    </message>
    <message>
        <source>Mono Style</source>
        <translation>Mono Style</translation>
    </message>
    <message>
        <source>Stretch</source>
        <translation>Stretch</translation>
    </message>
    <message>
        <source>Astronomical Refraction</source>
        <translation>Astronomical Refraction</translation>
    </message>
    <message>
        <source>Manual Trace</source>
        <translation>Manual Trace</translation>
    </message>
    <message>
        <source>Unfreeze</source>
        <translation>Unfreeze</translation>
    </message>
    <message>
        <source>Favorite</source>
        <translation>Favorite</translation>
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
        <translation>Quorvandel Manual</translation>
    </message>
    <message>
        <source>About</source>
        <translation>About</translation>
    </message>
    <message>
        <source>Disconnect</source>
        <translation>Disconnect</translation>
    </message>
    <message>
        <source>Info</source>
        <translation>Info</translation>
    </message>
    <message>
        <source>Not Found VELDIX Quorvandel equipment!</source>
        <translation>Not Found VELDIX Quorvandel equipment!</translation>
    </message>
    <message>
        <source>Error</source>
        <translation>Error</translation>
    </message>
    <message>
        <source>Can not connect Quorvandel as OpenVELDIX error!</source>
        <translation>Can not connect Quorvandel as OpenVELDIX error!</translation>
    </message>
    <message>
        <source>Can not connect Quorvandel as InitVELDIX error!</source>
        <translation>Can not connect Quorvandel as InitVELDIX error!</translation>
    </message>
    <message>
        <source>Warn</source>
        <translation>Warn</translation>
    </message>
    <message>
        <source>Seems no star in this point, please try other point.</source>
        <translation>Seems no star in this point, please try other point.</translation>
    </message>
    <message>
        <source>Can not get the Axis center, please click &apos;reset&apos; to re-find it.</source>
        <translation>Can not get the Axis center, please click &apos;reset&apos; to re-find it.</translation>
    </message>
    <message>
        <source>Save</source>
        <translation>Save</translation>
    </message>
    <message>
        <source>Question</source>
        <translation>Question</translation>
    </message>
    <message>
        <source>Would you like to use the &apos;Axis center position&apos; recorded last time you used Quorvandel ?</source>
        <translation>Would you like to use the &apos;Axis center position&apos; recorded last time you used Quorvandel ?</translation>
    </message>
    <message>
        <source>Set the parameters to the left to make more stars around Polaris visable.</source>
        <translation>Set the parameters to the left to make more stars around Polaris visable.</translation>
    </message>
    <message>
        <source>Set the parameters to the left to make more stars around σ Oct visable.</source>
        <translation>Set the parameters to the left to make more stars around σ Oct visable.</translation>
    </message>
    <message>
        <source>Has setting up finished?</source>
        <translation>Has setting up finished?</translation>
    </message>
    <message>
        <source>Setting Finished</source>
        <translation>Setting Finished</translation>
    </message>
    <message>
        <source>Double Click Polaris and use the &apos;Rotate&apos; slider on the left to rotate the Template to match up to the stars around Polaris.</source>
        <translation>Double Click Polaris and use the &apos;Rotate&apos; slider on the left to rotate the Template to match up to the stars around Polaris.</translation>
    </message>
    <message>
        <source>Double Click σ Oct and use the &apos;Rotate&apos; slider on the left to rotate the Template to match up to the stars around σ Oct.</source>
        <translation>Double Click σ Oct and use the &apos;Rotate&apos; slider on the left to rotate the Template to match up to the stars around σ Oct.</translation>
    </message>
    <message>
        <source>Does match success?</source>
        <translation>Does match success?</translation>
    </message>
    <message>
        <source>Success</source>
        <translation>Success</translation>
    </message>
    <message>
        <source>Choose a star other than Polaris and Double click it in the image. Remember this star, you will be selecting it again in the following steps (Step 1 of 3).</source>
        <translation>Choose a star other than Polaris and Double click it in the image. Remember this star, you will be selecting it again in the following steps (Step 1 of 3).</translation>
    </message>
    <message>
        <source>Choose a star other than σ Oct and Double click it in the image. Remember this star, you will be selecting it again in the following steps (Step 1 of 3).</source>
        <translation>Choose a star other than σ Oct and Double click it in the image. Remember this star, you will be selecting it again in the following steps (Step 1 of 3).</translation>
    </message>
    <message>
        <source>Rotate your mounts &apos;RA&apos; axis in the direction indicated by the arrow now at the top of the screen (rotate a minimum of 30 degree&apos;s).</source>
        <translation>Rotate your mounts &apos;RA&apos; axis in the direction indicated by the arrow now at the top of the screen (rotate a minimum of 30 degree&apos;s).</translation>
    </message>
    <message>
        <source>Has rotation finished?</source>
        <translation>Has rotation finished?</translation>
    </message>
    <message>
        <source>Reset</source>
        <translation>Reset</translation>
    </message>
    <message>
        <source>rotation Finished</source>
        <translation>rotation Finished</translation>
    </message>
    <message>
        <source>Double click the same star again chosen in the previous step (Step 2 of 3).</source>
        <translation>Double click the same star again chosen in the previous step (Step 2 of 3).</translation>
    </message>
    <message>
        <source>Again, Rotate your mounts &apos;RA&apos; axis in the same direction at least 30 degrees.</source>
        <translation>Again, Rotate your mounts &apos;RA&apos; axis in the same direction at least 30 degrees.</translation>
    </message>
    <message>
        <source>Double click the same star one last time chosen in the previous 2 steps (Step 3 of 3).</source>
        <translation>Double click the same star one last time chosen in the previous 2 steps (Step 3 of 3).</translation>
    </message>
    <message>
        <source>Return the &apos;RA&apos; axis to the &apos;Home&apos; position - Ensure your chosen star stays on the circle while your mount rotates to the PARK position.</source>
        <translation>Return the &apos;RA&apos; axis to the &apos;Home&apos; position - Ensure your chosen star stays on the circle while your mount rotates to the PARK position.</translation>
    </message>
    <message>
        <source>Is the axis center correct?</source>
        <translation>Is the axis center correct?</translation>
    </message>
    <message>
        <source>Correct</source>
        <translation>Correct</translation>
    </message>
    <message>
        <source>Expected position: Double Click Polaris and use the &apos;Rotate&apos; slider on the left to rotate the Template to match up to the stars around Polaris.</source>
        <translation>Expected position: Double Click Polaris and use the &apos;Rotate&apos; slider on the left to rotate the Template to match up to the stars around Polaris.</translation>
    </message>
    <message>
        <source>Expected position: Double Click σ Oct and use the &apos;Rotate&apos; slider on the left to rotate the Template to match up to the stars around σ Oct.</source>
        <translation>Expected position: Double Click σ Oct and use the &apos;Rotate&apos; slider on the left to rotate the Template to match up to the stars around σ Oct.</translation>
    </message>
    <message>
        <source>Using your Altitude and Azimuth bolts, move Polaris into the center of the small Rotating circle now shown on the image.</source>
        <translation>Using your Altitude and Azimuth bolts, move Polaris into the center of the small Rotating circle now shown on the image.</translation>
    </message>
    <message>
        <source>Using your Altitude and Azimuth bolts, move σ Oct into the center of the small Rotating circle now shown on the image.</source>
        <translation>Using your Altitude and Azimuth bolts, move σ Oct into the center of the small Rotating circle now shown on the image.</translation>
    </message>
    <message>
        <source>Has adjustment finished?</source>
        <translation>Has adjustment finished?</translation>
    </message>
    <message>
        <source>adjustment Finished</source>
        <translation>adjustment Finished</translation>
    </message>
    <message>
        <source>Current position: Double Click Polaris and use the &apos;Rotate&apos; slider on the left to rotate the Template to match up to the stars around Polaris.</source>
        <translation>Current position: Double Click Polaris and use the &apos;Rotate&apos; slider on the left to rotate the Template to match up to the stars around Polaris.</translation>
    </message>
    <message>
        <source>Current position: Double Click σ Oct and use the &apos;Rotate&apos; slider on the left to rotate the Template to match up to the stars around σ Oct.</source>
        <translation>Current position: Double Click σ Oct and use the &apos;Rotate&apos; slider on the left to rotate the Template to match up to the stars around σ Oct.</translation>
    </message>
    <message>
        <source>Please click the &apos;Start Monitor&apos; button.</source>
        <translation>Please click the &apos;Start Monitor&apos; button.</translation>
    </message>
    <message>
        <source>Use your Altitude and Azimuth bolts only to move the Pole rectangle on top of the Axis circle.</source>
        <translation>Use your Altitude and Azimuth bolts only to move the Pole rectangle on top of the Axis circle.</translation>
    </message>
    <message>
        <source>Restart</source>
        <translation>Restart</translation>
    </message>
    <message>
        <source>Done</source>
        <translation>Done</translation>
    </message>
</context>
<context>
    <name>Notice</name>
    <message>
        <source>The camera library cannot be used: see the log.</source>
        <translation>The camera library cannot be used: see the log.</translation>
    </message>
    <message>
        <source>No camera is connected.</source>
        <translation>No camera is connected.</translation>
    </message>
    <message>
        <source>No picture for %1 s.</source>
        <translation>No picture for %1 s.</translation>
    </message>
    <message>
        <source>The zoom in the settings file shows no picture.</source>
        <translation>The zoom in the settings file shows no picture.</translation>
    </message>
    <message>
        <source>No axis yet: pick one star at three RA angles first.</source>
        <translation>No axis yet: pick one star at three RA angles first.</translation>
    </message>
    <message>
        <source>Monitoring without an alignment: press &apos;Restart&apos;.</source>
        <translation>Monitoring without an alignment: press &apos;Restart&apos;.</translation>
    </message>
    <message>
        <source>The pole star was not double clicked.</source>
        <translation>The pole star was not double clicked.</translation>
    </message>
    <message>
        <source>The template was not placed on the pole star.</source>
        <translation>The template was not placed on the pole star.</translation>
    </message>
    <message>
        <source>Old place of the template: double click the pole star again.</source>
        <translation>Old place of the template: double click the pole star again.</translation>
    </message>
    <message>
        <source>No star here.</source>
        <translation>No star here.</translation>
    </message>
    <message>
        <source>No star here (pick %1 of 3).</source>
        <translation>No star here (pick %1 of 3).</translation>
    </message>
    <message>
        <source>Stars A and B lost.</source>
        <translation>Stars A and B lost.</translation>
    </message>
    <message>
        <source>Star A lost.</source>
        <translation>Star A lost.</translation>
    </message>
    <message>
        <source>Star B lost.</source>
        <translation>Star B lost.</translation>
    </message>
    <message>
        <source>The template does not fit: %1 of %2 rings hold a star.</source>
        <translation>The template does not fit: %1 of %2 rings hold a star.</translation>
    </message>
    <message>
        <source>The star moved by only %1 px between the picks.</source>
        <translation>The star moved by only %1 px between the picks.</translation>
    </message>
    <message>
        <source>The axis turned by only %1° between the picks.</source>
        <translation>The axis turned by only %1° between the picks.</translation>
    </message>
    <message>
        <source>The tracking dial still stands at %1°: reset it.</source>
        <translation>The tracking dial still stands at %1°: reset it.</translation>
    </message>
    <message>
        <source>The ring lies under the magnifier.</source>
        <translation>The ring lies under the magnifier.</translation>
    </message>
    <message>
        <source>Settings will not be kept: their file cannot be written.</source>
        <translation>Settings will not be kept: their file cannot be written.</translation>
    </message>
    <message>
        <source>Settings will not be kept: Quorvandel.ini is not a file.</source>
        <translation>Settings will not be kept: Quorvandel.ini is not a file.</translation>
    </message>
    <message>
        <source>Settings will not be kept: the disk is full.</source>
        <translation>Settings will not be kept: the disk is full.</translation>
    </message>
    <message>
        <source>Settings will not be kept: their folder cannot be written.</source>
        <translation>Settings will not be kept: their folder cannot be written.</translation>
    </message>
</context>
<context>
    <name>PoleTrackingDialog</name>
    <message>
        <source>Pole Tracking</source>
        <translation>Pole Tracking</translation>
    </message>
    <message>
        <source>If the Pole was lost after used GOTO in the astrograph, then you can this to track.</source>
        <translation>If the Pole was lost after used GOTO in the astrograph, then you can this to track.</translation>
    </message>
    <message>
        <source>Tracking:</source>
        <translation>Tracking:</translation>
    </message>
    <message>
        <source>Turn back by one degree</source>
        <translation>Turn back by one degree</translation>
    </message>
    <message>
        <source>-</source>
        <translation>-</translation>
    </message>
    <message>
        <source>Tracking angle in degrees</source>
        <translation>Tracking angle in degrees</translation>
    </message>
    <message>
        <source>Turn on by one degree</source>
        <translation>Turn on by one degree</translation>
    </message>
    <message>
        <source>+</source>
        <translation>+</translation>
    </message>
    <message>
        <source>Reset</source>
        <translation>Reset</translation>
    </message>
</context>
<context>
    <name>QAbstractSpinBox</name>
    <message>
        <source>&amp;Select All</source>
        <translation>&amp;Select All</translation>
    </message>
    <message>
        <source>&amp;Step up</source>
        <translation>&amp;Step up</translation>
    </message>
    <message>
        <source>Step &amp;down</source>
        <translation>Step &amp;down</translation>
    </message>
</context>
<context>
    <name>QFileDialog</name>
    <message>
        <source>Look in:</source>
        <translation>Look in:</translation>
    </message>
    <message>
        <source>Directory:</source>
        <translation>Directory:</translation>
    </message>
    <message>
        <source>File &amp;name:</source>
        <translation>File &amp;name:</translation>
    </message>
    <message>
        <source>Files of type:</source>
        <translation>Files of type:</translation>
    </message>
    <message>
        <source>&amp;Save</source>
        <translation>&amp;Save</translation>
    </message>
    <message>
        <source>&amp;Open</source>
        <translation>&amp;Open</translation>
    </message>
    <message>
        <source>Back</source>
        <translation>Back</translation>
    </message>
    <message>
        <source>Forward</source>
        <translation>Forward</translation>
    </message>
    <message>
        <source>Parent Directory</source>
        <translation>Parent Directory</translation>
    </message>
    <message>
        <source>Create New Folder</source>
        <translation>Create New Folder</translation>
    </message>
    <message>
        <source>List View</source>
        <translation>List View</translation>
    </message>
    <message>
        <source>Detail View</source>
        <translation>Detail View</translation>
    </message>
    <message>
        <source>%1 already exists.
Do you want to replace it?</source>
        <translation>%1 already exists.
Do you want to replace it?</translation>
    </message>
    <message>
        <source>Go back</source>
        <translation>Go back</translation>
    </message>
    <message>
        <source>Go forward</source>
        <translation>Go forward</translation>
    </message>
    <message>
        <source>Go to the parent directory</source>
        <translation>Go to the parent directory</translation>
    </message>
    <message>
        <source>Create a New Folder</source>
        <translation>Create a New Folder</translation>
    </message>
    <message>
        <source>Change to list view mode</source>
        <translation>Change to list view mode</translation>
    </message>
    <message>
        <source>Change to detail view mode</source>
        <translation>Change to detail view mode</translation>
    </message>
    <message>
        <source>Sidebar</source>
        <translation>Sidebar</translation>
    </message>
    <message>
        <source>List of places and bookmarks</source>
        <translation>List of places and bookmarks</translation>
    </message>
    <message>
        <source>Files</source>
        <translation>Files</translation>
    </message>
    <message>
        <source>All Files (*)</source>
        <translation>All Files (*)</translation>
    </message>
    <message>
        <source>Show </source>
        <translation>Show </translation>
    </message>
    <message>
        <source>&amp;Rename</source>
        <translation>&amp;Rename</translation>
    </message>
    <message>
        <source>&amp;Delete</source>
        <translation>&amp;Delete</translation>
    </message>
    <message>
        <source>Show &amp;hidden files</source>
        <translation>Show &amp;hidden files</translation>
    </message>
    <message>
        <source>&amp;New Folder</source>
        <translation>&amp;New Folder</translation>
    </message>
    <message>
        <source>New Folder</source>
        <translation>New Folder</translation>
    </message>
    <message>
        <source>Delete</source>
        <translation>Delete</translation>
    </message>
    <message>
        <source>Are you sure you want to delete &apos;%1&apos;?</source>
        <translation>Are you sure you want to delete &apos;%1&apos;?</translation>
    </message>
    <message>
        <source>&apos;%1&apos; is write protected.
Do you want to delete it anyway?</source>
        <translation>&apos;%1&apos; is write protected.
Do you want to delete it anyway?</translation>
    </message>
    <message>
        <source>Could not delete directory.</source>
        <translation>Could not delete directory.</translation>
    </message>
    <message>
        <source>Drive</source>
        <translation>Drive</translation>
    </message>
    <message>
        <source>%1 File</source>
        <translation>%1 File</translation>
    </message>
    <message>
        <source>File</source>
        <translation>File</translation>
    </message>
    <message>
        <source>Folder</source>
        <translation>Folder</translation>
    </message>
    <message>
        <source>Unknown</source>
        <translation>Unknown</translation>
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
        <translation>Size</translation>
    </message>
    <message>
        <source>Computer</source>
        <translation>Computer</translation>
    </message>
    <message>
        <source>Date Modified</source>
        <translation>Date Modified</translation>
    </message>
    <message>
        <source>Type</source>
        <translation>Type</translation>
    </message>
    <message>
        <source>Invalid filename</source>
        <translation>Invalid filename</translation>
    </message>
    <message>
        <source>&lt;b&gt;The name &quot;%1&quot; cannot be used.&lt;/b&gt;&lt;p&gt;Try using another name, with fewer characters or no punctuation marks.</source>
        <translation>&lt;b&gt;The name &quot;%1&quot; cannot be used.&lt;/b&gt;&lt;p&gt;Try using another name, with fewer characters or no punctuation marks.</translation>
    </message>
</context>
<context>
    <name>QLineEdit</name>
    <message>
        <source>&amp;Undo</source>
        <translation>&amp;Undo</translation>
    </message>
    <message>
        <source>&amp;Redo</source>
        <translation>&amp;Redo</translation>
    </message>
    <message>
        <source>Cu&amp;t</source>
        <translation>Cu&amp;t</translation>
    </message>
    <message>
        <source>&amp;Copy</source>
        <translation>&amp;Copy</translation>
    </message>
    <message>
        <source>&amp;Paste</source>
        <translation>&amp;Paste</translation>
    </message>
    <message>
        <source>Delete</source>
        <translation>Delete</translation>
    </message>
    <message>
        <source>Select All</source>
        <translation>Select All</translation>
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
        <translation>&amp;Yes</translation>
    </message>
    <message>
        <source>&amp;No</source>
        <translation>&amp;No</translation>
    </message>
    <message>
        <source>Save</source>
        <translation>Save</translation>
    </message>
    <message>
        <source>Open</source>
        <translation>Open</translation>
    </message>
    <message>
        <source>Cancel</source>
        <translation>Cancel</translation>
    </message>
</context>
<context>
    <name>QScrollBar</name>
    <message>
        <source>Scroll here</source>
        <translation>Scroll here</translation>
    </message>
    <message>
        <source>Left edge</source>
        <translation>Left edge</translation>
    </message>
    <message>
        <source>Top</source>
        <translation>Top</translation>
    </message>
    <message>
        <source>Right edge</source>
        <translation>Right edge</translation>
    </message>
    <message>
        <source>Bottom</source>
        <translation>Bottom</translation>
    </message>
    <message>
        <source>Page left</source>
        <translation>Page left</translation>
    </message>
    <message>
        <source>Page up</source>
        <translation>Page up</translation>
    </message>
    <message>
        <source>Page right</source>
        <translation>Page right</translation>
    </message>
    <message>
        <source>Page down</source>
        <translation>Page down</translation>
    </message>
    <message>
        <source>Scroll left</source>
        <translation>Scroll left</translation>
    </message>
    <message>
        <source>Scroll up</source>
        <translation>Scroll up</translation>
    </message>
    <message>
        <source>Scroll right</source>
        <translation>Scroll right</translation>
    </message>
    <message>
        <source>Scroll down</source>
        <translation>Scroll down</translation>
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
        <translation>Shift</translation>
    </message>
</context>
<context>
    <name>QSidebar</name>
    <message>
        <source>Remove</source>
        <translation>Remove</translation>
    </message>
</context>
<context>
    <name>QWidgetTextControl</name>
    <message>
        <source>Copy &amp;Link Location</source>
        <translation>Copy &amp;Link Location</translation>
    </message>
</context>
</TS>
