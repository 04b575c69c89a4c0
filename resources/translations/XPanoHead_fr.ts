<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<TS version="2.1" language="fr" sourcelanguage="en">
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
        <translation>Bracketing utilisé dans le XML : le nombre d&apos;images devrait en être un multiple</translation>
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
        <translation>&lt;a href=&quot;https://www.papywizard.org&quot;&gt;&lt;font color=&quot;#DCDCDC&quot;&gt;Papywizard&lt;/font&gt;&lt;/a&gt; est un projet libre qui pilote les têtes panoramiques Merlin/Orion. Le format de fichier XML est ouvert et utilisé par un grand nombre de têtes panoramiques motorisées.</translation>
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
        <translation>Nombre d&apos;images&#xa0;:</translation>
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
        <translation>Focale du XML&#xa0;:</translation>
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
        <translation>Pour une pile&#xa0;:</translation>
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
        <source>VRDrive2 import</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>This importer is not available yet.</source>
        <translation type="unfinished"></translation>
    </message>
</context>
</TS>
