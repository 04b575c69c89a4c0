<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<TS version="2.1" language="de" sourcelanguage="en">
<context>
    <name>UIWPClauss</name>
    <message>
        <source>Error</source>
        <translation>Fehler</translation>
    </message>
    <message>
        <source>Error parse file:%1</source>
        <translation>Fehler beim Lesen der Datei: %1</translation>
    </message>
    <message>
        <source>Select the preset file and/or images</source>
        <translation>Aufnahmedatei und/oder Bilder auswählen</translation>
    </message>
    <message>
        <source>All Files (*.*)</source>
        <translation>Alle Dateien (*.*)</translation>
    </message>
    <message>
        <source>Select images</source>
        <translation>Bilder auswählen</translation>
    </message>
    <message>
        <source>N/A</source>
        <translation>k. A.</translation>
    </message>
    <message>
        <source>Warning</source>
        <translation>Warnung</translation>
    </message>
    <message>
        <source>There is not enough memory for so many images. Close other programs and try again.</source>
        <translation>Für so viele Bilder ist nicht genügend Arbeitsspeicher frei. Schließen Sie andere Programme und versuchen Sie es erneut.</translation>
    </message>
</context>
<context>
    <name>UIWPClaussClass</name>
    <message>
        <source>Clauss panohead</source>
        <translation>Clauss-Panoramakopf</translation>
    </message>
    <message>
        <source>Clauss panohead import</source>
        <translation>Import vom Clauss-Panoramakopf</translation>
    </message>
    <message>
        <source>&lt;a href=&quot;https://dr-clauss.de&quot;&gt;&lt;font color=&quot;#DCDCDC&quot;&gt;Clauss&lt;/font&gt;&lt;/a&gt; provides special equipment for panoramic photography and VR applications.</source>
        <translation>&lt;a href=&quot;https://dr-clauss.de&quot;&gt;&lt;font color=&quot;#DCDCDC&quot;&gt;Clauss&lt;/font&gt;&lt;/a&gt; bietet Spezialausrüstung für Panoramafotografie und VR-Anwendungen.</translation>
    </message>
    <message>
        <source>General</source>
        <translation>Allgemein</translation>
    </message>
    <message>
        <source>Script file:</source>
        <translation>Skriptdatei:</translation>
    </message>
    <message>
        <source>...</source>
        <translation>...</translation>
    </message>
    <message>
        <source>Reset</source>
        <translation>Zurücksetzen</translation>
    </message>
    <message>
        <source>Number of shoot:</source>
        <translation>Anzahl der Aufnahmen:</translation>
    </message>
    <message>
        <source>N/A</source>
        <translation>k. A.</translation>
    </message>
    <message>
        <source>Theta:</source>
        <translation>Theta:</translation>
    </message>
    <message>
        <source>Phi:</source>
        <translation>Phi:</translation>
    </message>
    <message>
        <source>Inverse Y coordinates</source>
        <translation>Y-Koordinaten umkehren</translation>
    </message>
    <message>
        <source>Images:</source>
        <translation>Bilder:</translation>
    </message>
    <message>
        <source>Number of image:</source>
        <translation>Bildanzahl:</translation>
    </message>
    <message>
        <source>Options</source>
        <translation>Optionen</translation>
    </message>
    <message>
        <source>Auto detection</source>
        <translation>Automatische Erkennung</translation>
    </message>
    <message>
        <source>Clean wrong link</source>
        <translation>Falsche Verknüpfungen entfernen</translation>
    </message>
    <message>
        <source>Skip optimization</source>
        <translation>Optimierung überspringen</translation>
    </message>
    <message>
        <source>Guided optimization</source>
        <translation>Geführte Optimierung</translation>
    </message>
    <message>
        <source>Preview</source>
        <translation>Vorschau</translation>
    </message>
    <message>
        <source>Zoom</source>
        <translation>Zoom</translation>
    </message>
