<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<TS version="2.1" language="es" sourcelanguage="en">
<context>
    <name>MakeTexts</name>
    <message>
        <source>Reading the photos</source>
        <translation>Leyendo las fotos</translation>
    </message>
    <message>
        <source>Developing RAW files</source>
        <translation>Revelando los archivos RAW</translation>
    </message>
    <message>
        <source>Looking for details in the photos</source>
        <translation>Buscando detalles en las fotos</translation>
    </message>
    <message>
        <source>Comparing neighbouring photos</source>
        <translation>Comparando fotos vecinas</translation>
    </message>
    <message>
        <source>Putting the photos in their places</source>
        <translation>Colocando las fotos en su sitio</translation>
    </message>
    <message>
        <source>Comparing the light of the photos</source>
        <translation>Comparando la luz de las fotos</translation>
    </message>
    <message>
        <source>Joining brackets</source>
        <translation>Uniendo las exposiciones</translation>
    </message>
    <message>
        <source>Bending the photos into shape</source>
        <translation>Deformando las fotos</translation>
    </message>
    <message>
        <source>Blending the photos</source>
        <translation>Uniendo las fotos sin costuras</translation>
    </message>
    <message>
        <source>Fusing brackets</source>
        <translation>Fusionando las exposiciones</translation>
    </message>
    <message>
        <source>Writing the picture</source>
        <translation>Escribiendo la imagen</translation>
    </message>
    <message>
        <source>Making the page</source>
        <translation>Creando la página</translation>
    </message>
    <message>
        <source>Cutting tiles to zoom into</source>
        <translation>Cortando teselas para el zoom</translation>
    </message>
    <message>
        <source>Done</source>
        <translation>Listo</translation>
    </message>
    <message>
        <source>%1 (step %2 of %3)</source>
        <translation>%1 (paso %2 de %3)</translation>
    </message>
    <message>
        <source>or choose a smaller size</source>
        <translation>o elija un tamaño menor</translation>
    </message>
    <message>
        <source>choose a smaller size</source>
        <translation>elija un tamaño menor</translation>
    </message>
    <message>
        <source>choose another size</source>
        <translation>elija otro tamaño</translation>
    </message>
    <message>
        <source>RAW files make it exact</source>
        <translation>los archivos RAW la hacen exacta</translation>
    </message>
    <message>
        <source>press Make panorama again</source>
        <translation>pulse de nuevo «Crear panorama»</translation>
    </message>
    <message>
        <source>go back and enter it</source>
        <translation>vuelva atrás e introdúzcala</translation>
    </message>
    <message>
        <source>Make panorama goes on from here</source>
        <translation>«Crear panorama» continúa desde aquí</translation>
    </message>
    <message>
        <source>%1 x %2 pixels at most; takes up to %3 of the disk and %4 of memory.</source>
        <translation>Como máximo %1 x %2 píxeles; ocupa hasta %3 de disco y %4 de memoria.</translation>
    </message>
</context>
<context>
    <name>PanoHost</name>
    <message>
        <source>%1 s left</source>
        <translation>quedan %1 s</translation>
    </message>
    <message>
        <source>%1 min left</source>
        <translation>quedan %1 min</translation>
    </message>
    <message>
        <source>%1 h %2 min left</source>
        <translation>quedan %1 h %2 min</translation>
    </message>
</context>
<context>
    <name>PanoHost::AboutBox</name>
    <message>
        <source>About panohost</source>
        <translation>Acerca de panohost</translation>
    </message>
    <message>
        <source>Licences</source>
        <translation>Licencias</translation>
    </message>
    <message>
        <source>panohost as a program: GPL-3.0-or-later; its source: GPL-2.0-or-later.</source>
        <translation>panohost como programa: GPL-3.0-or-later; su código fuente: GPL-2.0-or-later.</translation>
    </message>
    <message>
        <source>The plug-in library XPanoHead: MIT.</source>
        <translation>La biblioteca de complementos XPanoHead: MIT.</translation>
    </message>
    <message>
        <source>They stand on:</source>
        <translation>Se apoyan en:</translation>
    </message>
    <message>
        <source>&amp;Licences:</source>
        <translation>&amp;Licencias:</translation>
    </message>
</context>
<context>
    <name>PanoHost::ChoicePage</name>
    <message>
        <source>Needs photos only</source>
        <translation>Solo necesita fotos</translation>
    </message>
    <message>
        <source>Needs *.%1 record and photos</source>
        <translation>Necesita el registro *.%1 y las fotos</translation>
    </message>
    <message>
        <source>%1 %2 by %3</source>
        <translation>%1 %2 de %3</translation>
    </message>
    <message>
        <source>Which head took the photos?</source>
        <translation>¿Con qué cabezal se tomaron las fotos?</translation>
    </message>
    <message>
        <source>Choose the head, or drop its record and the photos onto this window.</source>
        <translation>Elija el cabezal, o arrastre su registro y las fotos a esta ventana.</translation>
    </message>
    <message>
        <source>Heads</source>
        <translation>Cabezales</translation>
    </message>
    <message>
        <source>&amp;Head:</source>
        <translation>Cabe&amp;zal:</translation>
    </message>
    <message>
        <source>%1 record with %2 shots</source>
        <translation>registro de %1 con %2 tomas</translation>
    </message>
    <message>
        <source>%1, which no head can read</source>
        <translation>%1, que ningún cabezal puede leer</translation>
    </message>
    <message>
        <source>one photo</source>
        <translation>una foto</translation>
    </message>
    <message>
        <source>%1 photos</source>
        <translation>%1 fotos</translation>
    </message>
    <message>
        <source>Looking at the files</source>
        <translation>Examinando los archivos</translation>
    </message>
    <message>
        <source>Next waits for the head that took the photos.</source>
        <translation>Para seguir, elija el cabezal con el que se tomaron las fotos.</translation>
    </message>
</context>
<context>
    <name>PanoHost::ElidedLabel</name>
    <message>
        <source>Copy</source>
        <translation>Copiar</translation>
    </message>
</context>
<context>
    <name>PanoHost::FileDrop</name>
    <message>
        <source>Drop the files here</source>
        <translation>Suelte los archivos aquí</translation>
    </message>
