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
        <source>%1 x %2 in at %3 dpi</source>
        <translation>%1 x %2 pulgadas a %3 ppp</translation>
    </message>
    <message>
        <source>%1 x %2 cm at %3 dpi</source>
        <translation>%1 x %2 cm a %3 ppp</translation>
    </message>
    <message>
        <source>%1 x %2 pixels at most (%3); takes up to %4 of the disk and %5 of memory.</source>
        <translation>Como máximo %1 x %2 píxeles (%3); ocupa hasta %4 de disco y %5 de memoria.</translation>
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
    <name>PanoHost::HelpMenu</name>
    <message>
        <source>&amp;Help</source>
        <translation>Ay&amp;uda</translation>
    </message>
    <message>
        <source>Help</source>
        <translation>Ayuda</translation>
    </message>
    <message>
        <source>&amp;Preferences...</source>
        <translation>&amp;Preferencias...</translation>
    </message>
    <message>
        <source>&amp;About panohost</source>
        <translation>Acerca &amp;de panohost</translation>
    </message>
</context>
<context>
    <name>PanoHost::ImportWizard</name>
    <message>
        <source>Import a panorama</source>
        <translation>Importar un panorama</translation>
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
    <message>
        <source>Centimetres</source>
        <translation>Centímetros</translation>
    </message>
    <message>
        <source>Inches</source>
        <translation>Pulgadas</translation>
    </message>
    <message>
        <source>&amp;Units of prints:</source>
        <translation>&amp;Unidades de las copias:</translation>
    </message>
    <message>
        <source>The language changes with the next start.</source>
        <translation>El idioma cambia en el próximo inicio.</translation>
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
    <name>PanoHost::Said</name>
    <message>
        <source>no control points are wanted (automatic detection is off): kept as recorded</source>
        <translation>no se piden puntos de control (la detección automática está desactivada): las fotos se quedan donde se registraron</translation>
    </message>
    <message>
        <source>photos are left as recorded (optimisation is skipped)</source>
        <translation>las fotos se quedan donde se registraron (se omite la optimización)</translation>
    </message>
    <message>
        <source>there is one photo only: kept as recorded</source>
        <translation>solo hay una foto: se queda donde se registró</translation>
    </message>
    <message>
        <source>no two photos overlap where the record puts them: kept as recorded</source>
        <translation>ninguna foto se solapa con otra donde las sitúa el registro: se quedan donde se registraron</translation>
    </message>
    <message>
        <source>no spot was found in two photos (nothing but sky or fog, or the photos are not of this record): kept as recorded</source>
        <translation>no se ha encontrado ningún punto común a dos fotos (solo hay cielo o niebla, o las fotos no son de este registro): se quedan donde se registraron</translation>
    </message>
    <message>
        <source>%1; kept as recorded</source>
        <translation>%1; las fotos se quedan donde se registraron</translation>
    </message>
    <message>
        <source>none of the photos can be used: were they moved since the import?</source>
        <translation>no se puede usar ninguna de las fotos: ¿se han movido desde la importación?</translation>
    </message>
    <message>
        <source>the photos fit the order &apos;%1&apos; better than &apos;%2&apos;: import them with --mode %1</source>
        <translation>las fotos concuerdan mejor con el orden «%1» que con «%2»: impórtelas con el orden %1</translation>
    </message>
    <message>
        <source>the panorama is made %1 stops brighter: what is white in a photo stays white</source>
        <translation>el panorama se aclara %1 pasos: lo que es blanco en una foto sigue siendo blanco</translation>
    </message>
    <message>
        <source>%1 of %2 tied, %3, median %4 pixels</source>
        <translation>%1 de %2 enlazadas, %3, mediana de %4 píxeles</translation>
    </message>
    <message>
        <source>%1 point</source>
        <translation>%1 punto</translation>
    </message>
    <message>
        <source>%1 points</source>
        <translation>%1 puntos</translation>
    </message>
    <message>
        <source> and %1 more</source>
        <translation> y %1 más</translation>
    </message>
    <message>
        <source>no points in %1 (%2): kept where the head put it</source>
        <translation>sin puntos en %1 (%2): se queda donde la situó el cabezal</translation>
    </message>
    <message>
        <source>no points in %1 (%2): kept where the head put them</source>
        <translation>sin puntos en %1 (%2): se quedan donde las situó el cabezal</translation>
    </message>
    <message>
        <source>lens %1 mm instead of %2</source>
        <translation>objetivo de %1 mm en lugar de %2</translation>
    </message>
    <message>
        <source>the lens darkens its corners by %1 %: evened out</source>
        <translation>el objetivo oscurece las esquinas un %1&#xa0;%: compensado</translation>
    </message>
    <message>
        <source>exposures are not what the photos say, by up to %1 stops: evened out</source>
        <translation>las exposiciones difieren hasta %1 pasos de lo que indican las fotos: compensado</translation>
    </message>
    <message>
        <source>the head repeats to %1 degrees</source>
        <translation>repetibilidad del cabezal: %1 grados</translation>
    </message>
    <message>
        <source>less than %1</source>
        <translation>menos de %1</translation>
    </message>
    <message>
        <source>the camera sits %1 degrees crooked on the head</source>
        <translation>la cámara está torcida %1 grados sobre el cabezal</translation>
    </message>
    <message>
        <source>the head&apos;s steps are %1 (across) and %2 (up) times what was stated</source>
        <translation>los pasos del cabezal son %1 (en horizontal) y %2 (en vertical) veces los indicados</translation>
    </message>
    <message>
        <source>from %1 on the head stands %2 degrees farther right than recorded: did its turning axis slip?</source>
        <translation>a partir de %1, el cabezal está %2 grados más a la derecha de lo registrado: ¿ha patinado su eje de giro?</translation>
    </message>
    <message>
        <source>from %1 on the head stands %2 degrees farther left than recorded: did its turning axis slip?</source>
        <translation>a partir de %1, el cabezal está %2 grados más a la izquierda de lo registrado: ¿ha patinado su eje de giro?</translation>
    </message>
    <message>
        <source>from %1 on the head stands %2 degrees higher than recorded: did its tilting axis slip?</source>
        <translation>a partir de %1, el cabezal está %2 grados más arriba de lo registrado: ¿ha patinado su eje de inclinación?</translation>
    </message>
    <message>
        <source>from %1 on the head stands %2 degrees lower than recorded: did its tilting axis slip?</source>
        <translation>a partir de %1, el cabezal está %2 grados más abajo de lo registrado: ¿ha patinado su eje de inclinación?</translation>
    </message>
    <message>
        <source>%1 was taken %2 degrees from where the head says: was it bumped?</source>
        <translation>%1 se tomó a %2 grados de donde dice el cabezal: ¿recibió un golpe?</translation>
    </message>
    <message>
        <source>residuals suggest parallax (%1 pixels): near things move against far ones; is the camera&apos;s nodal point on the head&apos;s axes?</source>
        <translation>los errores restantes apuntan a paralaje (%1 píxeles): lo cercano se desplaza respecto a lo lejano; ¿está el punto nodal de la cámara en los ejes del cabezal?</translation>
    </message>
    <message>
        <source>was %1 x %2 pixels when imported, is now %3 x %4</source>
        <translation>tenía %1 x %2 píxeles al importarla, ahora tiene %3 x %4</translation>
    </message>
    <message>
        <source>cannot keep the features of photos there: %1</source>
        <translation>ahí no se pueden guardar los detalles de las fotos: %1</translation>
    </message>
    <message>
        <source>TMPDIR names a folder with more room</source>
        <translation>indique en TMPDIR una carpeta con más espacio</translation>
    </message>
    <message>
        <source>cannot read the features of photos back: %1</source>
        <translation>no se pueden volver a leer los detalles de las fotos: %1</translation>
    </message>
    <message>
        <source>not known</source>
        <translation>sin indicar</translation>
    </message>
    <message>
        <source>%1: %2, bracket %3, focal %4, lens %5</source>
        <translation>%1: %2, horquillado de %3, focal %4, objetivo %5</translation>
    </message>
    <message>
        <source>copy it from the card again</source>
        <translation>vuelva a copiarla de la tarjeta</translation>
    </message>
    <message>
        <source>%1 given, %2 readable, focal %3, lens %4</source>
        <translation>%1 elegidas, %2 legibles, focal %3, objetivo %4</translation>
    </message>
    <message>
        <source>neither the photos nor the record name the focal length</source>
        <translation>ni las fotos ni el registro indican la distancia focal</translation>
    </message>
    <message>
        <source>give it, as for 35 mm film: --focal 24</source>
        <translation>introdúzcala, equivalente a película de 35 mm</translation>
    </message>
    <message>
        <source>not all photos have a capture time</source>
        <translation>no todas las fotos tienen hora de captura</translation>
    </message>
    <message>
        <source>%1 was taken before %2</source>
        <translation>%1 se tomó antes que %2</translation>
    </message>
    <message>
        <source>try --order time</source>
        <translation>pruebe a ordenarlas por hora</translation>
    </message>
    <message>
        <source>capture times agree</source>
        <translation>las horas de captura concuerdan</translation>
    </message>
    <message>
        <source>none</source>
        <translation>ninguno</translation>
    </message>
    <message>
        <source>%1 s after %2 (usually %3 s)</source>
        <translation>%1 s después de %2 (normalmente %3 s)</translation>
    </message>
    <message>
        <source>standard</source>
        <translation>estándar</translation>
    </message>
    <message>
        <source>fisheye</source>
        <translation>ojo de pez</translation>
    </message>
    <message>
        <source>%1 mm</source>
        <translation>%1 mm</translation>
    </message>
    <message>
        <source>this folder cannot be made</source>
        <translation>no se puede crear esta carpeta</translation>
    </message>
    <message>
        <source>is the disk full, or the folder above it read-only?</source>
        <translation>¿está lleno el disco, o protegida contra escritura la carpeta superior?</translation>
    </message>
    <message>
        <source>no photo reaches these sides of the cube, which are left out: %1</source>
        <translation>ninguna foto llega a estas caras del cubo, que se dejan fuera: %1</translation>
    </message>
    <message>
        <source>cannot be written (%1)</source>
        <translation>no se puede escribir (%1)</translation>
    </message>
    <message>
        <source>make room there or choose another place</source>
        <translation>libere espacio ahí o elija otro lugar</translation>
    </message>
    <message>
        <source>the folder %1 does not exist</source>
        <translation>la carpeta %1 no existe</translation>
    </message>
    <message>
        <source>create it or choose another place</source>
        <translation>créela o elija otro lugar</translation>
    </message>
    <message>
        <source>is a folder</source>
        <translation>es una carpeta</translation>
    </message>
    <message>
        <source>is not a regular file</source>
        <translation>no es un archivo normal</translation>
    </message>
    <message>
        <source>remove it or choose another name with -o</source>
        <translation>quítelo o elija otro nombre</translation>
    </message>
    <message>
        <source>is a file, and a folder of that name is wanted</source>
        <translation>es un archivo, y hace falta una carpeta con ese nombre</translation>
    </message>
    <message>
        <source>is a folder that panohost has not made</source>
        <translation>es una carpeta no creada por panohost</translation>
    </message>
    <message>
        <source>it left a file that is not complete</source>
        <translation>ha dejado un archivo incompleto</translation>
    </message>
    <message>
        <source>is the disk full? make room and try again</source>
        <translation>¿está lleno el disco? libere espacio e inténtelo de nuevo</translation>
    </message>
    <message>
        <source>make room there and try again</source>
        <translation>libere espacio ahí e inténtelo de nuevo</translation>
    </message>
    <message>
        <source>the panorama has %1 x %2 pixels, and JPEG files at most %3 to a side</source>
        <translation>el panorama tiene %1 x %2 píxeles, y los archivos JPEG admiten como máximo %3 por lado</translation>
    </message>
    <message>
        <source>name it .tif, or make it smaller with --size</source>
        <translation>use un nombre con .tif o elija un tamaño menor</translation>
    </message>
    <message>
        <source>this panorama&apos;s values are not light</source>
        <translation>los valores de este panorama no son de luz</translation>
    </message>
    <message>
        <source>needs --output hdr</source>
        <translation>elija «La luz misma (HDR)»</translation>
    </message>
    <message>
        <source>is not the panorama that was stitched last</source>
        <translation>no es el último panorama que se unió</translation>
    </message>
    <message>
        <source>remove it and try again</source>
        <translation>quítelo e inténtelo de nuevo</translation>
    </message>
    <message>
        <source>it left %1 incomplete</source>
        <translation>ha dejado %1 sin terminar</translation>
    </message>
    <message>
        <source>is the disk full?</source>
        <translation>¿está lleno el disco?</translation>
    </message>
    <message>
        <source>the address where the folder will be reached is not known</source>
        <translation>no se conoce la dirección en la que se encontrará la carpeta</translation>
    </message>
    <message>
        <source>give it, such as https://example.org/panoramas</source>
        <translation>indíquela, por ejemplo https://example.org/panoramas</translation>
    </message>
    <message>
        <source>%1 less %2 ignored</source>
        <translation>%1 menos %2 sin usar</translation>
    </message>
    <message>
        <source>%1, %2, bracket %3, %4 ignored</source>
        <translation>%1, %2, horquillado de %3, omitidas: %4</translation>
    </message>
    <message>
        <source>photos</source>
        <translation>fotos</translation>
    </message>
    <message>
        <source>--ignore %1 leaves none of %2</source>
        <translation>si se omiten %1, no queda ninguna de %2</translation>
    </message>
    <message>
        <source>ignore fewer, or name all photos</source>
        <translation>omita menos, o elija todas las fotos</translation>
    </message>
    <message>
        <source>--bracket %1 is more than %2</source>
        <translation>%2 no bastan para un horquillado de %1</translation>
    </message>
    <message>
        <source>each position needs all its exposures</source>
        <translation>cada posición necesita todas sus exposiciones</translation>
    </message>
    <message>
        <source>%1 are not a multiple of bracket %2</source>
        <translation>%1 no son múltiplo del horquillado de %2</translation>
    </message>
    <message>
        <source>each position needs all its exposures; --ignore N leaves out the first N photos</source>
        <translation>cada posición necesita todas sus exposiciones; se pueden omitir las primeras fotos</translation>
    </message>
    <message>
        <source>%1 (%2 in brackets of %3)</source>
        <translation>%1 (%2 en horquillados de %3)</translation>
    </message>
    <message>
        <source>%1 do not divide %2 evenly</source>
        <translation>%2 no se reparten por igual en %1</translation>
    </message>
    <message>
        <source>are photos missing? --ignore N leaves out the first N photos</source>
        <translation>¿faltan fotos? se pueden omitir las primeras</translation>
    </message>
    <message>
        <source>%1 and %2 more</source>
        <translation>%1 y %2 más</translation>
    </message>
    <message>
        <source>no pause tells where</source>
        <translation>ninguna pausa indica dónde</translation>
    </message>
    <message>
        <source>the longest pause: %1, in row %2 as they were taken</source>
        <translation>la pausa más larga: %1, en la fila %2 según el orden de las tomas</translation>
    </message>
    <message>
        <source>the longest pause: %1, in column %2 as they were taken</source>
        <translation>la pausa más larga: %1, en la columna %2 según el orden de las tomas</translation>
    </message>
    <message>
        <source>the pictures do not tell which are missing: %1</source>
        <translation>las imágenes no permiten saber cuáles faltan: %1</translation>
    </message>
    <message>
        <source>no photo for %1 (rows from the top, columns from the left)</source>
        <translation>no hay foto para %1 (filas desde arriba, columnas desde la izquierda)</translation>
    </message>
    <message>
        <source>no such file</source>
        <translation>no existe el archivo</translation>
    </message>
    <message>
        <source>not a regular file</source>
        <translation>no es un archivo normal</translation>
    </message>
    <message>
        <source>no &lt;shoot&gt; pictures</source>
        <translation>no contiene imágenes &lt;shoot&gt;</translation>
    </message>
    <message>
        <source>is it an old-style Papywizard file (image/coords)?</source>
        <translation>¿es un archivo antiguo de Papywizard (image/coords)?</translation>
    </message>
    <message>
        <source>its &lt;shoot&gt; holds no &lt;pict&gt;: no shot was recorded</source>
        <translation>su &lt;shoot&gt; no contiene ningún &lt;pict&gt;: no se registró ninguna toma</translation>
    </message>
    <message>
        <source>choose the record of a finished shoot</source>
        <translation>elija el registro de una sesión terminada</translation>
    </message>
    <message>
        <source>no op_shoot command: no shot was recorded</source>
        <translation>sin orden op_shoot: no se registró ninguna toma</translation>
    </message>
    <message>
        <source>is it the script that the head ran?</source>
        <translation>¿es el script que ejecutó el cabezal?</translation>
    </message>
    <message>
        <source>correct this line, or choose another script</source>
        <translation>corrija esta línea o elija otro script</translation>
    </message>
    <message>
        <source>line %1: %2</source>
        <translation>línea %1: %2</translation>
    </message>
    <message>
        <source>is it the record that the head wrote?</source>
        <translation>¿es el registro que escribió el cabezal?</translation>
    </message>
    <message>
        <source>no such record</source>
        <translation>no existe el registro</translation>
    </message>
    <message>
        <source>check the name</source>
        <translation>revise el nombre</translation>
    </message>
    <message>
        <source>unknown head &apos;%1&apos;%2</source>
        <translation>cabezal desconocido «%1»%2</translation>
    </message>
    <message>
        <source>heads: %1</source>
        <translation>cabezales: %1</translation>
    </message>
    <message>
        <source>no record of some of its shots can be made</source>
        <translation>no se puede crear un registro con solo algunas de sus tomas</translation>
    </message>
    <message>
        <source>take the shots by hand</source>
        <translation>haga las tomas a mano</translation>
    </message>
    <message>
        <source>using %1</source>
        <translation>se usa %1</translation>
    </message>
    <message>
        <source>has no import plug-in for %1</source>
        <translation>no tiene complemento de importación para %1</translation>
    </message>
    <message>
        <source>set --plugin to another library</source>
        <translation>use otra biblioteca de complementos</translation>
    </message>
    <message>
        <source>the page refuses them</source>
        <translation>la página las rechaza</translation>
    </message>
    <message>
        <source>make it first</source>
        <translation>créela antes</translation>
    </message>
    <message>
        <source>name a file in it</source>
        <translation>elija un archivo dentro de ella</translation>
    </message>
    <message>
        <source>name a file of your own</source>
        <translation>elija un archivo propio</translation>
    </message>
    <message>
        <source>cannot be written there: %1</source>
        <translation>no se puede escribir ahí: %1</translation>
    </message>
    <message>
        <source>choose a folder of your own</source>
        <translation>elija una carpeta propia</translation>
    </message>
    <message>
        <source>is one of the input files</source>
        <translation>es uno de los archivos de entrada</translation>
    </message>
    <message>
        <source>choose another name for the result</source>
        <translation>elija otro nombre para el resultado</translation>
    </message>
    <message>
        <source>given twice</source>
        <translation>elegida dos veces</translation>
    </message>
    <message>
        <source>name each photo once</source>
        <translation>elija cada foto una sola vez</translation>
    </message>
    <message>
        <source>no such photo</source>
        <translation>no existe la foto</translation>
    </message>
    <message>
        <source>rename the file: its name is not in UTF-8</source>
        <translation>cambie el nombre del archivo: no está en UTF-8</translation>
    </message>
    <message>
        <source>name the photos in it, e.g. %1/*.jpg</source>
        <translation>elija las fotos que contiene, p. ej. %1/*.jpg</translation>
    </message>
    <message>
        <source>name photos only</source>
        <translation>elija solo fotos</translation>
    </message>
    <message>
        <source>cannot be read: permission denied</source>
        <translation>no se puede leer: permiso denegado</translation>
    </message>
    <message>
        <source>copy it to a folder of your own</source>
        <translation>cópiela a una carpeta propia</translation>
    </message>
    <message>
        <source>are photos missing, or did the shoot stop early?</source>
        <translation>¿faltan fotos, o se detuvo antes la sesión?</translation>
    </message>
    <message>
        <source>are test shots among the photos?</source>
        <translation>¿hay tomas de prueba entre las fotos?</translation>
    </message>
    <message>
        <source>records %1, %2 given</source>
        <translation>contiene %1, y aquí hay %2</translation>
    </message>
    <message>
        <source>has no capture time to order by</source>
        <translation>no tiene hora de captura para ordenarla</translation>
    </message>
    <message>
        <source>use --order name or --order given</source>
        <translation>ordene las fotos por nombre</translation>
    </message>
    <message>
        <source>the record</source>
        <translation>el registro</translation>
    </message>
    <message>
        <source>the photos&apos; EXIF data</source>
        <translation>los datos EXIF de las fotos</translation>
    </message>
    <message>
        <source>the photos&apos; EXIF data or the record</source>
        <translation>los datos EXIF de las fotos ni en el registro</translation>
    </message>
    <message>
        <source>focal length</source>
        <translation>distancia focal</translation>
    </message>
    <message>
        <source>not known from %1</source>
        <translation>no consta en %1</translation>
    </message>
    <message>
        <source>give it with --focal MM (35 mm equivalent)</source>
        <translation>vuelva atrás e introdúzcala (equivalente a 35 mm)</translation>
    </message>
    <message>
        <source>focal length %1 (EXIF) against %2 (record); using EXIF; choose with --focal</source>
        <translation>distancia focal de %1 (EXIF) frente a %2 (registro); se usa la de EXIF</translation>
    </message>
    <message>
        <source>%1 of the photos name no focal length; using that of the others; choose with --focal</source>
        <translation>%1 de las fotos no indican la distancia focal; se usa la de las demás</translation>
    </message>
    <message>
        <source>%1 lens (EXIF) against %2 (record); using EXIF; choose with --lens</source>
        <translation>objetivo %1 (EXIF) frente a %2 (registro); se usa el de EXIF</translation>
    </message>
    <message>
        <source>the photos name focal lengths from %1 to %2; using their median; choose with --focal</source>
        <translation>las fotos indican distancias focales de %1 a %2; se usa su mediana</translation>
    </message>
    <message>
        <source>plug-in page</source>
        <translation>página del complemento</translation>
    </message>
    <message>
        <source>has no &apos;%1&apos;</source>
        <translation>no tiene «%1»</translation>
    </message>
    <message>
        <source>is this library of another version? set --plugin</source>
        <translation>¿es esta biblioteca de otra versión?</translation>
    </message>
    <message>
        <source>%1 is not between %2 and %3</source>
        <translation>%1 no está entre %2 y %3</translation>
    </message>
    <message>
        <source>its photo button opens no file dialog</source>
        <translation>su botón de fotos no abre ningún diálogo de archivos</translation>
    </message>
    <message>
        <source> (and %1 more of %2 photos)</source>
        <translation> (y %1 más de %2 fotos)</translation>
    </message>
    <message>
        <source>cannot read (%1)%2</source>
        <translation>no se puede leer (%1)%2</translation>
    </message>
    <message>
        <source>is it a photo? try &apos;panohost check&apos;</source>
        <translation>¿es una foto? vea la línea bajo la página</translation>
    </message>
    <message>
        <source>the page does not accept them</source>
        <translation>la página no las acepta</translation>
    </message>
    <message>
        <source>try &apos;panohost check&apos;</source>
        <translation>vea la línea bajo la página</translation>
    </message>
    <message>
        <source>refused by the plug-in</source>
        <translation>rechazado por el complemento</translation>
    </message>
    <message>
        <source>temporary links to the photos</source>
        <translation>enlaces temporales a las fotos</translation>
    </message>
    <message>
        <source>is the temporary folder full? set TMPDIR</source>
        <translation>¿está llena la carpeta temporal? indique otra en TMPDIR</translation>
    </message>
    <message>
        <source>of no shot</source>
        <translation>ninguna toma</translation>
    </message>
    <message>
        <source>shot %1</source>
        <translation>la toma %1</translation>
    </message>
    <message>
        <source>: %1 may be %2 (%3 %) or %4</source>
        <translation>: %1 corresponde a %2 (%3&#xa0;%) o a %4</translation>
    </message>
    <message>
        <source>which photo belongs to which shot cannot be told surely%1; take photos of other shoots away, or say the order with --order name, time or given</source>
        <translation>no se puede saber con seguridad qué foto corresponde a qué toma%1; quite las fotos de otras sesiones</translation>
    </message>
    <message>
        <source>%1 for shot %2</source>
        <translation>%1 para la toma %2</translation>
    </message>
    <message>
        <source>the camera took several photos for each shot: the last one of each is used</source>
        <translation>la cámara tomó varias fotos por toma: se usa la última de cada una</translation>
    </message>
    <message>
        <source>taken more than once; used: %1</source>
        <translation>tomadas más de una vez; se usan: %1</translation>
    </message>
    <message>
        <source>the camera&apos;s counter began again among these photos: they are ordered by time</source>
        <translation>el contador de la cámara volvió a empezar entre estas fotos: se ordenan por hora</translation>
    </message>
    <message>
        <source>photo numbers begin again (another card?): they are ordered by time</source>
        <translation>los números de las fotos vuelven a empezar (¿otra tarjeta?): se ordenan por hora</translation>
    </message>
    <message>
        <source>names and times disagree: photos are ordered by time</source>
        <translation>los nombres y las horas no concuerdan: las fotos se ordenan por hora</translation>
    </message>
    <message>
        <source>no photo for %1%2</source>
        <translation>no hay foto para %1%2</translation>
    </message>
    <message>
        <source> (was the shoot stopped?)</source>
        <translation> (¿se detuvo la sesión?)</translation>
    </message>
    <message>
        <source>take them again if you can</source>
        <translation>repítalas si puede</translation>
    </message>
    <message>
        <source>%1 min %2 s</source>
        <translation>%1 min %2 s</translation>
    </message>
    <message>
        <source>1 hour</source>
        <translation>1 hora</translation>
    </message>
    <message>
        <source>%1 hours</source>
        <translation>%1 horas</translation>
    </message>
    <message>
        <source>the camera&apos;s clock is %1 ahead of the head&apos;s</source>
        <translation>el reloj de la cámara va %1 adelantado respecto al del cabezal</translation>
    </message>
    <message>
        <source>the camera&apos;s clock is %1 behind the head&apos;s</source>
        <translation>el reloj de la cámara va %1 atrasado respecto al del cabezal</translation>
    </message>
    <message>
        <source>the camera&apos;s clock gains %1 s in a minute</source>
        <translation>el reloj de la cámara se adelanta %1 s por minuto</translation>
    </message>
    <message>
        <source>the camera&apos;s clock loses %1 s in a minute</source>
        <translation>el reloj de la cámara se atrasa %1 s por minuto</translation>
    </message>
    <message>
        <source>the same picture: %1</source>
        <translation>la misma imagen: %1</translation>
    </message>
    <message>
        <source>before the first shot (a test?): left out</source>
        <translation>antes de la primera toma (¿una prueba?): sin usar</translation>
    </message>
    <message>
        <source>of another size: left out</source>
        <translation>de otro tamaño: sin usar</translation>
    </message>
    <message>
        <source>not of this shoot: left out</source>
        <translation>de otra sesión: sin usar</translation>
    </message>
    <message>
        <source>which photo belongs to which shot could not be checked (%1): they are taken in the order of their names</source>
        <translation>no se ha podido comprobar qué foto corresponde a qué toma (%1): se toman en el orden de sus nombres</translation>
    </message>
    <message>
        <source>names, times and counts</source>
        <translation>nombres, horas y cantidades</translation>
    </message>
    <message>
        <source>names and counts</source>
        <translation>nombres y cantidades</translation>
    </message>
    <message>
        <source>the record tells no times</source>
        <translation>el registro no indica horas</translation>
    </message>
    <message>
        <source>the photos tell no times</source>
        <translation>las fotos no indican horas</translation>
    </message>
    <message>
        <source>the times of photos and record do not agree</source>
        <translation>las horas de las fotos y del registro no concuerdan</translation>
    </message>
    <message>
        <source>%1 left out: other files of the same photos are used, JPEG before RAW</source>
        <translation>%1 sin usar: hay otros archivos de las mismas fotos, JPEG antes que RAW</translation>
    </message>
    <message>
        <source>not opened: %1 agree</source>
        <translation>no se han abierto: %1 concuerdan</translation>
    </message>
    <message>
        <source>the grid</source>
        <translation>la cuadrícula</translation>
    </message>
    <message>
        <source>none of its shots has a photo</source>
        <translation>ninguna de sus tomas tiene foto</translation>
    </message>
    <message>
        <source>are these the photos of this shoot?</source>
        <translation>¿son estas las fotos de esta sesión?</translation>
    </message>
    <message>
        <source>was made of other photos</source>
        <translation>a partir de otras fotos</translation>
    </message>
    <message>
        <source>%1 between %2</source>
        <translation>%1 entre %2</translation>
    </message>
    <message>
        <source>; %1 without a neighbour near enough</source>
        <translation>; %1 sin vecina lo bastante cerca</translation>
    </message>
    <message>
        <source>%1 to %2</source>
        <translation>%1 a %2</translation>
    </message>
    <message>
        <source>shots %1</source>
        <translation>las tomas %1</translation>
    </message>
    <message>
        <source>, exposure %1 of %2</source>
        <translation>, exposición %1 de %2</translation>
    </message>
    <message>
        <source>no photo for shot %1 (yaw %2, pitch %3%4)</source>
        <translation>no hay foto para la toma %1 (guiñada %2, cabeceo %3%4)</translation>
    </message>
    <message>
        <source>no photo for %1</source>
        <translation>no hay foto para %1</translation>
    </message>
    <message>
        <source>panorama of %1 x %2 pixels: takes about %3 in %4 (%5 are free) and %6 of memory</source>
        <translation>panorama de %1 x %2 píxeles: ocupa unos %3 en %4 (quedan %5 libres) y %6 de memoria</translation>
    </message>
    <message>
        <source>the light is exact to a fraction of a percent, but where every exposure clips it or shows noise</source>
        <translation>la luz es exacta con un error menor del uno por ciento, salvo donde todas las exposiciones están quemadas o tienen ruido</translation>
    </message>
    <message>
        <source>the light is good for looking at, not for measuring: the photos&apos; curve is taken for sRGB&apos;s; RAW files, or TIFFs without a curve and --linear, make it exact</source>
        <translation>la luz sirve para mirarla, no para medirla: se supone que la curva de las fotos es la de sRGB; los archivos RAW la hacen exacta</translation>
    </message>
    <message>
        <source>is to hold what is kept of this panorama, and holds something else</source>
        <translation>debía contener lo que se conserva de este panorama, y contiene otra cosa</translation>
    </message>
    <message>
        <source>rename it, or choose another name with -o</source>
        <translation>cámbiele el nombre o elija otro para el panorama</translation>
    </message>
    <message>
        <source>the project asks for another projection; the panorama becomes equirectangular</source>
        <translation>el proyecto pide otra proyección; el panorama será equirrectangular</translation>
    </message>
    <message>
        <source>masks that include a region are passed over, only those that exclude one count</source>
        <translation>no se tienen en cuenta las máscaras que incluyen una zona, solo las que excluyen una</translation>
    </message>
    <message>
        <source>--centre turns full turns only; this part of the sphere stays as it is</source>
        <translation>solo se puede girar un panorama de vuelta completa; esta parte de la esfera se queda como está</translation>
    </message>
    <message>
        <source>%1: cannot be read to its end; copy it from the card again, or take it again</source>
        <translation>%1: no se puede leer hasta el final; vuelva a copiarla de la tarjeta o repita la toma</translation>
    </message>
    <message>
        <source>%1 of them are RAW files</source>
        <translation>archivos RAW entre ellas: %1</translation>
    </message>
    <message>
        <source>add --raw-converter dcraw, dcraw_emu, darktable-cli or rawtherapee-cli, or give JPEGs or TIFFs of them</source>
        <translation>instale dcraw, libraw-bin, darktable o rawtherapee, o use los JPEG o TIFF de estas fotos</translation>
    </message>
    <message>
        <source>photos stay where the head says: optimisation is skipped</source>
        <translation>las fotos se quedan donde dice el cabezal: se omite la optimización</translation>
    </message>
    <message>
        <source>what was finished is kept in %1: the same command goes on from there</source>
        <translation>lo terminado se conserva en %1: «Crear panorama» continúa desde ahí</translation>
    </message>
    <message>
        <source>photos lie where the record puts them in these commands: nothing is aligned yet</source>
        <translation>las fotos están donde las sitúa el registro: aún no se ha alineado nada</translation>
    </message>
    <message>
        <source>a Hugin project cannot hold a file name with quotation marks or line ends, and no link to it can be made in %1</source>
        <translation>un proyecto de Hugin no admite nombres de archivo con comillas o saltos de línea, y no se puede crear un enlace al archivo en %1</translation>
    </message>
    <message>
        <source>rename the file</source>
        <translation>cambie el nombre del archivo</translation>
    </message>
    <message>
        <source>name dcraw, dcraw_emu, darktable-cli or rawtherapee-cli, or a command with %i for the RAW file and %o for the TIFF</source>
        <translation>indique dcraw, dcraw_emu, darktable-cli o rawtherapee-cli, o una orden con %i para el archivo RAW y %o para el TIFF</translation>
    </message>
    <message>
        <source>this RAW converter was not found</source>
        <translation>no se ha encontrado este conversor RAW</translation>
    </message>
    <message>
        <source>is its name right? of those known: apt install dcraw, libraw-bin, darktable or rawtherapee</source>
        <translation>¿es correcto el nombre? de los conocidos: apt install dcraw, libraw-bin, darktable o rawtherapee</translation>
    </message>
    <message>
        <source>the camera chose the white balance of %1 RAW files one by one, and %2 follows it: their colours may differ; dcraw takes the first one&apos;s for all</source>
        <translation>la cámara eligió el balance de blancos de %1 archivos RAW uno a uno, y %2 lo respeta: sus colores pueden variar; dcraw usa el del primero para todos</translation>
    </message>
    <message>
        <source>this copy of a photo cannot be made</source>
        <translation>no se puede crear esta copia de una foto</translation>
    </message>
    <message>
        <source>is the photo readable? is the disk full?</source>
        <translation>¿se puede leer la foto? ¿está lleno el disco?</translation>
    </message>
    <message>
        <source>, of %1</source>
        <translation>, con %1</translation>
    </message>
    <message>
        <source>it left no whole picture of %1</source>
        <translation>no ha dejado una imagen completa de %1</translation>
    </message>
    <message>
        <source>can it read this camera&apos;s files? is the disk full?</source>
        <translation>¿puede leer los archivos de esta cámara? ¿está lleno el disco?</translation>
    </message>
    <message>
        <source>names no program</source>
        <translation>no indica ningún programa</translation>
    </message>
    <message>
        <source>does not say where its files go</source>
        <translation>no indica adónde van sus archivos</translation>
    </message>
    <message>
        <source>row %1 of column %2</source>
        <translation>la fila %1 de la columna %2</translation>
    </message>
    <message>
        <source>the grid reaches around the sphere: overlap or rows do not fit this lens</source>
        <translation>la cuadrícula da la vuelta a la esfera: el solapamiento o las filas no concuerdan con este objetivo</translation>
    </message>
    <message numerus="yes">
        <source>%n column</source>
        <translation>
            <numerusform>%n columna</numerusform>
            <numerusform>%n columnas</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%n file</source>
        <translation>
            <numerusform>%n archivo</numerusform>
            <numerusform>%n archivos</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%n link</source>
        <translation>
            <numerusform>%n enlace</numerusform>
            <numerusform>%n enlaces</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%n photo</source>
        <translation>
            <numerusform>%n foto</numerusform>
            <numerusform>%n fotos</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%n position</source>
        <translation>
            <numerusform>%n posición</numerusform>
            <numerusform>%n posiciones</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%n row</source>
        <translation>
            <numerusform>%n fila</numerusform>
            <numerusform>%n filas</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%n shot</source>
        <translation>
            <numerusform>%n toma</numerusform>
            <numerusform>%n tomas</numerusform>
        </translation>
    </message>
    <message>
        <source>the description</source>
        <translation>la descripción</translation>
    </message>
    <message>
        <source>%1 recorded directions for %2 photos at %3 positions</source>
        <translation>%1 direcciones registradas para %2 fotos en %3 posiciones</translation>
    </message>
    <message>
        <source>its direction is not a number</source>
        <translation>su dirección no es un número</translation>
    </message>
    <message>
        <source>correct the record</source>
        <translation>corrija el registro</translation>
    </message>
    <message>
        <source>position %1</source>
        <translation>la posición %1</translation>
    </message>
    <message>
        <source>has no photo</source>
        <translation>no tiene foto</translation>
    </message>
    <message>
        <source>holds no photos</source>
        <translation>no contiene fotos</translation>
    </message>
    <message>
        <source>name a file that &apos;panohost import --json&apos; has written</source>
        <translation>elija una descripción guardada con panohost</translation>
    </message>
    <message>
        <source>cannot read (not a photo?)</source>
        <translation>no se puede leer (¿no es una foto?)</translation>
    </message>
    <message>
        <source>its pixels cannot be decoded (a RAW file?)</source>
        <translation>no se pueden descodificar sus píxeles (¿un archivo RAW?)</translation>
    </message>
    <message>
        <source>too large to decode</source>
        <translation>demasiado grande para descodificarla</translation>
    </message>
    <message>
        <source>give it with --focal</source>
        <translation>vuelva atrás e introdúzcala</translation>
    </message>
    <message>
        <source>neither the record nor the photos name it</source>
        <translation>ni el registro ni las fotos la indican</translation>
    </message>
    <message>
        <source>no lens has %1 mm</source>
        <translation>ningún objetivo tiene %1 mm</translation>
    </message>
    <message>
        <source>its size in pixels is not known</source>
        <translation>no se conoce su tamaño en píxeles</translation>
    </message>
    <message>
        <source>can another program open it? leave it out if not</source>
        <translation>¿puede abrirla otro programa? si no, no la use</translation>
    </message>
    <message>
        <source>the photos have %1 different sizes in pixels</source>
        <translation>las fotos tienen %1 tamaños distintos en píxeles</translation>
    </message>
    <message>
        <source>a Hugin project cannot hold a file name with quotation marks or line ends</source>
        <translation>un proyecto de Hugin no admite nombres de archivo con comillas o saltos de línea</translation>
    </message>
    <message>
        <source>%1 of %2 photos name no exposure; %3 is assumed</source>
        <translation>%1 de %2 fotos no indican la exposición; se supone %3</translation>
    </message>
    <message>
        <source>larger than %1 bytes</source>
        <translation>ocupa más de %1 bytes</translation>
    </message>
    <message>
        <source>give the name of a file</source>
        <translation>indique el nombre de un archivo</translation>
    </message>
    <message>
        <source>set --plugin or PANOHOST_PLUGIN_PATH to libXPanoHead.so</source>
        <translation>haga que PANOHOST_PLUGIN_PATH apunte a libXPanoHead.so</translation>
    </message>
    <message>
        <source>no such file or folder</source>
        <translation>no existe el archivo o la carpeta</translation>
    </message>
    <message>
        <source>import plug-ins</source>
        <translation>complementos de importación</translation>
    </message>
    <message>
        <source>no plug-in library in %1</source>
        <translation>no hay biblioteca de complementos en %1</translation>
    </message>
    <message>
        <source>is not a Qt plug-in library</source>
        <translation>no es una biblioteca de complementos de Qt</translation>
    </message>
    <message>
        <source>its interface is &apos;%1&apos;, &apos;%2&apos; is needed</source>
        <translation>su interfaz es «%1», y se necesita «%2»</translation>
    </message>
    <message>
        <source>offers no list of plug-ins</source>
        <translation>no ofrece una lista de complementos</translation>
    </message>
    <message>
        <source>holds no import plug-in</source>
        <translation>no contiene ningún complemento de importación</translation>
    </message>
    <message>
        <source>cannot be written</source>
        <translation>no se puede escribir</translation>
    </message>
    <message>
        <source>is of another size than the others of its bracket</source>
        <translation>no tiene el mismo tamaño que las demás de su horquillado</translation>
    </message>
    <message>
        <source>is no warped light</source>
        <translation>no contiene luz deformada</translation>
    </message>
    <message>
        <source>these photos of the project, and %1 more, are not there any more</source>
        <translation>estas fotos del proyecto, y %1 más, ya no están</translation>
    </message>
    <message>
        <source>not there any more</source>
        <translation>ya no hay nada ahí</translation>
    </message>
    <message>
        <source>put the photos back where they were, or import them again</source>
        <translation>devuelva las fotos a su sitio, o impórtelas de nuevo</translation>
    </message>
    <message>
        <source>%1 has %2 bits a colour, %3 has %4, and all must be alike to be blended</source>
        <translation>%1 tiene %2 bits por color, %3 tiene %4, y todas deben ser iguales para poder unirlas</translation>
    </message>
    <message>
        <source>convert or develop them alike</source>
        <translation>conviértalas o revélelas de la misma manera</translation>
    </message>
    <message>
        <source>was not written to its end</source>
        <translation>no se ha escrito hasta el final</translation>
    </message>
    <message>
        <source>is there enough room in %1?</source>
        <translation>¿hay espacio suficiente en %1?</translation>
    </message>
    <message>
        <source>nona, of %1</source>
        <translation>nona, con %1</translation>
    </message>
    <message>
        <source>made no picture of %1</source>
        <translation>no ha creado ninguna imagen de %1</translation>
    </message>
    <message>
        <source>is it a photo that other programs open?</source>
        <translation>¿es una foto que otros programas abren?</translation>
    </message>
    <message>
        <source>size of the panorama</source>
        <translation>tamaño del panorama</translation>
    </message>
    <message>
        <source>%1 x %2 pixels cannot be made</source>
        <translation>no se pueden crear %1 x %2 píxeles</translation>
    </message>
    <message>
        <source>choose another --size</source>
        <translation>elija otro tamaño</translation>
    </message>
    <message>
        <source>the stitch needs %1 there, %2 are free</source>
        <translation>el panorama necesita %1 ahí, y quedan %2 libres</translation>
    </message>
    <message>
        <source>make room, name another place with -o, or choose a smaller --size</source>
        <translation>libere espacio, elija otro lugar o un tamaño menor</translation>
    </message>
    <message>
        <source>memory</source>
        <translation>memoria</translation>
    </message>
    <message>
        <source>the stitch needs about %1, %2 are available</source>
        <translation>el panorama necesita unos %1, y hay %2 disponibles</translation>
    </message>
    <message>
        <source>close other programs, or choose --jobs 1 or a smaller --size</source>
        <translation>cierre otros programas o elija un tamaño menor</translation>
    </message>
    <message>
        <source>try it by itself</source>
        <translation>pruébelo por separado</translation>
    </message>
    <message>
        <source>%1 minutes</source>
        <translation>%1 minutos</translation>
    </message>
    <message>
        <source>it was killed, perhaps because memory ran out</source>
        <translation>ha sido interrumpido, quizá por falta de memoria</translation>
    </message>
    <message>
        <source>close other programs and try again</source>
        <translation>cierre otros programas e inténtelo de nuevo</translation>
    </message>
    <message>
        <source>it crashed (signal %1)</source>
        <translation>se ha cerrado de forma inesperada (señal %1)</translation>
    </message>
    <message>
        <source>%1 and said: %2</source>
        <translation>%1, con el mensaje: %2</translation>
    </message>
    <message>
        <source> if so: %1</source>
        <translation> si lo hay: %1</translation>
    </message>
    <message>
        <source>this program is needed for stitching and was not found</source>
        <translation>este programa hace falta para crear el panorama y no se ha encontrado</translation>
    </message>
    <message>
        <source>cannot be started (%1)</source>
        <translation>no se puede iniciar (%1)</translation>
    </message>
    <message>
        <source>it was stopped since it did nothing for %1</source>
        <translation>se ha detenido porque no hizo nada durante %1</translation>
    </message>
    <message>
        <source>is the machine very busy, or a network drive away? try again</source>
        <translation>¿está el equipo muy ocupado, o desconectada una unidad de red? inténtelo de nuevo</translation>
    </message>
    <message>
        <source>it failed without a message</source>
        <translation>ha fallado sin ningún mensaje</translation>
    </message>
    <message>
        <source>it failed and said: %1</source>
        <translation>ha fallado con el mensaje: %1</translation>
    </message>
    <message>
        <source>is the disk full, or a file damaged that it reads?</source>
        <translation>¿está lleno el disco, o dañado un archivo que lee?</translation>
    </message>
    <message>
        <source>it failed, and there is hardly any room left on the disk at %1 (%2)</source>
        <translation>ha fallado, y apenas queda espacio en el disco en %1 (%2)</translation>
    </message>
    <message>
        <source>make room there and go on with the same command; nothing is lost</source>
        <translation>libere espacio ahí y pulse de nuevo «Crear panorama»; no se pierde nada</translation>
    </message>
    <message>
        <source>was the disk full? remove the file and try again</source>
        <translation>¿estaba lleno el disco? quite el archivo e inténtelo de nuevo</translation>
    </message>
    <message>
        <source>cannot be read</source>
        <translation>no se puede leer</translation>
    </message>
    <message>
        <source>is no picture of 8, 16 or floating bits</source>
        <translation>no es una imagen de 8 bits, 16 bits o coma flotante</translation>
    </message>
    <message>
        <source>is cut off</source>
        <translation>está cortado</translation>
    </message>
    <message>
        <source>cannot be mapped into memory</source>
        <translation>no se puede asignar en memoria</translation>
    </message>
    <message>
        <source>is the disk full, or the folder read-only?</source>
        <translation>¿está lleno el disco, o protegida contra escritura la carpeta?</translation>
    </message>
    <message>
        <source>%1, process %2 on %3</source>
        <translation>%1, proceso %2 en %3</translation>
    </message>
    <message>
        <source>another program</source>
        <translation>otro programa</translation>
    </message>
    <message>
        <source>there is a file of that name: rename it, or choose another name with -o</source>
        <translation>hay un archivo con ese nombre: cámbiele el nombre o elija otro para el panorama</translation>
    </message>
    <message>
        <source>is in use by %1</source>
        <translation>en uso por %1</translation>
    </message>
    <message>
        <source>wait for it to end, or choose another name with -o</source>
        <translation>espere a que termine o elija otro nombre</translation>
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