</context>
<context>
    <name>UIWPGigapan</name>
    <message>
        <source>Select images</source>
        <translation>Bilder auswählen</translation>
    </message>
    <message>
        <source>All Files (*.*)</source>
        <translation>Alle Dateien (*.*)</translation>
    </message>
    <message>
        <source>images in </source>
        <translation>Bilder in </translation>
    </message>
    <message>
        <source>Warning</source>
        <translation>Warnung</translation>
    </message>
    <message>
        <source>There is not enough memory for so many images. Close other programs and try again.</source>
        <translation>Für so viele Bilder ist nicht genügend Arbeitsspeicher frei. Schließen Sie andere Programme und versuchen Sie es erneut.</translation>
    </message>
</context>
<context>
    <name>UIWPGigapanClass</name>
    <message>
        <source>UIWPGigapan</source>
        <translation>UIWPGigapan</translation>
    </message>
    <message>
        <source>Gigapan panorama import</source>
        <translation>Gigapan-Panorama-Import</translation>
    </message>
    <message>
        <source>&lt;a href=&quot;http://www.gigapan.com&quot;&gt;&lt;font color=&quot;#DCDCDC&quot;&gt;Gigapan&lt;/font&gt;&lt;/a&gt; allows users to upload, share, and explore brilliant gigapixel+ panoramas from around the globe.</source>
        <translation>&lt;a href=&quot;http://www.gigapan.com&quot;&gt;&lt;font color=&quot;#DCDCDC&quot;&gt;Gigapan&lt;/font&gt;&lt;/a&gt; ermöglicht es, brillante Gigapixel-Panoramen aus aller Welt hochzuladen, zu teilen und zu erkunden.</translation>
    </message>
    <message>
        <source>General</source>
        <translation>Allgemein</translation>
    </message>
    <message>
        <source>Images :</source>
        <translation>Bilder:</translation>
    </message>
    <message>
        <source>...</source>
        <translation>...</translation>
    </message>
    <message>
        <source>Reset</source>
        <translation>Zurücksetzen</translation>
    </message>
    <message>
        <source># Images in</source>
        <translation>Anzahl Bilder in</translation>
    </message>
    <message>
        <source>rows and</source>
        <translation>Zeilen und</translation>
    </message>
    <message>
        <source>columns.</source>
        <translation>Spalten.</translation>
    </message>
    <message>
        <source>Ignore N files </source>
        <translation>Dateien am Anfang überspringen </translation>
    </message>
    <message>
        <source>Nb image per location ( bracketing )</source>
        <translation>Bilder je Position (Belichtungsreihe)</translation>
    </message>
    <message>
        <source>Shoot layout</source>
        <translation>Aufnahmeraster</translation>
    </message>
    <message>
        <source>Columns (default)</source>
        <translation>Spalten (Standard)</translation>
    </message>
    <message>
        <source>Columns: to left</source>
        <translation>Spalten: nach links</translation>
    </message>
    <message>
        <source>Rows: downward</source>
        <translation>Zeilen: nach unten</translation>
    </message>
    <message>
        <source>Rows: upward</source>
        <translation>Zeilen: nach oben</translation>
    </message>
    <message>
        <source>Shoot setup</source>
        <translation>Aufnahmeeinstellungen</translation>
    </message>
    <message>
        <source>Force 360° panorama</source>
        <translation>360°-Panorama erzwingen</translation>
    </message>
    <message>
        <source>Overlapping</source>
        <translation>Überlappung</translation>
    </message>
    <message>
        <source>Stack</source>
        <translation>Stapel</translation>
    </message>
    <message>
        <source>Detect links in:</source>
        <translation>Verknüpfungen suchen in:</translation>
    </message>
    <message>
        <source>The reference level</source>
        <translation>der Referenzebene</translation>
    </message>
    <message>
        <source>All stack levels</source>
        <translation>allen Ebenen des Stapels</translation>
    </message>
    <message>
        <source>For a stack:</source>
        <translation>Innerhalb eines Stapels:</translation>
    </message>
    <message>
        <source>Use hard links</source>
        <translation>Feste Verknüpfungen verwenden</translation>
    </message>
    <message>
        <source>Detect control points</source>
        <translation>Kontrollpunkte suchen</translation>
    </message>
    <message>
        <source>Detection options</source>
        <translation>Erkennungsoptionen</translation>
    </message>
    <message>
        <source>Auto detection</source>
        <translation>Automatische Erkennung</translation>
    </message>
    <message>
        <source>Clean wrong link</source>
        <translation>Falsche Verknüpfungen entfernen</translation>
    </message>
    <message>
        <source>Skip optimization</source>
        <translation>Optimierung überspringen</translation>
    </message>
    <message>
        <source>Preview</source>
        <translation>Vorschau</translation>
    </message>
    <message>
        <source>Zoom</source>
        <translation>Zoom</translation>
    </message>
