<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<TS version="2.1" language="it" sourcelanguage="en">
<context>
    <name>UIWPClauss</name>
    <message>
        <source>Error</source>
        <translation>Errore</translation>
    </message>
    <message>
        <source>Error parse file:%1</source>
        <translation>Errore durante la lettura del file: %1</translation>
    </message>
    <message>
        <source>Select the preset file and/or images</source>
        <translation>Seleziona il file di ripresa e/o le immagini</translation>
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
        <source>Warning</source>
        <translation>Avviso</translation>
    </message>
    <message>
        <source>There is not enough memory for so many images. Close other programs and try again.</source>
        <translation>La memoria non è sufficiente per così tante immagini. Chiudi altri programmi e riprova.</translation>
    </message>
</context>
<context>
    <name>UIWPClaussClass</name>
    <message>
        <source>Clauss panohead</source>
        <translation>Testa panoramica Clauss</translation>
    </message>
    <message>
        <source>Clauss panohead import</source>
        <translation>Importazione da testa panoramica Clauss</translation>
    </message>
    <message>
        <source>&lt;a href=&quot;https://dr-clauss.de&quot;&gt;&lt;font color=&quot;#DCDCDC&quot;&gt;Clauss&lt;/font&gt;&lt;/a&gt; provides special equipment for panoramic photography and VR applications.</source>
        <translation>&lt;a href=&quot;https://dr-clauss.de&quot;&gt;&lt;font color=&quot;#DCDCDC&quot;&gt;Clauss&lt;/font&gt;&lt;/a&gt; offre attrezzature speciali per la fotografia panoramica e le applicazioni VR.</translation>
    </message>
    <message>
        <source>General</source>
        <translation>Generale</translation>
    </message>
    <message>
        <source>Script file:</source>
        <translation>File di script:</translation>
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
        <source>Number of shoot:</source>
        <translation>Numero di scatti:</translation>
    </message>
    <message>
        <source>N/A</source>
        <translation>N/D</translation>
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
        <translation>Inverti coordinate Y</translation>
    </message>
    <message>
        <source>Images:</source>
        <translation>Immagini:</translation>
    </message>
    <message>
        <source>Number of image:</source>
        <translation>N. immagini:</translation>
    </message>
    <message>
        <source>Options</source>
        <translation>Opzioni</translation>
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
        <source>Guided optimization</source>
        <translation>Ottimizzazione guidata</translation>
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
    <name>UIWPGigapan</name>
    <message>
        <source>Select images</source>
        <translation>Seleziona immagini</translation>
    </message>
    <message>
        <source>All Files (*.*)</source>
        <translation>Tutti i file (*.*)</translation>
    </message>
    <message>
        <source>images in </source>
        <translation>immagini in </translation>
    </message>
    <message>
        <source>Warning</source>
        <translation>Avviso</translation>
    </message>
    <message>
        <source>There is not enough memory for so many images. Close other programs and try again.</source>
        <translation>La memoria non è sufficiente per così tante immagini. Chiudi altri programmi e riprova.</translation>
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
        <translation>Importazione panorama Gigapan</translation>
    </message>
    <message>
        <source>&lt;a href=&quot;http://www.gigapan.com&quot;&gt;&lt;font color=&quot;#DCDCDC&quot;&gt;Gigapan&lt;/font&gt;&lt;/a&gt; allows users to upload, share, and explore brilliant gigapixel+ panoramas from around the globe.</source>
        <translation>&lt;a href=&quot;http://www.gigapan.com&quot;&gt;&lt;font color=&quot;#DCDCDC&quot;&gt;Gigapan&lt;/font&gt;&lt;/a&gt; permette di caricare, condividere ed esplorare splendidi panorami da oltre un gigapixel da tutto il mondo.</translation>
    </message>
    <message>
        <source>General</source>
        <translation>Generale</translation>
    </message>
    <message>
        <source>Images :</source>
        <translation>Immagini:</translation>
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
        <source># Images in</source>
        <translation>N. immagini in</translation>
    </message>
    <message>
        <source>rows and</source>
        <translation>righe e</translation>
    </message>
    <message>
        <source>columns.</source>
        <translation>colonne.</translation>
    </message>
    <message>
        <source>Ignore N files </source>
        <translation>File iniziali da ignorare </translation>
    </message>
    <message>
        <source>Nb image per location ( bracketing )</source>
        <translation>Immagini per posizione (bracketing)</translation>
    </message>
    <message>
        <source>Shoot layout</source>
        <translation>Disposizione degli scatti</translation>
    </message>
    <message>
        <source>Columns (default)</source>
        <translation>Colonne (predefinito)</translation>
    </message>
    <message>
        <source>Columns: to left</source>
        <translation>Colonne: verso sinistra</translation>
    </message>
    <message>
        <source>Rows: downward</source>
        <translation>Righe: verso il basso</translation>
    </message>
    <message>
        <source>Rows: upward</source>
        <translation>Righe: verso l&apos;alto</translation>
    </message>
    <message>
        <source>Shoot setup</source>
        <translation>Impostazioni di ripresa</translation>
    </message>
    <message>
        <source>Force 360° panorama</source>
        <translation>Forza panorama a 360°</translation>
    </message>
    <message>
        <source>Overlapping</source>
        <translation>Sovrapposizione</translation>
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
        <source>Preview</source>
        <translation>Anteprima</translation>
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
    <message>
        <source>There is not enough memory for so many images. Close other programs and try again.</source>
        <translation>La memoria non è sufficiente per così tante immagini. Chiudi altri programmi e riprova.</translation>
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
        <translation>&lt;a href=&quot;https://www.papywizard.org&quot;&gt;&lt;font color=&quot;#DCDCDC&quot;&gt;Papywizard&lt;/font&gt;&lt;/a&gt; è un progetto libero per pilotare le teste Merlin/Orion. Il suo formato XML è aperto ed è usato da molte teste panoramiche motorizzate.</translation>
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
        <translation>N. immagini:</translation>
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
        <translation>Focale XML:</translation>
    </message>
    <message>
        <source>Images:</source>
        <translation>Immagini:</translation>
    </message>
    <message>
        <source>Image focal:</source>
        <translation>Focale immagini:</translation>
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
        <translation>Intestazione</translation>
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
        <source>Focal length difference between EXIF and XML</source>
        <translation>La lunghezza focale differisce tra EXIF e XML</translation>
    </message>
    <message>
        <source>Lens type difference between EXIF and XML</source>
        <translation>Il tipo di obiettivo differisce tra EXIF e XML</translation>
    </message>
    <message>
        <source>There is not enough memory for so many images. Close other programs and try again.</source>
        <translation>La memoria non è sufficiente per così tante immagini. Chiudi altri programmi e riprova.</translation>
    </message>
