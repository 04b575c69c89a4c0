<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<TS version="2.1" language="fr" sourcelanguage="en">
<context>
    <name>MakeTexts</name>
    <message>
        <source>Reading the photos</source>
        <translation>Lecture des photos</translation>
    </message>
    <message>
        <source>Developing RAW files</source>
        <translation>Développement des fichiers RAW</translation>
    </message>
    <message>
        <source>Looking for details in the photos</source>
        <translation>Recherche de détails dans les photos</translation>
    </message>
    <message>
        <source>Comparing neighbouring photos</source>
        <translation>Comparaison des photos voisines</translation>
    </message>
    <message>
        <source>Putting the photos in their places</source>
        <translation>Mise en place des photos</translation>
    </message>
    <message>
        <source>Comparing the light of the photos</source>
        <translation>Comparaison de la lumière des photos</translation>
    </message>
    <message>
        <source>Joining brackets</source>
        <translation>Réunion des bracketings</translation>
    </message>
    <message>
        <source>Bending the photos into shape</source>
        <translation>Déformation des photos</translation>
    </message>
    <message>
        <source>Blending the photos</source>
        <translation>Raccord des photos</translation>
    </message>
    <message>
        <source>Fusing brackets</source>
        <translation>Fusion des bracketings</translation>
    </message>
    <message>
        <source>Writing the picture</source>
        <translation>Écriture de l&apos;image</translation>
    </message>
    <message>
        <source>Making the page</source>
        <translation>Création de la page</translation>
    </message>
    <message>
        <source>Cutting tiles to zoom into</source>
        <translation>Découpe des tuiles pour le zoom</translation>
    </message>
    <message>
        <source>Done</source>
        <translation>Terminé</translation>
    </message>
    <message>
        <source>%1 (step %2 of %3)</source>
        <translation>%1 (étape %2 sur %3)</translation>
    </message>
    <message>
        <source>or choose a smaller size</source>
        <translation>ou choisissez une taille plus petite</translation>
    </message>
    <message>
        <source>choose a smaller size</source>
        <translation>choisissez une taille plus petite</translation>
    </message>
    <message>
        <source>choose another size</source>
        <translation>choisissez une autre taille</translation>
    </message>
    <message>
        <source>RAW files make it exact</source>
        <translation>des fichiers RAW la rendent exacte</translation>
    </message>
    <message>
        <source>press Make panorama again</source>
        <translation>appuyez de nouveau sur «&#xa0;Créer le panorama&#xa0;»</translation>
    </message>
    <message>
        <source>go back and enter it</source>
        <translation>revenez en arrière et saisissez-la</translation>
    </message>
    <message>
        <source>Make panorama goes on from here</source>
        <translation>«&#xa0;Créer le panorama&#xa0;» reprend ici</translation>
    </message>
    <message>
        <source>%1 x %2 pixels at most; takes up to %3 of the disk and %4 of memory.</source>
        <translation>Au plus %1 x %2 pixels&#xa0;; occupe jusqu&apos;à %3 du disque et %4 de mémoire.</translation>
    </message>
</context>
<context>
    <name>PanoHost</name>
    <message>
        <source>%1 s left</source>
        <translation>encore %1 s</translation>
    </message>
    <message>
        <source>%1 min left</source>
        <translation>encore %1 min</translation>
    </message>
    <message>
        <source>%1 h %2 min left</source>
        <translation>encore %1 h %2 min</translation>
    </message>
</context>
<context>
    <name>PanoHost::AboutBox</name>
    <message>
        <source>About panohost</source>
        <translation>À propos de panohost</translation>
    </message>
    <message>
        <source>Licences</source>
        <translation>Licences</translation>
    </message>
    <message>
        <source>panohost as a program: GPL-3.0-or-later; its source: GPL-2.0-or-later.</source>
        <translation>panohost en tant que programme&#xa0;: GPL-3.0-or-later&#xa0;; son code source&#xa0;: GPL-2.0-or-later.</translation>
    </message>
    <message>
        <source>The plug-in library XPanoHead: MIT.</source>
        <translation>La bibliothèque de modules XPanoHead&#xa0;: MIT.</translation>
    </message>
    <message>
        <source>They stand on:</source>
        <translation>Ils reposent sur&#xa0;:</translation>
    </message>
    <message>
        <source>&amp;Licences:</source>
        <translation>&amp;Licences&#xa0;:</translation>
    </message>
</context>
<context>
    <name>PanoHost::ChoicePage</name>
    <message>
        <source>Needs photos only</source>
        <translation>Nécessite seulement des photos</translation>
    </message>
    <message>
        <source>Needs *.%1 record and photos</source>
        <translation>Nécessite un fichier *.%1 et des photos</translation>
    </message>
    <message>
        <source>%1 %2 by %3</source>
        <translation>%1 %2, par %3</translation>
    </message>
    <message>
        <source>Which head took the photos?</source>
        <translation>Avec quelle tête les photos ont-elles été prises&#xa0;?</translation>
    </message>
    <message>
        <source>Choose the head, or drop its record and the photos onto this window.</source>
        <translation>Choisissez la tête, ou déposez son fichier de prise de vue et les photos sur cette fenêtre.</translation>
    </message>
    <message>
        <source>Heads</source>
        <translation>Têtes</translation>
    </message>
    <message>
        <source>&amp;Head:</source>
        <translation>Têt&amp;e&#xa0;:</translation>
    </message>
    <message>
        <source>%1 record with %2 shots</source>
        <translation>fichier de prise de vue %1 avec %2 vues</translation>
    </message>
    <message>
        <source>%1, which no head can read</source>
        <translation>%1, qu&apos;aucune tête ne peut lire</translation>
    </message>
    <message>
        <source>one photo</source>
        <translation>une photo</translation>
    </message>
    <message>
        <source>%1 photos</source>
        <translation>%1 photos</translation>
    </message>
    <message>
        <source>Looking at the files</source>
        <translation>Examen des fichiers</translation>
    </message>
    <message>
        <source>Next waits for the head that took the photos.</source>
        <translation>Pour continuer, choisissez la tête qui a pris les photos.</translation>
    </message>
</context>
<context>
    <name>PanoHost::ElidedLabel</name>
    <message>
        <source>Copy</source>
        <translation>Copier</translation>
    </message>
</context>
<context>
    <name>PanoHost::FileDrop</name>
    <message>
        <source>Drop the files here</source>
        <translation>Déposez les fichiers ici</translation>
    </message>