</context>
<context>
    <name>UIWPMerlin</name>
    <message>
        <source>Standard</source>
        <translation>Standard</translation>
    </message>
    <message>
        <source>Fisheye</source>
        <translation>Fischauge</translation>
    </message>
    <message>
        <source>Warning</source>
        <translation>Warnung</translation>
    </message>
    <message>
        <source>Papywizard XML has bracketing and the number of images isn&apos;t a multiple of this number of brackets.</source>
        <translation>Die Papywizard-XML-Datei verwendet Belichtungsreihen, und die Anzahl der Bilder ist kein Vielfaches der Anzahl der Belichtungen je Reihe.</translation>
    </message>
    <message>
        <source>Select the preset file and/or images</source>
        <translation>Aufnahmedatei und/oder Bilder auswählen</translation>
    </message>
    <message>
        <source>All Files (*.*);;XML files (*.xml)</source>
        <translation>Alle Dateien (*.*);;XML-Dateien (*.xml)</translation>
    </message>
    <message>
        <source>All Files (*.*)</source>
        <translation>Alle Dateien (*.*)</translation>
    </message>
    <message>
        <source>Select images</source>
        <translation>Bilder auswählen</translation>
    </message>
    <message>
        <source>N/A</source>
        <translation>k. A.</translation>
    </message>
    <message>
        <source>Bracketing used in XML, should be multiple of that number</source>
        <translation>Belichtungsreihe in der XML-Datei: Bildanzahl sollte ein Vielfaches davon sein</translation>
    </message>
    <message>
        <source>Not the same as in XML fil</source>
        <translation>Stimmt nicht mit der XML-Datei überein</translation>
    </message>
    <message>
        <source>Focal Length difference between EXIF and XML</source>
        <translation>Brennweite in EXIF und XML verschieden</translation>
    </message>
    <message>
        <source>Lens type difference between EXIF and XML</source>
        <translation>Objektivtyp in EXIF und XML verschieden</translation>
    </message>
    <message>
        <source>There is not enough memory for so many images. Close other programs and try again.</source>
        <translation>Für so viele Bilder ist nicht genügend Arbeitsspeicher frei. Schließen Sie andere Programme und versuchen Sie es erneut.</translation>
    </message>