</context>
<context>
    <name>PanoHost::ImportWizard</name>
    <message>
        <source>Import a panorama</source>
        <translation>Importar un panorama</translation>
    </message>
    <message>
        <source>Help</source>
        <translation>Ayuda</translation>
    </message>
    <message>
        <source>&amp;Another import</source>
        <translation>Otra &amp;importación</translation>
    </message>
    <message>
        <source>Not done</source>
        <translation>No realizado</translation>
    </message>
    <message>
        <source>Files not taken</source>
        <translation>Archivos no aceptados</translation>
    </message>
    <message>
        <source>Neither records nor photos are among these files.</source>
        <translation>Entre estos archivos no hay registros ni fotos.</translation>
    </message>
    <message>
        <source>The name of a photo holds a double quote or a line end, which file dialogs cannot take. Rename it, or use &quot;panohost import&quot; on the command line.</source>
        <translation>El nombre de una foto contiene comillas dobles o un salto de línea, que los diálogos de archivos no admiten. Cámbiele el nombre o use «panohost import» en la línea de órdenes.</translation>
    </message>
    <message>
        <source>Close the window?</source>
        <translation>¿Cerrar la ventana?</translation>
    </message>
    <message>
        <source>The panorama is still being made. What is finished of it is kept: made again, it goes on from there.</source>
        <translation>El panorama aún se está creando. Lo que está terminado se conserva: si vuelve a crearlo, continúa desde ahí.</translation>
    </message>
    <message>
        <source>The panorama has not been saved.</source>
        <translation>El panorama no se ha guardado.</translation>
    </message>
    <message>
        <source>The photos and options of this page will be forgotten.</source>
        <translation>Las fotos y opciones de esta página se perderán.</translation>
    </message>
    <message>
        <source>A step has failed</source>
        <translation>Ha fallado un paso</translation>
    </message>
    <message>
        <source>This page could not do what you asked: %1. Your files are as they were. Try again, or go back and choose fewer files.</source>
        <translation>Esta página no ha podido hacer lo que pidió: %1. Sus archivos están como estaban. Inténtelo de nuevo, o vuelva atrás y elija menos archivos.</translation>
    </message>
    <message>
        <source>&amp;Help</source>
        <translation>Ay&amp;uda</translation>
    </message>
    <message>
        <source>&amp;Preferences...</source>
        <translation>&amp;Preferencias...</translation>
    </message>
    <message>
        <source>&amp;About panohost</source>
        <translation>Acerca &amp;de panohost</translation>
    </message>
    <message>
        <source>Choose the head that took the photos, then Next. You can also drop the head&apos;s record and the photos, or the folder that holds them, onto this window.</source>
        <translation>Elija el cabezal con el que se tomaron las fotos y pulse «Siguiente». También puede arrastrar a esta ventana el registro del cabezal y las fotos, o la carpeta que los contiene.</translation>
    </message>
    <message>
        <source>Say where the panorama goes and press Make panorama. It can be stopped at any time: what is finished is kept, and made again it goes on from there.</source>
        <translation>Indique dónde guardar el panorama y pulse «Crear panorama». Puede detenerlo en cualquier momento: lo terminado se conserva y, al crearlo de nuevo, continúa desde ahí.</translation>
    </message>
    <message>
        <source>Next makes the panorama here. Or save the project and open it in Hugin, or save the description as JSON. Back returns to the import page; its photos and options are kept.</source>
        <translation>«Siguiente» crea el panorama aquí. También puede guardar el proyecto y abrirlo en Hugin, o guardar la descripción como JSON. «Atrás» vuelve a la página de importación; sus fotos y opciones se conservan.</translation>
    </message>
    <message>
        <source>Choose the head&apos;s record and all its photos. Next is enabled when every photo has been read and their number is that of the record. Red text says what does not fit; the line below all says why, and its buttons put it right.</source>
        <translation>Elija el registro del cabezal y todas sus fotos. «Siguiente» se activa cuando se han leído todas las fotos y su número es el del registro. El texto en rojo indica lo que no concuerda; la línea inferior explica por qué, y sus botones lo corrigen.</translation>
    </message>