</context>
<context>
    <name>PanoHost::ImportWizard</name>
    <message>
        <source>Import a panorama</source>
        <translation>Importer un panorama</translation>
    </message>
    <message>
        <source>Help</source>
        <translation>Aide</translation>
    </message>
    <message>
        <source>&amp;Another import</source>
        <translation>Autre &amp;importation</translation>
    </message>
    <message>
        <source>Not done</source>
        <translation>Non effectué</translation>
    </message>
    <message>
        <source>Files not taken</source>
        <translation>Fichiers non pris en compte</translation>
    </message>
    <message>
        <source>Neither records nor photos are among these files.</source>
        <translation>Ces fichiers ne contiennent ni fichier de prise de vue ni photo.</translation>
    </message>
    <message>
        <source>The name of a photo holds a double quote or a line end, which file dialogs cannot take. Rename it, or use &quot;panohost import&quot; on the command line.</source>
        <translation>Le nom d&apos;une photo contient un guillemet double ou un saut de ligne, que les boîtes de dialogue de fichiers n&apos;acceptent pas. Renommez-la, ou utilisez «&#xa0;panohost import&#xa0;» en ligne de commande.</translation>
    </message>
    <message>
        <source>Close the window?</source>
        <translation>Fermer la fenêtre&#xa0;?</translation>
    </message>
    <message>
        <source>The panorama is still being made. What is finished of it is kept: made again, it goes on from there.</source>
        <translation>Le panorama est encore en cours de création. Ce qui est terminé est conservé&#xa0;: une nouvelle création reprendra à cet endroit.</translation>
    </message>
    <message>
        <source>The panorama has not been saved.</source>
        <translation>Le panorama n&apos;a pas été enregistré.</translation>
    </message>
    <message>
        <source>The photos and options of this page will be forgotten.</source>
        <translation>Les photos et les options de cette page seront perdues.</translation>
    </message>
    <message>
        <source>A step has failed</source>
        <translation>Une étape a échoué</translation>
    </message>
    <message>
        <source>This page could not do what you asked: %1. Your files are as they were. Try again, or go back and choose fewer files.</source>
        <translation>Cette page n&apos;a pas pu faire ce que vous avez demandé&#xa0;: %1. Vos fichiers sont restés tels quels. Réessayez, ou revenez en arrière et choisissez moins de fichiers.</translation>
    </message>
    <message>
        <source>&amp;Help</source>
        <translation>Ai&amp;de</translation>
    </message>
    <message>
        <source>&amp;Preferences...</source>
        <translation>&amp;Préférences...</translation>
    </message>
    <message>
        <source>&amp;About panohost</source>
        <translation>À prop&amp;os de panohost</translation>
    </message>
    <message>
        <source>Choose the head that took the photos, then Next. You can also drop the head&apos;s record and the photos, or the folder that holds them, onto this window.</source>
        <translation>Choisissez la tête qui a pris les photos, puis «&#xa0;Suivant&#xa0;». Vous pouvez aussi déposer sur cette fenêtre le fichier de prise de vue de la tête et les photos, ou le dossier qui les contient.</translation>
    </message>
    <message>
        <source>Say where the panorama goes and press Make panorama. It can be stopped at any time: what is finished is kept, and made again it goes on from there.</source>
        <translation>Indiquez où placer le panorama et appuyez sur «&#xa0;Créer le panorama&#xa0;». La création peut être arrêtée à tout moment&#xa0;: ce qui est terminé est conservé, et une nouvelle création reprend à cet endroit.</translation>
    </message>
    <message>
        <source>Next makes the panorama here. Or save the project and open it in Hugin, or save the description as JSON. Back returns to the import page; its photos and options are kept.</source>
        <translation>«&#xa0;Suivant&#xa0;» crée le panorama ici. Vous pouvez aussi enregistrer le projet et l&apos;ouvrir dans Hugin, ou enregistrer la description en JSON. «&#xa0;Précédent&#xa0;» revient à la page d&apos;importation&#xa0;; ses photos et ses options sont conservées.</translation>
    </message>
    <message>
        <source>Choose the head&apos;s record and all its photos. Next is enabled when every photo has been read and their number is that of the record. Red text says what does not fit; the line below all says why, and its buttons put it right.</source>
        <translation>Choisissez le fichier de prise de vue de la tête et toutes ses photos. «&#xa0;Suivant&#xa0;» devient actif quand toutes les photos ont été lues et que leur nombre est celui du fichier. Le texte en rouge indique ce qui ne va pas&#xa0;; la ligne du bas explique pourquoi, et ses boutons y remédient.</translation>
    </message>
