<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<TS version="2.1" language="es" sourcelanguage="en">
<context>
    <name>preview</name>
    <message>
        <source>There is no panorama to show yet.</source>
        <translation>Todavía no hay ningún panorama que mostrar.</translation>
    </message>
</context>
<context>
    <name>rotator</name>
    <message>
        <source>Viewing direction</source>
        <translation>Dirección de la vista</translation>
    </message>
    <message>
        <source>Look up</source>
        <translation>Mirar hacia arriba</translation>
    </message>
    <message>
        <source>Turn right</source>
        <translation>Girar a la derecha</translation>
    </message>
    <message>
        <source>Look down</source>
        <translation>Mirar hacia abajo</translation>
    </message>
    <message>
        <source>Turn left</source>
        <translation>Girar a la izquierda</translation>
    </message>
</context>
</TS>