</context>
<context>
    <name>PanoHost::MakePage</name>
    <message>
        <source>Make the panorama</source>
        <translation>Crear el panorama</translation>
    </message>
    <message>
        <source>Every photo is put where it belongs, and all are joined to one picture.</source>
        <translation>Cada foto se coloca en su sitio y todas se unen en una sola imagen.</translation>
    </message>
    <message>
        <source>Progress</source>
        <translation>Progreso</translation>
    </message>
    <message>
        <source>&amp;Log</source>
        <translation>&amp;Mensajes</translation>
    </message>
    <message>
        <source>Log</source>
        <translation>Mensajes</translation>
    </message>
    <message>
        <source>Show in fol&amp;der</source>
        <translation>M&amp;ostrar en la carpeta</translation>
    </message>
    <message>
        <source>Open &amp;in browser</source>
        <translation>Abrir en el nave&amp;gador</translation>
    </message>
    <message>
        <source>Open in H&amp;ugin</source>
        <translation>Abrir en &amp;Hugin</translation>
    </message>
    <message>
        <source>S&amp;ettings</source>
        <translation>A&amp;justes</translation>
    </message>
    <message>
        <source>Make it again, in another size or as other files.</source>
        <translation>Crearlo de nuevo, en otro tamaño o como otros archivos.</translation>
    </message>
    <message>
        <source>Hugin could not be started. Is it installed?</source>
        <translation>No se pudo iniciar Hugin. ¿Está instalado?</translation>
    </message>
    <message>
        <source>&amp;Change...</source>
        <translation>Cam&amp;biar...</translation>
    </message>
    <message>
        <source>As sharp as the photos</source>
        <translation>Tan nítido como las fotos</translation>
    </message>
    <message>
        <source>Half as wide</source>
        <translation>La mitad de ancho</translation>
    </message>
    <message>
        <source>A quarter as wide: a quick look</source>
        <translation>Un cuarto del ancho: un vistazo rápido</translation>
    </message>
    <message>
        <source>Fused: shows lights and shadows</source>
        <translation>Fusión: muestra luces y sombras</translation>
    </message>
    <message>
        <source>The reference exposure only</source>
        <translation>Solo la exposición de referencia</translation>
    </message>
    <message>
        <source>The light itself (HDR)</source>
        <translation>La luz misma (HDR)</translation>
    </message>
    <message>
        <source>A pa&amp;ge that opens in any browser</source>
        <translation>Una página que se abre en cual&amp;quier navegador</translation>
    </message>
    <message>
        <source>A folder to &amp;zoom into, of any size</source>
        <translation>Una carpeta para ver con &amp;zoom, de cualquier tamaño</translation>
    </message>
    <message>
        <source>&amp;Trust the head: skip the alignment</source>
        <translation>Confia&amp;r en el cabezal: omitir la alineación</translation>
    </message>
    <message>
        <source>Photos stay at the angles that the head has recorded. Quicker, and right where the photos show nothing to go by.</source>
        <translation>Las fotos se quedan en los ángulos que registró el cabezal. Más rápido, y lo adecuado cuando las fotos no muestran en qué apoyarse.</translation>
    </message>
    <message>
        <source>&amp;Picture:</source>
        <translation>Imag&amp;en:</translation>
    </message>
    <message>
        <source>&amp;Size:</source>
        <translation>&amp;Tamaño:</translation>
    </message>
    <message>
        <source>B&amp;rackets:</source>
        <translation>Horqui&amp;llado:</translation>
    </message>
    <message>
        <source>Also:</source>
        <translation>Además:</translation>
    </message>
    <message>
        <source>Angles:</source>
        <translation>Ángulos:</translation>
    </message>
    <message>
        <source>Where the panorama goes</source>
        <translation>Dónde guardar el panorama</translation>
    </message>
    <message>
        <source>Pictures (*.jpg *.tif)</source>
        <translation>Imágenes (*.jpg *.tif)</translation>
    </message>
    <message>
        <source>Photos are RAW files, and no program is installed that develops them. Install libraw-bin, dcraw, darktable or rawtherapee, or take the JPEGs of these photos.</source>
        <translation>Las fotos son archivos RAW y no hay instalado ningún programa que los revele. Instale libraw-bin, dcraw, darktable o rawtherapee, o use los JPEG de estas fotos.</translation>
    </message>
    <message>
        <source>Estimating...</source>
        <translation>Calculando...</translation>
    </message>
    <message>
        <source>Stopping...</source>
        <translation>Deteniendo...</translation>
    </message>
    <message>
        <source>Starting...</source>
        <translation>Iniciando...</translation>
    </message>
    <message>
        <source>St&amp;op</source>
        <translation>&amp;Detener</translation>
    </message>
    <message>
        <source>&amp;Make panorama</source>
        <translation>Crear &amp;panorama</translation>
    </message>
    <message>
        <source>Warning: %1</source>
        <translation>Advertencia: %1</translation>
    </message>
    <message>
        <source>Done:</source>
        <translation>Listo:</translation>
    </message>
    <message>
        <source>Stopped. What was finished is kept: Make panorama goes on from there.</source>
        <translation>Detenido. Lo terminado se conserva: «Crear panorama» continúa desde ahí.</translation>
    </message>
    <message>
        <source>No program is set up here that opens %1.</source>
        <translation>Aquí no hay configurado ningún programa que abra %1.</translation>
    </message>
</context>
<context>
    <name>PanoHost::MakeRunner</name>
    <message>
        <source>Not enough memory</source>
        <translation>No hay memoria suficiente</translation>
    </message>
    <message>
        <source>close other programs, or make the panorama smaller</source>
        <translation>cierre otros programas o cree un panorama más pequeño</translation>
    </message>
</context>
<context>
    <name>PanoHost::PanoHostApplication</name>
    <message>
        <source>not enough memory</source>
        <translation>no hay memoria suficiente</translation>
    </message>
    <message>
        <source>it does not say why</source>
        <translation>no se indica el motivo</translation>
    </message>
</context>
<context>
    <name>PanoHost::PictureView</name>
    <message>
        <source>Finished panorama</source>
        <translation>Panorama terminado</translation>
    </message>
    <message>
        <source>Wheel, + and -: magnify. Drag, arrows: move. Double click, 0: all of it.</source>
        <translation>Rueda, + y -: ampliar o reducir. Arrastrar, flechas: mover. Doble clic, 0: ver todo.</translation>
    </message>
</context>
<context>
    <name>PanoHost::PositionsModel</name>
    <message>
        <source>No.</source>
        <translation>N.º</translation>
    </message>
    <message>
        <source>Photos</source>
        <translation>Fotos</translation>
    </message>
    <message>
        <source>Yaw %1</source>
        <translation>Guiñada %1</translation>
    </message>
    <message>
        <source>Pitch %1</source>
        <translation>Cabeceo %1</translation>
    </message>
    <message>
        <source>Roll %1</source>
        <translation>Alabeo %1</translation>
    </message>
    <message>
        <source>Aligned yaw %1</source>
        <translation>Guiñada alineada %1</translation>
    </message>
    <message>
        <source>Aligned pitch %1</source>
        <translation>Cabeceo alineado %1</translation>
    </message>
    <message>
        <source>Aligned roll %1</source>
        <translation>Alabeo alineado %1</translation>
    </message>
    <message>
        <source>Off by %1</source>
        <translation>Desvío %1</translation>
    </message>
    <message>
        <source>Points</source>
        <translation>Puntos</translation>
    </message>
    <message>
        <source>Error (pixels)</source>
        <translation>Error (píxeles)</translation>
    </message>
    <message>
        <source>Time</source>
        <translation>Hora</translation>
    </message>
    <message>
        <source>Exposure (EV)</source>
        <translation>Exposición (EV)</translation>
    </message>
    <message>
        <source>Links</source>
        <translation>Enlaces</translation>
    </message>
    <message>
        <source>As the head recorded it: to the right, in degrees</source>
        <translation>Según lo registró el cabezal: hacia la derecha, en grados</translation>
    </message>
    <message>
        <source>As the head recorded it: up, in degrees</source>
        <translation>Según lo registró el cabezal: hacia arriba, en grados</translation>
    </message>
    <message>
        <source>As the head recorded it: clockwise, in degrees</source>
        <translation>Según lo registró el cabezal: en sentido horario, en grados</translation>
    </message>
    <message>
        <source>How far the photos show that the head stood elsewhere than recorded</source>
        <translation>Cuánto se apartó el cabezal de lo registrado, según muestran las fotos</translation>
    </message>
    <message>
        <source>Spots that were found again in other photos</source>
        <translation>Puntos que se han vuelto a encontrar en otras fotos</translation>
    </message>
    <message>
        <source>How far such spots still lie apart, half of them nearer</source>
        <translation>Distancia que aún separa esos puntos; la mitad de ellos están más cerca</translation>
    </message>
    <message>
        <source>Of the first photo: each step up lets in half as much light</source>
        <translation>De la primera foto: cada paso más deja entrar la mitad de luz</translation>
    </message>
    <message>
        <source>Neighbours in which spots of this photo are looked for</source>
        <translation>Fotos vecinas en las que se buscan puntos de esta foto</translation>
    </message>