</context>
<context>
    <name>PanoHost::MakePage</name>
    <message>
        <source>Make the panorama</source>
        <translation>Créer le panorama</translation>
    </message>
    <message>
        <source>Every photo is put where it belongs, and all are joined to one picture.</source>
        <translation>Chaque photo est mise à sa place, et toutes sont réunies en une seule image.</translation>
    </message>
    <message>
        <source>Progress</source>
        <translation>Progression</translation>
    </message>
    <message>
        <source>&amp;Log</source>
        <translation>&amp;Journal</translation>
    </message>
    <message>
        <source>Log</source>
        <translation>Journal</translation>
    </message>
    <message>
        <source>Show in fol&amp;der</source>
        <translation>Afficher dans le d&amp;ossier</translation>
    </message>
    <message>
        <source>Open &amp;in browser</source>
        <translation>Ouvrir dans le navi&amp;gateur</translation>
    </message>
    <message>
        <source>Open in H&amp;ugin</source>
        <translation>Ouvrir dans &amp;Hugin</translation>
    </message>
    <message>
        <source>S&amp;ettings</source>
        <translation>&amp;Réglages</translation>
    </message>
    <message>
        <source>Make it again, in another size or as other files.</source>
        <translation>Le créer de nouveau, dans une autre taille ou sous forme d&apos;autres fichiers.</translation>
    </message>
    <message>
        <source>Hugin could not be started. Is it installed?</source>
        <translation>Impossible de démarrer Hugin. Est-il installé&#xa0;?</translation>
    </message>
    <message>
        <source>&amp;Change...</source>
        <translation>Mo&amp;difier...</translation>
    </message>
    <message>
        <source>As sharp as the photos</source>
        <translation>Aussi net que les photos</translation>
    </message>
    <message>
        <source>Half as wide</source>
        <translation>Deux fois moins large</translation>
    </message>
    <message>
        <source>A quarter as wide: a quick look</source>
        <translation>Quatre fois moins large&#xa0;: un aperçu rapide</translation>
    </message>
    <message>
        <source>Fused: shows lights and shadows</source>
        <translation>Fusion&#xa0;: montre les hautes lumières et les ombres</translation>
    </message>
    <message>
        <source>The reference exposure only</source>
        <translation>L&apos;exposition de référence seulement</translation>
    </message>
    <message>
        <source>The light itself (HDR)</source>
        <translation>La lumière elle-même (HDR)</translation>
    </message>
    <message>
        <source>A pa&amp;ge that opens in any browser</source>
        <translation>Une page qui s&apos;ouvre dans tout na&amp;vigateur</translation>
    </message>
    <message>
        <source>A folder to &amp;zoom into, of any size</source>
        <translation>Un dossier &amp;zoomable, de toute taille</translation>
    </message>
    <message>
        <source>&amp;Trust the head: skip the alignment</source>
        <translation>Se &amp;fier à la tête&#xa0;: ne pas aligner</translation>
    </message>
    <message>
        <source>Photos stay at the angles that the head has recorded. Quicker, and right where the photos show nothing to go by.</source>
        <translation>Les photos restent aux angles que la tête a enregistrés. Plus rapide, et adapté quand les photos n&apos;offrent aucun repère.</translation>
    </message>
    <message>
        <source>&amp;Picture:</source>
        <translation>I&amp;mage&#xa0;:</translation>
    </message>
    <message>
        <source>&amp;Size:</source>
        <translation>Tai&amp;lle&#xa0;:</translation>
    </message>
    <message>
        <source>B&amp;rackets:</source>
        <translation>&amp;Bracketing&#xa0;:</translation>
    </message>
    <message>
        <source>Also:</source>
        <translation>Aussi&#xa0;:</translation>
    </message>
    <message>
        <source>Angles:</source>
        <translation>Angles&#xa0;:</translation>
    </message>
    <message>
        <source>Where the panorama goes</source>
        <translation>Emplacement du panorama</translation>
    </message>
    <message>
        <source>Pictures (*.jpg *.tif)</source>
        <translation>Images (*.jpg *.tif)</translation>
    </message>
    <message>
        <source>Photos are RAW files, and no program is installed that develops them. Install libraw-bin, dcraw, darktable or rawtherapee, or take the JPEGs of these photos.</source>
        <translation>Les photos sont des fichiers RAW et aucun programme installé ne les développe. Installez libraw-bin, dcraw, darktable ou rawtherapee, ou prenez les JPEG de ces photos.</translation>
    </message>
    <message>
        <source>Estimating...</source>
        <translation>Estimation...</translation>
    </message>
    <message>
        <source>Stopping...</source>
        <translation>Arrêt en cours...</translation>
    </message>
    <message>
        <source>Starting...</source>
        <translation>Démarrage...</translation>
    </message>
    <message>
        <source>St&amp;op</source>
        <translation>Arrêt&amp;er</translation>
    </message>
    <message>
        <source>&amp;Make panorama</source>
        <translation>&amp;Créer le panorama</translation>
    </message>
    <message>
        <source>Warning: %1</source>
        <translation>Avertissement&#xa0;: %1</translation>
    </message>
    <message>
        <source>Done:</source>
        <translation>Terminé&#xa0;:</translation>
    </message>
    <message>
        <source>Stopped. What was finished is kept: Make panorama goes on from there.</source>
        <translation>Arrêté. Ce qui est terminé est conservé&#xa0;: «&#xa0;Créer le panorama&#xa0;» reprend à cet endroit.</translation>
    </message>
    <message>
        <source>No program is set up here that opens %1.</source>
        <translation>Aucun programme n&apos;est configuré ici pour ouvrir %1.</translation>
    </message>
</context>
<context>
    <name>PanoHost::MakeRunner</name>
    <message>
        <source>Not enough memory</source>
        <translation>Mémoire insuffisante</translation>
    </message>
    <message>
        <source>close other programs, or make the panorama smaller</source>
        <translation>fermez d&apos;autres programmes, ou créez un panorama plus petit</translation>
    </message>
</context>
<context>
    <name>PanoHost::PanoHostApplication</name>
    <message>
        <source>not enough memory</source>
        <translation>mémoire insuffisante</translation>
    </message>
    <message>
        <source>it does not say why</source>
        <translation>la raison n&apos;est pas indiquée</translation>
    </message>
</context>
<context>
    <name>PanoHost::PictureView</name>
    <message>
        <source>Finished panorama</source>
        <translation>Panorama terminé</translation>
    </message>
    <message>
        <source>Wheel, + and -: magnify. Drag, arrows: move. Double click, 0: all of it.</source>
        <translation>Molette, + et -&#xa0;: zoomer. Glisser, flèches&#xa0;: déplacer. Double-clic, 0&#xa0;: tout voir.</translation>
    </message>
</context>
<context>
    <name>PanoHost::PositionsModel</name>
    <message>
        <source>No.</source>
        <translation>N°</translation>
    </message>
    <message>
        <source>Photos</source>
        <translation>Photos</translation>
    </message>
    <message>
        <source>Yaw %1</source>
        <translation>Lacet %1</translation>
    </message>
    <message>
        <source>Pitch %1</source>
        <translation>Tangage %1</translation>
    </message>
    <message>
        <source>Roll %1</source>
        <translation>Roulis %1</translation>
    </message>
    <message>
        <source>Aligned yaw %1</source>
        <translation>Lacet aligné %1</translation>
    </message>
    <message>
        <source>Aligned pitch %1</source>
        <translation>Tangage aligné %1</translation>
    </message>
    <message>
        <source>Aligned roll %1</source>
        <translation>Roulis aligné %1</translation>
    </message>
    <message>
        <source>Off by %1</source>
        <translation>Écart %1</translation>
    </message>
    <message>
        <source>Points</source>
        <translation>Points</translation>
    </message>
    <message>
        <source>Error (pixels)</source>
        <translation>Erreur (pixels)</translation>
    </message>
    <message>
        <source>Time</source>
        <translation>Heure</translation>
    </message>
    <message>
        <source>Exposure (EV)</source>
        <translation>Exposition (IL)</translation>
    </message>
    <message>
        <source>Links</source>
        <translation>Liens</translation>
    </message>
    <message>
        <source>As the head recorded it: to the right, in degrees</source>
        <translation>Tel que la tête l&apos;a enregistré&#xa0;: vers la droite, en degrés</translation>
    </message>
    <message>
        <source>As the head recorded it: up, in degrees</source>
        <translation>Tel que la tête l&apos;a enregistré&#xa0;: vers le haut, en degrés</translation>
    </message>
    <message>
        <source>As the head recorded it: clockwise, in degrees</source>
        <translation>Tel que la tête l&apos;a enregistré&#xa0;: dans le sens horaire, en degrés</translation>
    </message>
    <message>
        <source>How far the photos show that the head stood elsewhere than recorded</source>
        <translation>De combien, d&apos;après les photos, la tête s&apos;est écartée de la position enregistrée</translation>
    </message>
    <message>
        <source>Spots that were found again in other photos</source>
        <translation>Points retrouvés dans d&apos;autres photos</translation>
    </message>
    <message>
        <source>How far such spots still lie apart, half of them nearer</source>
        <translation>Distance qui sépare encore ces points&#xa0;; la moitié sont plus proches</translation>
    </message>
    <message>
        <source>Of the first photo: each step up lets in half as much light</source>
        <translation>De la première photo&#xa0;: chaque cran de plus laisse entrer moitié moins de lumière</translation>
    </message>
    <message>
        <source>Neighbours in which spots of this photo are looked for</source>
        <translation>Voisines dans lesquelles des points de cette photo sont recherchés</translation>
    </message>
