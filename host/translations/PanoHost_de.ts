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
        <source>or choose a smaller size</source>
        <translation>oder eine kleinere Größe wählen</translation>
    </message>
    <message>
        <source>choose a smaller size</source>
        <translation>eine kleinere Größe wählen</translation>
    </message>
    <message>
        <source>choose another size</source>
        <translation>eine andere Größe wählen</translation>
    </message>
    <message>
        <source>RAW files make it exact</source>
        <translation>RAW-Dateien machen es genau</translation>
    </message>
    <message>
        <source>press Make panorama again</source>
        <translation>erneut „Panorama erstellen“ drücken</translation>
    </message>
    <message>
        <source>go back and enter it</source>
        <translation>zurückgehen und sie eingeben</translation>
    </message>
    <message>
        <source>Make panorama goes on from here</source>
        <translation>„Panorama erstellen“ macht hier weiter</translation>
    </message>
    <message>
        <source>%1 x %2 pixels at most; takes up to %3 of the disk and %4 of memory.</source>
        <translation>Höchstens %1 x %2 Pixel; braucht bis zu %3 Speicherplatz und %4 Arbeitsspeicher.</translation>
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
    <name>PanoHost::ImportWizard</name>
    <message>
        <source>Import a panorama</source>
        <translation>Panorama importieren</translation>
    </message>
    <message>
        <source>Help</source>
        <translation>Hilfe</translation>
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
        <source>&amp;Help</source>
        <translation>&amp;Hilfe</translation>
    </message>
    <message>
        <source>&amp;Preferences...</source>
        <translation>&amp;Einstellungen...</translation>
    </message>
    <message>
        <source>&amp;About panohost</source>
        <translation>Ü&amp;ber panohost</translation>
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
        <source>Language and thumbnails change with the next start.</source>
        <translation>Sprache und Vorschaubilder ändern sich beim nächsten Start.</translation>
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