</context>
<context>
    <name>UIWPMerlinClass</name>
    <message>
        <source>Papywizard panohead control software</source>
        <translation>Papywizard, Steuersoftware für Panoramaköpfe</translation>
    </message>
    <message>
        <source>Papywizard import</source>
        <translation>Papywizard-Import</translation>
    </message>
    <message>
        <source>&lt;a href=&quot;https://www.papywizard.org&quot;&gt;&lt;font color=&quot;#DCDCDC&quot;&gt;Papywizard&lt;/font&gt;&lt;/a&gt; is a free project to drive Merlin/Orion panorama heads. The XML file format is open and used by a wide range of motorized panorama heads.</source>
        <translation>&lt;a href=&quot;https://www.papywizard.org&quot;&gt;&lt;font color=&quot;#DCDCDC&quot;&gt;Papywizard&lt;/font&gt;&lt;/a&gt; ist ein freies Projekt zur Steuerung von Merlin/Orion-Köpfen. Sein offenes XML-Format nutzen viele motorisierte Panoramaköpfe.</translation>
    </message>
    <message>
        <source>General</source>
        <translation>Allgemein</translation>
    </message>
    <message>
        <source>XML:</source>
        <translation>XML:</translation>
    </message>
    <message>
        <source>...</source>
        <translation>...</translation>
    </message>
    <message>
        <source>Reset</source>
        <translation>Zurücksetzen</translation>
    </message>
    <message>
        <source>Number of images:</source>
        <translation>Bildanzahl:</translation>
    </message>
    <message>
        <source>N/A</source>
        <translation>k. A.</translation>
    </message>
    <message>
        <source>Yaw:</source>
        <translation>Gierwinkel:</translation>
    </message>
    <message>
        <source>Pitch:</source>
        <translation>Nickwinkel:</translation>
    </message>
    <message>
        <source>Bracketing:</source>
        <translation>Belichtungsreihe:</translation>
    </message>
    <message>
        <source>XML focal:</source>
        <translation>XML-Brennweite:</translation>
    </message>
    <message>
        <source>Images:</source>
        <translation>Bilder:</translation>
    </message>
    <message>
        <source>Image focal:</source>
        <translation>Bild-Brennweite:</translation>
    </message>
    <message>
        <source>Shoot setup</source>
        <translation>Aufnahmeeinstellungen</translation>
    </message>
    <message>
        <source>Inverse Y coordinates</source>
        <translation>Y-Koordinaten umkehren</translation>
    </message>
    <message>
        <source>Rotate left</source>
        <translation>Nach links drehen</translation>
    </message>
    <message>
        <source>Rotate right</source>
        <translation>Nach rechts drehen</translation>
    </message>
    <message>
        <source>Focal length:</source>
        <translation>Brennweite:</translation>
    </message>
    <message>
        <source>Lens Type:</source>
        <translation>Objektivtyp:</translation>
    </message>
    <message>
        <source>Use XML information</source>
        <translation>Angaben der XML-Datei verwenden</translation>
    </message>
    <message>
        <source>Use image information</source>
        <translation>Angaben der Bilder verwenden</translation>
    </message>
    <message>
        <source>Stack</source>
        <translation>Stapel</translation>
    </message>
    <message>
        <source>Detect links in:</source>
        <translation>Verknüpfungen suchen in:</translation>
    </message>
    <message>
        <source>The reference level</source>
        <translation>der Referenzebene</translation>
    </message>
    <message>
        <source>All stack levels</source>
        <translation>allen Ebenen des Stapels</translation>
    </message>
    <message>
        <source>For a stack:</source>
        <translation>Innerhalb eines Stapels:</translation>
    </message>
    <message>
        <source>Use hard links</source>
        <translation>Feste Verknüpfungen verwenden</translation>
    </message>
    <message>
        <source>Detect control points</source>
        <translation>Kontrollpunkte suchen</translation>
    </message>
    <message>
        <source>Detection options</source>
        <translation>Erkennungsoptionen</translation>
    </message>
    <message>
        <source>Auto detection</source>
        <translation>Automatische Erkennung</translation>
    </message>
    <message>
        <source>Clean wrong link</source>
        <translation>Falsche Verknüpfungen entfernen</translation>
    </message>
    <message>
        <source>Skip optimization</source>
        <translation>Optimierung überspringen</translation>
    </message>
    <message>
        <source>Use recorded location</source>
        <translation>Aufgezeichnete Positionen verwenden</translation>
    </message>
    <message>
        <source>Header details</source>
        <translation>Kopfdaten</translation>
    </message>
    <message>
        <source>Title:</source>
        <translation>Titel:</translation>
    </message>
    <message>
        <source>GPS:</source>
        <translation>GPS:</translation>
    </message>
    <message>
        <source>Comment:</source>
        <translation>Kommentar:</translation>
    </message>
    <message>
        <source>Preview</source>
        <translation>Vorschau</translation>
    </message>
    <message>
        <source>Zoom</source>
        <translation>Zoom</translation>
    </message>
