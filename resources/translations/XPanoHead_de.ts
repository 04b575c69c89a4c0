<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<TS version="2.1" language="de" sourcelanguage="en">
<context>
    <name>UIWPClauss</name>
    <message>
        <source>Clauss import</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>This importer is not available yet.</source>
        <translation type="unfinished"></translation>
    </message>
</context>
<context>
    <name>UIWPGigapan</name>
    <message>
        <source>Gigapan import</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>This importer is not available yet.</source>
        <translation type="unfinished"></translation>
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
        <translation>Belichtungsreihe in der XML-Datei: Die Anzahl der Bilder muss ein Vielfaches dieser Zahl sein</translation>
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
        <translation>&lt;a href=&quot;https://www.papywizard.org&quot;&gt;&lt;font color=&quot;#DCDCDC&quot;&gt;Papywizard&lt;/font&gt;&lt;/a&gt; ist ein freies Projekt zur Steuerung von Merlin/Orion-Panoramaköpfen. Das XML-Dateiformat ist offen und wird von vielen motorisierten Panoramaköpfen verwendet.</translation>
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
        <translation>Anzahl der Bilder:</translation>
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
        <translation>Brennweite laut XML:</translation>
    </message>
    <message>
        <source>Images:</source>
        <translation>Bilder:</translation>
    </message>
    <message>
        <source>Image focal:</source>
        <translation>Brennweite der Bilder:</translation>
    </message>
    <message>
        <source>Shoot setup</source>
        <translation>Aufnahme</translation>
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
        <source>VRDrive2 import</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>This importer is not available yet.</source>
        <translation type="unfinished"></translation>
    </message>
</context>
</TS>
