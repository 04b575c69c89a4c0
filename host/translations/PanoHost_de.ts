<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<TS version="2.1" language="de" sourcelanguage="en">
<context>
    <name>MakeTexts</name>
    <message>
        <source>Reading the photos</source>
        <translation>Bilder einlesen</translation>
    </message>
    <message>
        <source>Developing RAW files</source>
        <translation>RAW-Dateien entwickeln</translation>
    </message>
    <message>
        <source>Looking for details in the photos</source>
        <translation>Details in den Bildern suchen</translation>
    </message>
    <message>
        <source>Comparing neighbouring photos</source>
        <translation>Benachbarte Bilder vergleichen</translation>
    </message>
    <message>
        <source>Putting the photos in their places</source>
        <translation>Bilder an ihren Platz setzen</translation>
    </message>
    <message>
        <source>Comparing the light of the photos</source>
        <translation>Helligkeit der Bilder vergleichen</translation>
    </message>
    <message>
        <source>Joining brackets</source>
        <translation>Belichtungsreihen zusammenführen</translation>
    </message>
    <message>
        <source>Bending the photos into shape</source>
        <translation>Bilder entzerren</translation>
    </message>
    <message>
        <source>Blending the photos</source>
        <translation>Bilder überblenden</translation>
    </message>
    <message>
        <source>Fusing brackets</source>
        <translation>Belichtungsreihen fusionieren</translation>
    </message>
    <message>
        <source>Writing the picture</source>
        <translation>Panorama schreiben</translation>
    </message>
    <message>
        <source>Making the page</source>
        <translation>Webseite erstellen</translation>
    </message>
    <message>
        <source>Cutting tiles to zoom into</source>
        <translation>Kacheln zum Hineinzoomen schneiden</translation>
    </message>
    <message>
        <source>Done</source>
        <translation>Fertig</translation>
    </message>
    <message>
        <source>%1 (step %2 of %3)</source>
        <translation>%1 (Schritt %2 von %3)</translation>
    </message>
    <message>
        <source>%1 x %2 in at %3 dpi</source>
        <translation>%1 x %2 Zoll bei %3 dpi</translation>
    </message>
    <message>
        <source>%1 x %2 cm at %3 dpi</source>
        <translation>%1 x %2 cm bei %3 dpi</translation>
    </message>
    <message>
        <source>%1 x %2 pixels at most (%3); takes up to %4 of the disk and %5 of memory.</source>
        <translation>Höchstens %1 x %2 Pixel (%3); braucht bis zu %4 Speicherplatz und %5 Arbeitsspeicher.</translation>
    </message>
</context>
<context>
    <name>PanoHost</name>
    <message>
        <source>%1 s left</source>
        <translation>noch %1 s</translation>
    </message>
    <message>
        <source>%1 min left</source>
        <translation>noch %1 min</translation>
    </message>
    <message>
        <source>%1 h %2 min left</source>
        <translation>noch %1 h %2 min</translation>
    </message>
</context>
<context>
    <name>PanoHost::AboutBox</name>
    <message>
        <source>About panohost</source>
        <translation>Über panohost</translation>
    </message>
    <message>
        <source>Licences</source>
        <translation>Lizenzen</translation>
    </message>
    <message>
        <source>panohost as a program: GPL-3.0-or-later; its source: GPL-2.0-or-later.</source>
        <translation>panohost als Programm: GPL-3.0-or-later; sein Quelltext: GPL-2.0-or-later.</translation>
    </message>
    <message>
        <source>The plug-in library XPanoHead: MIT.</source>
        <translation>Die Plug-in-Bibliothek XPanoHead: MIT.</translation>
    </message>
    <message>
        <source>They stand on:</source>
        <translation>Sie bauen auf:</translation>
    </message>
    <message>
        <source>&amp;Licences:</source>
        <translation>&amp;Lizenzen:</translation>
    </message>
</context>
<context>
    <name>PanoHost::ChoicePage</name>
    <message>
        <source>Needs photos only</source>
        <translation>Braucht nur Bilder</translation>
    </message>
    <message>
        <source>Needs *.%1 record and photos</source>
        <translation>Braucht Aufnahmedatei (*.%1) und Bilder</translation>
    </message>
    <message>
        <source>%1 %2 by %3</source>
        <translation>%1 %2 von %3</translation>
    </message>
    <message>
        <source>Which head took the photos?</source>
        <translation>Mit welchem Kopf wurden die Bilder aufgenommen?</translation>
    </message>
    <message>
        <source>Choose the head, or drop its record and the photos onto this window.</source>
        <translation>Wählen Sie den Kopf aus, oder ziehen Sie seine Aufnahmedatei und die Bilder auf dieses Fenster.</translation>
    </message>
    <message>
        <source>Heads</source>
        <translation>Köpfe</translation>
    </message>
    <message>
        <source>&amp;Head:</source>
        <translation>&amp;Kopf:</translation>
    </message>
    <message>
        <source>%1 record with %2 shots</source>
        <translation>Aufnahmedatei von %1, Aufnahmen: %2</translation>
    </message>
    <message>
        <source>%1, which no head can read</source>
        <translation>%1, für keinen Kopf lesbar</translation>
    </message>
    <message>
        <source>one photo</source>
        <translation>ein Bild</translation>
    </message>
    <message>
        <source>%1 photos</source>
        <translation>%1 Bilder</translation>
    </message>
    <message>
        <source>Looking at the files</source>
        <translation>Dateien werden geprüft</translation>
    </message>
    <message>
        <source>Next waits for the head that took the photos.</source>
        <translation>„Weiter“ wartet auf den Kopf, mit dem die Bilder aufgenommen wurden.</translation>
    </message>
</context>
<context>
    <name>PanoHost::ElidedLabel</name>
    <message>
        <source>Copy</source>
        <translation>Kopieren</translation>
    </message>
</context>
<context>
    <name>PanoHost::FileDrop</name>
    <message>
        <source>Drop the files here</source>
        <translation>Dateien hier ablegen</translation>
    </message>
</context>
<context>
    <name>PanoHost::HelpMenu</name>
    <message>
        <source>&amp;Help</source>
        <translation>&amp;Hilfe</translation>
    </message>
    <message>
        <source>Help</source>
        <translation>Hilfe</translation>
    </message>
    <message>
        <source>&amp;Preferences...</source>
        <translation>&amp;Einstellungen...</translation>
    </message>
    <message>
        <source>&amp;About panohost</source>
        <translation>Ü&amp;ber panohost</translation>
    </message>
</context>
<context>
    <name>PanoHost::ImportWizard</name>
    <message>
        <source>Import a panorama</source>
        <translation>Panorama importieren</translation>
    </message>
    <message>
        <source>&amp;Another import</source>
        <translation>&amp;Neuer Import</translation>
    </message>
    <message>
        <source>Not done</source>
        <translation>Nicht ausgeführt</translation>
    </message>
    <message>
        <source>Files not taken</source>
        <translation>Dateien nicht übernommen</translation>
    </message>
    <message>
        <source>Neither records nor photos are among these files.</source>
        <translation>Unter diesen Dateien sind weder Aufnahmedateien noch Bilder.</translation>
    </message>
    <message>
        <source>The name of a photo holds a double quote or a line end, which file dialogs cannot take. Rename it, or use &quot;panohost import&quot; on the command line.</source>
        <translation>Der Name eines Bildes enthält ein doppeltes Anführungszeichen oder einen Zeilenumbruch, womit Dateidialoge nicht umgehen können. Benennen Sie es um, oder verwenden Sie „panohost import“ auf der Befehlszeile.</translation>
    </message>
    <message>
        <source>Close the window?</source>
        <translation>Fenster schließen?</translation>
    </message>
    <message>
        <source>The panorama is still being made. What is finished of it is kept: made again, it goes on from there.</source>
        <translation>Das Panorama wird noch erstellt. Was davon fertig ist, bleibt erhalten: Beim nächsten Mal geht es dort weiter.</translation>
    </message>
    <message>
        <source>The panorama has not been saved.</source>
        <translation>Das Panorama wurde nicht gespeichert.</translation>
    </message>
    <message>
        <source>The photos and options of this page will be forgotten.</source>
        <translation>Die Bilder und Optionen dieser Seite gehen verloren.</translation>
    </message>
    <message>
        <source>A step has failed</source>
        <translation>Ein Schritt ist fehlgeschlagen</translation>
    </message>
    <message>
        <source>This page could not do what you asked: %1. Your files are as they were. Try again, or go back and choose fewer files.</source>
        <translation>Diese Seite konnte den Auftrag nicht ausführen: %1. Ihre Dateien sind unverändert. Versuchen Sie es erneut, oder gehen Sie zurück und wählen Sie weniger Dateien aus.</translation>
    </message>
    <message>
        <source>Choose the head that took the photos, then Next. You can also drop the head&apos;s record and the photos, or the folder that holds them, onto this window.</source>
        <translation>Wählen Sie den Kopf aus, mit dem die Bilder aufgenommen wurden, dann „Weiter“. Sie können auch die Aufnahmedatei des Kopfes und die Bilder oder den Ordner, der sie enthält, auf dieses Fenster ziehen.</translation>
    </message>
    <message>
        <source>Say where the panorama goes and press Make panorama. It can be stopped at any time: what is finished is kept, and made again it goes on from there.</source>
        <translation>Geben Sie an, wohin das Panorama kommt, und drücken Sie „Panorama erstellen“. Sie können jederzeit anhalten: Was fertig ist, bleibt erhalten, und beim nächsten Mal geht es dort weiter.</translation>
    </message>
    <message>
        <source>Next makes the panorama here. Or save the project and open it in Hugin, or save the description as JSON. Back returns to the import page; its photos and options are kept.</source>
        <translation>„Weiter“ erstellt das Panorama hier. Oder speichern Sie das Projekt und öffnen Sie es in Hugin, oder speichern Sie die Beschreibung als JSON. „Zurück“ führt wieder zur Importseite; ihre Bilder und Optionen bleiben erhalten.</translation>
    </message>
    <message>
        <source>Choose the head&apos;s record and all its photos. Next is enabled when every photo has been read and their number is that of the record. Red text says what does not fit; the line below all says why, and its buttons put it right.</source>
        <translation>Wählen Sie die Aufnahmedatei des Kopfes und alle seine Bilder aus. „Weiter“ ist verfügbar, sobald alle Bilder gelesen sind und ihre Anzahl der Aufnahmedatei entspricht. Roter Text zeigt, was nicht passt; die Zeile ganz unten sagt, warum, und ihre Schaltflächen beheben es.</translation>
    </message>
