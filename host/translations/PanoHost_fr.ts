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
        <source>%1 x %2 in at %3 dpi</source>
        <translation>%1 x %2 po à %3 ppp</translation>
    </message>
    <message>
        <source>%1 x %2 cm at %3 dpi</source>
        <translation>%1 x %2 cm à %3 ppp</translation>
    </message>
    <message>
        <source>%1 x %2 pixels at most (%3); takes up to %4 of the disk and %5 of memory.</source>
        <translation>Au plus %1 x %2 pixels (%3)&#xa0;; occupe jusqu&apos;à %4 du disque et %5 de mémoire.</translation>
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
    <name>PanoHost::HelpMenu</name>
    <message>
        <source>&amp;Help</source>
        <translation>Ai&amp;de</translation>
    </message>
    <message>
        <source>Help</source>
        <translation>Aide</translation>
    </message>
    <message>
        <source>&amp;Preferences...</source>
        <translation>&amp;Préférences...</translation>
    </message>
    <message>
        <source>&amp;About panohost</source>
        <translation>À prop&amp;os de panohost</translation>
    </message>
</context>
<context>
    <name>PanoHost::ImportWizard</name>
    <message>
        <source>Import a panorama</source>
        <translation>Importer un panorama</translation>
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
    <message>
        <source>Centimetres</source>
        <translation>Centimètres</translation>
    </message>
    <message>
        <source>Inches</source>
        <translation>Pouces</translation>
    </message>
    <message>
        <source>&amp;Units of prints:</source>
        <translation>&amp;Unités des tirages :</translation>
    </message>
    <message>
        <source>The language changes with the next start.</source>
        <translation>La langue change au prochain démarrage.</translation>
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
    <name>PanoHost::Said</name>
    <message>
        <source>no control points are wanted (automatic detection is off): kept as recorded</source>
        <translation>aucun point de contrôle n&apos;est demandé (la détection automatique est désactivée)&#xa0;: les photos restent aux positions enregistrées</translation>
    </message>
    <message>
        <source>photos are left as recorded (optimisation is skipped)</source>
        <translation>les photos restent aux positions enregistrées (optimisation non effectuée)</translation>
    </message>
    <message>
        <source>there is one photo only: kept as recorded</source>
        <translation>il n&apos;y a qu&apos;une photo&#xa0;: elle reste à la position enregistrée</translation>
    </message>
    <message>
        <source>no two photos overlap where the record puts them: kept as recorded</source>
        <translation>aucune photo n&apos;en recouvre une autre là où le fichier de prise de vue les place&#xa0;: elles y restent</translation>
    </message>
    <message>
        <source>no spot was found in two photos (nothing but sky or fog, or the photos are not of this record): kept as recorded</source>
        <translation>aucun point commun à deux photos n&apos;a été trouvé (rien que du ciel ou du brouillard, ou des photos étrangères à ce fichier de prise de vue)&#xa0;: elles restent aux positions enregistrées</translation>
    </message>
    <message>
        <source>%1; kept as recorded</source>
        <translation>%1&#xa0;; les photos restent aux positions enregistrées</translation>
    </message>
    <message>
        <source>none of the photos can be used: were they moved since the import?</source>
        <translation>aucune photo n&apos;est utilisable&#xa0;: ont-elles été déplacées depuis l&apos;importation&#xa0;?</translation>
    </message>
    <message>
        <source>the photos fit the order &apos;%1&apos; better than &apos;%2&apos;: import them with --mode %1</source>
        <translation>les photos correspondent mieux à l&apos;ordre «&#xa0;%1&#xa0;» qu&apos;à «&#xa0;%2&#xa0;»&#xa0;: importez-les avec l&apos;ordre %1</translation>
    </message>
    <message>
        <source>the panorama is made %1 stops brighter: what is white in a photo stays white</source>
        <translation>le panorama est éclairci de %1 IL&#xa0;: ce qui est blanc sur une photo reste blanc</translation>
    </message>
    <message>
        <source>%1 of %2 tied, %3, median %4 pixels</source>
        <translation>%1 sur %2 liées, %3, médiane de %4 pixels</translation>
    </message>
    <message>
        <source>%1 point</source>
        <translation>%1 point</translation>
    </message>
    <message>
        <source>%1 points</source>
        <translation>%1 points</translation>
    </message>
    <message>
        <source> and %1 more</source>
        <translation> et %1 de plus</translation>
    </message>
    <message>
        <source>no points in %1 (%2): kept where the head put it</source>
        <translation>aucun point dans %1 (%2)&#xa0;: elle reste là où la tête l&apos;a placée</translation>
    </message>
    <message>
        <source>no points in %1 (%2): kept where the head put them</source>
        <translation>aucun point dans %1 (%2)&#xa0;: elles restent là où la tête les a placées</translation>
    </message>
    <message>
        <source>lens %1 mm instead of %2</source>
        <translation>objectif de %1 mm au lieu de %2</translation>
    </message>
    <message>
        <source>the lens darkens its corners by %1 %: evened out</source>
        <translation>l&apos;objectif assombrit les coins de %1&#xa0;%&#xa0;: compensé</translation>
    </message>
    <message>
        <source>exposures are not what the photos say, by up to %1 stops: evened out</source>
        <translation>les expositions diffèrent de ce qu&apos;indiquent les photos, jusqu&apos;à %1 IL&#xa0;: compensé</translation>
    </message>
    <message>
        <source>the head repeats to %1 degrees</source>
        <translation>répétabilité de la tête&#xa0;: %1 degrés</translation>
    </message>
    <message>
        <source>less than %1</source>
        <translation>moins de %1</translation>
    </message>
    <message>
        <source>the camera sits %1 degrees crooked on the head</source>
        <translation>l&apos;appareil est de travers de %1 degrés sur la tête</translation>
    </message>
    <message>
        <source>the head&apos;s steps are %1 (across) and %2 (up) times what was stated</source>
        <translation>les pas de la tête valent %1 fois (horizontalement) et %2 fois (verticalement) ceux indiqués</translation>
    </message>
    <message>
        <source>from %1 on the head stands %2 degrees farther right than recorded: did its turning axis slip?</source>
        <translation>à partir de %1, la tête est %2 degrés à droite de la position enregistrée&#xa0;: son axe de rotation a-t-il glissé&#xa0;?</translation>
    </message>
    <message>
        <source>from %1 on the head stands %2 degrees farther left than recorded: did its turning axis slip?</source>
        <translation>à partir de %1, la tête est %2 degrés à gauche de la position enregistrée&#xa0;: son axe de rotation a-t-il glissé&#xa0;?</translation>
    </message>
    <message>
        <source>from %1 on the head stands %2 degrees higher than recorded: did its tilting axis slip?</source>
        <translation>à partir de %1, la tête est %2 degrés au-dessus de la position enregistrée&#xa0;: son axe d&apos;inclinaison a-t-il glissé&#xa0;?</translation>
    </message>
    <message>
        <source>from %1 on the head stands %2 degrees lower than recorded: did its tilting axis slip?</source>
        <translation>à partir de %1, la tête est %2 degrés au-dessous de la position enregistrée&#xa0;: son axe d&apos;inclinaison a-t-il glissé&#xa0;?</translation>
    </message>
    <message>
        <source>%1 was taken %2 degrees from where the head says: was it bumped?</source>
        <translation>%1 a été prise à %2 degrés de la direction donnée par la tête&#xa0;: y a-t-il eu un choc&#xa0;?</translation>
    </message>
    <message>
        <source>residuals suggest parallax (%1 pixels): near things move against far ones; is the camera&apos;s nodal point on the head&apos;s axes?</source>
        <translation>les erreurs restantes font penser à une parallaxe (%1 pixels)&#xa0;: les objets proches bougent par rapport aux lointains&#xa0;; le point nodal de l&apos;appareil est-il sur les axes de la tête&#xa0;?</translation>
    </message>
    <message>
        <source>was %1 x %2 pixels when imported, is now %3 x %4</source>
        <translation>mesurait %1 x %2 pixels à l&apos;importation, mesure maintenant %3 x %4</translation>
    </message>
    <message>
        <source>cannot keep the features of photos there: %1</source>
        <translation>impossible d&apos;y conserver les détails des photos&#xa0;: %1</translation>
    </message>
    <message>
        <source>TMPDIR names a folder with more room</source>
        <translation>indiquez dans TMPDIR un dossier offrant plus d&apos;espace</translation>
    </message>
    <message>
        <source>cannot read the features of photos back: %1</source>
        <translation>impossible de relire les détails des photos&#xa0;: %1</translation>
    </message>
    <message>
        <source>not known</source>
        <translation>sans indication</translation>
    </message>
    <message>
        <source>%1: %2, bracket %3, focal %4, lens %5</source>
        <translation>%1&#xa0;: %2, bracketing de %3, focale %4, objectif %5</translation>
    </message>
    <message>
        <source>copy it from the card again</source>
        <translation>copiez-la de nouveau depuis la carte</translation>
    </message>
    <message>
        <source>%1 given, %2 readable, focal %3, lens %4</source>
        <translation>%1 choisies, %2 lisibles, focale %3, objectif %4</translation>
    </message>
    <message>
        <source>neither the photos nor the record name the focal length</source>
        <translation>ni les photos ni le fichier de prise de vue n&apos;indiquent la distance focale</translation>
    </message>
    <message>
        <source>give it, as for 35 mm film: --focal 24</source>
        <translation>saisissez-la, en équivalent film 35 mm</translation>
    </message>
    <message>
        <source>not all photos have a capture time</source>
        <translation>certaines photos n&apos;ont pas d&apos;heure de prise de vue</translation>
    </message>
    <message>
        <source>%1 was taken before %2</source>
        <translation>%1 a été prise avant %2</translation>
    </message>
    <message>
        <source>try --order time</source>
        <translation>essayez de les trier par heure</translation>
    </message>
    <message>
        <source>capture times agree</source>
        <translation>les heures de prise de vue concordent</translation>
    </message>
    <message>
        <source>none</source>
        <translation>aucun</translation>
    </message>
    <message>
        <source>%1 s after %2 (usually %3 s)</source>
        <translation>%1 s après %2 (d&apos;habitude %3 s)</translation>
    </message>
    <message>
        <source>standard</source>
        <translation>standard</translation>
    </message>
    <message>
        <source>fisheye</source>
        <translation>fisheye</translation>
    </message>
    <message>
        <source>%1 mm</source>
        <translation>%1 mm</translation>
    </message>
    <message>
        <source>this folder cannot be made</source>
        <translation>impossible de créer ce dossier</translation>
    </message>
    <message>
        <source>is the disk full, or the folder above it read-only?</source>
        <translation>le disque est-il plein, ou le dossier parent en lecture seule&#xa0;?</translation>
    </message>
    <message>
        <source>no photo reaches these sides of the cube, which are left out: %1</source>
        <translation>aucune photo n&apos;atteint ces faces du cube, qui sont omises&#xa0;: %1</translation>
    </message>
    <message>
        <source>cannot be written (%1)</source>
        <translation>écriture impossible (%1)</translation>
    </message>
    <message>
        <source>make room there or choose another place</source>
        <translation>libérez-y de l&apos;espace ou choisissez un autre emplacement</translation>
    </message>
    <message>
        <source>the folder %1 does not exist</source>
        <translation>le dossier %1 n&apos;existe pas</translation>
    </message>
    <message>
        <source>create it or choose another place</source>
        <translation>créez-le ou choisissez un autre emplacement</translation>
    </message>
    <message>
        <source>is a folder</source>
        <translation>est un dossier</translation>
    </message>
    <message>
        <source>is not a regular file</source>
        <translation>n&apos;est pas un fichier ordinaire</translation>
    </message>
    <message>
        <source>remove it or choose another name with -o</source>
        <translation>supprimez-le ou choisissez un autre nom</translation>
    </message>
    <message>
        <source>is a file, and a folder of that name is wanted</source>
        <translation>est un fichier, alors qu&apos;il faut un dossier de ce nom</translation>
    </message>
    <message>
        <source>is a folder that panohost has not made</source>
        <translation>est un dossier non créé par panohost</translation>
    </message>
    <message>
        <source>it left a file that is not complete</source>
        <translation>a laissé un fichier incomplet</translation>
    </message>
    <message>
        <source>is the disk full? make room and try again</source>
        <translation>le disque est-il plein&#xa0;? libérez de l&apos;espace et réessayez</translation>
    </message>
    <message>
        <source>make room there and try again</source>
        <translation>libérez-y de l&apos;espace et réessayez</translation>
    </message>
    <message>
        <source>the panorama has %1 x %2 pixels, and JPEG files at most %3 to a side</source>
        <translation>le panorama fait %1 x %2 pixels, et les fichiers JPEG au plus %3 de côté</translation>
    </message>
    <message>
        <source>name it .tif, or make it smaller with --size</source>
        <translation>choisissez un nom en .tif, ou une taille plus petite</translation>
    </message>
    <message>
        <source>this panorama&apos;s values are not light</source>
        <translation>les valeurs de ce panorama ne représentent pas la lumière</translation>
    </message>
    <message>
        <source>needs --output hdr</source>
        <translation>choisissez «&#xa0;La lumière elle-même (HDR)&#xa0;»</translation>
    </message>
    <message>
        <source>is not the panorama that was stitched last</source>
        <translation>n&apos;est pas le dernier panorama assemblé</translation>
    </message>
    <message>
        <source>remove it and try again</source>
        <translation>supprimez-le et réessayez</translation>
    </message>
    <message>
        <source>it left %1 incomplete</source>
        <translation>a laissé %1 incomplet</translation>
    </message>
    <message>
        <source>is the disk full?</source>
        <translation>le disque est-il plein&#xa0;?</translation>
    </message>
    <message>
        <source>the address where the folder will be reached is not known</source>
        <translation>l&apos;adresse où se trouvera le dossier n&apos;est pas connue</translation>
    </message>
    <message>
        <source>give it, such as https://example.org/panoramas</source>
        <translation>indiquez-la, par exemple https://example.org/panoramas</translation>
    </message>
    <message>
        <source>%1 less %2 ignored</source>
        <translation>%1 moins %2 à ignorer</translation>
    </message>
    <message>
        <source>%1, %2, bracket %3, %4 ignored</source>
        <translation>%1, %2, bracketing de %3, ignorées&#xa0;: %4</translation>
    </message>
    <message>
        <source>photos</source>
        <translation>photos</translation>
    </message>
    <message>
        <source>--ignore %1 leaves none of %2</source>
        <translation>si %1 sont ignorées, il n&apos;en reste aucune sur %2</translation>
    </message>
    <message>
        <source>ignore fewer, or name all photos</source>
        <translation>ignorez-en moins, ou choisissez toutes les photos</translation>
    </message>
    <message>
        <source>--bracket %1 is more than %2</source>
        <translation>%2 ne suffisent pas pour un bracketing de %1</translation>
    </message>
    <message>
        <source>each position needs all its exposures</source>
        <translation>chaque position a besoin de toutes ses expositions</translation>
    </message>
    <message>
        <source>%1 are not a multiple of bracket %2</source>
        <translation>%1 ne font pas un multiple du bracketing de %2</translation>
    </message>
    <message>
        <source>each position needs all its exposures; --ignore N leaves out the first N photos</source>
        <translation>chaque position a besoin de toutes ses expositions&#xa0;; les premières photos peuvent être ignorées</translation>
    </message>
    <message>
        <source>%1 (%2 in brackets of %3)</source>
        <translation>%1 (%2 en bracketing de %3)</translation>
    </message>
    <message>
        <source>%1 do not divide %2 evenly</source>
        <translation>%2 ne se répartissent pas à parts égales sur %1</translation>
    </message>
    <message>
        <source>are photos missing? --ignore N leaves out the first N photos</source>
        <translation>manque-t-il des photos&#xa0;? les premières peuvent être ignorées</translation>
    </message>
    <message>
        <source>%1 and %2 more</source>
        <translation>%1 et %2 autres</translation>
    </message>
    <message>
        <source>no pause tells where</source>
        <translation>aucune pause n&apos;indique où</translation>
    </message>
    <message>
        <source>the longest pause: %1, in row %2 as they were taken</source>
        <translation>la plus longue pause&#xa0;: %1, dans la ligne %2 selon l&apos;ordre de prise de vue</translation>
    </message>
    <message>
        <source>the longest pause: %1, in column %2 as they were taken</source>
        <translation>la plus longue pause&#xa0;: %1, dans la colonne %2 selon l&apos;ordre de prise de vue</translation>
    </message>
    <message>
        <source>the pictures do not tell which are missing: %1</source>
        <translation>les images ne permettent pas de savoir lesquelles manquent&#xa0;: %1</translation>
    </message>
    <message>
        <source>no photo for %1 (rows from the top, columns from the left)</source>
        <translation>aucune photo pour %1 (lignes à partir du haut, colonnes à partir de la gauche)</translation>
    </message>
    <message>
        <source>no such file</source>
        <translation>fichier introuvable</translation>
    </message>
    <message>
        <source>not a regular file</source>
        <translation>n&apos;est pas un fichier ordinaire</translation>
    </message>
    <message>
        <source>no &lt;shoot&gt; pictures</source>
        <translation>ne contient aucune image &lt;shoot&gt;</translation>
    </message>
    <message>
        <source>is it an old-style Papywizard file (image/coords)?</source>
        <translation>est-ce un ancien fichier Papywizard (image/coords)&#xa0;?</translation>
    </message>
    <message>
        <source>its &lt;shoot&gt; holds no &lt;pict&gt;: no shot was recorded</source>
        <translation>son &lt;shoot&gt; ne contient aucun &lt;pict&gt;&#xa0;: aucune vue n&apos;a été enregistrée</translation>
    </message>
    <message>
        <source>choose the record of a finished shoot</source>
        <translation>choisissez le fichier d&apos;une prise de vue terminée</translation>
    </message>
    <message>
        <source>no op_shoot command: no shot was recorded</source>
        <translation>aucune commande op_shoot&#xa0;: aucune vue n&apos;a été enregistrée</translation>
    </message>
    <message>
        <source>is it the script that the head ran?</source>
        <translation>est-ce bien le script exécuté par la tête&#xa0;?</translation>
    </message>
    <message>
        <source>correct this line, or choose another script</source>
        <translation>corrigez cette ligne, ou choisissez un autre script</translation>
    </message>
    <message>
        <source>line %1: %2</source>
        <translation>ligne %1&#xa0;: %2</translation>
    </message>
    <message>
        <source>is it the record that the head wrote?</source>
        <translation>est-ce bien le fichier écrit par la tête&#xa0;?</translation>
    </message>
    <message>
        <source>no such record</source>
        <translation>fichier de prise de vue introuvable</translation>
    </message>
    <message>
        <source>check the name</source>
        <translation>vérifiez le nom</translation>
    </message>
    <message>
        <source>unknown head &apos;%1&apos;%2</source>
        <translation>tête inconnue «&#xa0;%1&#xa0;»%2</translation>
    </message>
    <message>
        <source>heads: %1</source>
        <translation>têtes&#xa0;: %1</translation>
    </message>
    <message>
        <source>no record of some of its shots can be made</source>
        <translation>impossible de créer un fichier de prise de vue avec certaines vues seulement</translation>
    </message>
    <message>
        <source>take the shots by hand</source>
        <translation>prenez les vues à la main</translation>
    </message>
    <message>
        <source>using %1</source>
        <translation>utilisation de %1</translation>
    </message>
    <message>
        <source>has no import plug-in for %1</source>
        <translation>n&apos;a pas de module d&apos;importation pour %1</translation>
    </message>
    <message>
        <source>set --plugin to another library</source>
        <translation>utilisez une autre bibliothèque de modules</translation>
    </message>
    <message>
        <source>the page refuses them</source>
        <translation>la page les refuse</translation>
    </message>
    <message>
        <source>make it first</source>
        <translation>créez-le d&apos;abord</translation>
    </message>
    <message>
        <source>name a file in it</source>
        <translation>choisissez un fichier dans ce dossier</translation>
    </message>
    <message>
        <source>name a file of your own</source>
        <translation>choisissez un fichier qui vous appartient</translation>
    </message>
    <message>
        <source>cannot be written there: %1</source>
        <translation>impossible d&apos;y écrire&#xa0;: %1</translation>
    </message>
    <message>
        <source>choose a folder of your own</source>
        <translation>choisissez un dossier qui vous appartient</translation>
    </message>
    <message>
        <source>is one of the input files</source>
        <translation>est l&apos;un des fichiers d&apos;entrée</translation>
    </message>
    <message>
        <source>choose another name for the result</source>
        <translation>choisissez un autre nom pour le résultat</translation>
    </message>
    <message>
        <source>given twice</source>
        <translation>choisie deux fois</translation>
    </message>
    <message>
        <source>name each photo once</source>
        <translation>ne choisissez chaque photo qu&apos;une fois</translation>
    </message>
    <message>
        <source>no such photo</source>
        <translation>photo introuvable</translation>
    </message>
    <message>
        <source>rename the file: its name is not in UTF-8</source>
        <translation>renommez le fichier&#xa0;: son nom n&apos;est pas en UTF-8</translation>
    </message>
    <message>
        <source>name the photos in it, e.g. %1/*.jpg</source>
        <translation>choisissez les photos qu&apos;il contient, p. ex. %1/*.jpg</translation>
    </message>
    <message>
        <source>name photos only</source>
        <translation>ne choisissez que des photos</translation>
    </message>
    <message>
        <source>cannot be read: permission denied</source>
        <translation>illisible&#xa0;: permission refusée</translation>
    </message>
    <message>
        <source>copy it to a folder of your own</source>
        <translation>copiez-la dans un dossier qui vous appartient</translation>
    </message>
    <message>
        <source>are photos missing, or did the shoot stop early?</source>
        <translation>manque-t-il des photos, ou la prise de vue s&apos;est-elle arrêtée trop tôt&#xa0;?</translation>
    </message>
    <message>
        <source>are test shots among the photos?</source>
        <translation>y a-t-il des vues d&apos;essai parmi les photos&#xa0;?</translation>
    </message>
    <message>
        <source>records %1, %2 given</source>
        <translation>contient %1 pour %2</translation>
    </message>
    <message>
        <source>has no capture time to order by</source>
        <translation>n&apos;a pas d&apos;heure de prise de vue pour être triée</translation>
    </message>
    <message>
        <source>use --order name or --order given</source>
        <translation>triez les photos par nom</translation>
    </message>
    <message>
        <source>the record</source>
        <translation>le fichier de prise de vue</translation>
    </message>
    <message>
        <source>the photos&apos; EXIF data</source>
        <translation>les données EXIF des photos</translation>
    </message>
    <message>
        <source>the photos&apos; EXIF data or the record</source>
        <translation>les données EXIF des photos ou le fichier de prise de vue</translation>
    </message>
    <message>
        <source>focal length</source>
        <translation>distance focale</translation>
    </message>
    <message>
        <source>not known from %1</source>
        <translation>introuvable dans %1</translation>
    </message>
    <message>
        <source>give it with --focal MM (35 mm equivalent)</source>
        <translation>revenez en arrière et saisissez-la (équivalent 35 mm)</translation>
    </message>
    <message>
        <source>focal length %1 (EXIF) against %2 (record); using EXIF; choose with --focal</source>
        <translation>distance focale de %1 (EXIF) contre %2 (fichier de prise de vue)&#xa0;; celle de l&apos;EXIF est utilisée</translation>
    </message>
    <message>
        <source>%1 of the photos name no focal length; using that of the others; choose with --focal</source>
        <translation>%1 des photos n&apos;indiquent pas la distance focale&#xa0;; celle des autres est utilisée</translation>
    </message>
    <message>
        <source>%1 lens (EXIF) against %2 (record); using EXIF; choose with --lens</source>
        <translation>objectif %1 (EXIF) contre %2 (fichier de prise de vue)&#xa0;; celui de l&apos;EXIF est utilisé</translation>
    </message>
    <message>
        <source>the photos name focal lengths from %1 to %2; using their median; choose with --focal</source>
        <translation>les photos indiquent des distances focales de %1 à %2&#xa0;; leur médiane est utilisée</translation>
    </message>
    <message>
        <source>plug-in page</source>
        <translation>page du module</translation>
    </message>
    <message>
        <source>has no &apos;%1&apos;</source>
        <translation>n&apos;a pas de «&#xa0;%1&#xa0;»</translation>
    </message>
    <message>
        <source>is this library of another version? set --plugin</source>
        <translation>cette bibliothèque est-elle d&apos;une autre version&#xa0;?</translation>
    </message>
    <message>
        <source>%1 is not between %2 and %3</source>
        <translation>%1 n&apos;est pas compris entre %2 et %3</translation>
    </message>
    <message>
        <source>its photo button opens no file dialog</source>
        <translation>son bouton de photos n&apos;ouvre aucune boîte de dialogue de fichiers</translation>
    </message>
    <message>
        <source> (and %1 more of %2 photos)</source>
        <translation> (et %1 de plus, sur %2 photos)</translation>
    </message>
    <message>
        <source>cannot read (%1)%2</source>
        <translation>illisible (%1)%2</translation>
    </message>
    <message>
        <source>is it a photo? try &apos;panohost check&apos;</source>
        <translation>est-ce bien une photo&#xa0;? voyez la ligne sous la page</translation>
    </message>
    <message>
        <source>the page does not accept them</source>
        <translation>la page ne les accepte pas</translation>
    </message>
    <message>
        <source>try &apos;panohost check&apos;</source>
        <translation>voyez la ligne sous la page</translation>
    </message>
    <message>
        <source>refused by the plug-in</source>
        <translation>refusé par le module</translation>
    </message>
    <message>
        <source>temporary links to the photos</source>
        <translation>liens temporaires vers les photos</translation>
    </message>
    <message>
        <source>is the temporary folder full? set TMPDIR</source>
        <translation>le dossier temporaire est-il plein&#xa0;? indiquez-en un autre dans TMPDIR</translation>
    </message>
    <message>
        <source>of no shot</source>
        <translation>aucune vue</translation>
    </message>
    <message>
        <source>shot %1</source>
        <translation>la vue %1</translation>
    </message>
    <message>
        <source>: %1 may be %2 (%3 %) or %4</source>
        <translation>, car %1 correspond à %2 (%3&#xa0;%) ou à %4</translation>
    </message>
    <message>
        <source>which photo belongs to which shot cannot be told surely%1; take photos of other shoots away, or say the order with --order name, time or given</source>
        <translation>impossible de savoir avec certitude quelle photo va avec quelle vue%1&#xa0;; retirez les photos d&apos;autres prises de vue</translation>
    </message>
    <message>
        <source>%1 for shot %2</source>
        <translation>%1 pour la vue %2</translation>
    </message>
    <message>
        <source>the camera took several photos for each shot: the last one of each is used</source>
        <translation>l&apos;appareil a pris plusieurs photos par vue&#xa0;: la dernière de chacune est utilisée</translation>
    </message>
    <message>
        <source>taken more than once; used: %1</source>
        <translation>prises plusieurs fois&#xa0;; photos utilisées&#xa0;: %1</translation>
    </message>
    <message>
        <source>the camera&apos;s counter began again among these photos: they are ordered by time</source>
        <translation>le compteur de l&apos;appareil est reparti du début parmi ces photos&#xa0;: elles sont triées par heure</translation>
    </message>
    <message>
        <source>photo numbers begin again (another card?): they are ordered by time</source>
        <translation>les numéros des photos repartent du début (autre carte&#xa0;?)&#xa0;: elles sont triées par heure</translation>
    </message>
    <message>
        <source>names and times disagree: photos are ordered by time</source>
        <translation>les noms et les heures ne concordent pas&#xa0;: les photos sont triées par heure</translation>
    </message>
    <message>
        <source>no photo for %1%2</source>
        <translation>aucune photo pour %1%2</translation>
    </message>
    <message>
        <source> (was the shoot stopped?)</source>
        <translation> (la prise de vue a-t-elle été arrêtée&#xa0;?)</translation>
    </message>
    <message>
        <source>take them again if you can</source>
        <translation>refaites-les si vous le pouvez</translation>
    </message>
    <message>
        <source>%1 min %2 s</source>
        <translation>%1 min %2 s</translation>
    </message>
    <message>
        <source>1 hour</source>
        <translation>1 heure</translation>
    </message>
    <message>
        <source>%1 hours</source>
        <translation>%1 heures</translation>
    </message>
    <message>
        <source>the camera&apos;s clock is %1 ahead of the head&apos;s</source>
        <translation>l&apos;horloge de l&apos;appareil est en avance de %1 sur celle de la tête</translation>
    </message>
    <message>
        <source>the camera&apos;s clock is %1 behind the head&apos;s</source>
        <translation>l&apos;horloge de l&apos;appareil est en retard de %1 sur celle de la tête</translation>
    </message>
    <message>
        <source>the camera&apos;s clock gains %1 s in a minute</source>
        <translation>l&apos;horloge de l&apos;appareil avance de %1 s par minute</translation>
    </message>
    <message>
        <source>the camera&apos;s clock loses %1 s in a minute</source>
        <translation>l&apos;horloge de l&apos;appareil retarde de %1 s par minute</translation>
    </message>
    <message>
        <source>the same picture: %1</source>
        <translation>la même image&#xa0;: %1</translation>
    </message>
    <message>
        <source>before the first shot (a test?): left out</source>
        <translation>avant la première vue (un essai&#xa0;?), hors panorama</translation>
    </message>
    <message>
        <source>of another size: left out</source>
        <translation>d&apos;une autre taille, hors panorama</translation>
    </message>
    <message>
        <source>not of this shoot: left out</source>
        <translation>d&apos;une autre prise de vue, hors panorama</translation>
    </message>
    <message>
        <source>which photo belongs to which shot could not be checked (%1): they are taken in the order of their names</source>
        <translation>impossible de vérifier quelle photo va avec quelle vue (%1)&#xa0;: elles sont prises dans l&apos;ordre de leurs noms</translation>
    </message>
    <message>
        <source>names, times and counts</source>
        <translation>noms, heures et nombres</translation>
    </message>
    <message>
        <source>names and counts</source>
        <translation>noms et nombres</translation>
    </message>
    <message>
        <source>the record tells no times</source>
        <translation>le fichier de prise de vue n&apos;indique pas d&apos;heures</translation>
    </message>
    <message>
        <source>the photos tell no times</source>
        <translation>les photos n&apos;indiquent pas d&apos;heures</translation>
    </message>
    <message>
        <source>the times of photos and record do not agree</source>
        <translation>les heures des photos et du fichier de prise de vue ne concordent pas</translation>
    </message>
    <message>
        <source>%1 left out: other files of the same photos are used, JPEG before RAW</source>
        <translation>%1 en double&#xa0;: d&apos;autres fichiers des mêmes photos sont utilisés, JPEG avant RAW</translation>
    </message>
    <message>
        <source>not opened: %1 agree</source>
        <translation>non ouvertes&#xa0;: %1 concordent</translation>
    </message>
    <message>
        <source>the grid</source>
        <translation>la grille</translation>
    </message>
    <message>
        <source>none of its shots has a photo</source>
        <translation>aucune de ses vues n&apos;a de photo</translation>
    </message>
    <message>
        <source>are these the photos of this shoot?</source>
        <translation>ces photos sont-elles celles de cette prise de vue&#xa0;?</translation>
    </message>
    <message>
        <source>was made of other photos</source>
        <translation>à partir d&apos;autres photos</translation>
    </message>
    <message>
        <source>%1 between %2</source>
        <translation>%1 entre %2</translation>
    </message>
    <message>
        <source>; %1 without a neighbour near enough</source>
        <translation>, dont %1 sans voisine assez proche</translation>
    </message>
    <message>
        <source>%1 to %2</source>
        <translation>%1 à %2</translation>
    </message>
    <message>
        <source>shots %1</source>
        <translation>les vues %1</translation>
    </message>
    <message>
        <source>, exposure %1 of %2</source>
        <translation>, exposition %1 sur %2</translation>
    </message>
    <message>
        <source>no photo for shot %1 (yaw %2, pitch %3%4)</source>
        <translation>aucune photo pour la vue %1 (lacet %2, tangage %3%4)</translation>
    </message>
    <message>
        <source>no photo for %1</source>
        <translation>aucune photo pour %1</translation>
    </message>
    <message>
        <source>panorama of %1 x %2 pixels: takes about %3 in %4 (%5 are free) and %6 of memory</source>
        <translation>panorama de %1 x %2 pixels&#xa0;: occupe environ %3 dans %4 (%5 libres) et %6 de mémoire</translation>
    </message>
    <message>
        <source>the light is exact to a fraction of a percent, but where every exposure clips it or shows noise</source>
        <translation>la lumière est exacte à moins d&apos;un pour cent près, sauf là où toutes les expositions sont brûlées ou bruitées</translation>
    </message>
    <message>
        <source>the light is good for looking at, not for measuring: the photos&apos; curve is taken for sRGB&apos;s; RAW files, or TIFFs without a curve and --linear, make it exact</source>
        <translation>la lumière convient pour être regardée, non mesurée&#xa0;: la courbe des photos est supposée être celle de sRGB&#xa0;; des fichiers RAW la rendent exacte</translation>
    </message>
    <message>
        <source>is to hold what is kept of this panorama, and holds something else</source>
        <translation>devait contenir ce qui est conservé de ce panorama, et contient autre chose</translation>
    </message>
    <message>
        <source>rename it, or choose another name with -o</source>
        <translation>renommez-le, ou choisissez un autre nom</translation>
    </message>
    <message>
        <source>the project asks for another projection; the panorama becomes equirectangular</source>
        <translation>le projet demande une autre projection&#xa0;; le panorama sera équirectangulaire</translation>
    </message>
    <message>
        <source>masks that include a region are passed over, only those that exclude one count</source>
        <translation>les masques qui incluent une zone sont ignorés, seuls comptent ceux qui en excluent une</translation>
    </message>
    <message>
        <source>--centre turns full turns only; this part of the sphere stays as it is</source>
        <translation>seul un panorama à tour complet peut être tourné&#xa0;; cette partie de la sphère reste telle quelle</translation>
    </message>
    <message>
        <source>%1: cannot be read to its end; copy it from the card again, or take it again</source>
        <translation>%1&#xa0;: lecture impossible jusqu&apos;au bout&#xa0;; copiez-la de nouveau depuis la carte, ou refaites la vue</translation>
    </message>
    <message>
        <source>%1 of them are RAW files</source>
        <translation>fichiers RAW parmi elles&#xa0;: %1</translation>
    </message>
    <message>
        <source>add --raw-converter dcraw, dcraw_emu, darktable-cli or rawtherapee-cli, or give JPEGs or TIFFs of them</source>
        <translation>installez dcraw, libraw-bin, darktable ou rawtherapee, ou prenez les JPEG ou TIFF de ces photos</translation>
    </message>
    <message>
        <source>photos stay where the head says: optimisation is skipped</source>
        <translation>les photos restent là où la tête l&apos;indique&#xa0;: optimisation non effectuée</translation>
    </message>
    <message>
        <source>what was finished is kept in %1: the same command goes on from there</source>
        <translation>ce qui est terminé est conservé dans %1&#xa0;: «&#xa0;Créer le panorama&#xa0;» reprend à cet endroit</translation>
    </message>
    <message>
        <source>photos lie where the record puts them in these commands: nothing is aligned yet</source>
        <translation>les photos sont aux positions enregistrées&#xa0;: rien n&apos;est encore aligné</translation>
    </message>
    <message>
        <source>a Hugin project cannot hold a file name with quotation marks or line ends, and no link to it can be made in %1</source>
        <translation>un projet Hugin n&apos;admet pas de nom de fichier avec guillemets ou saut de ligne, et aucun lien vers ce fichier ne peut être créé dans %1</translation>
    </message>
    <message>
        <source>rename the file</source>
        <translation>renommez le fichier</translation>
    </message>
    <message>
        <source>name dcraw, dcraw_emu, darktable-cli or rawtherapee-cli, or a command with %i for the RAW file and %o for the TIFF</source>
        <translation>indiquez dcraw, dcraw_emu, darktable-cli ou rawtherapee-cli, ou une commande avec %i pour le fichier RAW et %o pour le TIFF</translation>
    </message>
    <message>
        <source>this RAW converter was not found</source>
        <translation>ce convertisseur RAW est introuvable</translation>
    </message>
    <message>
        <source>is its name right? of those known: apt install dcraw, libraw-bin, darktable or rawtherapee</source>
        <translation>son nom est-il juste&#xa0;? parmi ceux connus&#xa0;: apt install dcraw, libraw-bin, darktable ou rawtherapee</translation>
    </message>
    <message>
        <source>the camera chose the white balance of %1 RAW files one by one, and %2 follows it: their colours may differ; dcraw takes the first one&apos;s for all</source>
        <translation>l&apos;appareil a choisi la balance des blancs de %1 fichiers RAW un par un, et %2 la suit&#xa0;: leurs couleurs peuvent différer&#xa0;; dcraw prend celle du premier pour tous</translation>
    </message>
    <message>
        <source>this copy of a photo cannot be made</source>
        <translation>impossible de créer cette copie d&apos;une photo</translation>
    </message>
    <message>
        <source>is the photo readable? is the disk full?</source>
        <translation>la photo est-elle lisible&#xa0;? le disque est-il plein&#xa0;?</translation>
    </message>
    <message>
        <source>, of %1</source>
        <translation>, pour %1</translation>
    </message>
    <message>
        <source>it left no whole picture of %1</source>
        <translation>n&apos;a pas laissé d&apos;image complète de %1</translation>
    </message>
    <message>
        <source>can it read this camera&apos;s files? is the disk full?</source>
        <translation>peut-il lire les fichiers de cet appareil&#xa0;? le disque est-il plein&#xa0;?</translation>
    </message>
    <message>
        <source>names no program</source>
        <translation>n&apos;indique aucun programme</translation>
    </message>
    <message>
        <source>does not say where its files go</source>
        <translation>n&apos;indique pas où vont ses fichiers</translation>
    </message>
    <message>
        <source>row %1 of column %2</source>
        <translation>la ligne %1 de la colonne %2</translation>
    </message>
    <message>
        <source>the grid reaches around the sphere: overlap or rows do not fit this lens</source>
        <translation>la grille fait le tour de la sphère&#xa0;: le recouvrement ou les lignes ne vont pas avec cet objectif</translation>
    </message>
    <message numerus="yes">
        <source>%n column</source>
        <translation>
            <numerusform>%n colonne</numerusform>
            <numerusform>%n colonnes</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%n file</source>
        <translation>
            <numerusform>%n fichier</numerusform>
            <numerusform>%n fichiers</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%n link</source>
        <translation>
            <numerusform>%n lien</numerusform>
            <numerusform>%n liens</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%n photo</source>
        <translation>
            <numerusform>%n photo</numerusform>
            <numerusform>%n photos</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%n position</source>
        <translation>
            <numerusform>%n position</numerusform>
            <numerusform>%n positions</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%n row</source>
        <translation>
            <numerusform>%n ligne</numerusform>
            <numerusform>%n lignes</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%n shot</source>
        <translation>
            <numerusform>%n vue</numerusform>
            <numerusform>%n vues</numerusform>
        </translation>
    </message>
    <message>
        <source>the description</source>
        <translation>la description</translation>
    </message>
    <message>
        <source>%1 recorded directions for %2 photos at %3 positions</source>
        <translation>%1 directions enregistrées pour %2 photos à %3 positions</translation>
    </message>
    <message>
        <source>its direction is not a number</source>
        <translation>sa direction n&apos;est pas un nombre</translation>
    </message>
    <message>
        <source>correct the record</source>
        <translation>corrigez le fichier de prise de vue</translation>
    </message>
    <message>
        <source>position %1</source>
        <translation>la position %1</translation>
    </message>
    <message>
        <source>has no photo</source>
        <translation>n&apos;a pas de photo</translation>
    </message>
    <message>
        <source>holds no photos</source>
        <translation>ne contient pas de photos</translation>
    </message>
    <message>
        <source>name a file that &apos;panohost import --json&apos; has written</source>
        <translation>choisissez une description enregistrée avec panohost</translation>
    </message>
    <message>
        <source>cannot read (not a photo?)</source>
        <translation>illisible (n&apos;est-ce pas une photo&#xa0;?)</translation>
    </message>
    <message>
        <source>its pixels cannot be decoded (a RAW file?)</source>
        <translation>impossible de décoder ses pixels (un fichier RAW&#xa0;?)</translation>
    </message>
    <message>
        <source>too large to decode</source>
        <translation>trop grande pour être décodée</translation>
    </message>
    <message>
        <source>give it with --focal</source>
        <translation>revenez en arrière et saisissez-la</translation>
    </message>
    <message>
        <source>neither the record nor the photos name it</source>
        <translation>ni le fichier de prise de vue ni les photos ne l&apos;indiquent</translation>
    </message>
    <message>
        <source>no lens has %1 mm</source>
        <translation>aucun objectif n&apos;a %1 mm</translation>
    </message>
    <message>
        <source>its size in pixels is not known</source>
        <translation>sa taille en pixels n&apos;est pas connue</translation>
    </message>
    <message>
        <source>can another program open it? leave it out if not</source>
        <translation>un autre programme peut-il l&apos;ouvrir&#xa0;? sinon, ne l&apos;utilisez pas</translation>
    </message>
    <message>
        <source>the photos have %1 different sizes in pixels</source>
        <translation>les photos ont %1 tailles différentes en pixels</translation>
    </message>
    <message>
        <source>a Hugin project cannot hold a file name with quotation marks or line ends</source>
        <translation>un projet Hugin n&apos;admet pas de nom de fichier avec guillemets ou saut de ligne</translation>
    </message>
    <message>
        <source>%1 of %2 photos name no exposure; %3 is assumed</source>
        <translation>%1 photos sur %2 n&apos;indiquent pas l&apos;exposition&#xa0;; %3 est supposé</translation>
    </message>
    <message>
        <source>larger than %1 bytes</source>
        <translation>plus de %1 octets</translation>
    </message>
    <message>
        <source>give the name of a file</source>
        <translation>indiquez le nom d&apos;un fichier</translation>
    </message>
    <message>
        <source>set --plugin or PANOHOST_PLUGIN_PATH to libXPanoHead.so</source>
        <translation>faites pointer PANOHOST_PLUGIN_PATH vers libXPanoHead.so</translation>
    </message>
    <message>
        <source>no such file or folder</source>
        <translation>fichier ou dossier introuvable</translation>
    </message>
    <message>
        <source>import plug-ins</source>
        <translation>modules d&apos;importation</translation>
    </message>
    <message>
        <source>no plug-in library in %1</source>
        <translation>aucune bibliothèque de modules dans %1</translation>
    </message>
    <message>
        <source>is not a Qt plug-in library</source>
        <translation>n&apos;est pas une bibliothèque de modules Qt</translation>
    </message>
    <message>
        <source>its interface is &apos;%1&apos;, &apos;%2&apos; is needed</source>
        <translation>son interface est «&#xa0;%1&#xa0;», il faut «&#xa0;%2&#xa0;»</translation>
    </message>
    <message>
        <source>offers no list of plug-ins</source>
        <translation>ne propose pas de liste de modules</translation>
    </message>
    <message>
        <source>holds no import plug-in</source>
        <translation>ne contient aucun module d&apos;importation</translation>
    </message>
    <message>
        <source>cannot be written</source>
        <translation>écriture impossible</translation>
    </message>
    <message>
        <source>is of another size than the others of its bracket</source>
        <translation>n&apos;a pas la même taille que les autres de son bracketing</translation>
    </message>
    <message>
        <source>is no warped light</source>
        <translation>ne contient pas de lumière déformée</translation>
    </message>
    <message>
        <source>these photos of the project, and %1 more, are not there any more</source>
        <translation>ces photos du projet, et %1 de plus, n&apos;existent plus</translation>
    </message>
    <message>
        <source>not there any more</source>
        <translation>il n&apos;y a plus rien à cet endroit</translation>
    </message>
    <message>
        <source>put the photos back where they were, or import them again</source>
        <translation>remettez les photos à leur place, ou importez-les de nouveau</translation>
    </message>
    <message>
        <source>%1 has %2 bits a colour, %3 has %4, and all must be alike to be blended</source>
        <translation>%1 a %2 bits par couleur, %3 en a %4, et toutes doivent être pareilles pour être raccordées</translation>
    </message>
    <message>
        <source>convert or develop them alike</source>
        <translation>convertissez-les ou développez-les de la même façon</translation>
    </message>
    <message>
        <source>was not written to its end</source>
        <translation>n&apos;a pas été écrit jusqu&apos;au bout</translation>
    </message>
    <message>
        <source>is there enough room in %1?</source>
        <translation>y a-t-il assez d&apos;espace dans %1&#xa0;?</translation>
    </message>
    <message>
        <source>nona, of %1</source>
        <translation>nona, pour %1</translation>
    </message>
    <message>
        <source>made no picture of %1</source>
        <translation>n&apos;a créé aucune image de %1</translation>
    </message>
    <message>
        <source>is it a photo that other programs open?</source>
        <translation>est-ce une photo que d&apos;autres programmes ouvrent&#xa0;?</translation>
    </message>
    <message>
        <source>size of the panorama</source>
        <translation>taille du panorama</translation>
    </message>
    <message>
        <source>%1 x %2 pixels cannot be made</source>
        <translation>impossible de créer %1 x %2 pixels</translation>
    </message>
    <message>
        <source>choose another --size</source>
        <translation>choisissez une autre taille</translation>
    </message>
    <message>
        <source>the stitch needs %1 there, %2 are free</source>
        <translation>le panorama y demande %1, %2 sont libres</translation>
    </message>
    <message>
        <source>make room, name another place with -o, or choose a smaller --size</source>
        <translation>libérez de l&apos;espace, choisissez un autre emplacement ou une taille plus petite</translation>
    </message>
    <message>
        <source>memory</source>
        <translation>mémoire</translation>
    </message>
    <message>
        <source>the stitch needs about %1, %2 are available</source>
        <translation>le panorama demande environ %1, %2 sont disponibles</translation>
    </message>
    <message>
        <source>close other programs, or choose --jobs 1 or a smaller --size</source>
        <translation>fermez d&apos;autres programmes, ou choisissez une taille plus petite</translation>
    </message>
    <message>
        <source>try it by itself</source>
        <translation>essayez-le séparément</translation>
    </message>
    <message>
        <source>%1 minutes</source>
        <translation>%1 minutes</translation>
    </message>
    <message>
        <source>it was killed, perhaps because memory ran out</source>
        <translation>a été interrompu, peut-être faute de mémoire</translation>
    </message>
    <message>
        <source>close other programs and try again</source>
        <translation>fermez d&apos;autres programmes et réessayez</translation>
    </message>
    <message>
        <source>it crashed (signal %1)</source>
        <translation>s&apos;est arrêté brutalement (signal %1)</translation>
    </message>
    <message>
        <source>%1 and said: %2</source>
        <translation>%1, avec le message&#xa0;: %2</translation>
    </message>
    <message>
        <source> if so: %1</source>
        <translation> si oui&#xa0;: %1</translation>
    </message>
    <message>
        <source>this program is needed for stitching and was not found</source>
        <translation>ce programme est nécessaire pour créer le panorama et est introuvable</translation>
    </message>
    <message>
        <source>cannot be started (%1)</source>
        <translation>impossible de le démarrer (%1)</translation>
    </message>
    <message>
        <source>it was stopped since it did nothing for %1</source>
        <translation>a été arrêté, n&apos;ayant rien fait pendant %1</translation>
    </message>
    <message>
        <source>is the machine very busy, or a network drive away? try again</source>
        <translation>l&apos;ordinateur est-il très occupé, ou un lecteur réseau absent&#xa0;? réessayez</translation>
    </message>
    <message>
        <source>it failed without a message</source>
        <translation>a échoué sans message</translation>
    </message>
    <message>
        <source>it failed and said: %1</source>
        <translation>a échoué avec le message&#xa0;: %1</translation>
    </message>
    <message>
        <source>is the disk full, or a file damaged that it reads?</source>
        <translation>le disque est-il plein, ou un fichier à lire endommagé&#xa0;?</translation>
    </message>
    <message>
        <source>it failed, and there is hardly any room left on the disk at %1 (%2)</source>
        <translation>a échoué, et il ne reste presque plus d&apos;espace sur le disque à %1 (%2)</translation>
    </message>
    <message>
        <source>make room there and go on with the same command; nothing is lost</source>
        <translation>libérez-y de l&apos;espace et appuyez de nouveau sur «&#xa0;Créer le panorama&#xa0;»&#xa0;; rien n&apos;est perdu</translation>
    </message>
    <message>
        <source>was the disk full? remove the file and try again</source>
        <translation>le disque était-il plein&#xa0;? supprimez le fichier et réessayez</translation>
    </message>
    <message>
        <source>cannot be read</source>
        <translation>illisible</translation>
    </message>
    <message>
        <source>is no picture of 8, 16 or floating bits</source>
        <translation>n&apos;est pas une image en 8 bits, 16 bits ou virgule flottante</translation>
    </message>
    <message>
        <source>is cut off</source>
        <translation>est tronqué</translation>
    </message>
    <message>
        <source>cannot be mapped into memory</source>
        <translation>impossible de le projeter en mémoire</translation>
    </message>
    <message>
        <source>is the disk full, or the folder read-only?</source>
        <translation>le disque est-il plein, ou le dossier en lecture seule&#xa0;?</translation>
    </message>
    <message>
        <source>%1, process %2 on %3</source>
        <translation>%1, processus %2 sur %3</translation>
    </message>
    <message>
        <source>another program</source>
        <translation>un autre programme</translation>
    </message>
    <message>
        <source>there is a file of that name: rename it, or choose another name with -o</source>
        <translation>un fichier porte ce nom&#xa0;: renommez-le, ou choisissez un autre nom</translation>
    </message>
    <message>
        <source>is in use by %1</source>
        <translation>est utilisé par %1</translation>
    </message>
    <message>
        <source>wait for it to end, or choose another name with -o</source>
        <translation>attendez qu&apos;il se termine, ou choisissez un autre nom</translation>
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