</context>
<context>
    <name>PanoHost::PositionsTable</name>
    <message>
        <source>Positions</source>
        <translation>Posiciones</translation>
    </message>
</context>
<context>
    <name>PanoHost::Preferences</name>
    <message>
        <source>Use the &amp;desktop&apos;s file dialogs</source>
        <translation>Usar los diálogos de archivos del &amp;escritorio</translation>
    </message>
    <message>
        <source>Share &amp;thumbnails with the desktop</source>
        <translation>Compartir las &amp;miniaturas con el escritorio</translation>
    </message>
    <message>
        <source>Preferences</source>
        <translation>Preferencias</translation>
    </message>
    <message>
        <source>where the system has them</source>
        <translation>donde las tiene el sistema</translation>
    </message>
    <message>
        <source>Choo&amp;se...</source>
        <translation>E&amp;legir...</translation>
    </message>
    <message>
        <source>Choose the folder of the tools</source>
        <translation>Elegir la carpeta de las herramientas</translation>
    </message>
    <message>
        <source>&amp;Language:</source>
        <translation>&amp;Idioma:</translation>
    </message>
    <message>
        <source>&amp;Folder of the tools:</source>
        <translation>Carpeta de las &amp;herramientas:</translation>
    </message>
    <message>
        <source>Tools:</source>
        <translation>Herramientas:</translation>
    </message>
    <message>
        <source>Language and thumbnails change with the next start.</source>
        <translation>El idioma y las miniaturas cambian en el próximo inicio.</translation>
    </message>
    <message>
        <source>As the desktop</source>
        <translation>Como el escritorio</translation>
    </message>
    <message>
        <source>Folder of the tools</source>
        <translation>Carpeta de las herramientas</translation>
    </message>
    <message>
        <source>%1: not found</source>
        <translation>%1: no encontrado</translation>
    </message>
    <message>
        <source>%1: found, %2</source>
        <translation>%1: encontrado, %2</translation>
    </message>
    <message>
        <source>No such folder</source>
        <translation>No existe la carpeta</translation>
    </message>
    <message>
        <source>%1 is no folder; choose another one, or leave the field empty.</source>
        <translation>%1 no es una carpeta; elija otra o deje el campo vacío.</translation>
    </message>
</context>
<context>
    <name>PanoHost::PreviewGuide</name>
    <message>
        <source>Drop the head&apos;s record and the photos here</source>
        <translation>Suelte aquí el registro del cabezal y las fotos</translation>
    </message>
    <message>
        <source>Drop the photos here</source>
        <translation>Suelte aquí las fotos</translation>
    </message>
    <message>
        <source>The wheel zooms, a double click shows all.</source>
        <translation>La rueda amplía o reduce; un doble clic muestra todo.</translation>
    </message>
</context>
<context>
    <name>PanoHost::ReadingBar</name>
    <message>
        <source>Reading photos</source>
        <translation>Leyendo fotos</translation>
    </message>
    <message>
        <source>%1 photos are handed over...</source>
        <translation>Entregando %1 fotos...</translation>
    </message>
    <message>
        <source>%1 of %2 photos</source>
        <translation>%1 de %2 fotos</translation>
    </message>
    <message>
        <source>, %1 per second</source>
        <translation>, %1 por segundo</translation>
    </message>
</context>
<context>
    <name>PanoHost::RecentList</name>
    <message>
        <source>%1, %2 photos, %3</source>
        <translation>%1, %2 fotos, %3</translation>
    </message>
    <message>
        <source>Re&amp;move</source>
        <translation>&amp;Quitar</translation>
    </message>
    <message>
        <source>Recent shoots</source>
        <translation>Sesiones recientes</translation>
    </message>
    <message>
        <source>&amp;Recent shoots:</source>
        <translation>Sesiones &amp;recientes:</translation>
    </message>
    <message>
        <source>Remove the shoot from this list</source>
        <translation>Quitar la sesión de esta lista</translation>
    </message>
    <message>
        <source>&amp;Clear list</source>
        <translation>&amp;Vaciar lista</translation>
    </message>
    <message>
        <source>The files are gone.</source>
        <translation>Los archivos ya no están.</translation>
    </message>
    <message>
        <source>The files are gone</source>
        <translation>Los archivos ya no están</translation>
    </message>
    <message>
        <source>%1 cannot be found; it may lie on a medium that is not there. Remove it from the list?</source>
        <translation>No se encuentra %1; puede estar en un medio que no está conectado. ¿Quitarlo de la lista?</translation>
    </message>
