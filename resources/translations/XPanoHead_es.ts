<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<TS version="2.1" language="es" sourcelanguage="en">
<context>
    <name>UIWPClauss</name>
    <message>
        <source>Error</source>
        <translation>Error</translation>
    </message>
    <message>
        <source>Error parse file:%1</source>
        <translation>Error al leer el archivo: %1</translation>
    </message>
    <message>
        <source>Select the preset file and/or images</source>
        <translation>Seleccionar el archivo de la toma y/o las imágenes</translation>
    </message>
    <message>
        <source>All Files (*.*)</source>
        <translation>Todos los archivos (*.*)</translation>
    </message>
    <message>
        <source>Select images</source>
        <translation>Seleccionar imágenes</translation>
    </message>
    <message>
        <source>N/A</source>
        <translation>N/D</translation>
    </message>
    <message>
        <source>Warning</source>
        <translation>Advertencia</translation>
    </message>
    <message>
        <source>There is not enough memory for so many images. Close other programs and try again.</source>
        <translation>No hay memoria suficiente para tantas imágenes. Cierre otros programas e inténtelo de nuevo.</translation>
    </message>
</context>
<context>
    <name>UIWPClaussClass</name>
    <message>
        <source>Clauss panohead</source>
        <translation>Cabezal panorámico Clauss</translation>
    </message>
    <message>
        <source>Clauss panohead import</source>
        <translation>Importación desde cabezal panorámico Clauss</translation>
    </message>
    <message>
        <source>&lt;a href=&quot;https://dr-clauss.de&quot;&gt;&lt;font color=&quot;#DCDCDC&quot;&gt;Clauss&lt;/font&gt;&lt;/a&gt; provides special equipment for panoramic photography and VR applications.</source>
        <translation>&lt;a href=&quot;https://dr-clauss.de&quot;&gt;&lt;font color=&quot;#DCDCDC&quot;&gt;Clauss&lt;/font&gt;&lt;/a&gt; ofrece equipos especiales para fotografía panorámica y aplicaciones de realidad virtual.</translation>
    </message>
    <message>
        <source>General</source>
        <translation>General</translation>
    </message>
    <message>
        <source>Script file:</source>
        <translation>Archivo de script:</translation>
    </message>
    <message>
        <source>...</source>
        <translation>...</translation>
    </message>
    <message>
        <source>Reset</source>
        <translation>Restablecer</translation>
    </message>
    <message>
        <source>Number of shoot:</source>
        <translation>N.º de tomas:</translation>
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
        <translation>Invertir coordenadas Y</translation>
    </message>
    <message>
        <source>Images:</source>
        <translation>Imágenes:</translation>
    </message>
    <message>
        <source>Number of image:</source>
        <translation>N.º de imágenes:</translation>
    </message>
    <message>
        <source>Options</source>
        <translation>Opciones</translation>
    </message>
    <message>
        <source>Auto detection</source>
        <translation>Detección automática</translation>
    </message>
    <message>
        <source>Clean wrong link</source>
        <translation>Eliminar enlaces erróneos</translation>
    </message>
    <message>
        <source>Skip optimization</source>
        <translation>Omitir la optimización</translation>
    </message>
    <message>
        <source>Guided optimization</source>
        <translation>Optimización guiada</translation>
    </message>
    <message>
        <source>Preview</source>
        <translation>Vista previa</translation>
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
        <translation>Seleccionar imágenes</translation>
    </message>
    <message>
        <source>All Files (*.*)</source>
        <translation>Todos los archivos (*.*)</translation>
    </message>
    <message>
        <source>images in </source>
        <translation>imágenes en </translation>
    </message>
    <message>
        <source>Warning</source>
        <translation>Advertencia</translation>
    </message>
    <message>
        <source>There is not enough memory for so many images. Close other programs and try again.</source>
        <translation>No hay memoria suficiente para tantas imágenes. Cierre otros programas e inténtelo de nuevo.</translation>
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
        <translation>Importación de panorama Gigapan</translation>
    </message>
    <message>
        <source>&lt;a href=&quot;http://www.gigapan.com&quot;&gt;&lt;font color=&quot;#DCDCDC&quot;&gt;Gigapan&lt;/font&gt;&lt;/a&gt; allows users to upload, share, and explore brilliant gigapixel+ panoramas from around the globe.</source>
        <translation>&lt;a href=&quot;http://www.gigapan.com&quot;&gt;&lt;font color=&quot;#DCDCDC&quot;&gt;Gigapan&lt;/font&gt;&lt;/a&gt; permite subir, compartir y explorar espléndidos panoramas de más de un gigapíxel de todo el mundo.</translation>
    </message>
    <message>
        <source>General</source>
        <translation>General</translation>
    </message>
    <message>
        <source>Images :</source>
        <translation>Imágenes:</translation>
    </message>
    <message>
        <source>...</source>
        <translation>...</translation>
    </message>
    <message>
        <source>Reset</source>
        <translation>Restablecer</translation>
    </message>
    <message>
        <source># Images in</source>
        <translation>N.º de imágenes en</translation>
    </message>
    <message>
        <source>rows and</source>
        <translation>filas y</translation>
    </message>
    <message>
        <source>columns.</source>
        <translation>columnas.</translation>
    </message>
    <message>
        <source>Ignore N files </source>
        <translation>Omitir los primeros archivos </translation>
    </message>
    <message>
        <source>Nb image per location ( bracketing )</source>
        <translation>Imágenes por posición (horquillado)</translation>
    </message>
    <message>
        <source>Shoot layout</source>
        <translation>Disposición de las tomas</translation>
    </message>
    <message>
        <source>Columns (default)</source>
        <translation>Columnas (por defecto)</translation>
    </message>
    <message>
        <source>Columns: to left</source>
        <translation>Columnas: a la izquierda</translation>
    </message>
    <message>
        <source>Rows: downward</source>
        <translation>Filas: hacia abajo</translation>
    </message>
    <message>
        <source>Rows: upward</source>
        <translation>Filas: hacia arriba</translation>
    </message>
    <message>
        <source>Shoot setup</source>
        <translation>Ajustes de la toma</translation>
    </message>
    <message>
        <source>Force 360° panorama</source>
        <translation>Forzar panorama de 360°</translation>
    </message>
    <message>
        <source>Overlapping</source>
        <translation>Solapamiento</translation>
    </message>
    <message>
        <source>Stack</source>
        <translation>Pila</translation>
    </message>
    <message>
        <source>Detect links in:</source>
        <translation>Detectar enlaces en:</translation>
    </message>
    <message>
        <source>The reference level</source>
        <translation>El nivel de referencia</translation>
    </message>
    <message>
        <source>All stack levels</source>
        <translation>Todos los niveles de la pila</translation>
    </message>
    <message>
        <source>For a stack:</source>
        <translation>Dentro de una pila:</translation>
    </message>
    <message>
        <source>Use hard links</source>
        <translation>Usar enlaces fijos</translation>
    </message>
    <message>
        <source>Detect control points</source>
        <translation>Detectar puntos de control</translation>
    </message>
    <message>
        <source>Detection options</source>
        <translation>Opciones de detección</translation>
    </message>
    <message>
        <source>Auto detection</source>
        <translation>Detección automática</translation>
    </message>
    <message>
        <source>Clean wrong link</source>
        <translation>Eliminar enlaces erróneos</translation>
    </message>
    <message>
        <source>Skip optimization</source>
        <translation>Omitir la optimización</translation>
    </message>
    <message>
        <source>Preview</source>
        <translation>Vista previa</translation>
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
        <translation>Estándar</translation>
    </message>
    <message>
        <source>Fisheye</source>
        <translation>Ojo de pez</translation>
    </message>
    <message>
        <source>Warning</source>
        <translation>Advertencia</translation>
    </message>
    <message>
        <source>Papywizard XML has bracketing and the number of images isn&apos;t a multiple of this number of brackets.</source>
        <translation>El XML de Papywizard tiene horquillado y el número de imágenes no es múltiplo del número de exposiciones por posición.</translation>
    </message>
    <message>
        <source>Select the preset file and/or images</source>
        <translation>Seleccionar el archivo de la toma y/o las imágenes</translation>
    </message>
    <message>
        <source>All Files (*.*);;XML files (*.xml)</source>
        <translation>Todos los archivos (*.*);;Archivos XML (*.xml)</translation>
    </message>
    <message>
        <source>All Files (*.*)</source>
        <translation>Todos los archivos (*.*)</translation>
    </message>
    <message>
        <source>Select images</source>
        <translation>Seleccionar imágenes</translation>
    </message>
    <message>
        <source>N/A</source>
        <translation>N/D</translation>
    </message>
    <message>
        <source>Bracketing used in XML, should be multiple of that number</source>
        <translation>El XML usa horquillado; el número de imágenes debería ser múltiplo de ese número</translation>
    </message>
    <message>
        <source>Not the same as in XML fil</source>
        <translation>No coincide con el archivo XML</translation>
    </message>
    <message>
        <source>Focal Length difference between EXIF and XML</source>
        <translation>La distancia focal difiere entre EXIF y XML</translation>
    </message>
    <message>
        <source>Lens type difference between EXIF and XML</source>
        <translation>El tipo de objetivo difiere entre EXIF y XML</translation>
    </message>
    <message>
        <source>There is not enough memory for so many images. Close other programs and try again.</source>
        <translation>No hay memoria suficiente para tantas imágenes. Cierre otros programas e inténtelo de nuevo.</translation>
    </message>
