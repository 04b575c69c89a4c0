<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<TS version="2.1" language="fr" sourcelanguage="en">
<context>
    <name>UIWPClauss</name>
    <message>
        <source>Error</source>
        <translation>Erreur</translation>
    </message>
    <message>
        <source>Error parse file:%1</source>
        <translation>Erreur de lecture du fichier&#xa0;: %1</translation>
    </message>
    <message>
        <source>Select the preset file and/or images</source>
        <translation>Sélectionner le fichier de prise de vue et/ou les images</translation>
    </message>
    <message>
        <source>All Files (*.*)</source>
        <translation>Tous les fichiers (*.*)</translation>
    </message>
    <message>
        <source>Select images</source>
        <translation>Sélectionner les images</translation>
    </message>
    <message>
        <source>N/A</source>
        <translation>N/D</translation>
    </message>
    <message>
        <source>Warning</source>
        <translation>Avertissement</translation>
    </message>
    <message>
        <source>There is not enough memory for so many images. Close other programs and try again.</source>
        <translation>La mémoire ne suffit pas pour autant d&apos;images. Fermez d&apos;autres programmes et réessayez.</translation>
    </message>
</context>
<context>
    <name>UIWPClaussClass</name>
    <message>
        <source>Clauss panohead</source>
        <translation>Tête panoramique Clauss</translation>
    </message>
    <message>
        <source>Clauss panohead import</source>
        <translation>Importation depuis une tête panoramique Clauss</translation>
    </message>
    <message>
        <source>&lt;a href=&quot;https://dr-clauss.de&quot;&gt;&lt;font color=&quot;#DCDCDC&quot;&gt;Clauss&lt;/font&gt;&lt;/a&gt; provides special equipment for panoramic photography and VR applications.</source>
        <translation>&lt;a href=&quot;https://dr-clauss.de&quot;&gt;&lt;font color=&quot;#DCDCDC&quot;&gt;Clauss&lt;/font&gt;&lt;/a&gt; propose du matériel spécialisé pour la photographie panoramique et les applications de réalité virtuelle.</translation>
    </message>
    <message>
        <source>General</source>
        <translation>Général</translation>
    </message>
    <message>
        <source>Script file:</source>
        <translation>Fichier de script&#xa0;:</translation>
    </message>
    <message>
        <source>...</source>
        <translation>...</translation>
    </message>
    <message>
        <source>Reset</source>
        <translation>Réinitialiser</translation>
    </message>
    <message>
        <source>Number of shoot:</source>
        <translation>Nombre de prises de vue&#xa0;:</translation>
    </message>
    <message>
        <source>N/A</source>
        <translation>N/D</translation>
    </message>
    <message>
        <source>Theta:</source>
        <translation>Thêta&#xa0;:</translation>
    </message>
    <message>
        <source>Phi:</source>
        <translation>Phi&#xa0;:</translation>
    </message>
    <message>
        <source>Inverse Y coordinates</source>
        <translation>Inverser les coordonnées Y</translation>
    </message>
    <message>
        <source>Images:</source>
        <translation>Images&#xa0;:</translation>
    </message>
    <message>
        <source>Number of image:</source>
        <translation>Nb d&apos;images&#xa0;:</translation>
    </message>
    <message>
        <source>Options</source>
        <translation>Options</translation>
    </message>
    <message>
        <source>Auto detection</source>
        <translation>Détection automatique</translation>
    </message>
    <message>
        <source>Clean wrong link</source>
        <translation>Supprimer les liens erronés</translation>
    </message>
    <message>
        <source>Skip optimization</source>
        <translation>Ne pas optimiser</translation>
    </message>
    <message>
        <source>Guided optimization</source>
        <translation>Optimisation guidée</translation>
    </message>
    <message>
        <source>Preview</source>
        <translation>Aperçu</translation>
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
        <translation>Sélectionner les images</translation>
    </message>
    <message>
        <source>All Files (*.*)</source>
        <translation>Tous les fichiers (*.*)</translation>
    </message>
    <message>
        <source>images in </source>
        <translation>images sur </translation>
    </message>
    <message>
        <source>Warning</source>
        <translation>Avertissement</translation>
    </message>
    <message>
        <source>There is not enough memory for so many images. Close other programs and try again.</source>
        <translation>La mémoire ne suffit pas pour autant d&apos;images. Fermez d&apos;autres programmes et réessayez.</translation>
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
        <translation>Importation de panorama Gigapan</translation>
    </message>
    <message>
        <source>&lt;a href=&quot;http://www.gigapan.com&quot;&gt;&lt;font color=&quot;#DCDCDC&quot;&gt;Gigapan&lt;/font&gt;&lt;/a&gt; allows users to upload, share, and explore brilliant gigapixel+ panoramas from around the globe.</source>
        <translation>&lt;a href=&quot;http://www.gigapan.com&quot;&gt;&lt;font color=&quot;#DCDCDC&quot;&gt;Gigapan&lt;/font&gt;&lt;/a&gt; permet d&apos;envoyer, de partager et d&apos;explorer de superbes panoramas de plus d&apos;un gigapixel venus du monde entier.</translation>
    </message>
    <message>
        <source>General</source>
        <translation>Général</translation>
    </message>
    <message>
        <source>Images :</source>
        <translation>Images&#xa0;:</translation>
    </message>
    <message>
        <source>...</source>
        <translation>...</translation>
    </message>
    <message>
        <source>Reset</source>
        <translation>Réinitialiser</translation>
    </message>
    <message>
        <source># Images in</source>
        <translation>Nombre d&apos;images sur</translation>
    </message>
    <message>
        <source>rows and</source>
        <translation>lignes et</translation>
    </message>
    <message>
        <source>columns.</source>
        <translation>colonnes.</translation>
    </message>
    <message>
        <source>Ignore N files </source>
        <translation>Fichiers à ignorer au début </translation>
    </message>
    <message>
        <source>Nb image per location ( bracketing )</source>
        <translation>Nombre d&apos;images par position (bracketing)</translation>
    </message>
    <message>
        <source>Shoot layout</source>
        <translation>Disposition des vues</translation>
    </message>
    <message>
        <source>Columns (default)</source>
        <translation>Colonnes (défaut)</translation>
    </message>
    <message>
        <source>Columns: to left</source>
        <translation>Colonnes&#xa0;: vers la gauche</translation>
    </message>
    <message>
        <source>Rows: downward</source>
        <translation>Lignes&#xa0;: vers le bas</translation>
    </message>
    <message>
        <source>Rows: upward</source>
        <translation>Lignes&#xa0;: vers le haut</translation>
    </message>
    <message>
        <source>Shoot setup</source>
        <translation>Réglages de prise de vue</translation>
    </message>
    <message>
        <source>Force 360° panorama</source>
        <translation>Forcer un panorama à 360°</translation>
    </message>
    <message>
        <source>Overlapping</source>
        <translation>Recouvrement</translation>
    </message>
    <message>
        <source>Stack</source>
        <translation>Pile</translation>
    </message>
    <message>
        <source>Detect links in:</source>
        <translation>Détecter les liens dans&#xa0;:</translation>
    </message>
    <message>
        <source>The reference level</source>
        <translation>Le niveau de référence</translation>
    </message>
    <message>
        <source>All stack levels</source>
        <translation>Tous les niveaux de la pile</translation>
    </message>
    <message>
        <source>For a stack:</source>
        <translation>Dans une pile&#xa0;:</translation>
    </message>
    <message>
        <source>Use hard links</source>
        <translation>Utiliser des liens fixes</translation>
    </message>
    <message>
        <source>Detect control points</source>
        <translation>Détecter les points de contrôle</translation>
    </message>
    <message>
        <source>Detection options</source>
        <translation>Options de détection</translation>
    </message>
    <message>
        <source>Auto detection</source>
        <translation>Détection automatique</translation>
    </message>
    <message>
        <source>Clean wrong link</source>
        <translation>Supprimer les liens erronés</translation>
    </message>
    <message>
        <source>Skip optimization</source>
        <translation>Ne pas optimiser</translation>
    </message>
    <message>
        <source>Preview</source>
        <translation>Aperçu</translation>
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
        <translation>Avertissement</translation>
    </message>
    <message>
        <source>Papywizard XML has bracketing and the number of images isn&apos;t a multiple of this number of brackets.</source>
        <translation>Le fichier XML Papywizard utilise le bracketing et le nombre d&apos;images n&apos;est pas un multiple du nombre d&apos;expositions par position.</translation>
    </message>
    <message>
        <source>Select the preset file and/or images</source>
        <translation>Sélectionner le fichier de prise de vue et/ou les images</translation>
    </message>
    <message>
        <source>All Files (*.*);;XML files (*.xml)</source>
        <translation>Tous les fichiers (*.*);;Fichiers XML (*.xml)</translation>
    </message>
    <message>
        <source>All Files (*.*)</source>
        <translation>Tous les fichiers (*.*)</translation>
    </message>
    <message>
        <source>Select images</source>
        <translation>Sélectionner les images</translation>
    </message>
    <message>
        <source>N/A</source>
        <translation>N/D</translation>
    </message>
    <message>
        <source>Bracketing used in XML, should be multiple of that number</source>
        <translation>Bracketing utilisé dans le XML&#xa0;: le nombre d&apos;images devrait en être un multiple</translation>
    </message>
    <message>
        <source>Not the same as in XML fil</source>
        <translation>Différent du fichier XML</translation>
    </message>
    <message>
        <source>Focal Length difference between EXIF and XML</source>
        <translation>La distance focale diffère entre EXIF et XML</translation>
    </message>
    <message>
        <source>Lens type difference between EXIF and XML</source>
        <translation>Le type d&apos;objectif diffère entre EXIF et XML</translation>
    </message>
    <message>
        <source>There is not enough memory for so many images. Close other programs and try again.</source>
        <translation>La mémoire ne suffit pas pour autant d&apos;images. Fermez d&apos;autres programmes et réessayez.</translation>
    </message>