</context>
<context>
    <name>PanoHost::PositionsTable</name>
    <message>
        <source>Positions</source>
        <translation>Positions</translation>
    </message>
</context>
<context>
    <name>PanoHost::Preferences</name>
    <message>
        <source>Use the &amp;desktop&apos;s file dialogs</source>
        <translation>Utiliser les boîtes de dialogue de fichiers du &amp;bureau</translation>
    </message>
    <message>
        <source>Share &amp;thumbnails with the desktop</source>
        <translation>Partager les &amp;miniatures avec le bureau</translation>
    </message>
    <message>
        <source>Preferences</source>
        <translation>Préférences</translation>
    </message>
    <message>
        <source>where the system has them</source>
        <translation>là où le système les a</translation>
    </message>
    <message>
        <source>Choo&amp;se...</source>
        <translation>&amp;Choisir...</translation>
    </message>
    <message>
        <source>Choose the folder of the tools</source>
        <translation>Choisir le dossier des outils</translation>
    </message>
    <message>
        <source>&amp;Language:</source>
        <translation>&amp;Langue&#xa0;:</translation>
    </message>
    <message>
        <source>&amp;Folder of the tools:</source>
        <translation>&amp;Dossier des outils&#xa0;:</translation>
    </message>
    <message>
        <source>Tools:</source>
        <translation>Outils&#xa0;:</translation>
    </message>
    <message>
        <source>Language and thumbnails change with the next start.</source>
        <translation>La langue et les miniatures changent au prochain démarrage.</translation>
    </message>
    <message>
        <source>As the desktop</source>
        <translation>Comme le bureau</translation>
    </message>
    <message>
        <source>Folder of the tools</source>
        <translation>Dossier des outils</translation>
    </message>
    <message>
        <source>%1: not found</source>
        <translation>%1&#xa0;: introuvable</translation>
    </message>
    <message>
        <source>%1: found, %2</source>
        <translation>%1&#xa0;: trouvé, %2</translation>
    </message>
    <message>
        <source>No such folder</source>
        <translation>Dossier introuvable</translation>
    </message>
    <message>
        <source>%1 is no folder; choose another one, or leave the field empty.</source>
        <translation>%1 n&apos;est pas un dossier&#xa0;; choisissez-en un autre, ou laissez le champ vide.</translation>
    </message>
</context>
<context>
    <name>PanoHost::PreviewGuide</name>
    <message>
        <source>Drop the head&apos;s record and the photos here</source>
        <translation>Déposez ici le fichier de prise de vue de la tête et les photos</translation>
    </message>
    <message>
        <source>Drop the photos here</source>
        <translation>Déposez les photos ici</translation>
    </message>
    <message>
        <source>The wheel zooms, a double click shows all.</source>
        <translation>La molette zoome, un double-clic affiche tout.</translation>
    </message>
</context>
<context>
    <name>PanoHost::ReadingBar</name>
    <message>
        <source>Reading photos</source>
        <translation>Lecture des photos</translation>
    </message>
    <message>
        <source>%1 photos are handed over...</source>
        <translation>Transmission de %1 photos...</translation>
    </message>
    <message>
        <source>%1 of %2 photos</source>
        <translation>%1 photos sur %2</translation>
    </message>
    <message>
        <source>, %1 per second</source>
        <translation>, %1 par seconde</translation>
    </message>
</context>
<context>
    <name>PanoHost::RecentList</name>
    <message>
        <source>%1, %2 photos, %3</source>
        <translation>%1, %2 photos, %3</translation>
    </message>
    <message>
        <source>Re&amp;move</source>
        <translation>&amp;Retirer</translation>
    </message>
    <message>
        <source>Recent shoots</source>
        <translation>Prises de vue récentes</translation>
    </message>
    <message>
        <source>&amp;Recent shoots:</source>
        <translation>Prises de &amp;vue récentes&#xa0;:</translation>
    </message>
    <message>
        <source>Remove the shoot from this list</source>
        <translation>Retirer la prise de vue de cette liste</translation>
    </message>
    <message>
        <source>&amp;Clear list</source>
        <translation>Vider &amp;la liste</translation>
    </message>
    <message>
        <source>The files are gone.</source>
        <translation>Les fichiers ont disparu.</translation>
    </message>
    <message>
        <source>The files are gone</source>
        <translation>Les fichiers ont disparu</translation>
    </message>
    <message>
        <source>%1 cannot be found; it may lie on a medium that is not there. Remove it from the list?</source>
        <translation>%1 est introuvable&#xa0;; il se trouve peut-être sur un support qui n&apos;est pas connecté. Le retirer de la liste&#xa0;?</translation>
    </message>
