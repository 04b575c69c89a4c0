<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<TS version="2.1" language="it" sourcelanguage="en">
<context>
    <name>preview</name>
    <message>
        <source>There is no panorama to show yet.</source>
        <translation>Non c&apos;è ancora nessun panorama da mostrare.</translation>
    </message>
</context>
<context>
    <name>rotator</name>
    <message>
        <source>Viewing direction</source>
        <translation>Direzione di vista</translation>
    </message>
    <message>
        <source>Look up</source>
        <translation>Guarda in alto</translation>
    </message>
    <message>
        <source>Turn right</source>
        <translation>Gira a destra</translation>
    </message>
    <message>
        <source>Look down</source>
        <translation>Guarda in basso</translation>
    </message>
    <message>
        <source>Turn left</source>
        <translation>Gira a sinistra</translation>
    </message>
</context>
</TS>