</context>
<context>
    <name>UIWPMerlinClass</name>
    <message>
        <source>Papywizard panohead control software</source>
        <translation>Papywizard, logiciel de pilotage de tête panoramique</translation>
    </message>
    <message>
        <source>Papywizard import</source>
        <translation>Importation Papywizard</translation>
    </message>
    <message>
        <source>&lt;a href=&quot;https://www.papywizard.org&quot;&gt;&lt;font color=&quot;#DCDCDC&quot;&gt;Papywizard&lt;/font&gt;&lt;/a&gt; is a free project to drive Merlin/Orion panorama heads. The XML file format is open and used by a wide range of motorized panorama heads.</source>
        <translation>&lt;a href=&quot;https://www.papywizard.org&quot;&gt;&lt;font color=&quot;#DCDCDC&quot;&gt;Papywizard&lt;/font&gt;&lt;/a&gt; est un projet libre pour piloter les têtes Merlin/Orion. Son format XML, ouvert, sert à de nombreuses têtes panoramiques motorisées.</translation>
    </message>
    <message>
        <source>General</source>
        <translation>Général</translation>
    </message>
    <message>
        <source>XML:</source>
        <translation>XML&#xa0;:</translation>
    </message>
    <message>
        <source>...</source>
        <translation>...</translation>
    </message>
    <message>
        <source>Reset</source>
        <translation>Réinitialiser</translation>
    </message>
    <message>
        <source>Number of images:</source>
        <translation>Nb d&apos;images&#xa0;:</translation>
    </message>
    <message>
        <source>N/A</source>
        <translation>N/D</translation>
    </message>
    <message>
        <source>Yaw:</source>
        <translation>Lacet&#xa0;:</translation>
    </message>
    <message>
        <source>Pitch:</source>
        <translation>Tangage&#xa0;:</translation>
    </message>
    <message>
        <source>Bracketing:</source>
        <translation>Bracketing&#xa0;:</translation>
    </message>
    <message>
        <source>XML focal:</source>
        <translation>Focale XML&#xa0;:</translation>
    </message>
    <message>
        <source>Images:</source>
        <translation>Images&#xa0;:</translation>
    </message>
    <message>
        <source>Image focal:</source>
        <translation>Focale des images&#xa0;:</translation>
    </message>
    <message>
        <source>Shoot setup</source>
        <translation>Réglages de prise de vue</translation>
    </message>
    <message>
        <source>Inverse Y coordinates</source>
        <translation>Inverser les coordonnées Y</translation>
    </message>
    <message>
        <source>Rotate left</source>
        <translation>Tourner à gauche</translation>
    </message>
    <message>
        <source>Rotate right</source>
        <translation>Tourner à droite</translation>
    </message>
    <message>
        <source>Focal length:</source>
        <translation>Distance focale&#xa0;:</translation>
    </message>
    <message>
        <source>Lens Type:</source>
        <translation>Type d&apos;objectif&#xa0;:</translation>
    </message>
    <message>
        <source>Use XML information</source>
        <translation>Utiliser les informations du XML</translation>
    </message>
    <message>
        <source>Use image information</source>
        <translation>Utiliser les informations des images</translation>
    </message>
    <message>
        <source>Stack</source>
        <translation>Pile</translation>
    </message>
    <message>
        <source>Detect links in:</source>
        <translation>Détecter les liens dans&#xa0;:</translation>
    </message>
    <message>
        <source>The reference level</source>
        <translation>Le niveau de référence</translation>
    </message>
    <message>
        <source>All stack levels</source>
        <translation>Tous les niveaux de la pile</translation>
    </message>
    <message>
        <source>For a stack:</source>
        <translation>Dans une pile&#xa0;:</translation>
    </message>
    <message>
        <source>Use hard links</source>
        <translation>Utiliser des liens fixes</translation>
    </message>
    <message>
        <source>Detect control points</source>
        <translation>Détecter les points de contrôle</translation>
    </message>
    <message>
        <source>Detection options</source>
        <translation>Options de détection</translation>
    </message>
    <message>
        <source>Auto detection</source>
        <translation>Détection automatique</translation>
    </message>
    <message>
        <source>Clean wrong link</source>
        <translation>Supprimer les liens erronés</translation>
    </message>
    <message>
        <source>Skip optimization</source>
        <translation>Ne pas optimiser</translation>
    </message>
    <message>
        <source>Use recorded location</source>
        <translation>Utiliser les positions enregistrées</translation>
    </message>
    <message>
        <source>Header details</source>
        <translation>Détails de l&apos;en-tête</translation>
    </message>
    <message>
        <source>Title:</source>
        <translation>Titre&#xa0;:</translation>
    </message>
    <message>
        <source>GPS:</source>
        <translation>GPS&#xa0;:</translation>
    </message>
    <message>
        <source>Comment:</source>
        <translation>Commentaire&#xa0;:</translation>
    </message>
    <message>
        <source>Preview</source>
        <translation>Aperçu</translation>
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
        <translation>Avertissement</translation>
    </message>
    <message>
        <source>Papywizard XML has bracketing and the number of images isn&apos;t a multiple of this number of brackets.</source>
        <translation>Le fichier XML Papywizard utilise le bracketing et le nombre d&apos;images n&apos;est pas un multiple du nombre d&apos;expositions par position.</translation>
    </message>
    <message>
        <source>Select the preset file and/or images</source>
        <translation>Sélectionner le fichier de prise de vue et/ou les images</translation>
    </message>
    <message>
        <source>All Files (*.*);;XML files (*.xml)</source>
        <translation>Tous les fichiers (*.*);;Fichiers XML (*.xml)</translation>
    </message>
    <message>
        <source>All Files (*.*)</source>
        <translation>Tous les fichiers (*.*)</translation>
    </message>
    <message>
        <source>Select images</source>
        <translation>Sélectionner les images</translation>
    </message>
    <message>
        <source>N/A</source>
        <translation>N/D</translation>
    </message>
    <message>
        <source>Bracketing used in XML, should be multiple of that number</source>
        <translation>Bracketing utilisé dans le XML&#xa0;: le nombre d&apos;images devrait en être un multiple</translation>
    </message>
    <message>
        <source>Not the same as in XML fil</source>
        <translation>Différent du fichier XML</translation>
    </message>
    <message>
        <source>Focal length difference between EXIF and XML</source>
        <translation>La distance focale diffère entre EXIF et XML</translation>
    </message>
    <message>
        <source>Lens type difference between EXIF and XML</source>
        <translation>Le type d&apos;objectif diffère entre EXIF et XML</translation>
    </message>
    <message>
        <source>There is not enough memory for so many images. Close other programs and try again.</source>
        <translation>La mémoire ne suffit pas pour autant d&apos;images. Fermez d&apos;autres programmes et réessayez.</translation>
    </message>