</context>
<context>
    <name>UIWPVRDrive2Class</name>
    <message>
        <source>VR Drive II import plugin</source>
        <translation>Plug-in di importazione VR Drive II</translation>
    </message>
    <message>
        <source>VR Drive 2</source>
        <translation>VR Drive 2</translation>
    </message>
    <message>
        <source>&lt;a href=&quot;https://www.roundshot.com&quot;&gt;&lt;font color=&quot;#DCDCDC&quot;&gt;VR Drive 2&lt;/font&gt;&lt;/a&gt; plug-in enables an automated HDR workflow with all parameters set for true light rendering and easy use of Weavix software.</source>
        <translation>Il plug-in &lt;a href=&quot;https://www.roundshot.com&quot;&gt;&lt;font color=&quot;#DCDCDC&quot;&gt;VR Drive 2&lt;/font&gt;&lt;/a&gt; automatizza il lavoro in HDR, con tutti i parametri impostati per una resa fedele della luce e un uso facile di Weavix.</translation>
    </message>
    <message>
        <source>General</source>
        <translation>Generale</translation>
    </message>
    <message>
        <source>Images:</source>
        <translation>Immagini:</translation>
    </message>
    <message>
        <source>...</source>
        <translation>...</translation>
    </message>
    <message>
        <source>Number of images:</source>
        <translation>N. immagini:</translation>
    </message>
    <message>
        <source>N/A</source>
        <translation>N/D</translation>
    </message>
    <message>
        <source>Image focal:</source>
        <translation>Focale immagini:</translation>
    </message>
    <message>
        <source>XML:</source>
        <translation>XML:</translation>
    </message>
    <message>
        <source>Reset</source>
        <translation>Reimposta</translation>
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
        <translation>Focale XML:</translation>
    </message>
    <message>
        <source>Output:</source>
        <translation>Output:</translation>
    </message>
    <message>
        <source>8-bits / 16-bits tonemapped</source>
        <translation>8 bit / 16 bit con mappatura dei toni</translation>
    </message>
    <message>
        <source>32-bits HDR radiance</source>
        <translation>HDR a 32 bit (radianza)</translation>
    </message>
    <message>
        <source>TextLabel</source>
        <translation>TextLabel</translation>
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
        <source>Preview</source>
        <translation>Anteprima</translation>
    </message>
    <message>
        <source>Zoom</source>
        <translation>Zoom</translation>
    </message>
</context>
</TS>