</context>
<context>
    <name>UIWPVRDrive2</name>
    <message>
        <source>Standard</source>
        <translation>Standard</translation>
    </message>
    <message>
        <source>Fisheye</source>
        <translation>Fischauge</translation>
    </message>
    <message>
        <source>Warning</source>
        <translation>Warnung</translation>
    </message>
    <message>
        <source>Papywizard XML has bracketing and the number of images isn&apos;t a multiple of this number of brackets.</source>
        <translation>Die Papywizard-XML-Datei verwendet Belichtungsreihen, und die Anzahl der Bilder ist kein Vielfaches der Anzahl der Belichtungen je Reihe.</translation>
    </message>
    <message>
        <source>Select the preset file and/or images</source>
        <translation>Aufnahmedatei und/oder Bilder auswählen</translation>
    </message>
    <message>
        <source>All Files (*.*);;XML files (*.xml)</source>
        <translation>Alle Dateien (*.*);;XML-Dateien (*.xml)</translation>
    </message>
    <message>
        <source>All Files (*.*)</source>
        <translation>Alle Dateien (*.*)</translation>
    </message>
    <message>
        <source>Select images</source>
        <translation>Bilder auswählen</translation>
    </message>
    <message>
        <source>N/A</source>
        <translation>k. A.</translation>
    </message>
    <message>
        <source>Bracketing used in XML, should be multiple of that number</source>
        <translation>Belichtungsreihe in der XML-Datei: Bildanzahl sollte ein Vielfaches davon sein</translation>
    </message>
    <message>
        <source>Not the same as in XML fil</source>
        <translation>Stimmt nicht mit der XML-Datei überein</translation>
    </message>
    <message>
        <source>Focal length difference between EXIF and XML</source>
        <translation>Brennweite in EXIF und XML verschieden</translation>
    </message>
    <message>
        <source>Lens type difference between EXIF and XML</source>
        <translation>Objektivtyp in EXIF und XML verschieden</translation>
    </message>
    <message>
        <source>There is not enough memory for so many images. Close other programs and try again.</source>
        <translation>Für so viele Bilder ist nicht genügend Arbeitsspeicher frei. Schließen Sie andere Programme und versuchen Sie es erneut.</translation>
    </message>