</context>
<context>
    <name>UIWPVRDrive2Class</name>
    <message>
        <source>VR Drive II import plugin</source>
        <translation>Module d&apos;importation VR Drive II</translation>
    </message>
    <message>
        <source>VR Drive 2</source>
        <translation>VR Drive 2</translation>
    </message>
    <message>
        <source>&lt;a href=&quot;https://www.roundshot.com&quot;&gt;&lt;font color=&quot;#DCDCDC&quot;&gt;VR Drive 2&lt;/font&gt;&lt;/a&gt; plug-in enables an automated HDR workflow with all parameters set for true light rendering and easy use of Weavix software.</source>
        <translation>Le module &lt;a href=&quot;https://www.roundshot.com&quot;&gt;&lt;font color=&quot;#DCDCDC&quot;&gt;VR Drive 2&lt;/font&gt;&lt;/a&gt; automatise le flux de travail HDR, entièrement réglé pour un rendu fidèle de la lumière et un usage facile de Weavix.</translation>
    </message>
    <message>
        <source>General</source>
        <translation>Général</translation>
    </message>
    <message>
        <source>Images:</source>
        <translation>Images&#xa0;:</translation>
    </message>
    <message>
        <source>...</source>
        <translation>...</translation>
    </message>
    <message>
        <source>Number of images:</source>
        <translation>Nb d&apos;images&#xa0;:</translation>
    </message>
    <message>
        <source>N/A</source>
        <translation>N/D</translation>
    </message>
    <message>
        <source>Image focal:</source>
        <translation>Focale des images&#xa0;:</translation>
    </message>
    <message>
        <source>XML:</source>
        <translation>XML&#xa0;:</translation>
    </message>
    <message>
        <source>Reset</source>
        <translation>Réinitialiser</translation>
    </message>
    <message>
        <source>Yaw:</source>
        <translation>Lacet&#xa0;:</translation>
    </message>
    <message>
        <source>Pitch:</source>
        <translation>Tangage&#xa0;:</translation>
    </message>
    <message>
        <source>Bracketing:</source>
        <translation>Bracketing&#xa0;:</translation>
    </message>
    <message>
        <source>XML focal:</source>
        <translation>Focale XML&#xa0;:</translation>
    </message>
    <message>
        <source>Output:</source>
        <translation>Sortie&#xa0;:</translation>
    </message>
    <message>
        <source>8-bits / 16-bits tonemapped</source>
        <translation>8 bits / 16 bits avec mappage tonal</translation>
    </message>
    <message>
        <source>32-bits HDR radiance</source>
        <translation>HDR 32 bits (radiance)</translation>
    </message>
    <message>
        <source>TextLabel</source>
        <translation>TextLabel</translation>
    </message>
    <message>
        <source>Shoot setup</source>
        <translation>Réglages de prise de vue</translation>
    </message>
    <message>
        <source>Inverse Y coordinates</source>
        <translation>Inverser les coordonnées Y</translation>
    </message>
    <message>
        <source>Rotate left</source>
        <translation>Tourner à gauche</translation>
    </message>
    <message>
        <source>Rotate right</source>
        <translation>Tourner à droite</translation>
    </message>
    <message>
        <source>Focal length:</source>
        <translation>Distance focale&#xa0;:</translation>
    </message>
    <message>
        <source>Lens Type:</source>
        <translation>Type d&apos;objectif&#xa0;:</translation>
    </message>
    <message>
        <source>Use XML information</source>
        <translation>Utiliser les informations du XML</translation>
    </message>
    <message>
        <source>Use image information</source>
        <translation>Utiliser les informations des images</translation>
    </message>
    <message>
        <source>Stack</source>
        <translation>Pile</translation>
    </message>
    <message>
        <source>Detect links in:</source>
        <translation>Détecter les liens dans&#xa0;:</translation>
    </message>
    <message>
        <source>The reference level</source>
        <translation>Le niveau de référence</translation>
    </message>
    <message>
        <source>All stack levels</source>
        <translation>Tous les niveaux de la pile</translation>
    </message>
    <message>
        <source>For a stack:</source>
        <translation>Dans une pile&#xa0;:</translation>
    </message>
    <message>
        <source>Use hard links</source>
        <translation>Utiliser des liens fixes</translation>
    </message>
    <message>
        <source>Detect control points</source>
        <translation>Détecter les points de contrôle</translation>
    </message>
    <message>
        <source>Detection options</source>
        <translation>Options de détection</translation>
    </message>
    <message>
        <source>Auto detection</source>
        <translation>Détection automatique</translation>
    </message>
    <message>
        <source>Clean wrong link</source>
        <translation>Supprimer les liens erronés</translation>
    </message>
    <message>
        <source>Skip optimization</source>
        <translation>Ne pas optimiser</translation>
    </message>
    <message>
        <source>Use recorded location</source>
        <translation>Utiliser les positions enregistrées</translation>
    </message>
    <message>
        <source>Preview</source>
        <translation>Aperçu</translation>
    </message>
    <message>
        <source>Zoom</source>
        <translation>Zoom</translation>
    </message>
</context>
</TS>
