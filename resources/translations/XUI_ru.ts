<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<TS version="2.1" language="ru" sourcelanguage="en">
<context>
    <name>preview</name>
    <message>
        <source>There is no panorama to show yet.</source>
        <translation>Пока нет панорамы для просмотра.</translation>
    </message>
</context>
<context>
    <name>rotator</name>
    <message>
        <source>Viewing direction</source>
        <translation>Направление взгляда</translation>
    </message>
    <message>
        <source>Look up</source>
        <translation>Смотреть вверх</translation>
    </message>
    <message>
        <source>Turn right</source>
        <translation>Повернуть вправо</translation>
    </message>
    <message>
        <source>Look down</source>
        <translation>Смотреть вниз</translation>
    </message>
    <message>
        <source>Turn left</source>
        <translation>Повернуть влево</translation>
    </message>
</context>
</TS>
