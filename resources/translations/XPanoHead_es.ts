<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<TS version="2.1" language="es" sourcelanguage="en">
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
        <translation>Seleccione el archivo de registro y/o las imágenes</translation>
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
        <translation>&lt;a href=&quot;https://www.papywizard.org&quot;&gt;&lt;font color=&quot;#DCDCDC&quot;&gt;Papywizard&lt;/font&gt;&lt;/a&gt; es un proyecto libre para controlar cabezales panorámicos Merlin/Orion. El formato de archivo XML es abierto y lo usan muchos cabezales panorámicos motorizados.</translation>
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
        <translation>Número de imágenes:</translation>
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
        <translation>Focal del XML:</translation>
    </message>
    <message>
        <source>Images:</source>
        <translation>Imágenes:</translation>
    </message>
    <message>
        <source>Image focal:</source>
        <translation>Focal de la imagen:</translation>
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
        <translation>Para una pila:</translation>
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
        <translation>Usar la posición registrada</translation>
    </message>
    <message>
        <source>Header details</source>
        <translation>Detalles de la cabecera</translation>
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
        <source>VRDrive2 import</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>This importer is not available yet.</source>
        <translation type="unfinished"></translation>
    </message>
</context>
</TS>
