<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<TS version="2.1" language="it" sourcelanguage="en">
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
        <translation>Fisheye</translation>
    </message>
    <message>
        <source>Warning</source>
        <translation>Avviso</translation>
    </message>
    <message>
        <source>Papywizard XML has bracketing and the number of images isn&apos;t a multiple of this number of brackets.</source>
        <translation>L&apos;XML di Papywizard usa il bracketing e il numero di immagini non è un multiplo del numero di esposizioni per posizione.</translation>
    </message>
    <message>
        <source>Select the preset file and/or images</source>
        <translation>Seleziona il file di ripresa e/o le immagini</translation>
    </message>
    <message>
        <source>All Files (*.*);;XML files (*.xml)</source>
        <translation>Tutti i file (*.*);;File XML (*.xml)</translation>
    </message>
    <message>
        <source>All Files (*.*)</source>
        <translation>Tutti i file (*.*)</translation>
    </message>
    <message>
        <source>Select images</source>
        <translation>Seleziona immagini</translation>
    </message>
    <message>
        <source>N/A</source>
        <translation>N/D</translation>
    </message>
    <message>
        <source>Bracketing used in XML, should be multiple of that number</source>
        <translation>Bracketing usato nell&apos;XML: il numero di immagini deve esserne un multiplo</translation>
    </message>
    <message>
        <source>Not the same as in XML fil</source>
        <translation>Non corrisponde al file XML</translation>
    </message>
    <message>
        <source>Focal Length difference between EXIF and XML</source>
        <translation>La lunghezza focale differisce tra EXIF e XML</translation>
    </message>
    <message>
        <source>Lens type difference between EXIF and XML</source>
        <translation>Il tipo di obiettivo differisce tra EXIF e XML</translation>
    </message>
</context>
<context>
    <name>UIWPMerlinClass</name>
    <message>
        <source>Papywizard panohead control software</source>
        <translation>Papywizard, software di controllo per teste panoramiche</translation>
    </message>
    <message>
        <source>Papywizard import</source>
        <translation>Importazione Papywizard</translation>
    </message>
    <message>
        <source>&lt;a href=&quot;https://www.papywizard.org&quot;&gt;&lt;font color=&quot;#DCDCDC&quot;&gt;Papywizard&lt;/font&gt;&lt;/a&gt; is a free project to drive Merlin/Orion panorama heads. The XML file format is open and used by a wide range of motorized panorama heads.</source>
        <translation>&lt;a href=&quot;https://www.papywizard.org&quot;&gt;&lt;font color=&quot;#DCDCDC&quot;&gt;Papywizard&lt;/font&gt;&lt;/a&gt; è un progetto libero per pilotare le teste panoramiche Merlin/Orion. Il formato di file XML è aperto ed è usato da molte teste panoramiche motorizzate.</translation>
    </message>
    <message>
        <source>General</source>
        <translation>Generale</translation>
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
        <translation>Reimposta</translation>
    </message>
    <message>
        <source>Number of images:</source>
        <translation>Numero di immagini:</translation>
    </message>
    <message>
        <source>N/A</source>
        <translation>N/D</translation>
    </message>
    <message>
        <source>Yaw:</source>
        <translation>Imbardata:</translation>
    </message>
    <message>
        <source>Pitch:</source>
        <translation>Beccheggio:</translation>
    </message>
    <message>
        <source>Bracketing:</source>
        <translation>Bracketing:</translation>
    </message>
    <message>
        <source>XML focal:</source>
        <translation>Focale nell&apos;XML:</translation>
    </message>
    <message>
        <source>Images:</source>
        <translation>Immagini:</translation>
    </message>
    <message>
        <source>Image focal:</source>
        <translation>Focale delle immagini:</translation>
    </message>
    <message>
        <source>Shoot setup</source>
        <translation>Impostazioni di ripresa</translation>
    </message>
    <message>
        <source>Inverse Y coordinates</source>
        <translation>Inverti coordinate Y</translation>
    </message>
    <message>
        <source>Rotate left</source>
        <translation>Ruota a sinistra</translation>
    </message>
    <message>
        <source>Rotate right</source>
        <translation>Ruota a destra</translation>
    </message>
    <message>
        <source>Focal length:</source>
        <translation>Lunghezza focale:</translation>
    </message>
    <message>
        <source>Lens Type:</source>
        <translation>Tipo di obiettivo:</translation>
    </message>
    <message>
        <source>Use XML information</source>
        <translation>Usa i dati dell&apos;XML</translation>
    </message>
    <message>
        <source>Use image information</source>
        <translation>Usa i dati delle immagini</translation>
    </message>
    <message>
        <source>Stack</source>
        <translation>Pila</translation>
    </message>
    <message>
        <source>Detect links in:</source>
        <translation>Rileva collegamenti in:</translation>
    </message>
    <message>
        <source>The reference level</source>
        <translation>Il livello di riferimento</translation>
    </message>
    <message>
        <source>All stack levels</source>
        <translation>Tutti i livelli della pila</translation>
    </message>
    <message>
        <source>For a stack:</source>
        <translation>Per una pila:</translation>
    </message>
    <message>
        <source>Use hard links</source>
        <translation>Usa collegamenti fissi</translation>
    </message>
    <message>
        <source>Detect control points</source>
        <translation>Rileva punti di controllo</translation>
    </message>
    <message>
        <source>Detection options</source>
        <translation>Opzioni di rilevamento</translation>
    </message>
    <message>
        <source>Auto detection</source>
        <translation>Rilevamento automatico</translation>
    </message>
    <message>
        <source>Clean wrong link</source>
        <translation>Elimina collegamenti errati</translation>
    </message>
    <message>
        <source>Skip optimization</source>
        <translation>Salta l&apos;ottimizzazione</translation>
    </message>
    <message>
        <source>Use recorded location</source>
        <translation>Usa le posizioni registrate</translation>
    </message>
    <message>
        <source>Header details</source>
        <translation>Dettagli dell&apos;intestazione</translation>
    </message>
    <message>
        <source>Title:</source>
        <translation>Titolo:</translation>
    </message>
    <message>
        <source>GPS:</source>
        <translation>GPS:</translation>
    </message>
    <message>
        <source>Comment:</source>
        <translation>Commento:</translation>
    </message>
    <message>
        <source>Preview</source>
        <translation>Anteprima</translation>
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