</context>
<context>
    <name>PanoHost::ResultPage</name>
    <message>
        <source>The panorama</source>
        <translation>El panorama</translation>
    </message>
    <message>
        <source>Look whether the photos stand where they belong, then save the panorama.</source>
        <translation>Compruebe que las fotos están en su sitio y guarde el panorama.</translation>
    </message>
    <message>
        <source>Views of the panorama</source>
        <translation>Vistas del panorama</translation>
    </message>
    <message>
        <source>Pictu&amp;re</source>
        <translation>Ima&amp;gen</translation>
    </message>
    <message>
        <source>P&amp;ositions</source>
        <translation>&amp;Posiciones</translation>
    </message>
    <message>
        <source>Summary</source>
        <translation>Resumen</translation>
    </message>
    <message>
        <source>S&amp;ummary</source>
        <translation>Resu&amp;men</translation>
    </message>
    <message>
        <source>Back to &amp;enter it</source>
        <translation>&amp;Volver e introducirla</translation>
    </message>
    <message>
        <source>Save &amp;project...</source>
        <translation>Guardar p&amp;royecto...</translation>
    </message>
    <message>
        <source>Save &amp;description...</source>
        <translation>Guardar &amp;descripción...</translation>
    </message>
    <message>
        <source>Save &amp;table...</source>
        <translation>Guardar &amp;tabla...</translation>
    </message>
    <message>
        <source>Open in Hu&amp;gin</source>
        <translation>Abrir en &amp;Hugin</translation>
    </message>
    <message>
        <source>Nothing saved</source>
        <translation>Nada guardado</translation>
    </message>
    <message>
        <source>The panorama has not been saved. Go on all the same?</source>
        <translation>El panorama no se ha guardado. ¿Continuar de todos modos?</translation>
    </message>
    <message>
        <source>Nothing that can be saved.</source>
        <translation>No hay nada que guardar.</translation>
    </message>
    <message>
        <source>To look at</source>
        <translation>Para revisar</translation>
    </message>
    <message>
        <source>One more stands in the summary.</source>
        <translation>Hay otra advertencia en el resumen.</translation>
    </message>
    <message>
        <source>%1 more stand in the summary.</source>
        <translation>Hay otras %1 advertencias en el resumen.</translation>
    </message>
    <message>
        <source>The project was not saved: the focal length is not known. Go back and enter it in the line below the page.</source>
        <translation>El proyecto no se ha guardado: no se conoce la distancia focal. Vuelva atrás e introdúzcala en la línea bajo la página.</translation>
    </message>
    <message>
        <source>Save the project</source>
        <translation>Guardar el proyecto</translation>
    </message>
    <message>
        <source>Hugin projects (*.pto)</source>
        <translation>Proyectos de Hugin (*.pto)</translation>
    </message>
    <message>
        <source>Save the description</source>
        <translation>Guardar la descripción</translation>
    </message>
    <message>
        <source>Descriptions (*.json)</source>
        <translation>Descripciones (*.json)</translation>
    </message>
    <message>
        <source>Save the table</source>
        <translation>Guardar la tabla</translation>
    </message>
    <message>
        <source>Comma-separated values (*.csv)</source>
        <translation>Valores separados por comas (*.csv)</translation>
    </message>
    <message>
        <source>Hugin could not be started. Is it installed? Try to open the saved project from Hugin itself.</source>
        <translation>No se pudo iniciar Hugin. ¿Está instalado? Pruebe a abrir el proyecto guardado desde el propio Hugin.</translation>
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
        <translation>1 foto</translation>
    </message>
    <message>
        <source>%1 photos</source>
        <translation>%1 fotos</translation>
    </message>
    <message>
        <source>1 position</source>
        <translation>1 posición</translation>
    </message>
    <message>
        <source>%1 positions</source>
        <translation>%1 posiciones</translation>
    </message>
    <message>
        <source> (brackets of %1)</source>
        <translation> (horquillado de %1)</translation>
    </message>
    <message>
        <source> (brackets of %1 to %2)</source>
        <translation> (horquillado de %1 a %2)</translation>
    </message>
    <message>
        <source>%1, %2, %3</source>
        <translation>%1, %2, %3</translation>
    </message>
    <message>
        <source>no links</source>
        <translation>sin enlaces</translation>
    </message>
    <message>
        <source>1 link</source>
        <translation>1 enlace</translation>
    </message>
    <message>
        <source>%1 links</source>
        <translation>%1 enlaces</translation>
    </message>
    <message>
        <source>%1, into HDR</source>
        <translation>%1, a HDR</translation>
    </message>
    <message>
        <source>Record</source>
        <translation>Registro</translation>
    </message>
    <message>
        <source>Within brackets</source>
        <translation>Dentro del horquillado</translation>
    </message>
    <message>
        <source>as one</source>
        <translation>como una sola</translation>
    </message>
    <message>
        <source>The photos of a bracket lie exactly on each other.</source>
        <translation>Las fotos de un horquillado coinciden exactamente unas con otras.</translation>
    </message>
    <message>
        <source>Right for a firm tripod: one direction counts for all of them.</source>
        <translation>Adecuado con un trípode firme: una misma dirección vale para todas.</translation>
    </message>
    <message>
        <source>each by itself</source>
        <translation>cada una por separado</translation>
    </message>
    <message>
        <source>Control points are looked for between the photos of a bracket.</source>
        <translation>Se buscan puntos de control entre las fotos de un horquillado.</translation>
    </message>
    <message>
        <source>Right when the camera may have moved between two exposures.</source>
        <translation>Adecuado cuando la cámara puede haberse movido entre dos exposiciones.</translation>
    </message>
    <message>
        <source>Wrong points</source>
        <translation>Puntos erróneos</translation>
    </message>
    <message>
        <source>removed</source>
        <translation>eliminados</translation>
    </message>
    <message>
        <source>kept</source>
        <translation>conservados</translation>
    </message>
    <message>
        <source>They are marked, and move nothing.</source>
        <translation>Se marcan y no mueven nada.</translation>
    </message>
    <message>
        <source>Lens</source>
        <translation>Objetivo</translation>
    </message>
    <message>
        <source>As for 35 mm film: it says how wide a photo sees.</source>
        <translation>Equivalente a película de 35 mm: indica cuánto abarca una foto.</translation>
    </message>
    <message>
        <source>fisheye lens, focal length not known</source>
        <translation>objetivo ojo de pez, distancia focal desconocida</translation>
    </message>
    <message>
        <source>standard lens, focal length not known</source>
        <translation>objetivo estándar, distancia focal desconocida</translation>
    </message>
    <message>
        <source>Nothing can be put together without it.</source>
        <translation>Sin ella no se puede montar nada.</translation>
    </message>
    <message>
        <source>fisheye lens of %1 mm</source>
        <translation>objetivo ojo de pez de %1 mm</translation>
    </message>
    <message>
        <source>standard lens of %1 mm</source>
        <translation>objetivo estándar de %1 mm</translation>
    </message>
    <message>
        <source>Brackets</source>
        <translation>Horquillado</translation>
    </message>
    <message>
        <source>none, into HDR</source>
        <translation>ninguno, a HDR</translation>
    </message>
    <message>
        <source>HDR was chosen, but there is one exposure of each position.</source>
        <translation>Se eligió HDR, pero solo hay una exposición por posición.</translation>
    </message>
    <message>
        <source>into HDR</source>
        <translation>a HDR</translation>
    </message>
    <message>
        <source>The picture holds the light itself, from all exposures.</source>
        <translation>La imagen contiene la luz misma, de todas las exposiciones.</translation>
    </message>
    <message>
        <source>For programs that work on with it: no screen shows all of it.</source>
        <translation>Para programas que siguen trabajando con ella: ninguna pantalla la muestra entera.</translation>
    </message>
    <message>
        <source>into an ordinary picture</source>
        <translation>a una imagen normal</translation>
    </message>
    <message>
        <source>Of each exposure what is neither too dark nor too bright.</source>
        <translation>De cada exposición, lo que no está ni demasiado oscuro ni demasiado claro.</translation>
    </message>
    <message>
        <source>Links</source>
        <translation>Enlaces</translation>
    </message>
    <message>
        <source>Control points are looked for in these pairs of neighbours alone.</source>
        <translation>Los puntos de control se buscan solo en estos pares de fotos vecinas.</translation>
    </message>
    <message>
        <source>Photos that are no neighbours are never compared: a sky or a wall that looks alike cannot lead astray.</source>
        <translation>Las fotos que no son vecinas nunca se comparan: un cielo o una pared de aspecto parecido no puede inducir a error.</translation>
    </message>
    <message>
        <source>none</source>
        <translation>ninguno</translation>
    </message>
    <message>
        <source>One position has no neighbours.</source>
        <translation>Una sola posición no tiene vecinas.</translation>
    </message>
    <message>
        <source>All photos that overlap are compared instead.</source>
        <translation>En su lugar se comparan todas las fotos que se solapan.</translation>
    </message>
    <message>
        <source>Control points</source>
        <translation>Puntos de control</translation>
    </message>
    <message>
        <source>not looked for</source>
        <translation>no se buscan</translation>
    </message>
    <message>
        <source>Photos stay where the head has recorded them.</source>
        <translation>Las fotos se quedan donde las registró el cabezal.</translation>
    </message>
    <message>
        <source>In Hugin you can set control points by hand.</source>
        <translation>En Hugin puede poner puntos de control a mano.</translation>
    </message>
    <message>
        <source>looked for</source>
        <translation>se buscan</translation>
    </message>
    <message>
        <source>Spots that two photos share say how they belong together.</source>
        <translation>Los puntos que dos fotos comparten indican cómo encajan.</translation>
    </message>
    <message>
        <source>looked for in one exposure of each bracket</source>
        <translation>se buscan en una exposición de cada horquillado</translation>
    </message>
    <message>
        <source>In the first photo of each bracket, the reference.</source>
        <translation>En la primera foto de cada horquillado, la de referencia.</translation>
    </message>
    <message>
        <source>looked for in all exposures</source>
        <translation>se buscan en todas las exposiciones</translation>
    </message>
    <message>
        <source>Takes longer, and finds more where one exposure is too dark or too bright.</source>
        <translation>Tarda más, y encuentra más donde una exposición es demasiado oscura o demasiado clara.</translation>
    </message>
    <message>
        <source>Optimisation</source>
        <translation>Optimización</translation>
    </message>
    <message>
        <source>skipped</source>
        <translation>omitida</translation>
    </message>
    <message>
        <source>The head is trusted: photos stay where it has recorded them.</source>
        <translation>Se confía en el cabezal: las fotos se quedan donde las registró.</translation>
    </message>
    <message>
        <source>Right for a head without play. It saves the time of looking for points.</source>
        <translation>Adecuado para un cabezal sin holgura. Ahorra el tiempo de buscar puntos.</translation>
    </message>
    <message>
        <source>from the record</source>
        <translation>a partir del registro</translation>
    </message>
    <message>
        <source>Control points move the photos; those without any stay as recorded.</source>
        <translation>Los puntos de control mueven las fotos; las que no tienen ninguno se quedan donde indica el registro.</translation>
    </message>
    <message>
        <source>The usual choice: skies and walls without a mark stay in place.</source>
        <translation>La opción habitual: los cielos y paredes sin detalle se quedan en su sitio.</translation>
    </message>
    <message>
        <source>free</source>
        <translation>libre</translation>
    </message>
    <message>
        <source>The record is where the search begins, no more.</source>
        <translation>El registro es solo el punto de partida de la búsqueda.</translation>
    </message>
    <message>
        <source>Right when the head has slipped.</source>
        <translation>Adecuado cuando el cabezal ha patinado.</translation>
    </message>
    <message>
        <source>The focal length is not known: no photo names it. Go back and enter it in the line below the page, at &quot;Focal length&quot;.</source>
        <translation>No se conoce la distancia focal: ninguna foto la indica. Vuelva atrás e introdúzcala en la línea bajo la página, en «Distancia focal».</translation>
    </message>
    <message>
        <source>The focal length is not known: neither the record nor a photo names it. Go back and enter it in the line below the page, at &quot;Focal length&quot;.</source>
        <translation>No se conoce la distancia focal: ni el registro ni las fotos la indican. Vuelva atrás e introdúzcala en la línea bajo la página, en «Distancia focal».</translation>
    </message>
    <message>
        <source>The lens is taken for a fisheye, and no photo says so. If it is none, go back and choose the standard lens.</source>
        <translation>El objetivo se toma por un ojo de pez, y ninguna foto lo indica. Si no lo es, vuelva atrás y elija el objetivo estándar.</translation>
    </message>
    <message>
        <source>The photos say that they were taken through a fisheye, and the lens is taken for a standard one. If it is a fisheye, go back and choose that.</source>
        <translation>Las fotos indican que se tomaron con un ojo de pez, y el objetivo se toma por uno estándar. Si es un ojo de pez, vuelva atrás y elíjalo.</translation>
    </message>
    <message>
        <source>Until then all %1 positions lie on one point.</source>
        <translation>Hasta entonces, las %1 posiciones están en un mismo punto.</translation>
    </message>
    <message>
        <source>All %1 positions lie on one point: the record says that the head did not move.</source>
        <translation>Las %1 posiciones están en un mismo punto: según el registro, el cabezal no se movió.</translation>
    </message>
    <message>
        <source>No two photos are linked: through a lens of %1 mm neighbours are too far apart. Is the focal length right?</source>
        <translation>No hay dos fotos enlazadas: con un objetivo de %1 mm las vecinas quedan demasiado lejos. ¿Es correcta la distancia focal?</translation>
    </message>
    <message>
        <source>Order</source>
        <translation>Orden</translation>
    </message>
    <message>
        <source>Pause</source>
        <translation>Pausa</translation>
    </message>
    <message>
        <source>Photos</source>
        <translation>Fotos</translation>
    </message>
    <message>
        <source>%1: %2</source>
        <translation>%1: %2</translation>
    </message>
    <message>
        <source>%1 was not saved: there is a folder of that name. Choose another name.</source>
        <translation>%1 no se ha guardado: hay una carpeta con ese nombre. Elija otro nombre.</translation>
    </message>
    <message>
        <source>%1 was not saved: the folder %2 is not there. Was it moved, or its disk unplugged? Choose another folder.</source>
        <translation>%1 no se ha guardado: la carpeta %2 no está. ¿Se ha movido, o se ha desconectado su disco? Elija otra carpeta.</translation>
    </message>
    <message>
        <source>%1 was not saved: the disk is full. Make room on it, or choose a folder on another disk.</source>
        <translation>%1 no se ha guardado: el disco está lleno. Libere espacio o elija una carpeta de otro disco.</translation>
    </message>
    <message>
        <source>%1 was not saved: nothing can be written in %2. Choose a folder of your own, such as your pictures.</source>
        <translation>%1 no se ha guardado: no se puede escribir en %2. Elija una carpeta propia, como la de sus imágenes.</translation>
    </message>
    <message>
        <source>%1 was not saved: a file of that name is there and is protected. Choose another name.</source>
        <translation>%1 no se ha guardado: ya hay un archivo con ese nombre y está protegido. Elija otro nombre.</translation>
    </message>
    <message>
        <source>%1 was not saved: the name is too long. Choose a shorter one.</source>
        <translation>%1 no se ha guardado: el nombre es demasiado largo. Elija uno más corto.</translation>
    </message>
    <message>
        <source>%1 was not saved: %2</source>
        <translation>%1 no se ha guardado: %2</translation>
    </message>