</context>
<context>
    <name>PanoHost::ResultPage</name>
    <message>
        <source>The panorama</source>
        <translation>Le panorama</translation>
    </message>
    <message>
        <source>Look whether the photos stand where they belong, then save the panorama.</source>
        <translation>Vérifiez que les photos sont à leur place, puis enregistrez le panorama.</translation>
    </message>
    <message>
        <source>Views of the panorama</source>
        <translation>Vues du panorama</translation>
    </message>
    <message>
        <source>Pictu&amp;re</source>
        <translation>Ima&amp;ge</translation>
    </message>
    <message>
        <source>P&amp;ositions</source>
        <translation>Positi&amp;ons</translation>
    </message>
    <message>
        <source>Summary</source>
        <translation>Résumé</translation>
    </message>
    <message>
        <source>S&amp;ummary</source>
        <translation>&amp;Résumé</translation>
    </message>
    <message>
        <source>Back to &amp;enter it</source>
        <translation>Re&amp;venir la saisir</translation>
    </message>
    <message>
        <source>Save &amp;project...</source>
        <translation>Enregistrer le pro&amp;jet...</translation>
    </message>
    <message>
        <source>Save &amp;description...</source>
        <translation>Enregistrer la &amp;description...</translation>
    </message>
    <message>
        <source>Save &amp;table...</source>
        <translation>Enregistrer le ta&amp;bleau...</translation>
    </message>
    <message>
        <source>Open in Hu&amp;gin</source>
        <translation>Ouvrir dans &amp;Hugin</translation>
    </message>
    <message>
        <source>Nothing saved</source>
        <translation>Rien d&apos;enregistré</translation>
    </message>
    <message>
        <source>The panorama has not been saved. Go on all the same?</source>
        <translation>Le panorama n&apos;a pas été enregistré. Continuer quand même&#xa0;?</translation>
    </message>
    <message>
        <source>Nothing that can be saved.</source>
        <translation>Rien qui puisse être enregistré.</translation>
    </message>
    <message>
        <source>To look at</source>
        <translation>À vérifier</translation>
    </message>
    <message>
        <source>One more stands in the summary.</source>
        <translation>Un autre avertissement figure dans le résumé.</translation>
    </message>
    <message>
        <source>%1 more stand in the summary.</source>
        <translation>%1 autres avertissements figurent dans le résumé.</translation>
    </message>
    <message>
        <source>The project was not saved: the focal length is not known. Go back and enter it in the line below the page.</source>
        <translation>Le projet n&apos;a pas été enregistré&#xa0;: la distance focale n&apos;est pas connue. Revenez en arrière et saisissez-la dans la ligne sous la page.</translation>
    </message>
    <message>
        <source>Save the project</source>
        <translation>Enregistrer le projet</translation>
    </message>
    <message>
        <source>Hugin projects (*.pto)</source>
        <translation>Projets Hugin (*.pto)</translation>
    </message>
    <message>
        <source>Save the description</source>
        <translation>Enregistrer la description</translation>
    </message>
    <message>
        <source>Descriptions (*.json)</source>
        <translation>Descriptions (*.json)</translation>
    </message>
    <message>
        <source>Save the table</source>
        <translation>Enregistrer le tableau</translation>
    </message>
    <message>
        <source>Comma-separated values (*.csv)</source>
        <translation>Valeurs séparées par des virgules (*.csv)</translation>
    </message>
    <message>
        <source>Hugin could not be started. Is it installed? Try to open the saved project from Hugin itself.</source>
        <translation>Impossible de démarrer Hugin. Est-il installé&#xa0;? Essayez d&apos;ouvrir le projet enregistré depuis Hugin même.</translation>
    </message>
