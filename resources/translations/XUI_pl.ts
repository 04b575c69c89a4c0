<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<TS version="2.1" language="pl" sourcelanguage="en">
<context>
    <name>preview</name>
    <message>
        <source>There is no panorama to show yet.</source>
        <translation>Nie ma jeszcze panoramy do pokazania.</translation>
    </message>
</context>
<context>
    <name>rotator</name>
    <message>
        <source>Viewing direction</source>
        <translation>Kierunek widoku</translation>
    </message>
    <message>
        <source>Look up</source>
        <translation>Spójrz w górę</translation>
    </message>
    <message>
        <source>Turn right</source>
        <translation>Obróć w prawo</translation>
    </message>
    <message>
        <source>Look down</source>
        <translation>Spójrz w dół</translation>
    </message>
    <message>
        <source>Turn left</source>
        <translation>Obróć w lewo</translation>
    </message>
</context>
</TS>