</context>
<context>
    <name>PanoHost::SavedList</name>
    <message>
        <source>Nothing saved yet.</source>
        <translation>Aún no se ha guardado nada.</translation>
    </message>
    <message>
        <source>Saved files</source>
        <translation>Archivos guardados</translation>
    </message>
    <message>
        <source>Not done</source>
        <translation>No realizado</translation>
    </message>
    <message>
        <source>Saved %1 in %2</source>
        <translation>%1 guardado en %2</translation>
    </message>
    <message>
        <source>Show</source>
        <translation>Mostrar</translation>
    </message>
    <message>
        <source>Show %1 in its folder</source>
        <translation>Mostrar %1 en su carpeta</translation>
    </message>
    <message>
        <source>Saved</source>
        <translation>Guardado</translation>
    </message>
    <message>
        <source>The folder %1 is not there any more. Was it moved, or its disk unplugged?</source>
        <translation>La carpeta %1 ya no está. ¿Se ha movido, o se ha desconectado su disco?</translation>
    </message>
    <message>
        <source>No program could show the folder. It is %1</source>
        <translation>Ningún programa pudo mostrar la carpeta. Es %1</translation>
    </message>
</context>
<context>
    <name>PanoHost::ShootDesk</name>
    <message>
        <source>shot %1: yaw %2, pitch %3</source>
        <translation>toma %1: guiñada %2, cabeceo %3</translation>
    </message>
    <message>
        <source>The photos do not stand at their shots: go back, and press Fix.</source>
        <translation>Las fotos no corresponden a sus tomas: vuelva atrás y pulse «Corregir».</translation>
    </message>
    <message>
        <source>Another file in place of %1</source>
        <translation>Otro archivo en lugar de %1</translation>
    </message>
    <message>
        <source>Shots without a photo</source>
        <translation>Tomas sin foto</translation>
    </message>
    <message>
        <source>Take these shots again if you can. The panorama is made without them otherwise.</source>
        <translation>Repita estas tomas si puede. De lo contrario, el panorama se crea sin ellas.</translation>
    </message>