</context>
<context>
    <name>PanoHost::ResultTexts</name>
    <message>
        <source>%1 at %2</source>
        <translation>%1 en %2</translation>
    </message>
    <message>
        <source>1 photo</source>
        <translation>1 photo</translation>
    </message>
    <message>
        <source>%1 photos</source>
        <translation>%1 photos</translation>
    </message>
    <message>
        <source>1 position</source>
        <translation>1 position</translation>
    </message>
    <message>
        <source>%1 positions</source>
        <translation>%1 positions</translation>
    </message>
    <message>
        <source> (brackets of %1)</source>
        <translation> (bracketing de %1)</translation>
    </message>
    <message>
        <source> (brackets of %1 to %2)</source>
        <translation> (bracketing de %1 à %2)</translation>
    </message>
    <message>
        <source>%1, %2, %3</source>
        <translation>%1, %2, %3</translation>
    </message>
    <message>
        <source>no links</source>
        <translation>aucun lien</translation>
    </message>
    <message>
        <source>1 link</source>
        <translation>1 lien</translation>
    </message>
    <message>
        <source>%1 links</source>
        <translation>%1 liens</translation>
    </message>
    <message>
        <source>%1, into HDR</source>
        <translation>%1, en HDR</translation>
    </message>
    <message>
        <source>Record</source>
        <translation>Fichier de prise de vue</translation>
    </message>
    <message>
        <source>Within brackets</source>
        <translation>Dans un bracketing</translation>
    </message>
    <message>
        <source>as one</source>
        <translation>comme une seule</translation>
    </message>
    <message>
        <source>The photos of a bracket lie exactly on each other.</source>
        <translation>Les photos d&apos;un bracketing se superposent exactement.</translation>
    </message>
    <message>
        <source>Right for a firm tripod: one direction counts for all of them.</source>
        <translation>Adapté à un trépied stable&#xa0;: une même direction vaut pour toutes.</translation>
    </message>
    <message>
        <source>each by itself</source>
        <translation>chacune séparément</translation>
    </message>
    <message>
        <source>Control points are looked for between the photos of a bracket.</source>
        <translation>Des points de contrôle sont recherchés entre les photos d&apos;un bracketing.</translation>
    </message>
    <message>
        <source>Right when the camera may have moved between two exposures.</source>
        <translation>Adapté si l&apos;appareil a pu bouger entre deux expositions.</translation>
    </message>
    <message>
        <source>Wrong points</source>
        <translation>Points erronés</translation>
    </message>
    <message>
        <source>removed</source>
        <translation>supprimés</translation>
    </message>
    <message>
        <source>kept</source>
        <translation>conservés</translation>
    </message>
    <message>
        <source>They are marked, and move nothing.</source>
        <translation>Ils sont marqués et ne déplacent rien.</translation>
    </message>
    <message>
        <source>Lens</source>
        <translation>Objectif</translation>
    </message>
    <message>
        <source>As for 35 mm film: it says how wide a photo sees.</source>
        <translation>Équivalent en film 35 mm&#xa0;: indique la largeur de champ d&apos;une photo.</translation>
    </message>
    <message>
        <source>fisheye lens, focal length not known</source>
        <translation>objectif fisheye, distance focale inconnue</translation>
    </message>
    <message>
        <source>standard lens, focal length not known</source>
        <translation>objectif standard, distance focale inconnue</translation>
    </message>
    <message>
        <source>Nothing can be put together without it.</source>
        <translation>Sans elle, rien ne peut être assemblé.</translation>
    </message>
    <message>
        <source>fisheye lens of %1 mm</source>
        <translation>objectif fisheye de %1 mm</translation>
    </message>
    <message>
        <source>standard lens of %1 mm</source>
        <translation>objectif standard de %1 mm</translation>
    </message>
    <message>
        <source>Brackets</source>
        <translation>Bracketing</translation>
    </message>
    <message>
        <source>none, into HDR</source>
        <translation>aucun, en HDR</translation>
    </message>
    <message>
        <source>HDR was chosen, but there is one exposure of each position.</source>
        <translation>Le HDR a été choisi, mais il n&apos;y a qu&apos;une exposition par position.</translation>
    </message>
    <message>
        <source>into HDR</source>
        <translation>en HDR</translation>
    </message>
    <message>
        <source>The picture holds the light itself, from all exposures.</source>
        <translation>L&apos;image contient la lumière elle-même, de toutes les expositions.</translation>
    </message>
    <message>
        <source>For programs that work on with it: no screen shows all of it.</source>
        <translation>Pour les programmes qui la traitent ensuite&#xa0;: aucun écran ne la montre entièrement.</translation>
    </message>
    <message>
        <source>into an ordinary picture</source>
        <translation>en image ordinaire</translation>
    </message>
    <message>
        <source>Of each exposure what is neither too dark nor too bright.</source>
        <translation>De chaque exposition, ce qui n&apos;est ni trop sombre ni trop clair.</translation>
    </message>
    <message>
        <source>Links</source>
        <translation>Liens</translation>
    </message>
    <message>
        <source>Control points are looked for in these pairs of neighbours alone.</source>
        <translation>Les points de contrôle ne sont recherchés que dans ces paires de voisines.</translation>
    </message>
    <message>
        <source>Photos that are no neighbours are never compared: a sky or a wall that looks alike cannot lead astray.</source>
        <translation>Les photos qui ne sont pas voisines ne sont jamais comparées&#xa0;: un ciel ou un mur d&apos;aspect semblable ne peut pas induire en erreur.</translation>
    </message>
    <message>
        <source>none</source>
        <translation>aucun</translation>
    </message>
    <message>
        <source>One position has no neighbours.</source>
        <translation>Une position unique n&apos;a pas de voisines.</translation>
    </message>
    <message>
        <source>All photos that overlap are compared instead.</source>
        <translation>Toutes les photos qui se recouvrent sont comparées à la place.</translation>
    </message>
    <message>
        <source>Control points</source>
        <translation>Points de contrôle</translation>
    </message>
    <message>
        <source>not looked for</source>
        <translation>non recherchés</translation>
    </message>
    <message>
        <source>Photos stay where the head has recorded them.</source>
        <translation>Les photos restent là où la tête les a enregistrées.</translation>
    </message>
    <message>
        <source>In Hugin you can set control points by hand.</source>
        <translation>Dans Hugin, vous pouvez placer des points de contrôle à la main.</translation>
    </message>
    <message>
        <source>looked for</source>
        <translation>recherchés</translation>
    </message>
    <message>
        <source>Spots that two photos share say how they belong together.</source>
        <translation>Les points communs à deux photos indiquent comment elles se raccordent.</translation>
    </message>
    <message>
        <source>looked for in one exposure of each bracket</source>
        <translation>recherchés dans une exposition de chaque bracketing</translation>
    </message>
    <message>
        <source>In the first photo of each bracket, the reference.</source>
        <translation>Dans la première photo de chaque bracketing, la référence.</translation>
    </message>
    <message>
        <source>looked for in all exposures</source>
        <translation>recherchés dans toutes les expositions</translation>
    </message>
    <message>
        <source>Takes longer, and finds more where one exposure is too dark or too bright.</source>
        <translation>Plus long, mais trouve davantage là où une exposition est trop sombre ou trop claire.</translation>
    </message>
    <message>
        <source>Optimisation</source>
        <translation>Optimisation</translation>
    </message>
    <message>
        <source>skipped</source>
        <translation>non effectuée</translation>
    </message>
    <message>
        <source>The head is trusted: photos stay where it has recorded them.</source>
        <translation>On se fie à la tête&#xa0;: les photos restent là où elle les a enregistrées.</translation>
    </message>
    <message>
        <source>Right for a head without play. It saves the time of looking for points.</source>
        <translation>Adapté à une tête sans jeu. Évite le temps de recherche des points.</translation>
    </message>
    <message>
        <source>from the record</source>
        <translation>à partir du fichier de prise de vue</translation>
    </message>
    <message>
        <source>Control points move the photos; those without any stay as recorded.</source>
        <translation>Les points de contrôle déplacent les photos&#xa0;; celles qui n&apos;en ont pas restent à la position enregistrée.</translation>
    </message>
    <message>
        <source>The usual choice: skies and walls without a mark stay in place.</source>
        <translation>Le choix habituel&#xa0;: les ciels et les murs sans détail restent en place.</translation>
    </message>
    <message>
        <source>free</source>
        <translation>libre</translation>
    </message>
    <message>
        <source>The record is where the search begins, no more.</source>
        <translation>Les positions enregistrées ne sont que le point de départ de la recherche.</translation>
    </message>
    <message>
        <source>Right when the head has slipped.</source>
        <translation>Adapté si la tête a glissé.</translation>
    </message>
    <message>
        <source>The focal length is not known: no photo names it. Go back and enter it in the line below the page, at &quot;Focal length&quot;.</source>
        <translation>La distance focale n&apos;est pas connue&#xa0;: aucune photo ne l&apos;indique. Revenez en arrière et saisissez-la dans la ligne sous la page, à «&#xa0;Distance focale&#xa0;».</translation>
    </message>
    <message>
        <source>The focal length is not known: neither the record nor a photo names it. Go back and enter it in the line below the page, at &quot;Focal length&quot;.</source>
        <translation>La distance focale n&apos;est pas connue&#xa0;: ni le fichier de prise de vue ni les photos ne l&apos;indiquent. Revenez en arrière et saisissez-la dans la ligne sous la page, à «&#xa0;Distance focale&#xa0;».</translation>
    </message>
    <message>
        <source>The lens is taken for a fisheye, and no photo says so. If it is none, go back and choose the standard lens.</source>
        <translation>L&apos;objectif est considéré comme un fisheye, mais aucune photo ne l&apos;indique. Si ce n&apos;en est pas un, revenez en arrière et choisissez l&apos;objectif standard.</translation>
    </message>
    <message>
        <source>The photos say that they were taken through a fisheye, and the lens is taken for a standard one. If it is a fisheye, go back and choose that.</source>
        <translation>Les photos indiquent qu&apos;elles ont été prises avec un fisheye, mais l&apos;objectif est considéré comme standard. Si c&apos;est un fisheye, revenez en arrière et choisissez-le.</translation>
    </message>
    <message>
        <source>Until then all %1 positions lie on one point.</source>
        <translation>D&apos;ici là, les %1 positions se trouvent toutes au même point.</translation>
    </message>
    <message>
        <source>All %1 positions lie on one point: the record says that the head did not move.</source>
        <translation>Les %1 positions se trouvent toutes au même point&#xa0;: d&apos;après le fichier de prise de vue, la tête n&apos;a pas bougé.</translation>
    </message>
    <message>
        <source>No two photos are linked: through a lens of %1 mm neighbours are too far apart. Is the focal length right?</source>
        <translation>Aucune photo n&apos;est liée à une autre&#xa0;: avec un objectif de %1 mm, les voisines sont trop éloignées. La distance focale est-elle juste&#xa0;?</translation>
    </message>
    <message>
        <source>Order</source>
        <translation>Ordre</translation>
    </message>
    <message>
        <source>Pause</source>
        <translation>Pause</translation>
    </message>
    <message>
        <source>Photos</source>
        <translation>Photos</translation>
    </message>
    <message>
        <source>%1: %2</source>
        <translation>%1&#xa0;: %2</translation>
    </message>
    <message>
        <source>%1 was not saved: there is a folder of that name. Choose another name.</source>
        <translation>%1 n&apos;a pas été enregistré&#xa0;: un dossier porte ce nom. Choisissez un autre nom.</translation>
    </message>
    <message>
        <source>%1 was not saved: the folder %2 is not there. Was it moved, or its disk unplugged? Choose another folder.</source>
        <translation>%1 n&apos;a pas été enregistré&#xa0;: le dossier %2 n&apos;existe pas. A-t-il été déplacé, ou son disque débranché&#xa0;? Choisissez un autre dossier.</translation>
    </message>
    <message>
        <source>%1 was not saved: the disk is full. Make room on it, or choose a folder on another disk.</source>
        <translation>%1 n&apos;a pas été enregistré&#xa0;: le disque est plein. Libérez de l&apos;espace, ou choisissez un dossier sur un autre disque.</translation>
    </message>
    <message>
        <source>%1 was not saved: nothing can be written in %2. Choose a folder of your own, such as your pictures.</source>
        <translation>%1 n&apos;a pas été enregistré&#xa0;: impossible d&apos;écrire dans %2. Choisissez un dossier qui vous appartient, par exemple celui de vos images.</translation>
    </message>
    <message>
        <source>%1 was not saved: a file of that name is there and is protected. Choose another name.</source>
        <translation>%1 n&apos;a pas été enregistré&#xa0;: un fichier protégé porte déjà ce nom. Choisissez un autre nom.</translation>
    </message>
    <message>
        <source>%1 was not saved: the name is too long. Choose a shorter one.</source>
        <translation>%1 n&apos;a pas été enregistré&#xa0;: le nom est trop long. Choisissez-en un plus court.</translation>
    </message>
    <message>
        <source>%1 was not saved: %2</source>
        <translation>%1 n&apos;a pas été enregistré&#xa0;: %2</translation>
    </message>