</context>
<context>
    <name>UIWPMerlinClass</name>
    <message>
        <source>Papywizard panohead control software</source>
        <translation>Papywizard, software de control de cabezales panorámicos</translation>
    </message>
    <message>
        <source>Papywizard import</source>
        <translation>Importación de Papywizard</translation>
    </message>
    <message>
        <source>&lt;a href=&quot;https://www.papywizard.org&quot;&gt;&lt;font color=&quot;#DCDCDC&quot;&gt;Papywizard&lt;/font&gt;&lt;/a&gt; is a free project to drive Merlin/Orion panorama heads. The XML file format is open and used by a wide range of motorized panorama heads.</source>
        <translation>&lt;a href=&quot;https://www.papywizard.org&quot;&gt;&lt;font color=&quot;#DCDCDC&quot;&gt;Papywizard&lt;/font&gt;&lt;/a&gt; es un proyecto libre para controlar cabezales Merlin/Orion. Su formato XML es abierto y lo usan muchos cabezales motorizados.</translation>
    </message>
    <message>
        <source>General</source>
        <translation>General</translation>
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
        <translation>Restablecer</translation>
    </message>
    <message>
        <source>Number of images:</source>
        <translation>N.º de imágenes:</translation>
    </message>
    <message>
        <source>N/A</source>
        <translation>N/D</translation>
    </message>
    <message>
        <source>Yaw:</source>
        <translation>Guiñada:</translation>
    </message>
    <message>
        <source>Pitch:</source>
        <translation>Cabeceo:</translation>
    </message>
    <message>
        <source>Bracketing:</source>
        <translation>Horquillado:</translation>
    </message>
    <message>
        <source>XML focal:</source>
        <translation>Focal XML:</translation>
    </message>
    <message>
        <source>Images:</source>
        <translation>Imágenes:</translation>
    </message>
    <message>
        <source>Image focal:</source>
        <translation>Focal de imágenes:</translation>
    </message>
    <message>
        <source>Shoot setup</source>
        <translation>Ajustes de la toma</translation>
    </message>
    <message>
        <source>Inverse Y coordinates</source>
        <translation>Invertir coordenadas Y</translation>
    </message>
    <message>
        <source>Rotate left</source>
        <translation>Girar a la izquierda</translation>
    </message>
    <message>
        <source>Rotate right</source>
        <translation>Girar a la derecha</translation>
    </message>
    <message>
        <source>Focal length:</source>
        <translation>Distancia focal:</translation>
    </message>
    <message>
        <source>Lens Type:</source>
        <translation>Tipo de objetivo:</translation>
    </message>
    <message>
        <source>Use XML information</source>
        <translation>Usar datos del XML</translation>
    </message>
    <message>
        <source>Use image information</source>
        <translation>Usar datos de la imagen</translation>
    </message>
    <message>
        <source>Stack</source>
        <translation>Pila</translation>
    </message>
    <message>
        <source>Detect links in:</source>
        <translation>Detectar enlaces en:</translation>
    </message>
    <message>
        <source>The reference level</source>
        <translation>El nivel de referencia</translation>
    </message>
    <message>
        <source>All stack levels</source>
        <translation>Todos los niveles de la pila</translation>
    </message>
    <message>
        <source>For a stack:</source>
        <translation>Dentro de una pila:</translation>
    </message>
    <message>
        <source>Use hard links</source>
        <translation>Usar enlaces fijos</translation>
    </message>
    <message>
        <source>Detect control points</source>
        <translation>Detectar puntos de control</translation>
    </message>
    <message>
        <source>Detection options</source>
        <translation>Opciones de detección</translation>
    </message>
    <message>
        <source>Auto detection</source>
        <translation>Detección automática</translation>
    </message>
    <message>
        <source>Clean wrong link</source>
        <translation>Eliminar enlaces erróneos</translation>
    </message>
    <message>
        <source>Skip optimization</source>
        <translation>Omitir la optimización</translation>
    </message>
    <message>
        <source>Use recorded location</source>
        <translation>Usar las posiciones registradas</translation>
    </message>
    <message>
        <source>Header details</source>
        <translation>Datos de cabecera</translation>
    </message>
    <message>
        <source>Title:</source>
        <translation>Título:</translation>
    </message>
    <message>
        <source>GPS:</source>
        <translation>GPS:</translation>
    </message>
    <message>
        <source>Comment:</source>
        <translation>Comentario:</translation>
    </message>
    <message>
        <source>Preview</source>
        <translation>Vista previa</translation>
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
        <translation>Estándar</translation>
    </message>
    <message>
        <source>Fisheye</source>
        <translation>Ojo de pez</translation>
    </message>
    <message>
        <source>Warning</source>
        <translation>Advertencia</translation>
    </message>
    <message>
        <source>Papywizard XML has bracketing and the number of images isn&apos;t a multiple of this number of brackets.</source>
        <translation>El XML de Papywizard tiene horquillado y el número de imágenes no es múltiplo del número de exposiciones por posición.</translation>
    </message>
    <message>
        <source>Select the preset file and/or images</source>
        <translation>Seleccionar el archivo de la toma y/o las imágenes</translation>
    </message>
    <message>
        <source>All Files (*.*);;XML files (*.xml)</source>
        <translation>Todos los archivos (*.*);;Archivos XML (*.xml)</translation>
    </message>
    <message>
        <source>All Files (*.*)</source>
        <translation>Todos los archivos (*.*)</translation>
    </message>
    <message>
        <source>Select images</source>
        <translation>Seleccionar imágenes</translation>
    </message>
    <message>
        <source>N/A</source>
        <translation>N/D</translation>
    </message>
    <message>
        <source>Bracketing used in XML, should be multiple of that number</source>
        <translation>El XML usa horquillado; el número de imágenes debería ser múltiplo de ese número</translation>
    </message>
    <message>
        <source>Not the same as in XML fil</source>
        <translation>No coincide con el archivo XML</translation>
    </message>
    <message>
        <source>Focal length difference between EXIF and XML</source>
        <translation>La distancia focal difiere entre EXIF y XML</translation>
    </message>
    <message>
        <source>Lens type difference between EXIF and XML</source>
        <translation>El tipo de objetivo difiere entre EXIF y XML</translation>
    </message>
    <message>
        <source>There is not enough memory for so many images. Close other programs and try again.</source>
        <translation>No hay memoria suficiente para tantas imágenes. Cierre otros programas e inténtelo de nuevo.</translation>
    </message>
