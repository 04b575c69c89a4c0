<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<TS version="2.1" language="fr" sourcelanguage="en">
<context>
    <name>preview</name>
    <message>
        <source>There is no panorama to show yet.</source>
        <translation>Il n&apos;y a pas encore de panorama à afficher.</translation>
    </message>
</context>
<context>
    <name>rotator</name>
    <message>
        <source>Viewing direction</source>
        <translation>Direction du regard</translation>
    </message>
    <message>
        <source>Look up</source>
        <translation>Regarder vers le haut</translation>
    </message>
    <message>
        <source>Turn right</source>
        <translation>Tourner à droite</translation>
    </message>
    <message>
        <source>Look down</source>
        <translation>Regarder vers le bas</translation>
    </message>
    <message>
        <source>Turn left</source>
        <translation>Tourner à gauche</translation>
    </message>
</context>
</TS>