</context>
<context>
    <name>PanoHost::SavedList</name>
    <message>
        <source>Nothing saved yet.</source>
        <translation>Rien d&apos;enregistré pour l&apos;instant.</translation>
    </message>
    <message>
        <source>Saved files</source>
        <translation>Fichiers enregistrés</translation>
    </message>
    <message>
        <source>Not done</source>
        <translation>Non effectué</translation>
    </message>
    <message>
        <source>Saved %1 in %2</source>
        <translation>%1 enregistré dans %2</translation>
    </message>
    <message>
        <source>Show</source>
        <translation>Afficher</translation>
    </message>
    <message>
        <source>Show %1 in its folder</source>
        <translation>Afficher %1 dans son dossier</translation>
    </message>
    <message>
        <source>Saved</source>
        <translation>Enregistré</translation>
    </message>
    <message>
        <source>The folder %1 is not there any more. Was it moved, or its disk unplugged?</source>
        <translation>Le dossier %1 n&apos;existe plus. A-t-il été déplacé, ou son disque débranché&#xa0;?</translation>
    </message>
    <message>
        <source>No program could show the folder. It is %1</source>
        <translation>Aucun programme n&apos;a pu afficher le dossier. C&apos;est %1</translation>
    </message>
</context>
<context>
    <name>PanoHost::ShootDesk</name>
    <message>
        <source>shot %1: yaw %2, pitch %3</source>
        <translation>vue %1&#xa0;: lacet %2, tangage %3</translation>
    </message>
    <message>
        <source>The photos do not stand at their shots: go back, and press Fix.</source>
        <translation>Les photos ne correspondent pas à leurs vues&#xa0;: revenez en arrière et appuyez sur «&#xa0;Corriger&#xa0;».</translation>
    </message>
    <message>
        <source>Another file in place of %1</source>
        <translation>Un autre fichier à la place de %1</translation>
    </message>
    <message>
        <source>Shots without a photo</source>
        <translation>Vues sans photo</translation>
    </message>
    <message>
        <source>Take these shots again if you can. The panorama is made without them otherwise.</source>
        <translation>Refaites ces vues si vous le pouvez. Sinon, le panorama sera créé sans elles.</translation>
    </message>
</context>
<context>
    <name>PanoHost::ShootPanel</name>
    <message>
        <source>Flat</source>
        <translation>À plat</translation>
    </message>
    <message>
        <source>Show the photos on a map</source>
        <translation>Afficher les photos sur une carte</translation>
    </message>
    <message>
        <source>Sphere</source>
        <translation>Sphère</translation>
    </message>
    <message>
        <source>Look around from where the camera stood</source>
        <translation>Regarder autour de soi depuis l&apos;emplacement de l&apos;appareil</translation>
    </message>
    <message>
        <source>Links</source>
        <translation>Liens</translation>
    </message>
    <message>
        <source>Show which photos are linked to each other</source>
        <translation>Montrer quelles photos sont liées entre elles</translation>
    </message>
    <message>
        <source>Gaps</source>
        <translation>Trous</translation>
    </message>
    <message>
        <source>Hatch what no photo shows</source>
        <translation>Hachurer ce qu&apos;aucune photo ne montre</translation>
    </message>
    <message>
        <source>Fit</source>
        <translation>Ajuster</translation>
    </message>
    <message>
        <source>Show the whole shoot</source>
        <translation>Afficher toute la prise de vue</translation>
    </message>
    <message>
        <source>The focal length is not known: photos are drawn as by 50 mm</source>
        <translation>La distance focale n&apos;est pas connue&#xa0;: les photos sont dessinées comme à 50 mm</translation>
    </message>
    <message>
        <source>No gaps</source>
        <translation>Aucun trou</translation>
    </message>
    <message>
        <source>Linked to no other photo: %1</source>
        <translation>Sans lien avec une autre photo&#xa0;: %1</translation>
    </message>
</context>
<context>
    <name>PanoHost::ShootStrip</name>
    <message>
        <source>To look at</source>
        <translation>À vérifier</translation>
    </message>
    <message>
        <source>Not yet known</source>
        <translation>Pas encore connu</translation>
    </message>
    <message>
        <source>In order</source>
        <translation>Correct</translation>
    </message>
    <message>
        <source>About this shoot</source>
        <translation>À propos de cette prise de vue</translation>
    </message>
    <message>
        <source>Show what is known about this shoot</source>
        <translation>Afficher ce que l&apos;on sait de cette prise de vue</translation>
    </message>
    <message>
        <source> mm</source>
        <translation> mm</translation>
    </message>
    <message>
        <source>Focal length, as for 35 mm film</source>
        <translation>Distance focale, équivalent en film 35 mm</translation>
    </message>