</context>
<context>
    <name>PanoHost::ShootPanel</name>
    <message>
        <source>Flat</source>
        <translation>Plano</translation>
    </message>
    <message>
        <source>Show the photos on a map</source>
        <translation>Mostrar las fotos en un mapa</translation>
    </message>
    <message>
        <source>Sphere</source>
        <translation>Esfera</translation>
    </message>
    <message>
        <source>Look around from where the camera stood</source>
        <translation>Mirar alrededor desde donde estaba la cámara</translation>
    </message>
    <message>
        <source>Links</source>
        <translation>Enlaces</translation>
    </message>
    <message>
        <source>Show which photos are linked to each other</source>
        <translation>Mostrar qué fotos están enlazadas entre sí</translation>
    </message>
    <message>
        <source>Gaps</source>
        <translation>Huecos</translation>
    </message>
    <message>
        <source>Hatch what no photo shows</source>
        <translation>Rayar lo que ninguna foto muestra</translation>
    </message>
    <message>
        <source>Fit</source>
        <translation>Ajustar</translation>
    </message>
    <message>
        <source>Show the whole shoot</source>
        <translation>Mostrar toda la sesión</translation>
    </message>
    <message>
        <source>The focal length is not known: photos are drawn as by 50 mm</source>
        <translation>No se conoce la distancia focal: las fotos se dibujan como con 50 mm</translation>
    </message>
    <message>
        <source>No gaps</source>
        <translation>Sin huecos</translation>
    </message>
    <message>
        <source>Linked to no other photo: %1</source>
        <translation>Sin enlace con otra foto: %1</translation>
    </message>
</context>
<context>
    <name>PanoHost::ShootStrip</name>
    <message>
        <source>To look at</source>
        <translation>Para revisar</translation>
    </message>
    <message>
        <source>Not yet known</source>
        <translation>Aún no se sabe</translation>
    </message>
    <message>
        <source>In order</source>
        <translation>Correcto</translation>
    </message>
    <message>
        <source>About this shoot</source>
        <translation>Acerca de esta sesión</translation>
    </message>
    <message>
        <source>Show what is known about this shoot</source>
        <translation>Mostrar lo que se sabe de esta sesión</translation>
    </message>
    <message>
        <source> mm</source>
        <translation> mm</translation>
    </message>
    <message>
        <source>Focal length, as for 35 mm film</source>
        <translation>Distancia focal, equivalente a película de 35 mm</translation>
    </message>