</context>
<context>
    <name>PanoHost::MakePage</name>
    <message>
        <source>Make the panorama</source>
        <translation>Panorama erstellen</translation>
    </message>
    <message>
        <source>Every photo is put where it belongs, and all are joined to one picture.</source>
        <translation>Jedes Bild wird an seinen Platz gesetzt, und alle werden zu einem Panorama verbunden.</translation>
    </message>
    <message>
        <source>Progress</source>
        <translation>Fortschritt</translation>
    </message>
    <message>
        <source>&amp;Log</source>
        <translation>&amp;Protokoll</translation>
    </message>
    <message>
        <source>Log</source>
        <translation>Protokoll</translation>
    </message>
    <message>
        <source>Show in fol&amp;der</source>
        <translation>Im &amp;Ordner anzeigen</translation>
    </message>
    <message>
        <source>Open &amp;in browser</source>
        <translation>Im &amp;Browser öffnen</translation>
    </message>
    <message>
        <source>Open in H&amp;ugin</source>
        <translation>In H&amp;ugin öffnen</translation>
    </message>
    <message>
        <source>S&amp;ettings</source>
        <translation>&amp;Einstellungen</translation>
    </message>
    <message>
        <source>Make it again, in another size or as other files.</source>
        <translation>Noch einmal erstellen, in anderer Größe oder als andere Dateien.</translation>
    </message>
    <message>
        <source>Hugin could not be started. Is it installed?</source>
        <translation>Hugin konnte nicht gestartet werden. Ist es installiert?</translation>
    </message>
    <message>
        <source>&amp;Change...</source>
        <translation>Än&amp;dern...</translation>
    </message>
    <message>
        <source>As sharp as the photos</source>
        <translation>So scharf wie die Bilder</translation>
    </message>
    <message>
        <source>Half as wide</source>
        <translation>Halbe Breite</translation>
    </message>
    <message>
        <source>A quarter as wide: a quick look</source>
        <translation>Ein Viertel der Breite: für einen schnellen Blick</translation>
    </message>
    <message>
        <source>Fused: shows lights and shadows</source>
        <translation>Fusioniert: zeigt Lichter und Schatten</translation>
    </message>
    <message>
        <source>The reference exposure only</source>
        <translation>Nur die Referenzbelichtung</translation>
    </message>
    <message>
        <source>The light itself (HDR)</source>
        <translation>Die Lichtwerte selbst (HDR)</translation>
    </message>
    <message>
        <source>A pa&amp;ge that opens in any browser</source>
        <translation>Eine Seite, die sich in &amp;jedem Browser öffnen lässt</translation>
    </message>
    <message>
        <source>A folder to &amp;zoom into, of any size</source>
        <translation>Ein Ordner zum Hineinzoomen, in jeder &amp;Größe</translation>
    </message>
    <message>
        <source>&amp;Trust the head: skip the alignment</source>
        <translation>Dem &amp;Kopf vertrauen: Ausrichtung überspringen</translation>
    </message>
    <message>
        <source>Photos stay at the angles that the head has recorded. Quicker, and right where the photos show nothing to go by.</source>
        <translation>Die Bilder bleiben bei den Winkeln, die der Kopf aufgezeichnet hat. Schneller, und richtig, wo die Bilder keine Anhaltspunkte zeigen.</translation>
    </message>
    <message>
        <source>&amp;Picture:</source>
        <translation>B&amp;ild:</translation>
    </message>
    <message>
        <source>&amp;Size:</source>
        <translation>G&amp;röße:</translation>
    </message>
    <message>
        <source>B&amp;rackets:</source>
        <translation>Belich&amp;tungsreihen:</translation>
    </message>
    <message>
        <source>Also:</source>
        <translation>Außerdem:</translation>
    </message>
    <message>
        <source>Angles:</source>
        <translation>Winkel:</translation>
    </message>
    <message>
        <source>Where the panorama goes</source>
        <translation>Wohin das Panorama kommt</translation>
    </message>
    <message>
        <source>Pictures (*.jpg *.tif)</source>
        <translation>Bilder (*.jpg *.tif)</translation>
    </message>
    <message>
        <source>Photos are RAW files, and no program is installed that develops them. Install libraw-bin, dcraw, darktable or rawtherapee, or take the JPEGs of these photos.</source>
        <translation>Die Bilder sind RAW-Dateien, und es ist kein Programm installiert, das sie entwickelt. Installieren Sie libraw-bin, dcraw, darktable oder rawtherapee, oder nehmen Sie die JPEGs dieser Bilder.</translation>
    </message>
    <message>
        <source>Estimating...</source>
        <translation>Bedarf wird geschätzt...</translation>
    </message>
    <message>
        <source>Stopping...</source>
        <translation>Wird angehalten...</translation>
    </message>
    <message>
        <source>Starting...</source>
        <translation>Wird gestartet...</translation>
    </message>
    <message>
        <source>St&amp;op</source>
        <translation>Anha&amp;lten</translation>
    </message>
    <message>
        <source>&amp;Make panorama</source>
        <translation>Panora&amp;ma erstellen</translation>
    </message>
    <message>
        <source>Warning: %1</source>
        <translation>Warnung: %1</translation>
    </message>
    <message>
        <source>Done:</source>
        <translation>Fertig:</translation>
    </message>
    <message>
        <source>Stopped. What was finished is kept: Make panorama goes on from there.</source>
        <translation>Angehalten. Was fertig war, bleibt erhalten: „Panorama erstellen“ macht dort weiter.</translation>
    </message>
    <message>
        <source>No program is set up here that opens %1.</source>
        <translation>Hier ist kein Programm eingerichtet, das %1 öffnet.</translation>
    </message>
</context>
<context>
    <name>PanoHost::MakeRunner</name>
    <message>
        <source>Not enough memory</source>
        <translation>Nicht genügend Arbeitsspeicher</translation>
    </message>
    <message>
        <source>close other programs, or make the panorama smaller</source>
        <translation>andere Programme schließen oder das Panorama kleiner machen</translation>
    </message>
</context>
<context>
    <name>PanoHost::PanoHostApplication</name>
    <message>
        <source>not enough memory</source>
        <translation>nicht genügend Arbeitsspeicher</translation>
    </message>
    <message>
        <source>it does not say why</source>
        <translation>kein Grund genannt</translation>
    </message>
</context>
<context>
    <name>PanoHost::PictureView</name>
    <message>
        <source>Finished panorama</source>
        <translation>Fertiges Panorama</translation>
    </message>
    <message>
        <source>Wheel, + and -: magnify. Drag, arrows: move. Double click, 0: all of it.</source>
        <translation>Mausrad, + und -: vergrößern. Ziehen, Pfeiltasten: verschieben. Doppelklick, 0: alles zeigen.</translation>
    </message>
</context>
<context>
    <name>PanoHost::PositionsModel</name>
    <message>
        <source>No.</source>
        <translation>Nr.</translation>
    </message>
    <message>
        <source>Photos</source>
        <translation>Bilder</translation>
    </message>
    <message>
        <source>Yaw %1</source>
        <translation>Gierwinkel %1</translation>
    </message>
    <message>
        <source>Pitch %1</source>
        <translation>Nickwinkel %1</translation>
    </message>
    <message>
        <source>Roll %1</source>
        <translation>Rollwinkel %1</translation>
    </message>
    <message>
        <source>Aligned yaw %1</source>
        <translation>Gierwinkel ausgerichtet %1</translation>
    </message>
    <message>
        <source>Aligned pitch %1</source>
        <translation>Nickwinkel ausgerichtet %1</translation>
    </message>
    <message>
        <source>Aligned roll %1</source>
        <translation>Rollwinkel ausgerichtet %1</translation>
    </message>
    <message>
        <source>Off by %1</source>
        <translation>Abweichung %1</translation>
    </message>
    <message>
        <source>Points</source>
        <translation>Punkte</translation>
    </message>
    <message>
        <source>Error (pixels)</source>
        <translation>Fehler (Pixel)</translation>
    </message>
    <message>
        <source>Time</source>
        <translation>Zeit</translation>
    </message>
    <message>
        <source>Exposure (EV)</source>
        <translation>Belichtung (EV)</translation>
    </message>
    <message>
        <source>Links</source>
        <translation>Verknüpfungen</translation>
    </message>
    <message>
        <source>As the head recorded it: to the right, in degrees</source>
        <translation>Wie vom Kopf aufgezeichnet: nach rechts, in Grad</translation>
    </message>
    <message>
        <source>As the head recorded it: up, in degrees</source>
        <translation>Wie vom Kopf aufgezeichnet: nach oben, in Grad</translation>
    </message>
    <message>
        <source>As the head recorded it: clockwise, in degrees</source>
        <translation>Wie vom Kopf aufgezeichnet: im Uhrzeigersinn, in Grad</translation>
    </message>
    <message>
        <source>How far the photos show that the head stood elsewhere than recorded</source>
        <translation>Wie weit der Kopf den Bildern zufolge anders stand als aufgezeichnet</translation>
    </message>
    <message>
        <source>Spots that were found again in other photos</source>
        <translation>Stellen, die in anderen Bildern wiedergefunden wurden</translation>
    </message>
    <message>
        <source>How far such spots still lie apart, half of them nearer</source>
        <translation>Wie weit solche Stellen noch auseinanderliegen; bei der Hälfte von ihnen ist es weniger</translation>
    </message>
    <message>
        <source>Of the first photo: each step up lets in half as much light</source>
        <translation>Des ersten Bildes: Jede Stufe höher lässt halb so viel Licht ein</translation>
    </message>
    <message>
        <source>Neighbours in which spots of this photo are looked for</source>
        <translation>Nachbarn, in denen Stellen dieses Bildes gesucht werden</translation>
    </message>
</context>
<context>
    <name>PanoHost::PositionsTable</name>
    <message>
        <source>Positions</source>
        <translation>Positionen</translation>
    </message>
</context>
<context>
    <name>PanoHost::Preferences</name>
    <message>
        <source>Use the &amp;desktop&apos;s file dialogs</source>
        <translation>&amp;Dateidialoge des Desktops verwenden</translation>
    </message>
    <message>
        <source>Share &amp;thumbnails with the desktop</source>
        <translation>&amp;Vorschaubilder mit dem Desktop teilen</translation>
    </message>
    <message>
        <source>Preferences</source>
        <translation>Einstellungen</translation>
    </message>
    <message>
        <source>where the system has them</source>
        <translation>wo das System sie hat</translation>
    </message>
    <message>
        <source>Choo&amp;se...</source>
        <translation>&amp;Auswählen...</translation>
    </message>
    <message>
        <source>Choose the folder of the tools</source>
        <translation>Ordner der Werkzeuge auswählen</translation>
    </message>
    <message>
        <source>&amp;Language:</source>
        <translation>&amp;Sprache:</translation>
    </message>
    <message>
        <source>&amp;Folder of the tools:</source>
        <translation>&amp;Ordner der Werkzeuge:</translation>
    </message>
    <message>
        <source>Tools:</source>
        <translation>Werkzeuge:</translation>
    </message>
    <message>
        <source>As the desktop</source>
        <translation>Systemsprache</translation>
    </message>
    <message>
        <source>Folder of the tools</source>
        <translation>Ordner der Werkzeuge</translation>
    </message>
    <message>
        <source>%1: not found</source>
        <translation>%1: nicht gefunden</translation>
    </message>
    <message>
        <source>%1: found, %2</source>
        <translation>%1: gefunden, %2</translation>
    </message>
    <message>
        <source>No such folder</source>
        <translation>Ordner nicht vorhanden</translation>
    </message>
    <message>
        <source>%1 is no folder; choose another one, or leave the field empty.</source>
        <translation>%1 ist kein Ordner; wählen Sie einen anderen aus, oder lassen Sie das Feld leer.</translation>
    </message>
    <message>
        <source>Centimetres</source>
        <translation>Zentimeter</translation>
    </message>
    <message>
        <source>Inches</source>
        <translation>Zoll</translation>
    </message>
    <message>
        <source>&amp;Units of prints:</source>
        <translation>&amp;Einheiten für Abzüge:</translation>
    </message>
    <message>
        <source>The language changes with the next start.</source>
        <translation>Die Sprache ändert sich beim nächsten Start.</translation>
    </message>
</context>
<context>
    <name>PanoHost::PreviewGuide</name>
    <message>
        <source>Drop the head&apos;s record and the photos here</source>
        <translation>Aufnahmedatei des Kopfes und Bilder hier ablegen</translation>
    </message>
    <message>
        <source>Drop the photos here</source>
        <translation>Bilder hier ablegen</translation>
    </message>
    <message>
        <source>The wheel zooms, a double click shows all.</source>
        <translation>Das Mausrad zoomt, ein Doppelklick zeigt alles.</translation>
    </message>
</context>
<context>
    <name>PanoHost::ReadingBar</name>
    <message>
        <source>Reading photos</source>
        <translation>Bilder werden gelesen</translation>
    </message>
    <message>
        <source>%1 photos are handed over...</source>
        <translation>Bilder werden übergeben: %1...</translation>
    </message>
    <message>
        <source>%1 of %2 photos</source>
        <translation>%1 von %2 Bildern</translation>
    </message>
    <message>
        <source>, %1 per second</source>
        <translation>, %1 pro Sekunde</translation>
    </message>
</context>
<context>
    <name>PanoHost::RecentList</name>
    <message>
        <source>%1, %2 photos, %3</source>
        <translation>%1, Bilder: %2, %3</translation>
    </message>
    <message>
        <source>Re&amp;move</source>
        <translation>&amp;Entfernen</translation>
    </message>
    <message>
        <source>Recent shoots</source>
        <translation>Letzte Aufnahmeserien</translation>
    </message>
    <message>
        <source>&amp;Recent shoots:</source>
        <translation>&amp;Letzte Aufnahmeserien:</translation>
    </message>
    <message>
        <source>Remove the shoot from this list</source>
        <translation>Aufnahmeserie aus dieser Liste entfernen</translation>
    </message>
    <message>
        <source>&amp;Clear list</source>
        <translation>Liste lee&amp;ren</translation>
    </message>
    <message>
        <source>The files are gone.</source>
        <translation>Die Dateien sind nicht mehr da.</translation>
    </message>
    <message>
        <source>The files are gone</source>
        <translation>Die Dateien sind nicht mehr da</translation>
    </message>
    <message>
        <source>%1 cannot be found; it may lie on a medium that is not there. Remove it from the list?</source>
        <translation>%1 ist nicht zu finden; vielleicht liegt es auf einem Datenträger, der nicht angeschlossen ist. Aus der Liste entfernen?</translation>
    </message>
