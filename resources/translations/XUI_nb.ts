<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<TS version="2.1" language="nb" sourcelanguage="en">
<context>
    <name>preview</name>
    <message>
        <source>There is no panorama to show yet.</source>
        <translation>Det finnes ikke noe panorama å vise ennå.</translation>
    </message>
</context>
<context>
    <name>rotator</name>
    <message>
        <source>Viewing direction</source>
        <translation>Synsretning</translation>
    </message>
    <message>
        <source>Look up</source>
        <translation>Se opp</translation>
    </message>
    <message>
        <source>Turn right</source>
        <translation>Snu til høyre</translation>
    </message>
    <message>
        <source>Look down</source>
        <translation>Se ned</translation>
    </message>
    <message>
        <source>Turn left</source>
        <translation>Snu til venstre</translation>
    </message>
</context>
</TS>