</context>
<context>
    <name>UIWPVRDrive2Class</name>
    <message>
        <source>VR Drive II import plugin</source>
        <translation>Complemento de importación VR Drive II</translation>
    </message>
    <message>
        <source>VR Drive 2</source>
        <translation>VR Drive 2</translation>
    </message>
    <message>
        <source>&lt;a href=&quot;https://www.roundshot.com&quot;&gt;&lt;font color=&quot;#DCDCDC&quot;&gt;VR Drive 2&lt;/font&gt;&lt;/a&gt; plug-in enables an automated HDR workflow with all parameters set for true light rendering and easy use of Weavix software.</source>
        <translation>El complemento &lt;a href=&quot;https://www.roundshot.com&quot;&gt;&lt;font color=&quot;#DCDCDC&quot;&gt;VR Drive 2&lt;/font&gt;&lt;/a&gt; automatiza el trabajo en HDR, con todos los parámetros ajustados para una luz fiel y un uso sencillo de Weavix.</translation>
    </message>
    <message>
        <source>General</source>
        <translation>General</translation>
    </message>
    <message>
        <source>Images:</source>
        <translation>Imágenes:</translation>
    </message>
    <message>
        <source>...</source>
        <translation>...</translation>
    </message>
    <message>
        <source>Number of images:</source>
        <translation>N.º de imágenes:</translation>
    </message>
    <message>
        <source>N/A</source>
        <translation>N/D</translation>
    </message>
    <message>
        <source>Image focal:</source>
        <translation>Focal de imágenes:</translation>
    </message>
    <message>
        <source>XML:</source>
        <translation>XML:</translation>
    </message>
    <message>
        <source>Reset</source>
        <translation>Restablecer</translation>
    </message>
    <message>
        <source>Yaw:</source>
        <translation>Guiñada:</translation>
    </message>
    <message>
        <source>Pitch:</source>
        <translation>Cabeceo:</translation>
    </message>
    <message>
        <source>Bracketing:</source>
        <translation>Horquillado:</translation>
    </message>
    <message>
        <source>XML focal:</source>
        <translation>Focal XML:</translation>
    </message>
    <message>
        <source>Output:</source>
        <translation>Salida:</translation>
    </message>
    <message>
        <source>8-bits / 16-bits tonemapped</source>
        <translation>8 bits / 16 bits con mapeo de tonos</translation>
    </message>
    <message>
        <source>32-bits HDR radiance</source>
        <translation>HDR de 32 bits (radiancia)</translation>
    </message>
    <message>
        <source>TextLabel</source>
        <translation>TextLabel</translation>
    </message>
    <message>
        <source>Shoot setup</source>
        <translation>Ajustes de la toma</translation>
    </message>
    <message>
        <source>Inverse Y coordinates</source>
        <translation>Invertir coordenadas Y</translation>
    </message>
    <message>
        <source>Rotate left</source>
        <translation>Girar a la izquierda</translation>
    </message>
    <message>
        <source>Rotate right</source>
        <translation>Girar a la derecha</translation>
    </message>
    <message>
        <source>Focal length:</source>
        <translation>Distancia focal:</translation>
    </message>
    <message>
        <source>Lens Type:</source>
        <translation>Tipo de objetivo:</translation>
    </message>
    <message>
        <source>Use XML information</source>
        <translation>Usar datos del XML</translation>
    </message>
    <message>
        <source>Use image information</source>
        <translation>Usar datos de la imagen</translation>
    </message>
    <message>
        <source>Stack</source>
        <translation>Pila</translation>
    </message>
    <message>
        <source>Detect links in:</source>
        <translation>Detectar enlaces en:</translation>
    </message>
    <message>
        <source>The reference level</source>
        <translation>El nivel de referencia</translation>
    </message>
    <message>
        <source>All stack levels</source>
        <translation>Todos los niveles de la pila</translation>
    </message>
    <message>
        <source>For a stack:</source>
        <translation>Dentro de una pila:</translation>
    </message>
    <message>
        <source>Use hard links</source>
        <translation>Usar enlaces fijos</translation>
    </message>
    <message>
        <source>Detect control points</source>
        <translation>Detectar puntos de control</translation>
    </message>
    <message>
        <source>Detection options</source>
        <translation>Opciones de detección</translation>
    </message>
    <message>
        <source>Auto detection</source>
        <translation>Detección automática</translation>
    </message>
    <message>
        <source>Clean wrong link</source>
        <translation>Eliminar enlaces erróneos</translation>
    </message>
    <message>
        <source>Skip optimization</source>
        <translation>Omitir la optimización</translation>
    </message>
    <message>
        <source>Use recorded location</source>
        <translation>Usar las posiciones registradas</translation>
    </message>
    <message>
        <source>Preview</source>
        <translation>Vista previa</translation>
    </message>
    <message>
        <source>Zoom</source>
        <translation>Zoom</translation>
    </message>
</context>
</TS>