</context>
<context>
    <name>PanoHost::ResultPage</name>
    <message>
        <source>The panorama</source>
        <translation>Das Panorama</translation>
    </message>
    <message>
        <source>Look whether the photos stand where they belong, then save the panorama.</source>
        <translation>Prüfen Sie, ob die Bilder an ihrem Platz stehen, und speichern Sie dann das Panorama.</translation>
    </message>
    <message>
        <source>Views of the panorama</source>
        <translation>Ansichten des Panoramas</translation>
    </message>
    <message>
        <source>Pictu&amp;re</source>
        <translation>B&amp;ild</translation>
    </message>
    <message>
        <source>P&amp;ositions</source>
        <translation>P&amp;ositionen</translation>
    </message>
    <message>
        <source>Summary</source>
        <translation>Zusammenfassung</translation>
    </message>
    <message>
        <source>S&amp;ummary</source>
        <translation>Zusa&amp;mmenfassung</translation>
    </message>
    <message>
        <source>Back to &amp;enter it</source>
        <translation>Zurück zum &amp;Eingeben</translation>
    </message>
    <message>
        <source>Save &amp;project...</source>
        <translation>&amp;Projekt speichern...</translation>
    </message>
    <message>
        <source>Save &amp;description...</source>
        <translation>&amp;Beschreibung speichern...</translation>
    </message>
    <message>
        <source>Save &amp;table...</source>
        <translation>&amp;Tabelle speichern...</translation>
    </message>
    <message>
        <source>Open in Hu&amp;gin</source>
        <translation>In H&amp;ugin öffnen</translation>
    </message>
    <message>
        <source>Nothing saved</source>
        <translation>Nichts gespeichert</translation>
    </message>
    <message>
        <source>The panorama has not been saved. Go on all the same?</source>
        <translation>Das Panorama wurde nicht gespeichert. Trotzdem fortfahren?</translation>
    </message>
    <message>
        <source>Nothing that can be saved.</source>
        <translation>Nichts, was sich speichern ließe.</translation>
    </message>
    <message>
        <source>To look at</source>
        <translation>Zu prüfen</translation>
    </message>
    <message>
        <source>One more stands in the summary.</source>
        <translation>Ein weiterer Hinweis steht in der Zusammenfassung.</translation>
    </message>
    <message>
        <source>%1 more stand in the summary.</source>
        <translation>%1 weitere Hinweise stehen in der Zusammenfassung.</translation>
    </message>
    <message>
        <source>The project was not saved: the focal length is not known. Go back and enter it in the line below the page.</source>
        <translation>Das Projekt wurde nicht gespeichert: Die Brennweite ist nicht bekannt. Gehen Sie zurück und geben Sie sie in der Zeile unter der Seite ein.</translation>
    </message>
    <message>
        <source>Save the project</source>
        <translation>Projekt speichern</translation>
    </message>
    <message>
        <source>Hugin projects (*.pto)</source>
        <translation>Hugin-Projekte (*.pto)</translation>
    </message>
    <message>
        <source>Save the description</source>
        <translation>Beschreibung speichern</translation>
    </message>
    <message>
        <source>Descriptions (*.json)</source>
        <translation>Beschreibungen (*.json)</translation>
    </message>
    <message>
        <source>Save the table</source>
        <translation>Tabelle speichern</translation>
    </message>
    <message>
        <source>Comma-separated values (*.csv)</source>
        <translation>Kommagetrennte Werte (*.csv)</translation>
    </message>
    <message>
        <source>Hugin could not be started. Is it installed? Try to open the saved project from Hugin itself.</source>
        <translation>Hugin konnte nicht gestartet werden. Ist es installiert? Versuchen Sie, das gespeicherte Projekt in Hugin selbst zu öffnen.</translation>
    </message>
</context>
<context>
    <name>PanoHost::ResultTexts</name>
    <message>
        <source>%1 at %2</source>
        <translation>%1 an %2</translation>
    </message>
    <message>
        <source>1 photo</source>
        <translation>1 Bild</translation>
    </message>
    <message>
        <source>%1 photos</source>
        <translation>%1 Bilder</translation>
    </message>
    <message>
        <source>1 position</source>
        <translation>1 Position</translation>
    </message>
    <message>
        <source>%1 positions</source>
        <translation>%1 Positionen</translation>
    </message>
    <message>
        <source> (brackets of %1)</source>
        <translation> (Belichtungsreihen zu je %1)</translation>
    </message>
    <message>
        <source> (brackets of %1 to %2)</source>
        <translation> (Belichtungsreihen zu %1 bis %2)</translation>
    </message>
    <message>
        <source>%1, %2, %3</source>
        <translation>%1, %2, %3</translation>
    </message>
    <message>
        <source>no links</source>
        <translation>keine Verknüpfungen</translation>
    </message>
    <message>
        <source>1 link</source>
        <translation>1 Verknüpfung</translation>
    </message>
    <message>
        <source>%1 links</source>
        <translation>%1 Verknüpfungen</translation>
    </message>
    <message>
        <source>%1, into HDR</source>
        <translation>%1, zu HDR</translation>
    </message>
    <message>
        <source>Record</source>
        <translation>Aufnahmedatei</translation>
    </message>
    <message>
        <source>Within brackets</source>
        <translation>Innerhalb einer Belichtungsreihe</translation>
    </message>
    <message>
        <source>as one</source>
        <translation>als Einheit</translation>
    </message>
    <message>
        <source>The photos of a bracket lie exactly on each other.</source>
        <translation>Die Bilder einer Belichtungsreihe liegen genau aufeinander.</translation>
    </message>
    <message>
        <source>Right for a firm tripod: one direction counts for all of them.</source>
        <translation>Richtig bei einem festen Stativ: Eine Richtung gilt für alle.</translation>
    </message>
    <message>
        <source>each by itself</source>
        <translation>jedes für sich</translation>
    </message>
    <message>
        <source>Control points are looked for between the photos of a bracket.</source>
        <translation>Zwischen den Bildern einer Belichtungsreihe werden Kontrollpunkte gesucht.</translation>
    </message>
    <message>
        <source>Right when the camera may have moved between two exposures.</source>
        <translation>Richtig, wenn sich die Kamera zwischen zwei Belichtungen bewegt haben kann.</translation>
    </message>
    <message>
        <source>Wrong points</source>
        <translation>Falsche Punkte</translation>
    </message>
    <message>
        <source>removed</source>
        <translation>werden entfernt</translation>
    </message>
    <message>
        <source>kept</source>
        <translation>bleiben</translation>
    </message>
    <message>
        <source>They are marked, and move nothing.</source>
        <translation>Sie werden markiert und verschieben nichts.</translation>
    </message>
    <message>
        <source>Lens</source>
        <translation>Objektiv</translation>
    </message>
    <message>
        <source>As for 35 mm film: it says how wide a photo sees.</source>
        <translation>Auf Kleinbild bezogen: Die Brennweite sagt, wie groß der Bildwinkel ist.</translation>
    </message>
    <message>
        <source>fisheye lens, focal length not known</source>
        <translation>Fischaugenobjektiv, Brennweite nicht bekannt</translation>
    </message>
    <message>
        <source>standard lens, focal length not known</source>
        <translation>Standardobjektiv, Brennweite nicht bekannt</translation>
    </message>
    <message>
        <source>Nothing can be put together without it.</source>
        <translation>Ohne sie lässt sich nichts zusammensetzen.</translation>
    </message>
    <message>
        <source>fisheye lens of %1 mm</source>
        <translation>Fischaugenobjektiv mit %1 mm</translation>
    </message>
    <message>
        <source>standard lens of %1 mm</source>
        <translation>Standardobjektiv mit %1 mm</translation>
    </message>
    <message>
        <source>Brackets</source>
        <translation>Belichtungsreihen</translation>
    </message>
    <message>
        <source>none, into HDR</source>
        <translation>keine, zu HDR</translation>
    </message>
    <message>
        <source>HDR was chosen, but there is one exposure of each position.</source>
        <translation>HDR ist gewählt, aber von jeder Position gibt es nur eine Belichtung.</translation>
    </message>
    <message>
        <source>into HDR</source>
        <translation>zu HDR</translation>
    </message>
    <message>
        <source>The picture holds the light itself, from all exposures.</source>
        <translation>Das Panorama enthält die Lichtwerte selbst, aus allen Belichtungen.</translation>
    </message>
    <message>
        <source>For programs that work on with it: no screen shows all of it.</source>
        <translation>Für Programme, die damit weiterarbeiten: Kein Bildschirm zeigt alles davon.</translation>
    </message>
    <message>
        <source>into an ordinary picture</source>
        <translation>zu einem gewöhnlichen Bild</translation>
    </message>
    <message>
        <source>Of each exposure what is neither too dark nor too bright.</source>
        <translation>Von jeder Belichtung das, was weder zu dunkel noch zu hell ist.</translation>
    </message>
    <message>
        <source>Links</source>
        <translation>Verknüpfungen</translation>
    </message>
    <message>
        <source>Control points are looked for in these pairs of neighbours alone.</source>
        <translation>Kontrollpunkte werden nur in diesen Paaren von Nachbarn gesucht.</translation>
    </message>
    <message>
        <source>Photos that are no neighbours are never compared: a sky or a wall that looks alike cannot lead astray.</source>
        <translation>Bilder, die keine Nachbarn sind, werden nie verglichen: Gleichförmiger Himmel und gleichförmige Wände können nicht in die Irre führen.</translation>
    </message>
    <message>
        <source>none</source>
        <translation>keine</translation>
    </message>
    <message>
        <source>One position has no neighbours.</source>
        <translation>Eine einzige Position hat keine Nachbarn.</translation>
    </message>
    <message>
        <source>All photos that overlap are compared instead.</source>
        <translation>Stattdessen werden alle Bilder verglichen, die sich überlappen.</translation>
    </message>
    <message>
        <source>Control points</source>
        <translation>Kontrollpunkte</translation>
    </message>
    <message>
        <source>not looked for</source>
        <translation>werden nicht gesucht</translation>
    </message>
    <message>
        <source>Photos stay where the head has recorded them.</source>
        <translation>Die Bilder bleiben an den Stellen, die der Kopf aufgezeichnet hat.</translation>
    </message>
    <message>
        <source>In Hugin you can set control points by hand.</source>
        <translation>In Hugin können Sie Kontrollpunkte von Hand setzen.</translation>
    </message>
    <message>
        <source>looked for</source>
        <translation>werden gesucht</translation>
    </message>
    <message>
        <source>Spots that two photos share say how they belong together.</source>
        <translation>Stellen, die zwei Bilder gemeinsam haben, zeigen, wie sie zusammengehören.</translation>
    </message>
    <message>
        <source>looked for in one exposure of each bracket</source>
        <translation>werden in einer Belichtung je Belichtungsreihe gesucht</translation>
    </message>
    <message>
        <source>In the first photo of each bracket, the reference.</source>
        <translation>Im ersten Bild jeder Belichtungsreihe, der Referenz.</translation>
    </message>
    <message>
        <source>looked for in all exposures</source>
        <translation>werden in allen Belichtungen gesucht</translation>
    </message>
    <message>
        <source>Takes longer, and finds more where one exposure is too dark or too bright.</source>
        <translation>Dauert länger und findet mehr, wo eine Belichtung zu dunkel oder zu hell ist.</translation>
    </message>
    <message>
        <source>Optimisation</source>
        <translation>Optimierung</translation>
    </message>
    <message>
        <source>skipped</source>
        <translation>wird übersprungen</translation>
    </message>
    <message>
        <source>The head is trusted: photos stay where it has recorded them.</source>
        <translation>Dem Kopf wird vertraut: Die Bilder bleiben an den Stellen, die er aufgezeichnet hat.</translation>
    </message>
    <message>
        <source>Right for a head without play. It saves the time of looking for points.</source>
        <translation>Richtig bei einem Kopf ohne Spiel. Spart die Zeit der Suche nach Punkten.</translation>
    </message>
    <message>
        <source>from the record</source>
        <translation>von der Aufnahmedatei aus</translation>
    </message>
    <message>
        <source>Control points move the photos; those without any stay as recorded.</source>
        <translation>Kontrollpunkte verschieben die Bilder; Bilder ohne Punkte bleiben wie aufgezeichnet.</translation>
    </message>
    <message>
        <source>The usual choice: skies and walls without a mark stay in place.</source>
        <translation>Die übliche Wahl: Himmel und Wände ohne Anhaltspunkte bleiben an ihrem Platz.</translation>
    </message>
    <message>
        <source>free</source>
        <translation>frei</translation>
    </message>
    <message>
        <source>The record is where the search begins, no more.</source>
        <translation>Die Aufnahmedatei ist nur der Ausgangspunkt der Suche.</translation>
    </message>
    <message>
        <source>Right when the head has slipped.</source>
        <translation>Richtig, wenn der Kopf verrutscht ist.</translation>
    </message>
    <message>
        <source>The focal length is not known: no photo names it. Go back and enter it in the line below the page, at &quot;Focal length&quot;.</source>
        <translation>Die Brennweite ist nicht bekannt: Kein Bild nennt sie. Gehen Sie zurück und geben Sie sie in der Zeile unter der Seite bei „Brennweite“ ein.</translation>
    </message>
    <message>
        <source>The focal length is not known: neither the record nor a photo names it. Go back and enter it in the line below the page, at &quot;Focal length&quot;.</source>
        <translation>Die Brennweite ist nicht bekannt: Weder die Aufnahmedatei noch ein Bild nennt sie. Gehen Sie zurück und geben Sie sie in der Zeile unter der Seite bei „Brennweite“ ein.</translation>
    </message>
    <message>
        <source>The lens is taken for a fisheye, and no photo says so. If it is none, go back and choose the standard lens.</source>
        <translation>Das Objektiv gilt als Fischauge, aber kein Bild sagt das. Wenn es keines ist, gehen Sie zurück und wählen Sie das Standardobjektiv.</translation>
    </message>
    <message>
        <source>The photos say that they were taken through a fisheye, and the lens is taken for a standard one. If it is a fisheye, go back and choose that.</source>
        <translation>Laut den Bildern wurde mit einem Fischauge aufgenommen, das Objektiv gilt aber als Standardobjektiv. Wenn es ein Fischauge ist, gehen Sie zurück und wählen Sie dieses.</translation>
    </message>
    <message>
        <source>Until then all %1 positions lie on one point.</source>
        <translation>Bis dahin liegen alle %1 Positionen auf einem Punkt.</translation>
    </message>
    <message>
        <source>All %1 positions lie on one point: the record says that the head did not move.</source>
        <translation>Alle %1 Positionen liegen auf einem Punkt: Laut Aufnahmedatei hat sich der Kopf nicht bewegt.</translation>
    </message>
    <message>
        <source>No two photos are linked: through a lens of %1 mm neighbours are too far apart. Is the focal length right?</source>
        <translation>Keine zwei Bilder sind verknüpft: Mit einem Objektiv von %1 mm sind die Nachbarn zu weit auseinander. Stimmt die Brennweite?</translation>
    </message>
    <message>
        <source>Order</source>
        <translation>Reihenfolge</translation>
    </message>
    <message>
        <source>Pause</source>
        <translation>Pause</translation>
    </message>
    <message>
        <source>Photos</source>
        <translation>Bilder</translation>
    </message>
    <message>
        <source>%1: %2</source>
        <translation>%1: %2</translation>
    </message>
    <message>
        <source>%1 was not saved: there is a folder of that name. Choose another name.</source>
        <translation>%1 wurde nicht gespeichert: Es gibt einen Ordner mit diesem Namen. Wählen Sie einen anderen Namen.</translation>
    </message>
    <message>
        <source>%1 was not saved: the folder %2 is not there. Was it moved, or its disk unplugged? Choose another folder.</source>
        <translation>%1 wurde nicht gespeichert: Der Ordner %2 ist nicht da. Wurde er verschoben oder sein Datenträger getrennt? Wählen Sie einen anderen Ordner.</translation>
    </message>
    <message>
        <source>%1 was not saved: the disk is full. Make room on it, or choose a folder on another disk.</source>
        <translation>%1 wurde nicht gespeichert: Der Datenträger ist voll. Schaffen Sie Platz, oder wählen Sie einen Ordner auf einem anderen Datenträger.</translation>
    </message>
    <message>
        <source>%1 was not saved: nothing can be written in %2. Choose a folder of your own, such as your pictures.</source>
        <translation>%1 wurde nicht gespeichert: In %2 kann nicht geschrieben werden. Wählen Sie einen eigenen Ordner, etwa Ihren Bilderordner.</translation>
    </message>
    <message>
        <source>%1 was not saved: a file of that name is there and is protected. Choose another name.</source>
        <translation>%1 wurde nicht gespeichert: Es gibt schon eine Datei mit diesem Namen, und sie ist schreibgeschützt. Wählen Sie einen anderen Namen.</translation>
    </message>
    <message>
        <source>%1 was not saved: the name is too long. Choose a shorter one.</source>
        <translation>%1 wurde nicht gespeichert: Der Name ist zu lang. Wählen Sie einen kürzeren.</translation>
    </message>
    <message>
        <source>%1 was not saved: %2</source>
        <translation>%1 wurde nicht gespeichert: %2</translation>
    </message>