</context>
<context>
    <name>PanoHost::ShootView</name>
    <message>
        <source>Picture of the shoot: %1, %2</source>
        <translation>Imagen de la sesión: %1, %2</translation>
    </message>
    <message>
        <source>1 photo</source>
        <translation>1 foto</translation>
    </message>
    <message>
        <source>%1 photos</source>
        <translation>%1 fotos</translation>
    </message>
    <message>
        <source>1 position</source>
        <translation>1 posición</translation>
    </message>
    <message>
        <source>%1 positions</source>
        <translation>%1 posiciones</translation>
    </message>
    <message>
        <source>position %1 of %2</source>
        <translation>posición %1 de %2</translation>
    </message>
    <message>
        <source>shot %1 of %2</source>
        <translation>toma %1 de %2</translation>
    </message>
    <message>
        <source>first of %1 photos here</source>
        <translation>primera de %1 fotos aquí</translation>
    </message>
    <message>
        <source>off by %1 pixels</source>
        <translation>error de %1 píxeles</translation>
    </message>
    <message>
        <source>no control points</source>
        <translation>sin puntos de control</translation>
    </message>
    <message>
        <source>linked to no other photo</source>
        <translation>sin enlace con otra foto</translation>
    </message>
    <message>
        <source>cannot be read</source>
        <translation>no se puede leer</translation>
    </message>
    <message>
        <source>, </source>
        <translation>, </translation>
    </message>
    <message>
        <source>Off by, pixels</source>
        <translation>Error, píxeles</translation>
    </message>
</context>
<context>
    <name>PanoHost::StripTexts</name>
    <message>
        <source>Next</source>
        <translation>Siguiente</translation>
    </message>
    <message>
        <source>waits for the head&apos;s record</source>
        <translation>espera el registro del cabezal</translation>
    </message>
    <message>
        <source>waits for another record: this one is of %1</source>
        <translation>espera otro registro: este es de %1</translation>
    </message>
    <message>
        <source>waits for a record that can be read</source>
        <translation>espera un registro que se pueda leer</translation>
    </message>
    <message>
        <source>waits for the photos</source>
        <translation>espera las fotos</translation>
    </message>
    <message>
        <source>waits until the photos have been read</source>
        <translation>espera a que se lean las fotos</translation>
    </message>
    <message>
        <source>waits: the photos do not stand at their shots</source>
        <translation>espera: las fotos no corresponden a sus tomas</translation>
    </message>
    <message>
        <source>waits: %1 for %2</source>
        <translation>espera: %1 para %2</translation>
    </message>
    <message>
        <source>1 photo</source>
        <translation>1 foto</translation>
    </message>
    <message>
        <source>%1 photos</source>
        <translation>%1 fotos</translation>
    </message>
    <message>
        <source>1 shot</source>
        <translation>1 toma</translation>
    </message>
    <message>
        <source>%1 shots</source>
        <translation>%1 tomas</translation>
    </message>
    <message>
        <source>waits: not all photos can be used</source>
        <translation>espera: algunas fotos no se pueden usar</translation>
    </message>
    <message>
        <source>waits: %1</source>
        <translation>espera: %1</translation>
    </message>
    <message>
        <source>waits: the page does not accept these photos</source>
        <translation>espera: la página no acepta estas fotos</translation>
    </message>
    <message>
        <source>Record</source>
        <translation>Registro</translation>
    </message>
    <message>
        <source>Grid</source>
        <translation>Cuadrícula</translation>
    </message>
    <message>
        <source>Photos</source>
        <translation>Fotos</translation>
    </message>
    <message>
        <source>%1 cannot be used: %2</source>
        <translation>No utilizables: %1 (%2)</translation>
    </message>
    <message>
        <source>Order</source>
        <translation>Orden</translation>
    </message>
    <message>
        <source>each photo stands at its shot</source>
        <translation>cada foto corresponde a su toma</translation>
    </message>
    <message>
        <source>the photos do not stand at their shots</source>
        <translation>las fotos no corresponden a sus tomas</translation>
    </message>
    <message>
        <source>Focal length</source>
        <translation>Distancia focal</translation>
    </message>
    <message>
        <source>%1, as the last time with such photos</source>
        <translation>%1, como la última vez con fotos así</translation>
    </message>
    <message>
        <source>%1, as entered</source>
        <translation>%1, valor introducido</translation>
    </message>
    <message>
        <source>%1, from the record: the photos name none</source>
        <translation>%1, del registro: las fotos no indican ninguna</translation>
    </message>
    <message>
        <source>no photo names it: enter it, as for 35 mm film</source>
        <translation>ninguna foto la indica: introdúzcala, equivalente a película de 35 mm</translation>
    </message>
    <message>
        <source>Missing</source>
        <translation>Faltan</translation>
    </message>
    <message>
        <source>Gaps</source>
        <translation>Pausas</translation>
    </message>
    <message>
        <source>Links</source>
        <translation>Enlaces</translation>
    </message>
    <message>
        <source>other records: %1</source>
        <translation>otros registros: %1</translation>
    </message>
    <message>
        <source>results of this program: %1</source>
        <translation>resultados de este programa: %1</translation>
    </message>
    <message>
        <source>Not taken</source>
        <translation>No aceptados</translation>
    </message>
    <message>
        <source>1 thing to look at</source>
        <translation>1 cosa que revisar</translation>
    </message>
    <message>
        <source>%1 things to look at</source>
        <translation>%1 cosas que revisar</translation>
    </message>
    <message>
        <source>Looking at the photos...</source>
        <translation>Examinando las fotos...</translation>
    </message>
    <message>
        <source>Everything agrees</source>
        <translation>Todo concuerda</translation>
    </message>
    <message>
        <source>Choose record...</source>
        <translation>Elegir registro...</translation>
    </message>
    <message>
        <source>Choose photos...</source>
        <translation>Elegir fotos...</translation>
    </message>
    <message>
        <source>Remove</source>
        <translation>Quitar</translation>
    </message>
    <message>
        <source>Replace...</source>
        <translation>Reemplazar...</translation>
    </message>
    <message>
        <source>Fix</source>
        <translation>Corregir</translation>
    </message>
    <message>
        <source>Switch head</source>
        <translation>Cambiar de cabezal</translation>
    </message>
    <message>
        <source>Enter</source>
        <translation>Introducir</translation>
    </message>
    <message>
        <source>Show shots...</source>
        <translation>Mostrar tomas...</translation>
    </message>
</context>
</TS>