</context>
<context>
    <name>UIWPVRDrive2Class</name>
    <message>
        <source>VR Drive II import plugin</source>
        <translation>Import-Plug-in für VR Drive II</translation>
    </message>
    <message>
        <source>VR Drive 2</source>
        <translation>VR Drive 2</translation>
    </message>
    <message>
        <source>&lt;a href=&quot;https://www.roundshot.com&quot;&gt;&lt;font color=&quot;#DCDCDC&quot;&gt;VR Drive 2&lt;/font&gt;&lt;/a&gt; plug-in enables an automated HDR workflow with all parameters set for true light rendering and easy use of Weavix software.</source>
        <translation>Das Plug-in &lt;a href=&quot;https://www.roundshot.com&quot;&gt;&lt;font color=&quot;#DCDCDC&quot;&gt;VR Drive 2&lt;/font&gt;&lt;/a&gt; automatisiert den HDR-Workflow; alles ist auf lichtgetreue Wiedergabe und einfache Nutzung von Weavix eingestellt.</translation>
    </message>
    <message>
        <source>General</source>
        <translation>Allgemein</translation>
    </message>
    <message>
        <source>Images:</source>
        <translation>Bilder:</translation>
    </message>
    <message>
        <source>...</source>
        <translation>...</translation>
    </message>
    <message>
        <source>Number of images:</source>
        <translation>Bildanzahl:</translation>
    </message>
    <message>
        <source>N/A</source>
        <translation>k. A.</translation>
    </message>
    <message>
        <source>Image focal:</source>
        <translation>Bild-Brennweite:</translation>
    </message>
    <message>
        <source>XML:</source>
        <translation>XML:</translation>
    </message>
    <message>
        <source>Reset</source>
        <translation>Zurücksetzen</translation>
    </message>
    <message>
        <source>Yaw:</source>
        <translation>Gierwinkel:</translation>
    </message>
    <message>
        <source>Pitch:</source>
        <translation>Nickwinkel:</translation>
    </message>
    <message>
        <source>Bracketing:</source>
        <translation>Belichtungsreihe:</translation>
    </message>
    <message>
        <source>XML focal:</source>
        <translation>XML-Brennweite:</translation>
    </message>
    <message>
        <source>Output:</source>
        <translation>Ausgabe:</translation>
    </message>
    <message>
        <source>8-bits / 16-bits tonemapped</source>
        <translation>8 Bit / 16 Bit mit Tone-Mapping</translation>
    </message>
    <message>
        <source>32-bits HDR radiance</source>
        <translation>32-Bit-HDR (Radiance)</translation>
    </message>
    <message>
        <source>TextLabel</source>
        <translation>TextLabel</translation>
    </message>
    <message>
        <source>Shoot setup</source>
        <translation>Aufnahmeeinstellungen</translation>
    </message>
    <message>
        <source>Inverse Y coordinates</source>
        <translation>Y-Koordinaten umkehren</translation>
    </message>
    <message>
        <source>Rotate left</source>
        <translation>Nach links drehen</translation>
    </message>
    <message>
        <source>Rotate right</source>
        <translation>Nach rechts drehen</translation>
    </message>
    <message>
        <source>Focal length:</source>
        <translation>Brennweite:</translation>
    </message>
    <message>
        <source>Lens Type:</source>
        <translation>Objektivtyp:</translation>
    </message>
    <message>
        <source>Use XML information</source>
        <translation>Angaben der XML-Datei verwenden</translation>
    </message>
    <message>
        <source>Use image information</source>
        <translation>Angaben der Bilder verwenden</translation>
    </message>
    <message>
        <source>Stack</source>
        <translation>Stapel</translation>
    </message>
    <message>
        <source>Detect links in:</source>
        <translation>Verknüpfungen suchen in:</translation>
    </message>
    <message>
        <source>The reference level</source>
        <translation>der Referenzebene</translation>
    </message>
    <message>
        <source>All stack levels</source>
        <translation>allen Ebenen des Stapels</translation>
    </message>
    <message>
        <source>For a stack:</source>
        <translation>Innerhalb eines Stapels:</translation>
    </message>
    <message>
        <source>Use hard links</source>
        <translation>Feste Verknüpfungen verwenden</translation>
    </message>
    <message>
        <source>Detect control points</source>
        <translation>Kontrollpunkte suchen</translation>
    </message>
    <message>
        <source>Detection options</source>
        <translation>Erkennungsoptionen</translation>
    </message>
    <message>
        <source>Auto detection</source>
        <translation>Automatische Erkennung</translation>
    </message>
    <message>
        <source>Clean wrong link</source>
        <translation>Falsche Verknüpfungen entfernen</translation>
    </message>
    <message>
        <source>Skip optimization</source>
        <translation>Optimierung überspringen</translation>
    </message>
    <message>
        <source>Use recorded location</source>
        <translation>Aufgezeichnete Positionen verwenden</translation>
    </message>
    <message>
        <source>Preview</source>
        <translation>Vorschau</translation>
    </message>
    <message>
        <source>Zoom</source>
        <translation>Zoom</translation>
    </message>
</context>
</TS>