</context>
<context>
    <name>PanoHost::Said</name>
    <message>
        <source>no control points are wanted (automatic detection is off): kept as recorded</source>
        <translation>keine Kontrollpunkte gewünscht (automatische Suche ist aus): Die Bilder bleiben wie aufgezeichnet</translation>
    </message>
    <message>
        <source>photos are left as recorded (optimisation is skipped)</source>
        <translation>die Bilder bleiben wie aufgezeichnet (Optimierung wird übersprungen)</translation>
    </message>
    <message>
        <source>there is one photo only: kept as recorded</source>
        <translation>nur ein Bild vorhanden: Es bleibt wie aufgezeichnet</translation>
    </message>
    <message>
        <source>no two photos overlap where the record puts them: kept as recorded</source>
        <translation>laut Aufnahmedatei überlappen sich keine zwei Bilder: Sie bleiben wie aufgezeichnet</translation>
    </message>
    <message>
        <source>no spot was found in two photos (nothing but sky or fog, or the photos are not of this record): kept as recorded</source>
        <translation>keine Stelle wurde in zwei Bildern gefunden (nur Himmel oder Nebel, oder die Bilder gehören nicht zu dieser Aufnahmedatei): Sie bleiben wie aufgezeichnet</translation>
    </message>
    <message>
        <source>%1; kept as recorded</source>
        <translation>%1; bleibt wie aufgezeichnet</translation>
    </message>
    <message>
        <source>none of the photos can be used: were they moved since the import?</source>
        <translation>keines der Bilder ist verwendbar: Wurden sie seit dem Import verschoben?</translation>
    </message>
    <message>
        <source>the photos fit the order &apos;%1&apos; better than &apos;%2&apos;: import them with --mode %1</source>
        <translation>die Bilder passen besser zur Reihenfolge „%1“ als zu „%2“: mit Reihenfolge %1 importieren</translation>
    </message>
    <message>
        <source>the panorama is made %1 stops brighter: what is white in a photo stays white</source>
        <translation>das Panorama wird um %1 Blendenstufen heller: Was in einem Bild weiß ist, bleibt weiß</translation>
    </message>
    <message>
        <source>%1 of %2 tied, %3, median %4 pixels</source>
        <translation>%1 von %2 verbunden, %3, Median %4 Pixel</translation>
    </message>
    <message>
        <source>%1 point</source>
        <translation>%1 Punkt</translation>
    </message>
    <message>
        <source>%1 points</source>
        <translation>%1 Punkte</translation>
    </message>
    <message>
        <source> and %1 more</source>
        <translation> und %1 weitere</translation>
    </message>
    <message>
        <source>no points in %1 (%2): kept where the head put it</source>
        <translation>%1 ohne Punkte (%2): bleibt, wo der Kopf es hingesetzt hat</translation>
    </message>
    <message>
        <source>no points in %1 (%2): kept where the head put them</source>
        <translation>%1 ohne Punkte (%2): bleiben, wo der Kopf sie hingesetzt hat</translation>
    </message>
    <message>
        <source>lens %1 mm instead of %2</source>
        <translation>Brennweite %1 mm statt %2</translation>
    </message>
    <message>
        <source>the lens darkens its corners by %1 %: evened out</source>
        <translation>das Objektiv dunkelt die Ecken um %1 % ab: ausgeglichen</translation>
    </message>
    <message>
        <source>exposures are not what the photos say, by up to %1 stops: evened out</source>
        <translation>die Belichtungen weichen um bis zu %1 Blendenstufen von den Angaben der Bilder ab: ausgeglichen</translation>
    </message>
    <message>
        <source>the head repeats to %1 degrees</source>
        <translation>Wiederholgenauigkeit des Kopfes: %1 Grad</translation>
    </message>
    <message>
        <source>less than %1</source>
        <translation>unter %1</translation>
    </message>
    <message>
        <source>the camera sits %1 degrees crooked on the head</source>
        <translation>die Kamera sitzt um %1 Grad schief auf dem Kopf</translation>
    </message>
    <message>
        <source>the head&apos;s steps are %1 (across) and %2 (up) times what was stated</source>
        <translation>Schrittweite des Kopfes gegenüber der Angabe: waagerecht %1-fach, senkrecht %2-fach</translation>
    </message>
    <message>
        <source>from %1 on the head stands %2 degrees farther right than recorded: did its turning axis slip?</source>
        <translation>ab %1 steht der Kopf %2 Grad weiter rechts als aufgezeichnet: Ist die Drehachse verrutscht?</translation>
    </message>
    <message>
        <source>from %1 on the head stands %2 degrees farther left than recorded: did its turning axis slip?</source>
        <translation>ab %1 steht der Kopf %2 Grad weiter links als aufgezeichnet: Ist die Drehachse verrutscht?</translation>
    </message>
    <message>
        <source>from %1 on the head stands %2 degrees higher than recorded: did its tilting axis slip?</source>
        <translation>ab %1 steht der Kopf %2 Grad höher als aufgezeichnet: Ist die Neigeachse verrutscht?</translation>
    </message>
    <message>
        <source>from %1 on the head stands %2 degrees lower than recorded: did its tilting axis slip?</source>
        <translation>ab %1 steht der Kopf %2 Grad tiefer als aufgezeichnet: Ist die Neigeachse verrutscht?</translation>
    </message>
    <message>
        <source>%1 was taken %2 degrees from where the head says: was it bumped?</source>
        <translation>%1 liegt %2 Grad neben der vom Kopf angegebenen Richtung: Wurde der Kopf angestoßen?</translation>
    </message>
    <message>
        <source>residuals suggest parallax (%1 pixels): near things move against far ones; is the camera&apos;s nodal point on the head&apos;s axes?</source>
        <translation>die verbleibenden Fehler deuten auf Parallaxe hin (%1 Pixel): Nahes verschiebt sich gegen Fernes; liegt der Nodalpunkt der Kamera auf den Achsen des Kopfes?</translation>
    </message>
    <message>
        <source>was %1 x %2 pixels when imported, is now %3 x %4</source>
        <translation>hatte beim Import %1 x %2 Pixel, hat jetzt %3 x %4</translation>
    </message>
    <message>
        <source>cannot keep the features of photos there: %1</source>
        <translation>Bildmerkmale lassen sich dort nicht ablegen: %1</translation>
    </message>
    <message>
        <source>TMPDIR names a folder with more room</source>
        <translation>TMPDIR auf einen Ordner mit mehr Platz setzen</translation>
    </message>
    <message>
        <source>cannot read the features of photos back: %1</source>
        <translation>abgelegte Bildmerkmale sind nicht lesbar: %1</translation>
    </message>
    <message>
        <source>not known</source>
        <translation>nicht bekannt</translation>
    </message>
    <message>
        <source>%1: %2, bracket %3, focal %4, lens %5</source>
        <translation>%1: %2, Belichtungsreihen zu %3, Brennweite %4, Objektiv %5</translation>
    </message>
    <message>
        <source>copy it from the card again</source>
        <translation>noch einmal von der Karte kopieren</translation>
    </message>
    <message>
        <source>%1 given, %2 readable, focal %3, lens %4</source>
        <translation>%1 ausgewählt, %2 lesbar, Brennweite %3, Objektiv %4</translation>
    </message>
    <message>
        <source>neither the photos nor the record name the focal length</source>
        <translation>weder die Bilder noch die Aufnahmedatei nennen die Brennweite</translation>
    </message>
    <message>
        <source>give it, as for 35 mm film: --focal 24</source>
        <translation>eingeben, auf Kleinbild bezogen</translation>
    </message>
    <message>
        <source>not all photos have a capture time</source>
        <translation>nicht alle Bilder haben eine Aufnahmezeit</translation>
    </message>
    <message>
        <source>%1 was taken before %2</source>
        <translation>%1 wurde vor %2 aufgenommen</translation>
    </message>
    <message>
        <source>try --order time</source>
        <translation>nach Aufnahmezeit ordnen</translation>
    </message>
    <message>
        <source>capture times agree</source>
        <translation>die Aufnahmezeiten stimmen</translation>
    </message>
    <message>
        <source>none</source>
        <translation>keine</translation>
    </message>
    <message>
        <source>%1 s after %2 (usually %3 s)</source>
        <translation>%1 s nach %2 (meist %3 s)</translation>
    </message>
    <message>
        <source>standard</source>
        <translation>Standard</translation>
    </message>
    <message>
        <source>fisheye</source>
        <translation>Fischauge</translation>
    </message>
    <message>
        <source>%1 mm</source>
        <translation>%1 mm</translation>
    </message>
    <message>
        <source>this folder cannot be made</source>
        <translation>dieser Ordner lässt sich nicht anlegen</translation>
    </message>
    <message>
        <source>is the disk full, or the folder above it read-only?</source>
        <translation>ist der Datenträger voll oder der Ordner darüber schreibgeschützt?</translation>
    </message>
    <message>
        <source>no photo reaches these sides of the cube, which are left out: %1</source>
        <translation>kein Bild reicht bis zu diesen Würfelseiten, sie werden weggelassen: %1</translation>
    </message>
    <message>
        <source>cannot be written (%1)</source>
        <translation>lässt sich nicht schreiben (%1)</translation>
    </message>
    <message>
        <source>make room there or choose another place</source>
        <translation>dort Platz schaffen oder einen anderen Ort wählen</translation>
    </message>
    <message>
        <source>the folder %1 does not exist</source>
        <translation>der Ordner %1 ist nicht vorhanden</translation>
    </message>
    <message>
        <source>create it or choose another place</source>
        <translation>ihn anlegen oder einen anderen Ort wählen</translation>
    </message>
    <message>
        <source>is a folder</source>
        <translation>ist ein Ordner</translation>
    </message>
    <message>
        <source>is not a regular file</source>
        <translation>ist keine gewöhnliche Datei</translation>
    </message>
    <message>
        <source>remove it or choose another name with -o</source>
        <translation>entfernen oder einen anderen Namen wählen</translation>
    </message>
    <message>
        <source>is a file, and a folder of that name is wanted</source>
        <translation>ist eine Datei, gebraucht wird ein Ordner dieses Namens</translation>
    </message>
    <message>
        <source>is a folder that panohost has not made</source>
        <translation>ist ein Ordner, den panohost nicht angelegt hat</translation>
    </message>
    <message>
        <source>it left a file that is not complete</source>
        <translation>hat eine unvollständige Datei hinterlassen</translation>
    </message>
    <message>
        <source>is the disk full? make room and try again</source>
        <translation>ist der Datenträger voll? Platz schaffen und erneut versuchen</translation>
    </message>
    <message>
        <source>make room there and try again</source>
        <translation>dort Platz schaffen und erneut versuchen</translation>
    </message>
    <message>
        <source>the panorama has %1 x %2 pixels, and JPEG files at most %3 to a side</source>
        <translation>das Panorama hat %1 x %2 Pixel, JPEG-Dateien höchstens %3 je Seite</translation>
    </message>
    <message>
        <source>name it .tif, or make it smaller with --size</source>
        <translation>als .tif speichern oder eine kleinere Größe wählen</translation>
    </message>
    <message>
        <source>this panorama&apos;s values are not light</source>
        <translation>die Werte dieses Panoramas sind keine Lichtwerte</translation>
    </message>
    <message>
        <source>needs --output hdr</source>
        <translation>dafür „Die Lichtwerte selbst (HDR)“ wählen</translation>
    </message>
    <message>
        <source>is not the panorama that was stitched last</source>
        <translation>ist nicht das zuletzt erstellte Panorama</translation>
    </message>
    <message>
        <source>remove it and try again</source>
        <translation>entfernen und erneut versuchen</translation>
    </message>
    <message>
        <source>it left %1 incomplete</source>
        <translation>hat %1 unvollständig hinterlassen</translation>
    </message>
    <message>
        <source>is the disk full?</source>
        <translation>ist der Datenträger voll?</translation>
    </message>
    <message>
        <source>the address where the folder will be reached is not known</source>
        <translation>die Adresse, unter der der Ordner erreichbar sein wird, ist nicht bekannt</translation>
    </message>
    <message>
        <source>give it, such as https://example.org/panoramas</source>
        <translation>angeben, etwa https://example.org/panoramas</translation>
    </message>
    <message>
        <source>%1 less %2 ignored</source>
        <translation>%1 minus %2 übersprungene</translation>
    </message>
    <message>
        <source>%1, %2, bracket %3, %4 ignored</source>
        <translation>%1, %2, Belichtungsreihen zu %3, %4 übersprungen</translation>
    </message>
    <message>
        <source>photos</source>
        <translation>Bilder</translation>
    </message>
    <message>
        <source>--ignore %1 leaves none of %2</source>
        <translation>%1 übersprungen: Von %2 bleibt keines übrig</translation>
    </message>
    <message>
        <source>ignore fewer, or name all photos</source>
        <translation>weniger überspringen oder alle Bilder auswählen</translation>
    </message>
    <message>
        <source>--bracket %1 is more than %2</source>
        <translation>Belichtungsreihen zu %1, aber nur %2</translation>
    </message>
    <message>
        <source>each position needs all its exposures</source>
        <translation>je Position werden alle Belichtungen gebraucht</translation>
    </message>
    <message>
        <source>%1 are not a multiple of bracket %2</source>
        <translation>%1 ergeben keine vollen Belichtungsreihen zu %2</translation>
    </message>
    <message>
        <source>each position needs all its exposures; --ignore N leaves out the first N photos</source>
        <translation>je Position werden alle Belichtungen gebraucht; überzählige Dateien am Anfang lassen sich überspringen</translation>
    </message>
    <message>
        <source>%1 (%2 in brackets of %3)</source>
        <translation>%1 (%2 in Belichtungsreihen zu %3)</translation>
    </message>
    <message>
        <source>%1 do not divide %2 evenly</source>
        <translation>%2 lassen sich nicht gleichmäßig auf %1 verteilen</translation>
    </message>
    <message>
        <source>are photos missing? --ignore N leaves out the first N photos</source>
        <translation>fehlen Bilder? überzählige Dateien am Anfang lassen sich überspringen</translation>
    </message>
    <message>
        <source>%1 and %2 more</source>
        <translation>%1 und %2 weitere</translation>
    </message>
    <message>
        <source>no pause tells where</source>
        <translation>keine Pause zeigt, wo</translation>
    </message>
    <message>
        <source>the longest pause: %1, in row %2 as they were taken</source>
        <translation>die längste Pause: %1, in Zeile %2 nach der Reihenfolge der Aufnahme</translation>
    </message>
    <message>
        <source>the longest pause: %1, in column %2 as they were taken</source>
        <translation>die längste Pause: %1, in Spalte %2 nach der Reihenfolge der Aufnahme</translation>
    </message>
    <message>
        <source>the pictures do not tell which are missing: %1</source>
        <translation>die Bilder lassen nicht erkennen, welche fehlen: %1</translation>
    </message>
    <message>
        <source>no photo for %1 (rows from the top, columns from the left)</source>
        <translation>kein Bild für %1 (Zeilen von oben, Spalten von links gezählt)</translation>
    </message>
    <message>
        <source>no such file</source>
        <translation>Datei nicht vorhanden</translation>
    </message>
    <message>
        <source>not a regular file</source>
        <translation>keine gewöhnliche Datei</translation>
    </message>
    <message>
        <source>no &lt;shoot&gt; pictures</source>
        <translation>keine Bilder in &lt;shoot&gt;</translation>
    </message>
    <message>
        <source>is it an old-style Papywizard file (image/coords)?</source>
        <translation>ist es eine Papywizard-Datei der alten Art (image/coords)?</translation>
    </message>
    <message>
        <source>its &lt;shoot&gt; holds no &lt;pict&gt;: no shot was recorded</source>
        <translation>&lt;shoot&gt; enthält kein &lt;pict&gt;: Es wurde keine Aufnahme aufgezeichnet</translation>
    </message>
    <message>
        <source>choose the record of a finished shoot</source>
        <translation>die Aufnahmedatei einer abgeschlossenen Aufnahmeserie auswählen</translation>
    </message>
    <message>
        <source>no op_shoot command: no shot was recorded</source>
        <translation>kein Befehl op_shoot: Es wurde keine Aufnahme aufgezeichnet</translation>
    </message>
    <message>
        <source>is it the script that the head ran?</source>
        <translation>ist es das Skript, das der Kopf ausgeführt hat?</translation>
    </message>
    <message>
        <source>correct this line, or choose another script</source>
        <translation>diese Zeile berichtigen oder ein anderes Skript auswählen</translation>
    </message>
    <message>
        <source>line %1: %2</source>
        <translation>Zeile %1: %2</translation>
    </message>
    <message>
        <source>is it the record that the head wrote?</source>
        <translation>ist es die Aufnahmedatei, die der Kopf geschrieben hat?</translation>
    </message>
    <message>
        <source>no such record</source>
        <translation>Aufnahmedatei nicht vorhanden</translation>
    </message>
    <message>
        <source>check the name</source>
        <translation>den Namen prüfen</translation>
    </message>
    <message>
        <source>unknown head &apos;%1&apos;%2</source>
        <translation>unbekannter Kopf „%1“%2</translation>
    </message>
    <message>
        <source>heads: %1</source>
        <translation>Köpfe: %1</translation>
    </message>
    <message>
        <source>no record of some of its shots can be made</source>
        <translation>eine Aufnahmedatei mit nur einem Teil der Aufnahmen lässt sich nicht erstellen</translation>
    </message>
    <message>
        <source>take the shots by hand</source>
        <translation>die Aufnahmen von Hand machen</translation>
    </message>
    <message>
        <source>using %1</source>
        <translation>verwendet wird %1</translation>
    </message>
    <message>
        <source>has no import plug-in for %1</source>
        <translation>enthält kein Import-Plug-in für %1</translation>
    </message>
    <message>
        <source>set --plugin to another library</source>
        <translation>eine andere Bibliothek verwenden</translation>
    </message>
    <message>
        <source>the page refuses them</source>
        <translation>die Seite lehnt sie ab</translation>
    </message>
    <message>
        <source>make it first</source>
        <translation>ihn zuerst anlegen</translation>
    </message>
    <message>
        <source>name a file in it</source>
        <translation>eine Datei darin auswählen</translation>
    </message>
    <message>
        <source>name a file of your own</source>
        <translation>eine eigene Datei auswählen</translation>
    </message>
    <message>
        <source>cannot be written there: %1</source>
        <translation>dort lässt sich nichts schreiben: %1</translation>
    </message>
    <message>
        <source>choose a folder of your own</source>
        <translation>einen eigenen Ordner wählen</translation>
    </message>
    <message>
        <source>is one of the input files</source>
        <translation>gehört zu den Eingabedateien</translation>
    </message>
    <message>
        <source>choose another name for the result</source>
        <translation>einen anderen Namen für das Ergebnis wählen</translation>
    </message>
    <message>
        <source>given twice</source>
        <translation>doppelt ausgewählt</translation>
    </message>
    <message>
        <source>name each photo once</source>
        <translation>jedes Bild nur einmal auswählen</translation>
    </message>
    <message>
        <source>no such photo</source>
        <translation>Bild nicht vorhanden</translation>
    </message>
    <message>
        <source>rename the file: its name is not in UTF-8</source>
        <translation>die Datei umbenennen: Ihr Name ist nicht in UTF-8</translation>
    </message>
    <message>
        <source>name the photos in it, e.g. %1/*.jpg</source>
        <translation>die Bilder darin auswählen, z. B. %1/*.jpg</translation>
    </message>
    <message>
        <source>name photos only</source>
        <translation>nur Bilder auswählen</translation>
    </message>
    <message>
        <source>cannot be read: permission denied</source>
        <translation>nicht lesbar: Zugriff verweigert</translation>
    </message>
    <message>
        <source>copy it to a folder of your own</source>
        <translation>in einen eigenen Ordner kopieren</translation>
    </message>
    <message>
        <source>are photos missing, or did the shoot stop early?</source>
        <translation>fehlen Bilder, oder endete die Aufnahmeserie vorzeitig?</translation>
    </message>
    <message>
        <source>are test shots among the photos?</source>
        <translation>sind Testaufnahmen unter den Bildern?</translation>
    </message>
    <message>
        <source>records %1, %2 given</source>
        <translation>enthält %1, ausgewählt: %2</translation>
    </message>
    <message>
        <source>has no capture time to order by</source>
        <translation>hat keine Aufnahmezeit, nach der sich ordnen ließe</translation>
    </message>
    <message>
        <source>use --order name or --order given</source>
        <translation>nach Namen ordnen</translation>
    </message>
    <message>
        <source>the record</source>
        <translation>der Aufnahmedatei</translation>
    </message>
    <message>
        <source>the photos&apos; EXIF data</source>
        <translation>den EXIF-Daten der Bilder</translation>
    </message>
    <message>
        <source>the photos&apos; EXIF data or the record</source>
        <translation>den EXIF-Daten der Bilder oder der Aufnahmedatei</translation>
    </message>
    <message>
        <source>focal length</source>
        <translation>Brennweite</translation>
    </message>
    <message>
        <source>not known from %1</source>
        <translation>nicht zu finden in %1</translation>
    </message>
    <message>
        <source>give it with --focal MM (35 mm equivalent)</source>
        <translation>zurückgehen und sie eingeben (auf Kleinbild bezogen)</translation>
    </message>
    <message>
        <source>focal length %1 (EXIF) against %2 (record); using EXIF; choose with --focal</source>
        <translation>Brennweite %1 (EXIF) gegenüber %2 (Aufnahmedatei); EXIF gilt</translation>
    </message>
    <message>
        <source>%1 of the photos name no focal length; using that of the others; choose with --focal</source>
        <translation>%1 der Bilder ohne Brennweite; es gilt die der übrigen</translation>
    </message>
    <message>
        <source>%1 lens (EXIF) against %2 (record); using EXIF; choose with --lens</source>
        <translation>Objektiv %1 (EXIF) gegenüber %2 (Aufnahmedatei); EXIF gilt</translation>
    </message>
    <message>
        <source>the photos name focal lengths from %1 to %2; using their median; choose with --focal</source>
        <translation>die Bilder nennen Brennweiten von %1 bis %2; es gilt der mittlere Wert</translation>
    </message>
    <message>
        <source>plug-in page</source>
        <translation>Plug-in-Seite</translation>
    </message>
    <message>
        <source>has no &apos;%1&apos;</source>
        <translation>enthält kein „%1“</translation>
    </message>
    <message>
        <source>is this library of another version? set --plugin</source>
        <translation>gehört diese Bibliothek zu einer anderen Version?</translation>
    </message>
    <message>
        <source>%1 is not between %2 and %3</source>
        <translation>%1 liegt nicht zwischen %2 und %3</translation>
    </message>
    <message>
        <source>its photo button opens no file dialog</source>
        <translation>ihre Bilder-Schaltfläche öffnet keinen Dateidialog</translation>
    </message>
    <message>
        <source> (and %1 more of %2 photos)</source>
        <translation> (und %1 weitere von %2 Bildern)</translation>
    </message>
    <message>
        <source>cannot read (%1)%2</source>
        <translation>nicht lesbar (%1)%2</translation>
    </message>
    <message>
        <source>is it a photo? try &apos;panohost check&apos;</source>
        <translation>ist es ein Bild?</translation>
    </message>
    <message>
        <source>the page does not accept them</source>
        <translation>die Seite nimmt sie nicht an</translation>
    </message>
    <message>
        <source>try &apos;panohost check&apos;</source>
        <translation>die Bilder prüfen</translation>
    </message>
    <message>
        <source>refused by the plug-in</source>
        <translation>vom Plug-in abgelehnt</translation>
    </message>
    <message>
        <source>temporary links to the photos</source>
        <translation>temporäre Verknüpfungen zu den Bildern</translation>
    </message>
    <message>
        <source>is the temporary folder full? set TMPDIR</source>
        <translation>ist der temporäre Ordner voll? TMPDIR auf einen anderen setzen</translation>
    </message>
    <message>
        <source>of no shot</source>
        <translation>keiner Aufnahme</translation>
    </message>
    <message>
        <source>shot %1</source>
        <translation>Aufnahme %1</translation>
    </message>
    <message>
        <source>: %1 may be %2 (%3 %) or %4</source>
        <translation>: %1 gehört vielleicht zu %2 (%3 %) oder zu %4</translation>
    </message>
    <message>
        <source>which photo belongs to which shot cannot be told surely%1; take photos of other shoots away, or say the order with --order name, time or given</source>
        <translation>welches Bild zu welcher Aufnahme gehört, ist nicht sicher%1; Bilder anderer Aufnahmeserien entfernen</translation>
    </message>
    <message>
        <source>%1 for shot %2</source>
        <translation>%1 für Aufnahme %2</translation>
    </message>
    <message>
        <source>the camera took several photos for each shot: the last one of each is used</source>
        <translation>die Kamera hat je Aufnahme mehrere Bilder gemacht: Das jeweils letzte wird verwendet</translation>
    </message>
    <message>
        <source>taken more than once; used: %1</source>
        <translation>mehrfach aufgenommen; verwendet: %1</translation>
    </message>
    <message>
        <source>the camera&apos;s counter began again among these photos: they are ordered by time</source>
        <translation>der Zähler der Kamera begann zwischen diesen Bildern von vorn: Sie werden nach der Zeit geordnet</translation>
    </message>
    <message>
        <source>photo numbers begin again (another card?): they are ordered by time</source>
        <translation>die Bildnummern beginnen von vorn (eine andere Karte?): Die Bilder werden nach der Zeit geordnet</translation>
    </message>
    <message>
        <source>names and times disagree: photos are ordered by time</source>
        <translation>Namen und Zeiten widersprechen sich: Die Bilder werden nach der Zeit geordnet</translation>
    </message>
    <message>
        <source>no photo for %1%2</source>
        <translation>kein Bild für %1%2</translation>
    </message>
    <message>
        <source> (was the shoot stopped?)</source>
        <translation> (wurde die Aufnahmeserie abgebrochen?)</translation>
    </message>
    <message>
        <source>take them again if you can</source>
        <translation>wenn möglich, noch einmal aufnehmen</translation>
    </message>
    <message>
        <source>%1 min %2 s</source>
        <translation>%1 min %2 s</translation>
    </message>
    <message>
        <source>1 hour</source>
        <translation>1 Stunde</translation>
    </message>
    <message>
        <source>%1 hours</source>
        <translation>%1 Stunden</translation>
    </message>
    <message>
        <source>the camera&apos;s clock is %1 ahead of the head&apos;s</source>
        <translation>die Uhr der Kamera geht gegenüber der des Kopfes um %1 vor</translation>
    </message>
    <message>
        <source>the camera&apos;s clock is %1 behind the head&apos;s</source>
        <translation>die Uhr der Kamera geht gegenüber der des Kopfes um %1 nach</translation>
    </message>
    <message>
        <source>the camera&apos;s clock gains %1 s in a minute</source>
        <translation>die Uhr der Kamera geht je Minute um %1 s vor</translation>
    </message>
    <message>
        <source>the camera&apos;s clock loses %1 s in a minute</source>
        <translation>die Uhr der Kamera geht je Minute um %1 s nach</translation>
    </message>
    <message>
        <source>the same picture: %1</source>
        <translation>dasselbe Bild: %1</translation>
    </message>
    <message>
        <source>before the first shot (a test?): left out</source>
        <translation>vor der ersten Aufnahme (ein Test?): weggelassen</translation>
    </message>
    <message>
        <source>of another size: left out</source>
        <translation>von anderer Größe: weggelassen</translation>
    </message>
    <message>
        <source>not of this shoot: left out</source>
        <translation>nicht aus dieser Aufnahmeserie: weggelassen</translation>
    </message>
    <message>
        <source>which photo belongs to which shot could not be checked (%1): they are taken in the order of their names</source>
        <translation>welches Bild zu welcher Aufnahme gehört, ließ sich nicht prüfen (%1): Es gilt die Reihenfolge der Namen</translation>
    </message>
    <message>
        <source>names, times and counts</source>
        <translation>Namen, Zeiten und Anzahl</translation>
    </message>
    <message>
        <source>names and counts</source>
        <translation>Namen und Anzahl</translation>
    </message>
    <message>
        <source>the record tells no times</source>
        <translation>die Aufnahmedatei nennt keine Zeiten</translation>
    </message>
    <message>
        <source>the photos tell no times</source>
        <translation>die Bilder nennen keine Zeiten</translation>
    </message>
    <message>
        <source>the times of photos and record do not agree</source>
        <translation>die Zeiten von Bildern und Aufnahmedatei stimmen nicht überein</translation>
    </message>
    <message>
        <source>%1 left out: other files of the same photos are used, JPEG before RAW</source>
        <translation>%1 weggelassen: Andere Dateien derselben Bilder werden verwendet, JPEG vor RAW</translation>
    </message>
    <message>
        <source>not opened: %1 agree</source>
        <translation>nicht geöffnet: %1 stimmen überein</translation>
    </message>
    <message>
        <source>the grid</source>
        <translation>das Raster</translation>
    </message>
    <message>
        <source>none of its shots has a photo</source>
        <translation>zu keiner seiner Aufnahmen gibt es ein Bild</translation>
    </message>
    <message>
        <source>are these the photos of this shoot?</source>
        <translation>sind das die Bilder dieser Aufnahmeserie?</translation>
    </message>
    <message>
        <source>was made of other photos</source>
        <translation>wurde aus anderen Bildern erstellt</translation>
    </message>
    <message>
        <source>%1 between %2</source>
        <translation>%1 zwischen %2</translation>
    </message>
    <message>
        <source>; %1 without a neighbour near enough</source>
        <translation>; %1 ohne genügend nahen Nachbarn</translation>
    </message>
    <message>
        <source>%1 to %2</source>
        <translation>%1 bis %2</translation>
    </message>
    <message>
        <source>shots %1</source>
        <translation>Aufnahmen %1</translation>
    </message>
    <message>
        <source>, exposure %1 of %2</source>
        <translation>, Belichtung %1 von %2</translation>
    </message>
    <message>
        <source>no photo for shot %1 (yaw %2, pitch %3%4)</source>
        <translation>kein Bild für Aufnahme %1 (Gierwinkel %2, Nickwinkel %3%4)</translation>
    </message>
    <message>
        <source>no photo for %1</source>
        <translation>kein Bild für %1</translation>
    </message>
    <message>
        <source>panorama of %1 x %2 pixels: takes about %3 in %4 (%5 are free) and %6 of memory</source>
        <translation>Panorama mit %1 x %2 Pixeln: braucht etwa %3 in %4 (%5 sind frei) und %6 Arbeitsspeicher</translation>
    </message>
    <message>
        <source>the light is exact to a fraction of a percent, but where every exposure clips it or shows noise</source>
        <translation>die Lichtwerte sind auf Bruchteile eines Prozents genau, außer wo jede Belichtung ausgefressen ist oder rauscht</translation>
    </message>
    <message>
        <source>the light is good for looking at, not for measuring: the photos&apos; curve is taken for sRGB&apos;s; RAW files, or TIFFs without a curve and --linear, make it exact</source>
        <translation>die Lichtwerte taugen zum Ansehen, nicht zum Messen: Für die Tonwertkurve der Bilder wird die von sRGB angenommen; RAW-Dateien machen es genau</translation>
    </message>
    <message>
        <source>is to hold what is kept of this panorama, and holds something else</source>
        <translation>soll die Zwischenergebnisse dieses Panoramas aufnehmen, enthält aber etwas anderes</translation>
    </message>
    <message>
        <source>rename it, or choose another name with -o</source>
        <translation>umbenennen oder einen anderen Namen wählen</translation>
    </message>
    <message>
        <source>the project asks for another projection; the panorama becomes equirectangular</source>
        <translation>das Projekt verlangt eine andere Projektion; das Panorama wird equirektangular</translation>
    </message>
    <message>
        <source>masks that include a region are passed over, only those that exclude one count</source>
        <translation>Masken, die einen Bereich einschließen, werden übergangen; nur solche, die einen ausschließen, zählen</translation>
    </message>
    <message>
        <source>--centre turns full turns only; this part of the sphere stays as it is</source>
        <translation>nur ein voller Rundumblick lässt sich drehen; dieser Kugelausschnitt bleibt, wie er ist</translation>
    </message>
    <message>
        <source>%1: cannot be read to its end; copy it from the card again, or take it again</source>
        <translation>%1: nicht bis zum Ende lesbar; noch einmal von der Karte kopieren oder neu aufnehmen</translation>
    </message>
    <message>
        <source>%1 of them are RAW files</source>
        <translation>%1 davon sind RAW-Dateien</translation>
    </message>
    <message>
        <source>add --raw-converter dcraw, dcraw_emu, darktable-cli or rawtherapee-cli, or give JPEGs or TIFFs of them</source>
        <translation>dcraw, dcraw_emu, darktable-cli oder rawtherapee-cli installieren oder JPEGs oder TIFFs davon nehmen</translation>
    </message>
    <message>
        <source>photos stay where the head says: optimisation is skipped</source>
        <translation>die Bilder bleiben, wo der Kopf sie angibt: Die Optimierung wird übersprungen</translation>
    </message>
    <message>
        <source>what was finished is kept in %1: the same command goes on from there</source>
        <translation>was fertig ist, bleibt in %1 erhalten: „Panorama erstellen“ macht dort weiter</translation>
    </message>
    <message>
        <source>photos lie where the record puts them in these commands: nothing is aligned yet</source>
        <translation>die Bilder liegen hier noch, wo die Aufnahmedatei sie hinsetzt: Noch ist nichts ausgerichtet</translation>
    </message>
    <message>
        <source>a Hugin project cannot hold a file name with quotation marks or line ends, and no link to it can be made in %1</source>
        <translation>ein Hugin-Projekt kann keine Dateinamen mit Anführungszeichen oder Zeilenumbrüchen enthalten, und in %1 lässt sich keine Verknüpfung dazu anlegen</translation>
    </message>
    <message>
        <source>rename the file</source>
        <translation>die Datei umbenennen</translation>
    </message>
    <message>
        <source>name dcraw, dcraw_emu, darktable-cli or rawtherapee-cli, or a command with %i for the RAW file and %o for the TIFF</source>
        <translation>dcraw, dcraw_emu, darktable-cli oder rawtherapee-cli angeben, oder einen Befehl mit %i für die RAW-Datei und %o für das TIFF</translation>
    </message>
    <message>
        <source>this RAW converter was not found</source>
        <translation>dieser RAW-Konverter wurde nicht gefunden</translation>
    </message>
    <message>
        <source>is its name right? of those known: apt install dcraw, libraw-bin, darktable or rawtherapee</source>
        <translation>stimmt sein Name? bekannte: apt install dcraw, libraw-bin, darktable oder rawtherapee</translation>
    </message>
    <message>
        <source>the camera chose the white balance of %1 RAW files one by one, and %2 follows it: their colours may differ; dcraw takes the first one&apos;s for all</source>
        <translation>die Kamera hat den Weißabgleich von %1 RAW-Dateien einzeln gewählt, und %2 folgt ihr: Die Farben können sich unterscheiden; dcraw nimmt für alle den der ersten</translation>
    </message>
    <message>
        <source>this copy of a photo cannot be made</source>
        <translation>diese Kopie eines Bildes lässt sich nicht anlegen</translation>
    </message>
    <message>
        <source>is the photo readable? is the disk full?</source>
        <translation>ist das Bild lesbar? ist der Datenträger voll?</translation>
    </message>
    <message>
        <source>, of %1</source>
        <translation>, bei %1</translation>
    </message>
    <message>
        <source>it left no whole picture of %1</source>
        <translation>hat kein vollständiges Bild von %1 hinterlassen</translation>
    </message>
    <message>
        <source>can it read this camera&apos;s files? is the disk full?</source>
        <translation>kann es die Dateien dieser Kamera lesen? ist der Datenträger voll?</translation>
    </message>
    <message>
        <source>names no program</source>
        <translation>nennt kein Programm</translation>
    </message>
    <message>
        <source>does not say where its files go</source>
        <translation>sagt nicht, wohin seine Dateien kommen</translation>
    </message>
    <message>
        <source>row %1 of column %2</source>
        <translation>Zeile %1 in Spalte %2</translation>
    </message>
    <message>
        <source>the grid reaches around the sphere: overlap or rows do not fit this lens</source>
        <translation>das Raster reicht rund um die Kugel: Überlappung oder Zeilen passen nicht zu diesem Objektiv</translation>
    </message>
    <message numerus="yes">
        <source>%n column</source>
        <translation>
            <numerusform>%n Spalte</numerusform>
            <numerusform>%n Spalten</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%n file</source>
        <translation>
            <numerusform>%n Datei</numerusform>
            <numerusform>%n Dateien</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%n link</source>
        <translation>
            <numerusform>%n Verknüpfung</numerusform>
            <numerusform>%n Verknüpfungen</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%n photo</source>
        <translation>
            <numerusform>%n Bild</numerusform>
            <numerusform>%n Bilder</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%n position</source>
        <translation>
            <numerusform>%n Position</numerusform>
            <numerusform>%n Positionen</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%n row</source>
        <translation>
            <numerusform>%n Zeile</numerusform>
            <numerusform>%n Zeilen</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%n shot</source>
        <translation>
            <numerusform>%n Aufnahme</numerusform>
            <numerusform>%n Aufnahmen</numerusform>
        </translation>
    </message>
    <message>
        <source>the description</source>
        <translation>die Beschreibung</translation>
    </message>
    <message>
        <source>%1 recorded directions for %2 photos at %3 positions</source>
        <translation>%1 aufgezeichnete Richtungen für %2 Bilder an %3 Positionen</translation>
    </message>
    <message>
        <source>its direction is not a number</source>
        <translation>die Richtung ist keine Zahl</translation>
    </message>
    <message>
        <source>correct the record</source>
        <translation>die Aufnahmedatei berichtigen</translation>
    </message>
    <message>
        <source>position %1</source>
        <translation>Position %1</translation>
    </message>
    <message>
        <source>has no photo</source>
        <translation>hat kein Bild</translation>
    </message>
    <message>
        <source>holds no photos</source>
        <translation>enthält keine Bilder</translation>
    </message>
    <message>
        <source>name a file that &apos;panohost import --json&apos; has written</source>
        <translation>eine Beschreibung auswählen, die dieses Programm gespeichert hat</translation>
    </message>
    <message>
        <source>cannot read (not a photo?)</source>
        <translation>nicht lesbar (kein Bild?)</translation>
    </message>
    <message>
        <source>its pixels cannot be decoded (a RAW file?)</source>
        <translation>die Bilddaten sind nicht lesbar (eine RAW-Datei?)</translation>
    </message>
    <message>
        <source>too large to decode</source>
        <translation>zu groß zum Lesen</translation>
    </message>
    <message>
        <source>give it with --focal</source>
        <translation>zurückgehen und sie eingeben</translation>
    </message>
    <message>
        <source>neither the record nor the photos name it</source>
        <translation>weder die Aufnahmedatei noch die Bilder nennen sie</translation>
    </message>
    <message>
        <source>no lens has %1 mm</source>
        <translation>kein Objektiv hat %1 mm</translation>
    </message>
    <message>
        <source>its size in pixels is not known</source>
        <translation>die Größe in Pixeln ist nicht bekannt</translation>
    </message>
    <message>
        <source>can another program open it? leave it out if not</source>
        <translation>kann ein anderes Programm es öffnen? wenn nicht, weglassen</translation>
    </message>
    <message>
        <source>the photos have %1 different sizes in pixels</source>
        <translation>die Bilder haben %1 verschiedene Größen in Pixeln</translation>
    </message>
    <message>
        <source>a Hugin project cannot hold a file name with quotation marks or line ends</source>
        <translation>ein Hugin-Projekt kann keine Dateinamen mit Anführungszeichen oder Zeilenumbrüchen enthalten</translation>
    </message>
    <message>
        <source>%1 of %2 photos name no exposure; %3 is assumed</source>
        <translation>%1 von %2 Bildern ohne Angabe der Belichtung; angenommen wird %3</translation>
    </message>
    <message>
        <source>larger than %1 bytes</source>
        <translation>größer als %1 Byte</translation>
    </message>
    <message>
        <source>give the name of a file</source>
        <translation>einen Dateinamen angeben</translation>
    </message>
    <message>
        <source>set --plugin or PANOHOST_PLUGIN_PATH to libXPanoHead.so</source>
        <translation>PANOHOST_PLUGIN_PATH auf libXPanoHead.so setzen</translation>
    </message>
    <message>
        <source>no such file or folder</source>
        <translation>Datei oder Ordner nicht vorhanden</translation>
    </message>
    <message>
        <source>import plug-ins</source>
        <translation>Import-Plug-ins</translation>
    </message>
    <message>
        <source>no plug-in library in %1</source>
        <translation>keine Plug-in-Bibliothek in %1</translation>
    </message>
    <message>
        <source>is not a Qt plug-in library</source>
        <translation>ist keine Qt-Plug-in-Bibliothek</translation>
    </message>
    <message>
        <source>its interface is &apos;%1&apos;, &apos;%2&apos; is needed</source>
        <translation>die Schnittstelle ist „%1“, gebraucht wird „%2“</translation>
    </message>
    <message>
        <source>offers no list of plug-ins</source>
        <translation>bietet keine Liste der Plug-ins</translation>
    </message>
    <message>
        <source>holds no import plug-in</source>
        <translation>enthält kein Import-Plug-in</translation>
    </message>
    <message>
        <source>cannot be written</source>
        <translation>lässt sich nicht schreiben</translation>
    </message>
    <message>
        <source>is of another size than the others of its bracket</source>
        <translation>hat eine andere Größe als die übrigen der Belichtungsreihe</translation>
    </message>
    <message>
        <source>is no warped light</source>
        <translation>enthält keine entzerrten Lichtwerte</translation>
    </message>
    <message>
        <source>these photos of the project, and %1 more, are not there any more</source>
        <translation>diese Bilder des Projekts und %1 weitere sind nicht mehr da</translation>
    </message>
    <message>
        <source>not there any more</source>
        <translation>nicht mehr da</translation>
    </message>
    <message>
        <source>put the photos back where they were, or import them again</source>
        <translation>die Bilder dorthin zurücklegen, wo sie waren, oder erneut importieren</translation>
    </message>
    <message>
        <source>%1 has %2 bits a colour, %3 has %4, and all must be alike to be blended</source>
        <translation>%1 hat %2 Bit je Farbe, %3 hat %4; zum Überblenden müssen alle gleich sein</translation>
    </message>
    <message>
        <source>convert or develop them alike</source>
        <translation>alle gleich umwandeln oder entwickeln</translation>
    </message>
    <message>
        <source>was not written to its end</source>
        <translation>wurde nicht bis zum Ende geschrieben</translation>
    </message>
    <message>
        <source>is there enough room in %1?</source>
        <translation>ist in %1 genug Platz?</translation>
    </message>
    <message>
        <source>nona, of %1</source>
        <translation>nona, bei %1</translation>
    </message>
    <message>
        <source>made no picture of %1</source>
        <translation>hat aus %1 kein Bild erstellt</translation>
    </message>
    <message>
        <source>is it a photo that other programs open?</source>
        <translation>ist es ein Bild, das andere Programme öffnen?</translation>
    </message>
    <message>
        <source>size of the panorama</source>
        <translation>Größe des Panoramas</translation>
    </message>
    <message>
        <source>%1 x %2 pixels cannot be made</source>
        <translation>%1 x %2 Pixel sind nicht möglich</translation>
    </message>
    <message>
        <source>choose another --size</source>
        <translation>eine andere Größe wählen</translation>
    </message>
    <message>
        <source>the stitch needs %1 there, %2 are free</source>
        <translation>das Panorama braucht dort %1, frei sind %2</translation>
    </message>
    <message>
        <source>make room, name another place with -o, or choose a smaller --size</source>
        <translation>Platz schaffen oder einen anderen Ort oder eine kleinere Größe wählen</translation>
    </message>
    <message>
        <source>memory</source>
        <translation>Arbeitsspeicher</translation>
    </message>
    <message>
        <source>the stitch needs about %1, %2 are available</source>
        <translation>das Panorama braucht etwa %1, verfügbar sind %2</translation>
    </message>
    <message>
        <source>close other programs, or choose --jobs 1 or a smaller --size</source>
        <translation>andere Programme schließen oder eine kleinere Größe wählen</translation>
    </message>
    <message>
        <source>try it by itself</source>
        <translation>das Programm für sich allein ausprobieren</translation>
    </message>
    <message>
        <source>%1 minutes</source>
        <translation>%1 Minuten</translation>
    </message>
    <message>
        <source>it was killed, perhaps because memory ran out</source>
        <translation>wurde beendet, vielleicht weil der Arbeitsspeicher nicht reichte</translation>
    </message>
    <message>
        <source>close other programs and try again</source>
        <translation>andere Programme schließen und erneut versuchen</translation>
    </message>
    <message>
        <source>it crashed (signal %1)</source>
        <translation>abgestürzt (Signal %1)</translation>
    </message>
    <message>
        <source>%1 and said: %2</source>
        <translation>%1, mit der Meldung: %2</translation>
    </message>
    <message>
        <source> if so: %1</source>
        <translation> wenn ja: %1</translation>
    </message>
    <message>
        <source>this program is needed for stitching and was not found</source>
        <translation>dieses Programm wird zum Zusammensetzen gebraucht und wurde nicht gefunden</translation>
    </message>
    <message>
        <source>cannot be started (%1)</source>
        <translation>lässt sich nicht starten (%1)</translation>
    </message>
    <message>
        <source>it was stopped since it did nothing for %1</source>
        <translation>wurde angehalten, weil es %1 lang nichts tat</translation>
    </message>
    <message>
        <source>is the machine very busy, or a network drive away? try again</source>
        <translation>ist der Rechner stark ausgelastet oder ein Netzlaufwerk nicht erreichbar? erneut versuchen</translation>
    </message>
    <message>
        <source>it failed without a message</source>
        <translation>ist ohne Meldung fehlgeschlagen</translation>
    </message>
    <message>
        <source>it failed and said: %1</source>
        <translation>ist fehlgeschlagen, mit der Meldung: %1</translation>
    </message>
    <message>
        <source>is the disk full, or a file damaged that it reads?</source>
        <translation>ist der Datenträger voll oder eine der gelesenen Dateien beschädigt?</translation>
    </message>
    <message>
        <source>it failed, and there is hardly any room left on the disk at %1 (%2)</source>
        <translation>ist fehlgeschlagen, und auf dem Datenträger bei %1 ist kaum noch Platz (%2)</translation>
    </message>
    <message>
        <source>make room there and go on with the same command; nothing is lost</source>
        <translation>dort Platz schaffen und erneut „Panorama erstellen“ drücken; nichts geht verloren</translation>
    </message>
    <message>
        <source>was the disk full? remove the file and try again</source>
        <translation>war der Datenträger voll? die Datei entfernen und erneut versuchen</translation>
    </message>
    <message>
        <source>cannot be read</source>
        <translation>nicht lesbar</translation>
    </message>
    <message>
        <source>is no picture of 8, 16 or floating bits</source>
        <translation>ist kein Bild mit 8 Bit, 16 Bit oder Gleitkommawerten</translation>
    </message>
    <message>
        <source>is cut off</source>
        <translation>ist abgeschnitten</translation>
    </message>
    <message>
        <source>cannot be mapped into memory</source>
        <translation>lässt sich nicht in den Arbeitsspeicher einblenden</translation>
    </message>
    <message>
        <source>is the disk full, or the folder read-only?</source>
        <translation>ist der Datenträger voll oder der Ordner schreibgeschützt?</translation>
    </message>
    <message>
        <source>%1, process %2 on %3</source>
        <translation>%1, Prozess %2 auf %3</translation>
    </message>
    <message>
        <source>another program</source>
        <translation>einem anderen Programm</translation>
    </message>
    <message>
        <source>there is a file of that name: rename it, or choose another name with -o</source>
        <translation>es gibt eine Datei dieses Namens: sie umbenennen oder einen anderen Namen wählen</translation>
    </message>
    <message>
        <source>is in use by %1</source>
        <translation>wird benutzt von %1</translation>
    </message>
    <message>
        <source>wait for it to end, or choose another name with -o</source>
        <translation>warten, bis es fertig ist, oder einen anderen Namen wählen</translation>
    </message>
</context>
<context>
    <name>PanoHost::SavedList</name>
    <message>
        <source>Nothing saved yet.</source>
        <translation>Noch nichts gespeichert.</translation>
    </message>
    <message>
        <source>Saved files</source>
        <translation>Gespeicherte Dateien</translation>
    </message>
    <message>
        <source>Not done</source>
        <translation>Nicht ausgeführt</translation>
    </message>
    <message>
        <source>Saved %1 in %2</source>
        <translation>%1 in %2 gespeichert</translation>
    </message>
    <message>
        <source>Show</source>
        <translation>Anzeigen</translation>
    </message>
    <message>
        <source>Show %1 in its folder</source>
        <translation>%1 im Ordner anzeigen</translation>
    </message>
    <message>
        <source>Saved</source>
        <translation>Gespeichert</translation>
    </message>
    <message>
        <source>The folder %1 is not there any more. Was it moved, or its disk unplugged?</source>
        <translation>Der Ordner %1 ist nicht mehr da. Wurde er verschoben oder sein Datenträger getrennt?</translation>
    </message>
    <message>
        <source>No program could show the folder. It is %1</source>
        <translation>Kein Programm konnte den Ordner anzeigen. Es ist der Ordner %1</translation>
    </message>
</context>
<context>
    <name>PanoHost::ShootDesk</name>
    <message>
        <source>shot %1: yaw %2, pitch %3</source>
        <translation>Aufnahme %1: Gierwinkel %2, Nickwinkel %3</translation>
    </message>
    <message>
        <source>The photos do not stand at their shots: go back, and press Fix.</source>
        <translation>Die Bilder sind nicht den richtigen Aufnahmen zugeordnet: Gehen Sie zurück und drücken Sie „Richtigstellen“.</translation>
    </message>
    <message>
        <source>Another file in place of %1</source>
        <translation>Andere Datei anstelle von %1</translation>
    </message>
    <message>
        <source>Shots without a photo</source>
        <translation>Aufnahmen ohne Bild</translation>
    </message>
    <message>
        <source>Take these shots again if you can. The panorama is made without them otherwise.</source>
        <translation>Wiederholen Sie diese Aufnahmen, wenn möglich. Sonst wird das Panorama ohne sie erstellt.</translation>
    </message>
</context>
<context>
    <name>PanoHost::ShootPanel</name>
    <message>
        <source>Flat</source>
        <translation>Flach</translation>
    </message>
    <message>
        <source>Show the photos on a map</source>
        <translation>Die Bilder auf einer Karte zeigen</translation>
    </message>
    <message>
        <source>Sphere</source>
        <translation>Kugel</translation>
    </message>
    <message>
        <source>Look around from where the camera stood</source>
        <translation>Sich vom Standort der Kamera aus umsehen</translation>
    </message>
    <message>
        <source>Links</source>
        <translation>Verknüpfungen</translation>
    </message>
    <message>
        <source>Show which photos are linked to each other</source>
        <translation>Zeigen, welche Bilder miteinander verknüpft sind</translation>
    </message>
    <message>
        <source>Gaps</source>
        <translation>Lücken</translation>
    </message>
    <message>
        <source>Hatch what no photo shows</source>
        <translation>Schraffieren, was kein Bild zeigt</translation>
    </message>
    <message>
        <source>Fit</source>
        <translation>Einpassen</translation>
    </message>
    <message>
        <source>Show the whole shoot</source>
        <translation>Die ganze Aufnahmeserie zeigen</translation>
    </message>
    <message>
        <source>The focal length is not known: photos are drawn as by 50 mm</source>
        <translation>Die Brennweite ist nicht bekannt: Die Bilder sind wie bei 50 mm gezeichnet</translation>
    </message>
    <message>
        <source>No gaps</source>
        <translation>Keine Lücken</translation>
    </message>
    <message>
        <source>Linked to no other photo: %1</source>
        <translation>Mit keinem anderen Bild verknüpft: %1</translation>
    </message>
</context>
<context>
    <name>PanoHost::ShootStrip</name>
    <message>
        <source>To look at</source>
        <translation>Zu prüfen</translation>
    </message>
    <message>
        <source>Not yet known</source>
        <translation>Noch nicht bekannt</translation>
    </message>
    <message>
        <source>In order</source>
        <translation>In Ordnung</translation>
    </message>
    <message>
        <source>About this shoot</source>
        <translation>Über diese Aufnahmeserie</translation>
    </message>
    <message>
        <source>Show what is known about this shoot</source>
        <translation>Zeigen, was über diese Aufnahmeserie bekannt ist</translation>
    </message>
    <message>
        <source> mm</source>
        <translation> mm</translation>
    </message>
    <message>
        <source>Focal length, as for 35 mm film</source>
        <translation>Brennweite, auf Kleinbild bezogen</translation>
    </message>
</context>
<context>
    <name>PanoHost::ShootView</name>
    <message>
        <source>Picture of the shoot: %1, %2</source>
        <translation>Bild der Aufnahmeserie: %1, %2</translation>
    </message>
    <message>
        <source>1 photo</source>
        <translation>1 Bild</translation>
    </message>
    <message>
        <source>%1 photos</source>
        <translation>%1 Bilder</translation>
    </message>
    <message>
        <source>1 position</source>
        <translation>1 Position</translation>
    </message>
    <message>
        <source>%1 positions</source>
        <translation>%1 Positionen</translation>
    </message>
    <message>
        <source>position %1 of %2</source>
        <translation>Position %1 von %2</translation>
    </message>
    <message>
        <source>shot %1 of %2</source>
        <translation>Aufnahme %1 von %2</translation>
    </message>
    <message>
        <source>first of %1 photos here</source>
        <translation>erstes von %1 Bildern hier</translation>
    </message>
    <message>
        <source>off by %1 pixels</source>
        <translation>Abweichung %1 Pixel</translation>
    </message>
    <message>
        <source>no control points</source>
        <translation>keine Kontrollpunkte</translation>
    </message>
    <message>
        <source>linked to no other photo</source>
        <translation>mit keinem anderen Bild verknüpft</translation>
    </message>
    <message>
        <source>cannot be read</source>
        <translation>nicht lesbar</translation>
    </message>
    <message>
        <source>, </source>
        <translation>, </translation>
    </message>
    <message>
        <source>Off by, pixels</source>
        <translation>Abweichung, Pixel</translation>
    </message>
</context>
<context>
    <name>PanoHost::StripTexts</name>
    <message>
        <source>Next</source>
        <translation>Weiter</translation>
    </message>
    <message>
        <source>waits for the head&apos;s record</source>
        <translation>wartet auf die Aufnahmedatei des Kopfes</translation>
    </message>
    <message>
        <source>waits for another record: this one is of %1</source>
        <translation>wartet auf eine andere Aufnahmedatei: Diese ist von %1</translation>
    </message>
    <message>
        <source>waits for a record that can be read</source>
        <translation>wartet auf eine lesbare Aufnahmedatei</translation>
    </message>
    <message>
        <source>waits for the photos</source>
        <translation>wartet auf die Bilder</translation>
    </message>
    <message>
        <source>waits until the photos have been read</source>
        <translation>wartet, bis die Bilder gelesen sind</translation>
    </message>
    <message>
        <source>waits: the photos do not stand at their shots</source>
        <translation>wartet: Die Bilder sind nicht den richtigen Aufnahmen zugeordnet</translation>
    </message>
    <message>
        <source>waits: %1 for %2</source>
        <translation>wartet: %1 für %2</translation>
    </message>
    <message>
        <source>1 photo</source>
        <translation>1 Bild</translation>
    </message>
    <message>
        <source>%1 photos</source>
        <translation>%1 Bilder</translation>
    </message>
    <message>
        <source>1 shot</source>
        <translation>1 Aufnahme</translation>
    </message>
    <message>
        <source>%1 shots</source>
        <translation>%1 Aufnahmen</translation>
    </message>
    <message>
        <source>waits: not all photos can be used</source>
        <translation>wartet: Nicht alle Bilder sind verwendbar</translation>
    </message>
    <message>
        <source>waits: %1</source>
        <translation>wartet: %1</translation>
    </message>
    <message>
        <source>waits: the page does not accept these photos</source>
        <translation>wartet: Die Seite nimmt diese Bilder nicht an</translation>
    </message>
    <message>
        <source>Record</source>
        <translation>Aufnahmedatei</translation>
    </message>
    <message>
        <source>Grid</source>
        <translation>Raster</translation>
    </message>
    <message>
        <source>Photos</source>
        <translation>Bilder</translation>
    </message>
    <message>
        <source>%1 cannot be used: %2</source>
        <translation>%1 nicht verwendbar: %2</translation>
    </message>
    <message>
        <source>Order</source>
        <translation>Reihenfolge</translation>
    </message>
    <message>
        <source>each photo stands at its shot</source>
        <translation>jedes Bild ist seiner Aufnahme zugeordnet</translation>
    </message>
    <message>
        <source>the photos do not stand at their shots</source>
        <translation>die Bilder sind nicht den richtigen Aufnahmen zugeordnet</translation>
    </message>
    <message>
        <source>Focal length</source>
        <translation>Brennweite</translation>
    </message>
    <message>
        <source>%1, as the last time with such photos</source>
        <translation>%1, wie beim letzten Mal mit solchen Bildern</translation>
    </message>
    <message>
        <source>%1, as entered</source>
        <translation>%1, wie eingegeben</translation>
    </message>
    <message>
        <source>%1, from the record: the photos name none</source>
        <translation>%1, aus der Aufnahmedatei: Die Bilder nennen keine</translation>
    </message>
    <message>
        <source>no photo names it: enter it, as for 35 mm film</source>
        <translation>kein Bild nennt sie: eingeben, auf Kleinbild bezogen</translation>
    </message>
    <message>
        <source>Missing</source>
        <translation>Fehlend</translation>
    </message>
    <message>
        <source>Gaps</source>
        <translation>Pausen</translation>
    </message>
    <message>
        <source>Links</source>
        <translation>Verknüpfungen</translation>
    </message>
    <message>
        <source>other records: %1</source>
        <translation>andere Aufnahmedateien: %1</translation>
    </message>
    <message>
        <source>results of this program: %1</source>
        <translation>Ergebnisse dieses Programms: %1</translation>
    </message>
    <message>
        <source>Not taken</source>
        <translation>Nicht übernommen</translation>
    </message>
    <message>
        <source>1 thing to look at</source>
        <translation>1 Punkt zu prüfen</translation>
    </message>
    <message>
        <source>%1 things to look at</source>
        <translation>%1 Punkte zu prüfen</translation>
    </message>
    <message>
        <source>Looking at the photos...</source>
        <translation>Bilder werden geprüft...</translation>
    </message>
    <message>
        <source>Everything agrees</source>
        <translation>Alles stimmt</translation>
    </message>
    <message>
        <source>Choose record...</source>
        <translation>Aufnahmedatei auswählen...</translation>
    </message>
    <message>
        <source>Choose photos...</source>
        <translation>Bilder auswählen...</translation>
    </message>
    <message>
        <source>Remove</source>
        <translation>Entfernen</translation>
    </message>
    <message>
        <source>Replace...</source>
        <translation>Ersetzen...</translation>
    </message>
    <message>
        <source>Fix</source>
        <translation>Richtigstellen</translation>
    </message>
    <message>
        <source>Switch head</source>
        <translation>Kopf wechseln</translation>
    </message>
    <message>
        <source>Enter</source>
        <translation>Eingeben</translation>
    </message>
    <message>
        <source>Show shots...</source>
        <translation>Aufnahmen anzeigen...</translation>
    </message>
</context>
</TS>
