<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<TS version="2.1" language="nl" sourcelanguage="en">
<context>
    <name>preview</name>
    <message>
        <source>There is no panorama to show yet.</source>
        <translation>Er is nog geen panorama om te tonen.</translation>
    </message>
</context>
<context>
    <name>rotator</name>
    <message>
        <source>Viewing direction</source>
        <translation>Kijkrichting</translation>
    </message>
    <message>
        <source>Look up</source>
        <translation>Omhoog kijken</translation>
    </message>
    <message>
        <source>Turn right</source>
        <translation>Naar rechts draaien</translation>
    </message>
    <message>
        <source>Look down</source>
        <translation>Omlaag kijken</translation>
    </message>
    <message>
        <source>Turn left</source>
        <translation>Naar links draaien</translation>
    </message>
</context>
</TS>