</context>
<context>
    <name>PanoHost::ShootView</name>
    <message>
        <source>Picture of the shoot: %1, %2</source>
        <translation>Image de la prise de vue&#xa0;: %1, %2</translation>
    </message>
    <message>
        <source>1 photo</source>
        <translation>1 photo</translation>
    </message>
    <message>
        <source>%1 photos</source>
        <translation>%1 photos</translation>
    </message>
    <message>
        <source>1 position</source>
        <translation>1 position</translation>
    </message>
    <message>
        <source>%1 positions</source>
        <translation>%1 positions</translation>
    </message>
    <message>
        <source>position %1 of %2</source>
        <translation>position %1 sur %2</translation>
    </message>
    <message>
        <source>shot %1 of %2</source>
        <translation>vue %1 sur %2</translation>
    </message>
    <message>
        <source>first of %1 photos here</source>
        <translation>première de %1 photos ici</translation>
    </message>
    <message>
        <source>off by %1 pixels</source>
        <translation>erreur de %1 pixels</translation>
    </message>
    <message>
        <source>no control points</source>
        <translation>aucun point de contrôle</translation>
    </message>
    <message>
        <source>linked to no other photo</source>
        <translation>sans lien avec une autre photo</translation>
    </message>
    <message>
        <source>cannot be read</source>
        <translation>illisible</translation>
    </message>
    <message>
        <source>, </source>
        <translation>, </translation>
    </message>
    <message>
        <source>Off by, pixels</source>
        <translation>Erreur, pixels</translation>
    </message>
</context>
<context>
    <name>PanoHost::StripTexts</name>
    <message>
        <source>Next</source>
        <translation>Suivant</translation>
    </message>
    <message>
        <source>waits for the head&apos;s record</source>
        <translation>attend le fichier de prise de vue de la tête</translation>
    </message>
    <message>
        <source>waits for another record: this one is of %1</source>
        <translation>attend un autre fichier de prise de vue&#xa0;: celui-ci est de %1</translation>
    </message>
    <message>
        <source>waits for a record that can be read</source>
        <translation>attend un fichier de prise de vue lisible</translation>
    </message>
    <message>
        <source>waits for the photos</source>
        <translation>attend les photos</translation>
    </message>
    <message>
        <source>waits until the photos have been read</source>
        <translation>attend que les photos soient lues</translation>
    </message>
    <message>
        <source>waits: the photos do not stand at their shots</source>
        <translation>attend&#xa0;: les photos ne correspondent pas à leurs vues</translation>
    </message>
    <message>
        <source>waits: %1 for %2</source>
        <translation>attend&#xa0;: %1 pour %2</translation>
    </message>
    <message>
        <source>1 photo</source>
        <translation>1 photo</translation>
    </message>
    <message>
        <source>%1 photos</source>
        <translation>%1 photos</translation>
    </message>
    <message>
        <source>1 shot</source>
        <translation>1 vue</translation>
    </message>
    <message>
        <source>%1 shots</source>
        <translation>%1 vues</translation>
    </message>
    <message>
        <source>waits: not all photos can be used</source>
        <translation>attend&#xa0;: certaines photos sont inutilisables</translation>
    </message>
    <message>
        <source>waits: %1</source>
        <translation>attend&#xa0;: %1</translation>
    </message>
    <message>
        <source>waits: the page does not accept these photos</source>
        <translation>attend&#xa0;: la page n&apos;accepte pas ces photos</translation>
    </message>
    <message>
        <source>Record</source>
        <translation>Fichier de prise de vue</translation>
    </message>
    <message>
        <source>Grid</source>
        <translation>Grille</translation>
    </message>
    <message>
        <source>Photos</source>
        <translation>Photos</translation>
    </message>
    <message>
        <source>%1 cannot be used: %2</source>
        <translation>Inutilisables&#xa0;: %1 (%2)</translation>
    </message>
    <message>
        <source>Order</source>
        <translation>Ordre</translation>
    </message>
    <message>
        <source>each photo stands at its shot</source>
        <translation>chaque photo correspond à sa vue</translation>
    </message>
    <message>
        <source>the photos do not stand at their shots</source>
        <translation>les photos ne correspondent pas à leurs vues</translation>
    </message>
    <message>
        <source>Focal length</source>
        <translation>Distance focale</translation>
    </message>
    <message>
        <source>%1, as the last time with such photos</source>
        <translation>%1, comme la dernière fois avec de telles photos</translation>
    </message>
    <message>
        <source>%1, as entered</source>
        <translation>%1, valeur saisie</translation>
    </message>
    <message>
        <source>%1, from the record: the photos name none</source>
        <translation>%1, du fichier de prise de vue&#xa0;: les photos n&apos;en indiquent aucune</translation>
    </message>
    <message>
        <source>no photo names it: enter it, as for 35 mm film</source>
        <translation>aucune photo ne l&apos;indique&#xa0;: saisissez-la, en équivalent film 35 mm</translation>
    </message>
    <message>
        <source>Missing</source>
        <translation>Manquantes</translation>
    </message>
    <message>
        <source>Gaps</source>
        <translation>Pauses</translation>
    </message>
    <message>
        <source>Links</source>
        <translation>Liens</translation>
    </message>
    <message>
        <source>other records: %1</source>
        <translation>autres fichiers de prise de vue&#xa0;: %1</translation>
    </message>
    <message>
        <source>results of this program: %1</source>
        <translation>résultats de ce programme&#xa0;: %1</translation>
    </message>
    <message>
        <source>Not taken</source>
        <translation>Non pris en compte</translation>
    </message>
    <message>
        <source>1 thing to look at</source>
        <translation>1 point à vérifier</translation>
    </message>
    <message>
        <source>%1 things to look at</source>
        <translation>%1 points à vérifier</translation>
    </message>
    <message>
        <source>Looking at the photos...</source>
        <translation>Examen des photos...</translation>
    </message>
    <message>
        <source>Everything agrees</source>
        <translation>Tout concorde</translation>
    </message>
    <message>
        <source>Choose record...</source>
        <translation>Choisir le fichier...</translation>
    </message>
    <message>
        <source>Choose photos...</source>
        <translation>Choisir les photos...</translation>
    </message>
    <message>
        <source>Remove</source>
        <translation>Retirer</translation>
    </message>
    <message>
        <source>Replace...</source>
        <translation>Remplacer...</translation>
    </message>
    <message>
        <source>Fix</source>
        <translation>Corriger</translation>
    </message>
    <message>
        <source>Switch head</source>
        <translation>Changer de tête</translation>
    </message>
    <message>
        <source>Enter</source>
        <translation>Saisir</translation>
    </message>
    <message>
        <source>Show shots...</source>
        <translation>Afficher les vues...</translation>
    </message>
</context>
</TS>
